#pragma once

// The example deeds as a word processor holds them, and their reviewed results.

#include <string>

#include "plataforma/VrkWord.h"

namespace analizador::pruebas {

// The text of ejemplos/NAME.txt with the variables and bookmarks that documentos.ini gives it: what the
// document made of them holds. Throws std::runtime_error when one cannot be read.
[[nodiscard]] TContenidoDocumento EscrituraDeEjemplo(const std::string& nombre);

// The file ejemplos/resultados/FICHERO, UTF-8.
[[nodiscard]] std::string ResultadoRevisado(const std::string& fichero);

}  // namespace analizador::pruebas

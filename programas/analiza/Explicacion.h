#pragma once

// What the program makes of one paragraph: for the person who wants to know why a fact came out as it did.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "programas/analiza/Vocabulario.h"
#include "rutinas/Tramo.h"

namespace analizador {

// A paragraph as the recognisers get it: Windows-1252, word processor characters made plain, with its end
// mark. `utf8` is one paragraph however many lines it has.
[[nodiscard]] std::string ParrafoDeTexto(std::string_view utf8);

// An entry that counted in a paragraph.
struct TCasada {
    const TSeccionVocabulario* Seccion = nullptr;
    int Numero = 0;  // of the entry, from 1
    Tramo Donde;
    // The section of the same group that wins over this one; empty when this one counts.
    std::string_view Gana;
};

// The entries that count in a paragraph by the current token file, section after section in the table's
// order, those of one section in the order in which they are read.
[[nodiscard]] std::vector<TCasada> SeccionesQueCasan(std::string_view parrafo);

// Something that a recogniser returned.
struct TDevuelto {
    std::string Reconocedor;
    std::string Dato;   // which of its values; empty when it gives only one
    std::string Valor;  // UTF-8; empty: nothing
    Tramo Donde;        // length 0: read nowhere
};

// What each recogniser returns for a paragraph, by the current token file and the installed tables. Throws
// ErrorTabla.
[[nodiscard]] std::vector<TDevuelto> ReconocedoresDe(std::string_view parrafo);

// The whole explanation as aligned text (UTF-8). `fichero` is made the current token file of this thread.
// Throws ErrorTabla, ErrorConfiguracion.
[[nodiscard]] std::string Explica(std::string_view utf8, const std::filesystem::path& fichero);

}  // namespace analizador

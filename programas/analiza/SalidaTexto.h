#pragma once

#include <string>

#include "analizador/ClaseAnalizadorAbierto.h"

namespace analizador {

// The report for a terminal, in UTF-8 with plain line ends; after it the language and the amounts, which the
// report leaves out.
[[nodiscard]] std::string InformeTexto(const TClassAnalizadorAbierto& sesion);

// The same of what the user accepted in the review. Throws ErrorTabla.
[[nodiscard]] std::string EleccionTexto(const TClassAnalizadorAbierto& sesion);

}  // namespace analizador

#pragma once

#include <string>

#include "analizador/ClaseAnalizadorAbierto.h"

namespace analizador {

// The report of what a session holds, with these concepts: those found, or those that the user accepted. A
// fixed layout of labelled lines for people, each ending in CR LF; Windows-1252. Reads the language from this
// thread's token file and the interventions from their table. Throws ErrorTabla.
[[nodiscard]] std::string TextoPizarra(const TClassAnalizadorAbierto& sesion,
                                       const ListaTextos<TRConcepto>& conceptos);

}  // namespace analizador

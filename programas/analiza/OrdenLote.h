#pragma once

#include "programas/analiza/ListaEscrituras.h"
#include "programas/analiza/OpcionesAnaliza.h"

namespace analizador {

// Analyses many deeds side by side, each with its result in its place, and returns the exit code: that of the
// worst of them, or 128 and the signal when one asked for the end. What is begun by then is finished and
// written. Settings and tables are installed; windows are not.
[[nodiscard]] int AnalizaLote(TListaEscrituras& lista, const TOpcionesAnaliza& opciones);

}  // namespace analizador

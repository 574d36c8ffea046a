#pragma once

#include <filesystem>

#include "programas/analiza/Lote.h"
#include "programas/analiza/OpcionesAnaliza.h"

namespace analizador {

// Analyses a deed, lets the user review it and saves it where that was asked for, and says what is to be
// written of it. `titulo`: a report begins with the file's name and ends in an empty line, for there are
// several. What is wrong with the deed never throws: it is the result's Aviso, and the "error" of its line of
// JSON.
[[nodiscard]] TResultado ProcesaEscritura(const std::filesystem::path& escritura,
                                          const TOpcionesAnaliza& opciones, bool titulo);

}  // namespace analizador

#pragma once

// Imports the street map of the electoral census into the tables POSTAL and MUNICIPI.

#include <filesystem>
#include <ostream>

#include "programas/creatablas/Callejero.h"

namespace analizador {

// `carpeta`: the street map's files. `origen`: the folder of callejero.ini and MUNICIPI.csv. `destino`: the
// tables' folder, made if it is not there; the rejected lines are listed there in RECHAZOS.TXT. Writes what
// was read and made to `salida`; what is wrong to `errores`, a line each, UTF-8. False when the street map
// could not be imported: the tables are then as they were.
[[nodiscard]] bool ImportaCallejero(const std::filesystem::path& carpeta, const std::filesystem::path& origen,
                                    const std::filesystem::path& destino, std::ostream& salida,
                                    std::ostream& errores, const TProgresoCallejero& progreso);

}  // namespace analizador

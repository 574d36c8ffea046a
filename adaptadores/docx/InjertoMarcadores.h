#pragma once

#include <string>
#include <vector>

#include "adaptadores/docx/LecturaDocx.h"
#include "plataforma/VrkWord.h"

namespace analizador {

// The main part's XML with the bookmarks added, in place of those of the same names in any case; all else
// as it was. Each Intervalo has to be possible (PosicionPosible) and the names all different. Throws
// FalloDocx when that cannot be done.
[[nodiscard]] std::string InjertaMarcadores(const TLecturaDocx& lectura,
                                            const std::vector<TMarcador>& marcadores);

}  // namespace analizador

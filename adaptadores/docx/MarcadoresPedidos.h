#pragma once

#include <vector>

#include "adaptadores/docx/LecturaDocx.h"
#include "plataforma/VrkWord.h"

namespace analizador {

// Of the bookmarks asked for, those that the document does not have just so already, at possible positions,
// of equal names (in any case) the last. Throws FalloDocx for a bad name or a place outside the text.
[[nodiscard]] std::vector<TMarcador> MarcadoresQueCambian(const TLecturaDocx& lectura,
                                                          const std::vector<TMarcador>& pedidos);

// Whether `nuevo` is `anterior` with `cambios` in place of its bookmarks of those names, and nothing else.
[[nodiscard]] bool EsElMismoConMarcadores(const TContenidoDocumento& nuevo,
                                          const TContenidoDocumento& anterior,
                                          const std::vector<TMarcador>& cambios);

}  // namespace analizador

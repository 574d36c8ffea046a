#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "adaptadores/docx/RecorridoDocx.h"
#include "plataforma/VrkWord.h"

namespace analizador {

// Where a stretch of the text comes from; it ends where the next one begins.
struct TFuente {
    int Inicio = 0;
    std::uint32_t Suceso = 0;  // index of the event that gave it
};

struct TComposicion {
    std::u16string Texto;
    std::vector<TFuente> Fuentes;  // ascending, never two with the same Inicio
    std::vector<TMarcador> Marcadores;
};

// The text that the events add up to: field codes go out, a hidden or deleted paragraph mark joins its
// paragraph with the next, cells and rows get their marks, and a last CR is added where there is none. The
// start or end of a field without its counterpart is ignored, and so is that of a bookmark; of two bookmarks
// of one name, in any case, the first counts.
[[nodiscard]] TComposicion Compone(const std::vector<TSuceso>& sucesos);

}  // namespace analizador

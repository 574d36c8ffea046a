#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "rutinas/Tramo.h"

namespace analizador {

// The stretch of the text, to compare it with what should have been read there. Throws std::out_of_range when
// it passes the text's end.
[[nodiscard]] inline std::string EnTramo(std::string_view texto, Tramo tramo) {
    if (tramo.Primera + tramo.Longitud > texto.size()) throw std::out_of_range("tramo");
    return std::string(texto.substr(tramo.Primera, tramo.Longitud));
}

}  // namespace analizador

#pragma once

// Lengths and positions as the rules count them: from 1, 0 being none.

#include <string>
#include <string_view>

#include "plataforma/Rnumcad.h"

namespace analizador::pruebas {

[[nodiscard]] inline int Largo(std::string_view texto) {
    return static_cast<int>(texto.size());
}

// The text from a position on; empty beyond its end.
[[nodiscard]] inline std::string Desde(std::string_view texto, int posicion) {
    return std::string(StrRight(texto, Largo(texto) - posicion + 1));
}

// The nearer of two positions.
[[nodiscard]] inline int Primera(int una, int otra) {
    if (una == 0 || otra == 0) return una + otra;
    return una < otra ? una : otra;
}

// " Y" in a Castilian deed, " I" in any other.
[[nodiscard]] std::string Conjuncion();

}  // namespace analizador::pruebas

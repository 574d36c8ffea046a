#pragma once

#include <string_view>

namespace analizador {

// The character (one UTF-16 unit) that a symbol stands for: `codigo` in hexadecimal, as the file has it,
// in the font `fuente`. Signs that are no character of any text, such as pictures, give "?".
[[nodiscard]] char16_t CaracterDeSimbolo(std::string_view fuente, std::string_view codigo);

}  // namespace analizador

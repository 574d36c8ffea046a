#pragma once

#include <string>

namespace analizador {

// Appends a character, 0 to 0x10FFFF and no half of a surrogate pair, to a UTF-8 text.
void AnadeUtf8(std::string& texto, char32_t punto);

}  // namespace analizador

#pragma once

#include <string>
#include <string_view>

namespace analizador {

// Appends a character, 0 to 0x10FFFF and no half of a surrogate pair, to a UTF-8 text.
void AnadeUtf8(std::string& texto, char32_t punto);

// What a file says, for a message: UTF-8 on one line, whatever the bytes. A "?" stands for each malformed
// byte and for each character that ends a line, turns the direction of writing or commands a terminal.
[[nodiscard]] std::string EnUnaLinea(std::string_view utf8);

// The same; of what is very long only the beginning, with "…".
[[nodiscard]] std::string PrincipioEnUnaLinea(std::string_view utf8);

// The same between «», for a name.
[[nodiscard]] std::string NombreCitado(std::string_view utf8);

}  // namespace analizador

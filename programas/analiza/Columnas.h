#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace analizador {

// How many characters a UTF-8 text has.
[[nodiscard]] std::size_t Caracteres(std::string_view utf8);

// Rows of cells (UTF-8) as lines of text, each column as wide as its widest cell, with two blanks between
// columns. `aLaDerecha`: one character a column, 'd' for those set to the right; any other, or none, to the
// left. No line ends in a blank.
[[nodiscard]] std::string EnColumnas(const std::vector<std::vector<std::string>>& filas,
                                     std::string_view aLaDerecha = {});

}  // namespace analizador

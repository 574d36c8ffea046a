#pragma once

#include <cstddef>
#include <string_view>

namespace analizador {

// Position (from 0) of the first occurrence of `buscado` that begins at `desde` or later, or npos: what
// texto.find(buscado, desde) gives. That one stops at every letter of the text that is the word's first; this
// one at those that are its rarest in deeds.
[[nodiscard]] std::size_t Encuentra(std::string_view texto, std::string_view buscado, std::size_t desde = 0);

}  // namespace analizador

#pragma once

// The text of a search as Word wants it written.

#include <optional>
#include <string>
#include <string_view>

namespace analizador {

// A literal text (Windows-1252) in the notation of Word's find, where ^ announces the signs that have no
// letter: a paragraph's end is ^p, ^ itself ^^. Optional hyphens are left out, since a search passes over
// them. None when nothing is left, which is never found. Throws ErrorWord for more than the 255 characters
// that Word takes.
[[nodiscard]] std::optional<std::u16string> TextoBuscado(std::string_view literal);

}  // namespace analizador

#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace analizador {

// The bytes of a document file for the fuzzers. What begins with "PK" is an archive already. Else it is the
// text of its parts: what the main part's body holds, then for each other part a line "@@NAME" and its
// content. "estilos" and "ajustes" are what those two parts hold; any other name is a whole part of that
// name, the main one and the package's own included. What a document needs and is not given is added.
[[nodiscard]] std::string DocumentoDeTexto(std::string_view bytes);

// An archive of these parts, stored as they are: sums and sizes right, so that what is wrong in a part is
// reached.
[[nodiscard]] std::string Empaqueta(const std::vector<std::pair<std::string, std::string>>& partes);

}  // namespace analizador

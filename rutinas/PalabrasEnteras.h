#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace analizador {

// Looks for many names in one folded text, each as a whole word: neither the character before it nor the one
// after it is a letter A to Z. The places where a word can begin are noted once, by their first character, so
// that a name costs a look at the few that begin like it.
class TPalabrasEnteras {
  public:
    // `texto` must outlive the object.
    explicit TPalabrasEnteras(std::string_view texto);

    // Position (from 0) of the first occurrence as a whole word; nothing for an empty name.
    [[nodiscard]] std::optional<std::size_t> Busca(std::string_view nombre) const;

  private:
    std::string_view texto_;
    std::array<std::vector<std::size_t>, 256> principios_;
};

}  // namespace analizador

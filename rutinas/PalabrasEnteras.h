#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace analizador {

// Looks for many names in one folded text, each as a whole word: neither the character before it nor the one
// after it is a letter A to Z. The places where a word can begin are noted once, by the word that begins
// there, so that a name costs a look at those few that begin with its first word.
class TPalabrasEnteras {
  public:
    // `texto`, of less than 4 GB, must outlive the object.
    explicit TPalabrasEnteras(std::string_view texto);

    // Position (from 0) of the first occurrence as a whole word; nothing for an empty name.
    [[nodiscard]] std::optional<std::size_t> Busca(std::string_view nombre) const;

  private:
    static constexpr std::size_t SUMAS = 1024;
    static constexpr std::uint32_t NADA = UINT32_MAX;
    struct TPrincipio {
        std::uint32_t Posicion;
        std::uint32_t Siguiente;  // the index of the next one whose word has the same sum, or NADA
    };

    std::string_view texto_;
    std::vector<TPrincipio> principios_;         // from the last to the first
    std::array<std::uint32_t, SUMAS> primeros_;  // the index of the first one of each sum, or NADA
};

}  // namespace analizador

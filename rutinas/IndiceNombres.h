#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>

#include "rutinas/Tramo.h"

namespace analizador {

// The names of a list's lines, to find which of them occur in a text: what that costs grows with the text,
// not with the list. Names are compared exactly; an empty one is never kept.
class TIndiceNombres {
  public:
    // Several lines may have one name.
    void Pon(std::string_view nombre, std::size_t linea);
    // Takes back what Pon was given.
    void Quita(std::string_view nombre, std::size_t linea);

    // The first line of exactly this name; nullopt when there is none.
    [[nodiscard]] std::optional<std::size_t> LineaDe(std::string_view nombre) const;
    // The first line whose name occurs in the text; nullopt when none does.
    [[nodiscard]] std::optional<std::size_t> PrimeraEn(std::string_view texto) const;

    // Calls `visita` with every occurrence of every name in the text: the name's first line, and where it
    // stands. Those of one name come from left to right.
    void Recorre(std::string_view texto, const std::function<void(std::size_t, Tramo)>& visita) const;

  private:
    using TNodo = std::uint32_t;
    using TLineas = std::set<std::size_t>;
    static constexpr TNodo RAIZ = 0;
    static constexpr TNodo NINGUNO = UINT32_MAX;

    [[nodiscard]] TNodo Hijo(TNodo nodo, char letra) const;
    [[nodiscard]] TNodo NodoDe(std::string_view nombre) const;

    // A tree of letters: the node that each letter leads to, and the lines of the names that end in a node.
    std::unordered_map<std::uint64_t, TNodo> hijos_;
    std::unordered_map<TNodo, TLineas> lineas_;
    TNodo nodos_ = 1;
    std::bitset<256> iniciales_;  // the letters that lead away from the root
    // Names too long for the tree: no name of a real party.
    std::map<std::string, TLineas, std::less<>> largos_;
};

}  // namespace analizador

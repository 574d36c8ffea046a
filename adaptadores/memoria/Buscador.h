#pragma once

// The find operation on a text that does not change.

#include <bitset>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "plataforma/VrkWord.h"

namespace analizador {

// Looks for literal texts as TWordDocumentoCustom::Busca says, from byte index to byte index.
//
// A character equals itself, straight quotes and apostrophes the curly ones, the blank the no-break space,
// and, when capitals do not matter, a letter its capital: accents always count. Optional hyphens (31, 173)
// are passed over in the text and in what is looked for. A match begins and ends in a character that was
// looked for; optional hyphens inside it belong to it.
//
// Whole words: letters (those of Windows-1252, ª and º too) and digits make words. A match is refused when
// such a character at its edge touches another one outside; an edge of any other character always passes.
class TBuscador {
  public:
    // Keeps folded copies of the text, the text itself not.
    explicit TBuscador(std::string_view texto);

    // The match that a search from the selection `desde` reaches first. Forward: the first one that begins
    // at its end or later; backward: the last one that ends at its start or earlier. With `Continua` the
    // search then goes on from the other end of the text over all other matches. None: no value; also when
    // `buscado` holds nothing but optional hyphens.
    // Throws ErrorWord for wildcards, sounds like, all word forms and format, and for more than 255
    // characters.
    [[nodiscard]] std::optional<TIntervalo> Busca(std::string_view buscado, const TOpcionesBusqueda& opciones,
                                                  TIntervalo desde) const;

  private:
    static constexpr std::size_t SUMAS = std::size_t{1} << 18U;
    [[nodiscard]] static std::size_t SumaDeRacha(const char* racha);
    [[nodiscard]] bool PuedeEstar(std::string_view mayusculas) const;
    // Where in FTexto a position of the text has come to stand, and the other way round.
    [[nodiscard]] std::size_t Comparable(int posicion) const;
    [[nodiscard]] int EnElTexto(std::size_t comparable) const;

    std::string FTexto;         // equal characters made one, optional hyphens left out
    std::string FMayusculas;    // the same in capitals
    std::vector<int> FGuiones;  // the positions in the text of the optional hyphens
    // The runs of four characters that FMayusculas has, by their sum: most of what is looked for is not in
    // the text, and is known not to be by a run that the text has not.
    std::bitset<SUMAS> FRachas;
};

}  // namespace analizador

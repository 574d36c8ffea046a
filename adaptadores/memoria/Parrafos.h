#pragma once

// Where the paragraphs of a document's text begin.

#include <string_view>
#include <vector>

#include "plataforma/VrkWord.h"

namespace analizador {

// Positions are byte indexes into the text. A paragraph ends after its CR, or after the 7 that follows it (a
// cell or a row). Const after construction; keeps no reference to the text.
class TParrafos {
  public:
    // `texto`: not empty and ending in CR.
    explicit TParrafos(std::string_view texto);

    // The length of the text.
    [[nodiscard]] int Longitud() const { return FLongitud; }

    // Where a cursor can stand last: before the last CR.
    [[nodiscard]] int Fin() const { return FLongitud - 1; }

    // The 0-based index of the paragraph that holds `posicion`, a position outside the text being brought to
    // its first or last one.
    [[nodiscard]] int Indice(int posicion) const;

    // The paragraph of an index from Indice, its end mark included.
    [[nodiscard]] TIntervalo Parrafo(int indice) const;

    // The paragraph that holds `posicion`.
    [[nodiscard]] TIntervalo ParrafoDe(int posicion) const { return Parrafo(Indice(posicion)); }

    // The interval as a selection of the text can be: within the text, bounds out of order an empty interval
    // at `intervalo.Fin`, an empty one no further than Fin().
    [[nodiscard]] TIntervalo Acota(TIntervalo intervalo) const;

  private:
    std::vector<int> FInicios;
    int FLongitud;
};

}  // namespace analizador

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "plataforma/VrkWord.h"
#include "rutinas/Tramo.h"

namespace analizador {

// A paragraph as the recognisers get it: the word processor's special characters made plain.
struct TParrafo {
    int Numero = 0;  // in the document, from 1
    std::string Texto;
};

// The paragraphs that a stretch of the document touches.
[[nodiscard]] std::vector<TParrafo> ParrafosDe(const TWordDocumentoCustom& documento, TIntervalo intervalo);

class TPosicionesPorParrafo;

// For positions in `texto`, which is the document's text of the stretch; it may begin inside a paragraph.
[[nodiscard]] TPosicionesPorParrafo PosicionesDeSeccion(const TWordDocumentoCustom& documento,
                                                        TIntervalo intervalo, std::string_view texto);

// Tells of a position in a text of many paragraphs in which paragraph of the document it stands, and where in
// that paragraph's plain text.
class TPosicionesPorParrafo {
  public:
    // `texto` begins in the paragraph `primerParrafo`, after the first `desplazamiento` plain characters of
    // it. It may be plain already or as the word processor gives it.
    TPosicionesPorParrafo(std::string_view texto, int primerParrafo, std::size_t desplazamiento);
    [[nodiscard]] TOrigen Origen(Tramo tramo) const;

  private:
    std::vector<std::size_t> comienzos_;  // of each paragraph in `texto`
    std::vector<std::size_t>
        ausentes_;  // positions in `texto` of the characters that a plain text has no more
    int primerParrafo_;
    std::size_t desplazamiento_;
    [[nodiscard]] std::size_t Llanos(std::size_t desde, std::size_t hasta) const;
};

}  // namespace analizador

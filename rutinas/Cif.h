#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "rutinas/TextoSin.h"
#include "rutinas/Tramo.h"

namespace analizador {

// Company tax codes of one text, asked for again and again from positions that move on: what is read from a
// digit on is remembered, so that many companies in one paragraph do not read its end once each.
class TBuscadorCif {
  public:
    explicit TBuscadorCif(std::string_view texto);
    TBuscadorCif(const TBuscadorCif&) = delete;
    TBuscadorCif& operator=(const TBuscadorCif&) = delete;

    // BuscaCif of the text from `desde` (from 0) on; Donde is in the whole text.
    [[nodiscard]] THallazgo<std::string> Desde(std::size_t desde);

  private:
    static constexpr std::size_t NADA = std::string_view::npos;
    struct TCifra {
        std::size_t Posicion;
        std::size_t Blanco;               // the nearest blank before it; NADA when there is none
        std::size_t Fin;                  // of its word
        std::optional<Tramo> Leido = {};  // what reading from this digit on ends with
    };
    struct TDictamen {
        bool Aceptado = false;
        bool Guardado = false;  // it stays in the output, accepted or not
    };
    [[nodiscard]] std::size_t CifraDesde(std::size_t posicion) const;
    [[nodiscard]] Tramo PalabraDesde(std::size_t desde);
    [[nodiscard]] static TDictamen Juzga(std::string_view palabra);

    TTextoSin limpio_;
    std::string_view texto_;
    std::vector<TCifra> cifras_;
};

}  // namespace analizador

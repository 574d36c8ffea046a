#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "plataforma/FicheroIni.h"
#include "rutinas/Tramo.h"

namespace analizador {

// An entry of a section found in a text.
struct TEntradaHallada {
    std::size_t Posicion = 0;  // from 0
    std::string_view Entrada;
    int Numero = 0;  // of the entry, from 1
    [[nodiscard]] std::size_t Fin() const { return Posicion + Entrada.size(); }
    [[nodiscard]] Tramo Donde() const { return {Posicion, Entrada.size()}; }
};

// Finds the entries of a section again and again in one text, from positions that move on: each entry
// remembers its next occurrence, so that reading all mentions of a text costs one pass over it for each
// entry, not one a mention. The text is searched as it is and must outlive the object; the entries found live
// as long as the object.
class TBuscadorEntradas {
  public:
    TBuscadorEntradas(std::string_view seccion, std::string_view texto);

    // The entry that begins first at or after `desde`; of two, the one that comes first in the file.
    [[nodiscard]] std::optional<TEntradaHallada> MasALaIzquierda(std::size_t desde = 0);
    // The first entry in file order that occurs at or after `desde`, at its first occurrence there.
    [[nodiscard]] std::optional<TEntradaHallada> PrimeraEntrada(std::size_t desde = 0);
    // True when some entry stands wholly in [desde, hasta).
    [[nodiscard]] bool HayEntre(std::size_t desde, std::size_t hasta);

  private:
    struct TEntrada {
        std::string_view Texto;
        int Numero;
        std::size_t Desde;    // Proxima was searched from here
        std::size_t Proxima;  // npos when the entry occurs no more
    };
    [[nodiscard]] std::size_t ProximaDe(TEntrada& entrada, std::size_t desde) const;

    std::shared_ptr<const TFicheroIni> fichero_;
    std::string_view texto_;
    std::vector<TEntrada> entradas_;
};

// Finds one character again and again in one text, from positions that move on. The text must outlive the
// object.
class TBuscadorCaracter {
  public:
    TBuscadorCaracter(std::string_view texto, char caracter)
        : texto_(texto), caracter_(caracter), proximo_(texto.find(caracter)) {}

    // The first one at or after `desde`, which never goes back; npos when there is none.
    [[nodiscard]] std::size_t Desde(std::size_t desde) {
        if (desde > proximo_) proximo_ = texto_.find(caracter_, desde);
        return proximo_;
    }

  private:
    std::string_view texto_;
    char caracter_;
    std::size_t proximo_;
};

}  // namespace analizador

#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include "plataforma/FicheroIni.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

// The forms of address of one folded text, asked for again and again from positions that move on. Every
// occurrence of every form is found at the start, in one pass over the text, so that a long paragraph costs
// the same however many people it names.
class TBuscadorTratamientos {
  public:
    // `plegado` is folded already and must outlive the object.
    explicit TBuscadorTratamientos(std::string_view plegado);

    // BuscaTratamiento of the text from `desde` (from 0) on: Posicion counts, with its approximation, in the
    // text as cut there; Donde is in the whole text. Fast as long as `desde` does not go back.
    [[nodiscard]] TTratamiento Desde(std::size_t desde) const;

  private:
    struct TOcurrencia {
        std::size_t Posicion;
        bool Cuenta;         // it stands after a blank, LF or CR, or at the start of the text
        std::size_t Valida;  // what counts from here on once this one is known to be false; npos: nothing
        std::size_t Corte;   // where the text is cut when `Valida` is reached
    };
    struct TForma {
        std::string_view Entrada;
        char Sexo;
        std::vector<TOcurrencia> Ocurrencias;
        int MismaUltima;                  // of formas_, the next one with the same last letter; -1: none
        mutable std::size_t Proxima = 0;  // of Ocurrencias, where the last question ended
    };
    // The first occurrence at or after `desde`; null when there is none.
    [[nodiscard]] static const TOcurrencia* Primera(const TForma& forma, std::size_t desde);
    void Localiza();
    static void EncadenaFalsas(TForma& forma);

    std::shared_ptr<const TFicheroIni> fichero_;
    std::string_view texto_;
    std::vector<TForma> formas_;
};

// A name without the form of address at its start and the one character after it. A view into `nombre`.
[[nodiscard]] std::string_view SinTratamientoInicial(std::string_view nombre);

}  // namespace analizador

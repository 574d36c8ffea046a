#pragma once

// The words that numbers are written with, in each language of a deed. Private to NumerosEnLetra.cpp.

#include <span>
#include <string_view>

namespace analizador::interno {

struct TPalabra {
    std::string_view Texto;
    int Valor;
};

// How a word for tens takes a unit after it.
enum class Union {
    Ninguna,      // QUINCE
    Conjuncion,   // VEINTE Y DOS
    Facultativa,  // TRENTA-DOS, TRENTA I DOS
    Pegada,       // VEINTI DOS: never alone
};

struct TDecena {
    std::string_view Texto;
    int Valor;
    Union Une;
    int UnidadMinima = 1;
};

// The words of one language. Where one word begins with another the longer stands first.
struct TIdioma {
    std::span<const TPalabra> Unidades;
    std::span<const TDecena> Decenas;
    std::span<const TPalabra> Multiplos;          // what stands before Cientos, with its hundreds
    std::span<const std::string_view> Cientos;    // CIENTOS
    std::span<const TPalabra> CentenasEnteras;    // hundreds in one word that may have more after them
    std::span<const std::string_view> CienJusto;  // a hundred with nothing after it
    std::span<const std::string_view> Millon;
    std::span<const std::string_view> Millones;
    std::span<const std::string_view> Millardo;
    std::span<const std::string_view> Millardos;
};

[[nodiscard]] const TIdioma& PalabrasCastellanas();
[[nodiscard]] const TIdioma& PalabrasCatalanas();

}  // namespace analizador::interno

#pragma once

// The rows of the table POSTAL that the street map gives.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "adaptadores/dbase/EscritorDbf.h"
#include "programas/creatablas/Callejero.h"

namespace analizador {

// Numbers of one side of a street, both included; an upper one of 0 has no end, 2 to 1 holds none.
struct TLadoPostal {
    std::uint32_t Primero = 2;
    std::uint32_t Ultimo = 1;
    bool operator==(const TLadoPostal&) const = default;
};

struct TFilaPostal {
    std::uint32_t Nombre = 0;  // in TCallejero::Nombres
    std::uint8_t Provincia = 0;
    std::uint8_t Tipo = 0;  // as TViaCallejero has it
    TLadoPostal Impar, Par;
    std::uint32_t CodPostal = 0;
};

// The rows of the municipalities whose streets are ever looked for (`buscados`, by code), in the order of the
// index NOMBREVIA. Of the streets of one name in a province those of the municipality with more stretches
// come first, since the first that has the number decides.
//
// - Stretches of a street that touch or overlap and have one postal code are one.
// - A street without number is the number 0, as an address without number reads; when such stretches have
//   several postal codes none of them is taken.
// - Where a name is a street of a known type in the province, its rows without type are left out: they
//   would overrule the others.
[[nodiscard]] std::vector<TFilaPostal> FilasPostales(const TCallejero& callejero,
                                                     const std::vector<bool>& buscados);

// The row as the table has it.
[[nodiscard]] TFilaDbf FilaDbfDe(const TCallejero& callejero, const TFilaPostal& fila);

}  // namespace analizador

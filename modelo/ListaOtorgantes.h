#pragma once

#include <vector>

#include "modelo/Origenes.h"
#include "modelo/TROtorgante.h"
#include "plataforma/ListaTextos.h"

namespace analizador {

// A party and where its fields were read.
struct TOtorganteHallado {
    TROtorgante Otorgante;
    TOrigenes Origenes;
};

// The parties of a deed in the order found, each under its NombreOtorgante, and where their fields were read:
// one entry of Origenes for each line of Lista.
struct TListaOtorgantes {
    ListaTextos<TROtorgante> Lista;
    std::vector<TOrigenes> Origenes;

    // Files a party under its NombreOtorgante, after those that are there.
    void Anade(TOtorganteHallado hallado);
    void Limpia();
};

}  // namespace analizador

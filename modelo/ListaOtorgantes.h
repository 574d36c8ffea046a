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

    // The origins of a party of this list, which must be one of Lista's own records.
    [[nodiscard]] TOrigenes& OrigenesDe(const TROtorgante& otorgante);

    // Puts other records in the place of these, such as the user reviewed them. A field that still holds what
    // the party of the same name (else of the same document) held here keeps its origin.
    void Sustituye(ListaTextos<TROtorgante> otros);
};

}  // namespace analizador

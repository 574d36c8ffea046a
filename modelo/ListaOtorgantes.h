#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "modelo/Origenes.h"
#include "modelo/TROtorgante.h"
#include "plataforma/ListaTextos.h"
#include "rutinas/IndiceNombres.h"

namespace analizador {

// A party and where its fields were read.
struct TOtorganteHallado {
    TROtorgante Otorgante;
    TOrigenes Origenes;
};

// The parties of a deed in the order found, each under its NombreOtorgante, and where their fields were read:
// one entry of Origenes for each line of Lista.
class TListaOtorgantes {
  public:
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

    // The first line whose party's full name occurs in the text exactly; nullopt when none does. Here, and in
    // HayDocumentoEn, a party counts with the name and the document that it had when one of the two was first
    // called after it joined the list.
    [[nodiscard]] std::optional<std::size_t> LineaNombradaEn(std::string_view texto);
    // True when some party's document occurs in the text exactly.
    [[nodiscard]] bool HayDocumentoEn(std::string_view texto);

  private:
    void IndexaNuevos();

    TIndiceNombres FNombres;
    TIndiceNombres FDocumentos;
    std::size_t FIndexados = 0;  // as many lines from the first are in both
};

}  // namespace analizador

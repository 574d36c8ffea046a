#pragma once

#include "dialogos/SelectorMunicipios.h"

namespace analizador {

// The municipality picker: a box that filters as one types over the table of what is left. The keys stay with
// the box; Up, Down, Page Up and Page Down move the row, Enter or a double click picks it, Escape leaves.
class TVistaMunicipiosQt : public TVistaMunicipios {
  public:
    [[nodiscard]] bool MuestraModal(TSelectorMunicipios& selector) override;
};

}  // namespace analizador

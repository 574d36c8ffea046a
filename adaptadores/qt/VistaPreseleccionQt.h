#pragma once

#include "dialogos/ListaConceptosPreseleccionados.h"

namespace analizador {

// Shows the preselection dialog in a window of Qt; install it with InstalaVistaPreseleccion. There must be a
// QApplication, and the analysis runs on its thread.
class TVistaPreseleccionQt : public TVistaPreseleccion {
  public:
    [[nodiscard]] bool MuestraModal(TFListaConceptosPreseleccionados& dialogo,
                                    TComponente* propietario) override;
};

}  // namespace analizador

#pragma once

#include "dialogos/ListaConceptosPreseleccionados.h"

namespace analizador {

// Answers the review where nobody is there to do it: it chooses nothing, so that the session keeps everything
// that was found, whether it would be proposed or not.
class TRevisorAutomatico : public TVistaPreseleccion {
  public:
    [[nodiscard]] bool MuestraModal(TFListaConceptosPreseleccionados& /*dialogo*/,
                                    TComponente* /*propietario*/) override {
        return false;
    }
};

}  // namespace analizador

#pragma once

#include "dialogos/InformacionOtorgante.h"

namespace analizador {

// Shows the party details dialog, over the active window.
class TVistaInformacionQt : public TVistaInformacion {
  public:
    void MuestraModal(TFInformacionOtorgante& dialogo, TComponente* propietario) override;
};

}  // namespace analizador

#include "dialogos/InformacionOtorgante.h"

namespace analizador {

bool MuestraInformacionOtorgante(TComponente* /*propietario*/, TROtorgante& /*otorgante*/) {
    return false;
}

}  // namespace analizador

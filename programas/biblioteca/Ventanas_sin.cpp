#include "programas/biblioteca/ErrorInterfaz.h"
#include "programas/biblioteca/Ventanas.h"
#include "programas/biblioteca/analizador.h"

namespace analizador {

std::unique_ptr<TVentanasRevision> AbreVentanas(std::intptr_t) {
    throw ErrorInterfaz(ANALIZADOR_SIN_VENTANAS, "no hay ventanas instaladas para la revisión");
}

}  // namespace analizador

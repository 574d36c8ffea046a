#include "programas/biblioteca/ErrorInterfaz.h"
#include "programas/biblioteca/Fuentes.h"
#include "programas/biblioteca/analizador.h"

namespace analizador {

std::unique_ptr<TAnalisisEscritura> AnalizaWord(void*, bool) {
    throw ErrorInterfaz(ANALIZADOR_NO_ANALIZADA,
                        "en este sistema no hay Word: solo se llega a él en Windows");
}

std::intptr_t VentanaDelAnfitrion() {
    return 0;
}

std::optional<std::filesystem::path> CarpetaDeLaBiblioteca() {
    return std::nullopt;
}

}  // namespace analizador

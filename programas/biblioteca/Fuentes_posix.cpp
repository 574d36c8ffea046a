#include "programas/analiza/AnalisisFichero.h"
#include "programas/biblioteca/ErrorInterfaz.h"
#include "programas/biblioteca/Fuentes.h"
#include "programas/biblioteca/analizador.h"

namespace analizador {

std::unique_ptr<TAnalisisEscritura> AnalizaDocx(const std::filesystem::path& fichero, bool revisa) {
    TOpcionesAnalisis opciones;
    opciones.Revisa = revisa;
    return std::make_unique<TAnalisisFichero>(fichero, opciones);
}

void GuardaDocx(TAnalisisEscritura& analisis, const std::filesystem::path& destino, bool forzar) {
    dynamic_cast<TAnalisisFichero&>(analisis).Guarda(destino, forzar);
}

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

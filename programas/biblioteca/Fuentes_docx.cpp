#include "programas/analiza/AnalisisFichero.h"
#include "programas/biblioteca/Fuentes.h"

namespace analizador {

std::unique_ptr<TAnalisisEscritura> AnalizaDocx(const std::filesystem::path& fichero, bool revisa) {
    TOpcionesAnalisis opciones;
    opciones.Revisa = revisa;
    return std::make_unique<TAnalisisFichero>(fichero, opciones);
}

void GuardaDocx(TAnalisisEscritura& analisis, const std::filesystem::path& destino, bool forzar) {
    dynamic_cast<TAnalisisFichero&>(analisis).Guarda(destino, forzar);
}

}  // namespace analizador

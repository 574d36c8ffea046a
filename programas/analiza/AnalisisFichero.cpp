#include "programas/analiza/AnalisisFichero.h"

#include <vector>

#include "plataforma/Rficheros.h"

namespace analizador {

namespace {

// The bookmarks of the sections that this analysis found, which are all that saving adds.
std::vector<TMarcador> MarcadoresDeSecciones(const TClassAnalizadorAbierto& sesion) {
    std::vector<TMarcador> marcadores;
    for (const auto& marcador :
         {sesion.MarcadorCabecera, sesion.MarcadorComparecientes, sesion.MarcadorIntervinientes,
          sesion.MarcadorExponen, sesion.MarcadorTransmision, sesion.MarcadorParteDeudora})
        if (marcador) marcadores.push_back(*marcador);
    return marcadores;
}

}  // namespace

TAnalisisFichero::TAnalisisFichero(const std::filesystem::path& fichero, const TOpcionesAnalisis& opciones) {
    Intenta(Utf8DeRuta(fichero), [&] {
        FDocx.emplace(fichero);
        Analiza(FDocx->Contenido(), opciones.Revisa);
        if (opciones.Salida && (Sesion().Aceptado || !opciones.Revisa))
            Guarda(*opciones.Salida, opciones.Forzar);
    });
}

void TAnalisisFichero::Guarda(const std::filesystem::path& destino, bool forzar) {
    FDocx->Guarda(MarcadoresDeSecciones(Sesion()), destino, {.Forzar = forzar});
}

}  // namespace analizador

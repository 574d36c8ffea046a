#include "programas/analiza/AnalisisFichero.h"

#include <mutex>
#include <set>
#include <vector>

#include "adaptadores/docx/NombresProvisionales.h"
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

// What a run that was killed while it saved left beside its document goes with the next one that is given a
// document of that folder, whatever it does with it. Once for each folder.
void LimpiaCarpetaDe(const std::filesystem::path& fichero) {
    static std::mutex cerrojo;
    static std::set<std::filesystem::path> limpias;
    const auto carpeta = fichero.has_parent_path() ? fichero.parent_path() : std::filesystem::path(".");
    const std::lock_guard guarda(cerrojo);
    if (limpias.insert(carpeta).second) LimpiaProvisionales(carpeta);
}

}  // namespace

TAnalisisFichero::TAnalisisFichero(const std::filesystem::path& fichero, const TOpcionesAnalisis& opciones) {
    Intenta(Utf8DeRuta(fichero), [&] {
        LimpiaCarpetaDe(fichero);
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

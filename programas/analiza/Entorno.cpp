#include "programas/analiza/Entorno.h"

#include "analizador/ConstAnalizador.h"
#include "plataforma/Rficheros.h"

namespace analizador {

namespace {

namespace fs = std::filesystem;

// The program's own folder, or its share folder when it is installed.
fs::path CarpetaAplicacion() {
    const fs::path propia = RutaPrograma().parent_path();
    const fs::path instalada = propia.parent_path() / "share" / "analizador";
    return !fs::exists(propia / "CONFIG") && fs::exists(instalada / "CONFIG") ? instalada : propia;
}

void ExigeCarpeta(const fs::path& carpeta) {
    if (!fs::is_directory(carpeta)) throw ErrorConfiguracion(carpeta.string() + ": no existe esa carpeta");
}

TConfigIni LeeConfig(const std::optional<fs::path>& config) {
    const fs::path aplicacion = CarpetaAplicacion();
    PonCarpetaAplicacion(aplicacion);
    if (config) PonCarpetaTokens(*config);
    ExigeCarpeta(Rutas().PATH_TOKEN_AP);
    return {Rutas().PATH_TOKEN_AP / "OFICINA.INI", aplicacion};
}

fs::path ElegidaDe(const std::optional<fs::path>& tablas, const TConfigIni& config) {
    if (tablas) ExigeCarpeta(*tablas);
    return tablas.value_or(config.CarpetaTablas());
}

}  // namespace

TEntorno::TEntorno(const std::optional<fs::path>& config, const std::optional<fs::path>& tablas)
    : FConfig(LeeConfig(config)), FTablas(ElegidaDe(tablas, FConfig)) {}

}  // namespace analizador

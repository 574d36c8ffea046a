#include "programas/analiza/Entorno.h"

#include <system_error>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Rficheros.h"

namespace analizador {

namespace {

namespace fs = std::filesystem;

// The program's own folder, or its share folder when it is installed.
fs::path CarpetaAplicacion() {
    const fs::path propia = RutaPrograma().parent_path();
    const fs::path instalada = propia.parent_path() / "share" / "analizador";
    std::error_code error;
    return !fs::exists(propia / "CONFIG", error) && fs::exists(instalada / "CONFIG", error) ? instalada
                                                                                            : propia;
}

void ExigeCarpeta(const fs::path& carpeta) {
    std::error_code error;
    if (fs::is_directory(carpeta, error)) return;
    const bool esOtraCosa = fs::exists(carpeta, error);
    throw ErrorConfiguracion(carpeta.string() +
                             (esOtraCosa ? ": no es una carpeta" : ": no existe esa carpeta"));
}

// Without its words the analysis would find nothing and say nothing of it.
void ExigeVocabulario(const fs::path& fichero) {
    std::error_code error;
    if (!fs::is_regular_file(fichero, error))
        throw ErrorConfiguracion(fichero.string() + ": falta ese vocabulario");
}

TConfigIni LeeConfig(const std::optional<fs::path>& config) {
    EligeVocabularios(config);
    return {Rutas().PATH_TOKEN_AP / "OFICINA.INI", Rutas().PATH_APLICACION};
}

fs::path ElegidaDe(const std::optional<fs::path>& tablas, const TConfigIni& config) {
    if (tablas) ExigeCarpeta(*tablas);
    return tablas.value_or(config.CarpetaTablas());
}

}  // namespace

void EligeVocabularios(const std::optional<fs::path>& config) {
    PonCarpetaAplicacion(CarpetaAplicacion());
    if (config) {
        ExigeCarpeta(*config);
        PonCarpetaTokens(*config);
    }
    ExigeVocabulario(Rutas().CASTELLANO_INI);
    ExigeVocabulario(Rutas().CATALAN_INI);
}

TAjustesOficina::TAjustesOficina(const std::optional<fs::path>& config, const std::optional<fs::path>& tablas)
    : FConfig(LeeConfig(config)), FCarpetaTablas(ElegidaDe(tablas, FConfig)), FTablas(FCarpetaTablas) {}

}  // namespace analizador

#include "programas/analiza/Entorno.h"

#include <system_error>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Rficheros.h"

namespace analizador {

namespace {

namespace fs = std::filesystem;

// The program's own folder, or its share folder when it is installed, or the other one.
fs::path CarpetaAplicacion(const std::optional<fs::path>& otra) {
    const fs::path propia = RutaPrograma().parent_path();
    const fs::path instalada = propia.parent_path() / "share" / "analizador";
    std::error_code error;
    for (const auto& carpeta : {propia, instalada})
        if (fs::exists(carpeta / "CONFIG", error)) return carpeta;
    return otra.value_or(propia);
}

void ExigeCarpeta(const fs::path& carpeta) {
    std::error_code error;
    if (fs::is_directory(carpeta, error)) return;
    const bool esOtraCosa = fs::exists(carpeta, error);
    throw ErrorConfiguracion(Utf8DeRuta(carpeta) +
                             (esOtraCosa ? ": no es una carpeta" : ": no existe esa carpeta"));
}

// Without its words the analysis would find nothing and say nothing of it.
void ExigeVocabulario(const fs::path& fichero) {
    std::error_code error;
    if (!fs::is_regular_file(fichero, error))
        throw ErrorConfiguracion(Utf8DeRuta(fichero) + ": falta ese vocabulario");
}

TConfigIni LeeConfig(const std::optional<fs::path>& config, const std::optional<fs::path>& otra) {
    EligeVocabularios(config, otra);
    return {Rutas().PATH_TOKEN_AP / "OFICINA.INI", Rutas().PATH_APLICACION};
}

fs::path ElegidaDe(const std::optional<fs::path>& tablas, const TConfigIni& config) {
    if (tablas) ExigeCarpeta(*tablas);
    return tablas.value_or(config.CarpetaTablas());
}

}  // namespace

void EligeVocabularios(const std::optional<fs::path>& config, const std::optional<fs::path>& otra) {
    PonCarpetaAplicacion(CarpetaAplicacion(otra));
    if (config) {
        ExigeCarpeta(*config);
        PonCarpetaTokens(*config);
    }
    ExigeVocabulario(Rutas().CASTELLANO_INI);
    ExigeVocabulario(Rutas().CATALAN_INI);
}

TAjustesOficina::TAjustesOficina(const std::optional<fs::path>& config, const std::optional<fs::path>& tablas,
                                 const std::optional<fs::path>& otra)
    : FConfig(LeeConfig(config, otra)), FCarpetaTablas(ElegidaDe(tablas, FConfig)), FTablas(FCarpetaTablas) {}

}  // namespace analizador

#include "programas/biblioteca/AjustesCompartidos.h"

#include <mutex>
#include <system_error>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Rficheros.h"
#include "programas/analiza/Entorno.h"
#include "programas/biblioteca/Fuentes.h"

namespace analizador {

namespace {

namespace fs = std::filesystem;

struct TEnUso {
    std::mutex Cerrojo;  // of all the rest
    int Sesiones = 0;
    std::optional<TAjustesOficina> Ajustes;
};

TEnUso& EnUso() {
    static TEnUso enUso;
    return enUso;
}

// Windows finds no folder by a name that ends in its separator.
fs::path SinSeparadorFinal(const fs::path& carpeta) {
    return carpeta.has_filename() ? carpeta : carpeta.parent_path();
}

bool SonLaMisma(const fs::path& una, const fs::path& otra) {
    std::error_code error;
    return una == otra || fs::equivalent(SinSeparadorFinal(una), SinSeparadorFinal(otra), error);
}

void ExigeLaMisma(const std::optional<fs::path>& pedida, const fs::path& enUso) {
    if (pedida && !SonLaMisma(*pedida, enUso))
        throw ErrorConfiguracion(Utf8DeRuta(*pedida) + ": hay sesiones abiertas con otra carpeta, " +
                                 Utf8DeRuta(enUso));
}

}  // namespace

TAjustesCompartidos::TAjustesCompartidos(const TCarpetas& carpetas) {
    TEnUso& enUso = EnUso();
    const std::lock_guard cierra(enUso.Cerrojo);
    if (enUso.Sesiones == 0) {
        enUso.Ajustes.emplace(carpetas.Vocabularios, carpetas.Tablas, CarpetaDeLaBiblioteca());
    } else {
        ExigeLaMisma(carpetas.Vocabularios, Rutas().PATH_TOKEN_AP);
        ExigeLaMisma(carpetas.Tablas, enUso.Ajustes->CarpetaTablas());
    }
    ++enUso.Sesiones;
}

TAjustesCompartidos::~TAjustesCompartidos() {
    TEnUso& enUso = EnUso();
    const std::lock_guard cierra(enUso.Cerrojo);
    if (--enUso.Sesiones == 0) enUso.Ajustes.reset();
}

}  // namespace analizador

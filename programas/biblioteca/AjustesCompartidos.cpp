#include "programas/biblioteca/AjustesCompartidos.h"

#include <mutex>
#include <system_error>

#include "analizador/ConstAnalizador.h"
#include "programas/analiza/Entorno.h"

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

bool SonLaMisma(const fs::path& una, const fs::path& otra) {
    std::error_code error;
    return una == otra || fs::equivalent(una, otra, error);
}

void ExigeLaMisma(const std::optional<fs::path>& pedida, const fs::path& enUso) {
    if (pedida && !SonLaMisma(*pedida, enUso))
        throw ErrorConfiguracion(pedida->string() + ": hay sesiones abiertas con otra carpeta, " +
                                 enUso.string());
}

}  // namespace

TAjustesCompartidos::TAjustesCompartidos(const TCarpetas& carpetas) {
    TEnUso& enUso = EnUso();
    const std::lock_guard cierra(enUso.Cerrojo);
    if (enUso.Sesiones == 0) {
        enUso.Ajustes.emplace(carpetas.Vocabularios, carpetas.Tablas);
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

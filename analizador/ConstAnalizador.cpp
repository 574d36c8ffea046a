#include "analizador/ConstAnalizador.h"

#include <optional>
#include <utility>

#include "plataforma/Rficheros.h"

namespace analizador {

namespace {

void PonTokens(TRutasAnalizador& rutas, const std::filesystem::path& carpeta) {
    rutas.PATH_TOKEN_AP = SlashSep(carpeta, "");
    rutas.CASTELLANO_INI = SlashSep(rutas.PATH_TOKEN_AP, "CASTELLANO.INI");
    rutas.CATALAN_INI = SlashSep(rutas.PATH_TOKEN_AP, "CATALAN.INI");
}

TRutasAnalizador RutasDeCarpeta(const std::filesystem::path& carpeta) {
    TRutasAnalizador rutas;
    rutas.PATH_APLICACION = SlashSep(carpeta, "");
    PonTokens(rutas, SlashSep(rutas.PATH_APLICACION, "CONFIG"));
    return rutas;
}

TRutasAnalizador& RutasDelProceso() {
    static TRutasAnalizador rutas = RutasDeCarpeta(RutaPrograma().parent_path());
    return rutas;
}

std::optional<std::filesystem::path>& FicheroDelHilo() {
    thread_local std::optional<std::filesystem::path> fichero;
    return fichero;
}

}  // namespace

const TRutasAnalizador& Rutas() {
    return RutasDelProceso();
}

void PonCarpetaAplicacion(const std::filesystem::path& carpeta) {
    RutasDelProceso() = RutasDeCarpeta(carpeta);
    FicheroDelHilo().reset();
}

void PonCarpetaTokens(const std::filesystem::path& carpeta) {
    PonTokens(RutasDelProceso(), carpeta);
    FicheroDelHilo().reset();
}

const std::filesystem::path& TOKENS_INI() {
    const auto& fichero = FicheroDelHilo();
    return fichero ? *fichero : Rutas().CASTELLANO_INI;
}

void PonTOKENS_INI(std::filesystem::path fichero) {
    FicheroDelHilo() = std::move(fichero);
}

bool EsCastellano() {
    return TOKENS_INI() == Rutas().CASTELLANO_INI;
}
bool EsCatalan() {
    return TOKENS_INI() == Rutas().CATALAN_INI;
}

}  // namespace analizador

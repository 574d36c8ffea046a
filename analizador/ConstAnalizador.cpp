#include "analizador/ConstAnalizador.h"

#include <mutex>
#include <set>
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

// One of the paths ever chosen, a few, which are kept for ever.
const std::filesystem::path& Guardado(std::filesystem::path fichero) {
    static std::mutex turno;
    static std::set<std::filesystem::path> elegidos;
    const std::lock_guard guarda(turno);
    return *elegidos.insert(std::move(fichero)).first;
}

// A pointer, since with MinGW an object of a thread that needs to be destroyed harms the heap when the thread
// ends. Nullptr: none chosen.
const std::filesystem::path*& FicheroDelHilo() {
    thread_local const std::filesystem::path* fichero = nullptr;
    return fichero;
}

}  // namespace

const TRutasAnalizador& Rutas() {
    return RutasDelProceso();
}

void PonCarpetaAplicacion(const std::filesystem::path& carpeta) {
    RutasDelProceso() = RutasDeCarpeta(carpeta);
    FicheroDelHilo() = nullptr;
}

void PonCarpetaTokens(const std::filesystem::path& carpeta) {
    PonTokens(RutasDelProceso(), carpeta);
    FicheroDelHilo() = nullptr;
}

const std::filesystem::path& TOKENS_INI() {
    const auto* const fichero = FicheroDelHilo();
    return fichero != nullptr ? *fichero : Rutas().CASTELLANO_INI;
}

void PonTOKENS_INI(std::filesystem::path fichero) {
    FicheroDelHilo() = &Guardado(std::move(fichero));
}

bool EsCastellano() {
    return TOKENS_INI() == Rutas().CASTELLANO_INI;
}
bool EsCatalan() {
    return TOKENS_INI() == Rutas().CATALAN_INI;
}

}  // namespace analizador

// The functions of analizador.h; those that differ only in their texts share a template.

#include <memory>
#include <string>

#include "programas/biblioteca/Llamada.h"
#include "programas/biblioteca/Textos.h"
#include "programas/biblioteca/analizador.h"

namespace analizador {
namespace {

void ExigeInterfaz(int interfaz) {
    if (interfaz >= 1 && interfaz <= ANALIZADOR_VERSION_INTERFAZ) return;
    throw ErrorInterfaz(ANALIZADOR_OTRA_INTERFAZ, "la biblioteca tiene la interfaz " +
                                                      std::to_string(ANALIZADOR_VERSION_INTERFAZ) +
                                                      " y el programa pide la " + std::to_string(interfaz));
}

template <class TUnidad>
int Abre(int interfaz, const TUnidad* vocabularios, const TUnidad* tablas, analizador_sesion** sesion) {
    if (sesion != nullptr) *sesion = nullptr;
    return Llama(MotivoDelHilo(), [&] {
        if (sesion == nullptr) throw ErrorInterfaz(ANALIZADOR_MAL_USO, "no hay dónde dejar la sesión");
        ExigeInterfaz(interfaz);
        const TCarpetas carpetas{RutaOpcional(vocabularios), RutaOpcional(tablas)};
        *sesion = std::make_unique<analizador_sesion>(carpetas).release();
    });
}

template <class TUnidad>
int AnalizaFichero(analizador_sesion* sesion, const TUnidad* fichero, unsigned opciones) {
    return LlamaSesion(sesion, [&](auto& suya) {
        suya.Empieza();
        suya.AnalizaFichero(TextoDe(fichero), opciones);
    });
}

template <class TUnidad>
int AnalizaTexto(analizador_sesion* sesion, const TUnidad* texto, unsigned opciones) {
    return LlamaSesion(sesion, [&](auto& suya) {
        suya.Empieza();
        suya.AnalizaTexto(TextoDe(texto), opciones);
    });
}

template <class TUnidad>
int PonVariable(analizador_sesion* sesion, const TUnidad* nombre, const TUnidad* valor) {
    return LlamaSesion(sesion, [&](auto& suya) { suya.PonVariable(TextoDe(nombre), TextoDe(valor)); });
}

template <class TUnidad>
int PonMarcador(analizador_sesion* sesion, const TUnidad* nombre) {
    return LlamaSesion(sesion, [&](auto& suya) { suya.PonMarcador(TextoDe(nombre)); });
}

template <class TUnidad>
int Guarda(analizador_sesion* sesion, const TUnidad* destino, unsigned opciones) {
    return LlamaSesion(sesion, [&](auto& suya) { suya.Guarda(RutaOpcional(destino), opciones); });
}

const TMotivo& Motivo(const analizador_sesion* sesion) {
    return sesion != nullptr && !sesion->EnLlamada ? sesion->Motivo : MotivoDelHilo();
}

}  // namespace
}  // namespace analizador

using namespace analizador;

const char* analizador_version(void) {
    return ANALIZADOR_VERSION;
}

int analizador_interfaz(void) {
    return ANALIZADOR_VERSION_INTERFAZ;
}

int analizador_comprueba(int interfaz) {
    return Llama(MotivoDelHilo(), [&] { ExigeInterfaz(interfaz); });
}

int analizador_abre(int interfaz, const char* vocabularios, const char* tablas, analizador_sesion** sesion) {
    return Abre(interfaz, vocabularios, tablas, sesion);
}

int analizador_abre16(int interfaz, const analizador_utf16* vocabularios, const analizador_utf16* tablas,
                      analizador_sesion** sesion) {
    return Abre(interfaz, vocabularios, tablas, sesion);
}

void analizador_cierra(analizador_sesion* sesion) {
    if (sesion == nullptr) return;
    if (!TTurno(*sesion).EsSuyo()) {
        Rechaza("la sesión está ocupada con otra llamada: no se cierra");
        return;
    }
    const std::unique_ptr<analizador_sesion> suya(sesion);
}

const char* analizador_error(analizador_sesion* sesion) {
    return Motivo(sesion).Texto();
}

const analizador_utf16* analizador_error16(analizador_sesion* sesion) {
    return Motivo(sesion).Texto16();
}

int analizador_analiza_fichero(analizador_sesion* sesion, const char* fichero, unsigned opciones) {
    return AnalizaFichero(sesion, fichero, opciones);
}

int analizador_analiza_fichero16(analizador_sesion* sesion, const analizador_utf16* fichero,
                                 unsigned opciones) {
    return AnalizaFichero(sesion, fichero, opciones);
}

int analizador_analiza_texto(analizador_sesion* sesion, const char* texto, unsigned opciones) {
    return AnalizaTexto(sesion, texto, opciones);
}

int analizador_analiza_texto16(analizador_sesion* sesion, const analizador_utf16* texto, unsigned opciones) {
    return AnalizaTexto(sesion, texto, opciones);
}

int analizador_analiza_word(analizador_sesion* sesion, void* aplicacion, unsigned opciones) {
    return LlamaSesion(sesion, [&](auto& suya) {
        suya.Empieza();
        suya.AnalizaWord(aplicacion, opciones);
    });
}

int analizador_pon_variable(analizador_sesion* sesion, const char* nombre, const char* valor) {
    return PonVariable(sesion, nombre, valor);
}

int analizador_pon_variable16(analizador_sesion* sesion, const analizador_utf16* nombre,
                              const analizador_utf16* valor) {
    return PonVariable(sesion, nombre, valor);
}

int analizador_pon_marcador(analizador_sesion* sesion, const char* nombre) {
    return PonMarcador(sesion, nombre);
}

int analizador_pon_marcador16(analizador_sesion* sesion, const analizador_utf16* nombre) {
    return PonMarcador(sesion, nombre);
}

const char* analizador_texto(analizador_sesion* sesion, const char* donde) {
    const char* texto = nullptr;
    LlamaSesion(sesion, [&](auto& suya) { texto = suya.Resultados().Texto(TextoDe(donde)); });
    return texto;
}

const analizador_utf16* analizador_texto16(analizador_sesion* sesion, const char* donde) {
    const analizador_utf16* texto = nullptr;
    LlamaSesion(sesion, [&](auto& suya) { texto = suya.Resultados().Texto16(TextoDe(donde)); });
    return texto;
}

int analizador_cuenta(analizador_sesion* sesion, const char* donde) {
    int cuenta = -1;
    LlamaSesion(sesion, [&](auto& suya) { cuenta = suya.Resultados().Cuenta(TextoDe(donde)); });
    return cuenta;
}

int analizador_aceptada(analizador_sesion* sesion) {
    int aceptada = -1;
    LlamaSesion(sesion, [&](auto& suya) { aceptada = suya.Aceptada() ? 1 : 0; });
    return aceptada;
}

int analizador_guarda(analizador_sesion* sesion, const char* destino, unsigned opciones) {
    return Guarda(sesion, destino, opciones);
}

int analizador_guarda16(analizador_sesion* sesion, const analizador_utf16* destino, unsigned opciones) {
    return Guarda(sesion, destino, opciones);
}

#include "adaptadores/memoria/DocumentoMemoria.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

#include "adaptadores/memoria/Letras.h"
#include "plataforma/Ansi.h"

namespace analizador {

namespace {

constexpr std::size_t LONGITUD_MAXIMA_NOMBRE = 40;

bool MismoNombre(std::string_view uno, std::string_view otro) {
    return AnsiUpperCase(uno) == AnsiUpperCase(otro);
}

bool EsAnterior(const TMarcador& uno, const TMarcador& otro) {
    return AnsiUpperCase(uno.Nombre) < AnsiUpperCase(otro.Nombre);
}

// Throws ErrorWord for a name that the word processor would refuse.
void CompruebaNombreMarcador(std::string_view nombre) {
    const bool vale =
        !nombre.empty() && nombre.size() <= LONGITUD_MAXIMA_NOMBRE &&
        (EsLetra(nombre.front()) || nombre.front() == '_') &&
        std::all_of(nombre.begin(), nombre.end(), [](char c) { return EsLetraODigito(c) || c == '_'; });
    if (!vale)
        throw ErrorWord(
            "No es un nombre de marcador: \"" + std::string(nombre) +
            std::string("\" (hasta 40 letras, dígitos y guiones bajos, sin dígito al principio)"_ansi));
}

TContenidoDocumento ConUltimoCR(TContenidoDocumento contenido) {
    if (!contenido.Texto.ends_with('\r')) contenido.Texto.push_back('\r');
    return contenido;
}

void OrdenaMarcadores(std::vector<TMarcador>& marcadores) {
    std::stable_sort(marcadores.begin(), marcadores.end(), EsAnterior);
    const auto repetidos = std::unique(
        marcadores.begin(), marcadores.end(),
        [](const TMarcador& uno, const TMarcador& otro) { return MismoNombre(uno.Nombre, otro.Nombre); });
    marcadores.erase(repetidos, marcadores.end());
}

std::string Trozo(const std::string& texto, TIntervalo intervalo) {
    return texto.substr(static_cast<std::size_t>(intervalo.Inicio),
                        static_cast<std::size_t>(intervalo.Fin - intervalo.Inicio));
}

}  // namespace

void TSeleccionMemoria::SubeParrafo(bool extiende) {
    const bool vacia = FIntervalo.Inicio == FIntervalo.Fin;
    int inicio = FParrafos.ParrafoDe(FIntervalo.Inicio).Inicio;
    if (inicio == FIntervalo.Inicio && (vacia || extiende)) inicio = FParrafos.ParrafoDe(inicio - 1).Inicio;
    PonIntervalo({inicio, extiende ? FIntervalo.Fin : inicio});
}

void TSeleccionMemoria::BajaParrafo(bool extiende) {
    const int fin = FParrafos.ParrafoDe(FIntervalo.Fin).Fin;
    PonIntervalo({extiende ? FIntervalo.Inicio : fin, fin});
}

TParrafoDocumento TSeleccionMemoria::GetPrimerParrafo() const {
    const auto intervalo = FParrafos.ParrafoDe(FIntervalo.Inicio);
    return {intervalo, Trozo(FTexto, intervalo)};
}

TDocumentoMemoria::TDocumentoMemoria(TContenidoDocumento contenido)
    : FContenido(ConUltimoCR(std::move(contenido))),
      FParrafos(FContenido.Texto),
      FBuscador(FContenido.Texto),
      FSeleccion(FContenido.Texto, FParrafos) {
    for (auto& marcador : FContenido.Marcadores) marcador.Intervalo = FParrafos.Acota(marcador.Intervalo);
    OrdenaMarcadores(FContenido.Marcadores);
}

bool TDocumentoMemoria::Busca(std::string_view texto, const TOpcionesBusqueda& opciones) {
    const auto hallado = FBuscador.Busca(texto, opciones, FSeleccion.GetIntervalo());
    if (hallado) FSeleccion.PonIntervalo(*hallado);
    return hallado.has_value();
}

std::string TDocumentoMemoria::GetTexto(TIntervalo intervalo) const {
    return Trozo(FContenido.Texto, FParrafos.Acota(intervalo));
}

std::vector<std::string> TDocumentoMemoria::GetParrafos(TIntervalo intervalo) const {
    const auto acotado = FParrafos.Acota(intervalo);
    const int ultimo = FParrafos.Indice(std::max(acotado.Inicio, acotado.Fin - 1));
    std::vector<std::string> parrafos;
    for (int i = FParrafos.Indice(acotado.Inicio); i <= ultimo; ++i)
        parrafos.push_back(Trozo(FContenido.Texto, FParrafos.Parrafo(i)));
    return parrafos;
}

std::string TDocumentoMemoria::VariableValor(std::string_view nombre) const {
    const auto variable =
        std::find_if(FContenido.Variables.begin(), FContenido.Variables.end(),
                     [nombre](const TVariable& una) { return MismoNombre(una.Nombre, nombre); });
    return variable == FContenido.Variables.end() ? std::string() : variable->Valor;
}

TMarcador TDocumentoMemoria::NuevoMarcador(std::string_view nombre, bool reemplaza) {
    CompruebaNombreMarcador(nombre);
    auto& marcadores = FContenido.Marcadores;
    TMarcador nuevo{std::string(nombre), FSeleccion.GetIntervalo()};
    const auto lugar = std::lower_bound(marcadores.begin(), marcadores.end(), nuevo, EsAnterior);
    if (lugar == marcadores.end() || !MismoNombre(lugar->Nombre, nombre))
        return *marcadores.insert(lugar, std::move(nuevo));
    if (reemplaza) *lugar = std::move(nuevo);
    return *lugar;
}

std::vector<TMarcador> TDocumentoMemoria::GetMarcadores() const {
    std::vector<TMarcador> visibles;
    std::copy_if(FContenido.Marcadores.begin(), FContenido.Marcadores.end(), std::back_inserter(visibles),
                 [](const TMarcador& marcador) { return !marcador.Nombre.starts_with('_'); });
    return visibles;
}

}  // namespace analizador

#include "rutinas/Tratamiento.h"

#include <algorithm>
#include <array>
#include <utility>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"

namespace analizador {

namespace {

constexpr std::size_t NADA = std::string_view::npos;

}  // namespace

TBuscadorTratamientos::TBuscadorTratamientos(std::string_view plegado)
    : fichero_(AbreFicheroIni(TOKENS_INI())), texto_(plegado) {
    constexpr std::string_view SEXOS = "HM";
    for (std::size_t s = 0; s < CONST_SECCION_SEXOS.size(); ++s)
        for (const std::string& entrada : fichero_->Palabras(CONST_SECCION_SEXOS[s]))
            if (!entrada.empty()) formas_.push_back({entrada, SEXOS[s], {}, -1});
    Localiza();
    std::erase_if(formas_, [](const TForma& forma) { return forma.Ocurrencias.empty(); });
    for (TForma& forma : formas_) EncadenaFalsas(forma);
}

// A blank follows each occurrence: at each blank the forms that end in the letter before it are tried.
void TBuscadorTratamientos::Localiza() {
    std::array<int, 256> porUltima{};
    porUltima.fill(-1);
    for (std::size_t i = 0; i < formas_.size(); ++i) {
        int& ultima = porUltima[static_cast<unsigned char>(formas_[i].Entrada.back())];
        formas_[i].MismaUltima = std::exchange(ultima, static_cast<int>(i));
    }
    for (std::size_t blanco = texto_.find(' ', 1); blanco != NADA; blanco = texto_.find(' ', blanco + 1)) {
        const std::string_view antes = texto_.substr(0, blanco);
        int i = porUltima[static_cast<unsigned char>(antes.back())];
        while (i >= 0) {
            TForma& forma = formas_[static_cast<std::size_t>(i)];
            if (antes.ends_with(forma.Entrada)) {
                const std::size_t p = blanco - forma.Entrada.size();
                const char anterior = p == 0 ? ' ' : texto_[p - 1];
                forma.Ocurrencias.push_back(
                    {p, anterior == ' ' || anterior == '\n' || anterior == '\r', NADA, 0});
            }
            i = forma.MismaUltima;
        }
    }
}

// After a false one the search goes on at the blank behind it; an occurrence that begins just there starts
// the cut text and so counts.
void TBuscadorTratamientos::EncadenaFalsas(TForma& forma) {
    auto& ocurrencias = forma.Ocurrencias;
    for (std::size_t i = ocurrencias.size(); i-- > 0;) {
        const std::size_t corte = ocurrencias[i].Posicion + forma.Entrada.size();
        const auto siguiente = std::lower_bound(
            ocurrencias.begin(), ocurrencias.end(), corte,
            [](const TOcurrencia& ocurrencia, std::size_t p) { return ocurrencia.Posicion < p; });
        if (siguiente == ocurrencias.end()) continue;
        if (siguiente->Cuenta || siguiente->Posicion == corte) {
            ocurrencias[i].Valida = siguiente->Posicion;
            ocurrencias[i].Corte = corte;
        } else {
            ocurrencias[i].Valida = siguiente->Valida;
            ocurrencias[i].Corte = siguiente->Corte;
        }
    }
}

const TBuscadorTratamientos::TOcurrencia* TBuscadorTratamientos::Primera(const TForma& forma,
                                                                         std::size_t desde) {
    const auto& ocurrencias = forma.Ocurrencias;
    std::size_t& i = forma.Proxima;
    if (i > 0 && ocurrencias[i - 1].Posicion >= desde) i = 0;
    while (i < ocurrencias.size() && ocurrencias[i].Posicion < desde) ++i;
    return i < ocurrencias.size() ? &ocurrencias[i] : nullptr;
}

TTratamiento TBuscadorTratamientos::Desde(std::size_t desde) const {
    TTratamiento mejor;
    for (const TForma& forma : formas_) {
        const TOcurrencia* const primera = Primera(forma, desde);
        if (primera == nullptr) continue;
        const bool cuenta = primera->Cuenta || primera->Posicion == desde;
        const std::size_t verdadera = cuenta ? primera->Posicion : primera->Valida;
        if (verdadera == NADA) continue;
        const int posicion = static_cast<int>(verdadera - (cuenta ? desde : primera->Corte)) + 1;
        if (mejor.Posicion == 0 || posicion < mejor.Posicion)
            mejor = {posicion, std::string(forma.Entrada), forma.Sexo, {verdadera, forma.Entrada.size()}};
    }
    return mejor;
}

TTratamiento BuscaTratamiento(std::string_view texto) {
    const std::string plegado = Pliega(texto);
    return TBuscadorTratamientos(plegado).Desde(0);
}

std::string_view SinTratamientoInicial(std::string_view nombre) {
    const TTratamiento tratamiento = BuscaTratamiento(nombre);
    if (tratamiento.Posicion != 1) return nombre;
    return StrRight(nombre,
                    static_cast<int>(nombre.size()) - static_cast<int>(tratamiento.Tratamiento.size()) - 1);
}

}  // namespace analizador

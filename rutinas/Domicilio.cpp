#include <algorithm>
#include <array>
#include <span>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "rutinas/Buscador.h"
#include "rutinas/Leido.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

constexpr std::size_t NADA = std::string_view::npos;
constexpr std::string_view CIFRAS = "0123456789";

constexpr std::array<std::string_view, 2> ARTICULOS = {"LA ", "EL "};
constexpr std::array<std::string_view, 5> PREPOSICIONES = {"DEL ", "DE ", "LA ", "LOS ", "EL "};
constexpr std::array<std::string_view, 6> PREPOSICIONES_CATALANAS = {"DEL ", "DE ",   "LA ",
                                                                     "ELS ", "DELS ", "EL "};

// The same stretch of the text in capitals, which keeps its accents and is what is taken, and folded, which
// is what is searched.
struct TVistas {
    std::string_view Mayusculas;
    std::string_view Plegado;

    void Quita(std::size_t n) {
        n = std::min(n, Mayusculas.size());
        Mayusculas.remove_prefix(n);
        Plegado.remove_prefix(n);
    }
    void Recorta() {
        Quita(Mayusculas.size() - RecortaIzquierda(Mayusculas).size());
        Mayusculas = RecortaDerecha(Mayusculas);
        Plegado = Plegado.substr(0, Mayusculas.size());
    }
};

struct TTipoVia {
    std::string_view Codigo;
    Tramo Donde;  // of the word
};

std::optional<TTipoVia> BuscaTipoVia(std::string_view plegado) {
    std::optional<TTipoVia> mejor;
    for (std::size_t i = 0; i < CONST_SECCION_TIPO_VIA.size(); ++i) {
        TBuscadorEntradas entradas(CONST_SECCION_TIPO_VIA[i], plegado);
        const auto hallada = entradas.MasALaIzquierda();
        if (hallada && (!mejor || hallada->Posicion < mejor->Donde.Primera))
            mejor = {CONST_TIPO_VIA[i], hallada->Donde()};
    }
    return mejor;
}

// Drops one of the words from the start of the text, at most once.
void QuitaPalabraInicial(TVistas& texto, std::span<const std::string_view> palabras) {
    const auto palabra = std::find_if(palabras.begin(), palabras.end(),
                                      [&](auto p) { return texto.Mayusculas.starts_with(p); });
    if (palabra != palabras.end()) texto.Quita(palabra->size());
}

void QuitaArticuloInicial(TVistas& texto) {
    QuitaPalabraInicial(texto, ARTICULOS);
}

void QuitaPreposicionArticulo(TVistas& texto) {
    if (EsCatalan())
        QuitaPalabraInicial(texto, PREPOSICIONES_CATALANAS);
    else
        QuitaPalabraInicial(texto, PREPOSICIONES);
}

// Leaves what follows the words that introduce the address; false, and the text as it was, without them.
bool PasaDomicilio(std::string_view& plegado) {
    TBuscadorEntradas entradas("DOMICILIO", plegado);
    const auto domicilio = entradas.PrimeraEntrada();
    if (domicilio) plegado.remove_prefix(domicilio->Fin());
    return domicilio.has_value();
}

// Leaves the text in which the street stands; false when no word introduces an address.
bool PasaAViaConDomicilio(TVistas& texto) {
    std::string_view resto = texto.Plegado;
    if (!PasaDomicilio(resto)) return false;
    texto.Quita(texto.Plegado.size() - resto.size());
    texto.Recorta();
    QuitaArticuloInicial(texto);
    return true;
}

struct TCorte {
    std::size_t Fin;    // characters of the street's name
    std::size_t Salto;  // characters between the name and what holds the number
};

// A word for the number ends the name only in front of a comma; a name that would be empty has no end.
TCorte FinDeVia(std::string_view plegado) {
    const TCorte todo{plegado.size(), 0};
    const std::size_t coma = plegado.find(',');
    if (coma == NADA) return todo;
    TBuscadorEntradas numeros("NUMERO", plegado);
    const auto numero = numeros.MasALaIzquierda();
    const TCorte corte = numero && numero->Posicion < coma ? TCorte{numero->Posicion, numero->Entrada.size()}
                                                           : TCorte{coma, 1};
    return corte.Fin == 0 ? todo : corte;
}

std::string_view PrimerasCifras(std::string_view texto) {
    const std::size_t primera = texto.find_first_of(CIFRAS);
    if (primera == NADA) return {};
    texto.remove_prefix(primera);
    return texto.substr(0, texto.find_first_not_of(CIFRAS));
}

// The end of a foreign address: a bracket anywhere, else the full stop; 0 without either.
std::size_t FinDeDomicilioExtranjero(std::string_view plegado) {
    if (const std::size_t parentesis = plegado.find('('); parentesis != NADA) return parentesis;
    const int punto = PosicionPunto(plegado);
    return punto == 0 ? 0 : static_cast<std::size_t>(punto) - 1;
}

}  // namespace

TDomicilio BuscaDomicilio(std::string_view texto) {
    const std::string mayusculas = AnsiUpperCase(texto);
    const std::string plegado = Pliega(texto);
    TVistas resto{mayusculas, plegado};
    const bool conDomicilio = PasaAViaConDomicilio(resto);
    const auto tipo = BuscaTipoVia(resto.Plegado);
    if (!conDomicilio && !tipo) return {};
    TDomicilio domicilio;
    if (tipo) {
        domicilio.TipoVia = {
            std::string(tipo->Codigo),
            TramoDe(mayusculas, resto.Mayusculas.substr(tipo->Donde.Primera, tipo->Donde.Longitud))};
        resto.Quita(tipo->Donde.Primera + tipo->Donde.Longitud + 1);
        QuitaPreposicionArticulo(resto);
    }
    const TCorte corte = FinDeVia(resto.Plegado);
    domicilio.Via = Leido(mayusculas, RecortaIzquierda(resto.Mayusculas.substr(0, corte.Fin)));
    resto.Quita(corte.Fin + corte.Salto);
    domicilio.Numero = Leido(mayusculas, PrimerasCifras(resto.Mayusculas));
    return domicilio;
}

THallazgo<std::string> BuscaDomicilioExtranjero(std::string_view texto) {
    const std::string plegado = Pliega(texto);
    std::string_view resto = plegado;
    if (PasaDomicilio(resto)) resto = Recorta(resto);
    std::string_view domicilio = Recorta(resto.substr(0, FinDeDomicilioExtranjero(resto)));
    if (domicilio.ends_with(',') || domicilio.ends_with('.') || domicilio.ends_with(';'))
        domicilio.remove_suffix(1);
    return Leido(plegado, domicilio);
}

}  // namespace analizador

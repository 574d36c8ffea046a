#include <algorithm>
#include <array>
#include <memory>
#include <utility>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Ansi.h"
#include "plataforma/Confnvx.h"
#include "plataforma/Rut.h"
#include "plataforma/Ruttb.h"
#include "rutinas/Buscador.h"
#include "rutinas/HechoDeTabla.h"
#include "rutinas/PalabrasEnteras.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

using TPaises = std::vector<THallazgo<TRPais>>;

constexpr int PAIS_DESCONOCIDO = 999;

// The fields with a country's words, in the order in which they are tried.
constexpr std::array<std::string_view, 5> GENTILICIOS = {"NACIONALID", "GENTIL1_MA", "GENTIL2_MA",
                                                         "GENTIL1_FE", "GENTIL2_FE"};
constexpr std::array<std::string_view, 5> GENTILICIOS_CATALANES = {"NACIONA_CA", "GEN1_MA_CA", "GEN2_MA_CA",
                                                                   "GEN1_FE_CA", "GEN2_FE_CA"};

// Of two countries that share a word these are the ones meant.
constexpr std::array<std::string_view, 14> PAISES_PREFERIDOS = {
    "REINO UNIDO",      "HOLANDA",   "BENIN",         "BURUNDI", "COREA NORTE",    "BURKINA FASO", "LESOTHO",
    "ISLAS SEYCHELLES", "SRI LANKA", "GUINEA BISSAU", "MALASIA", "ISLAS MALDIVAS", "MADAGASCAR",   "RUANDA"};

// A folded text in which every vowel with dieresis is written with "#" in front of the plain vowel, as the
// Catalan demonyms are stored. It is one longer for each, and knows where its characters came from.
class TTextoConAlmohadillas {
  public:
    explicit TTextoConAlmohadillas(std::string_view plegado) {
        constexpr std::string_view CON_DIERESIS = "ÄËÏÖÜ"_ansi;
        constexpr std::string_view VOCALES = "AEIOU";
        texto_.reserve(plegado.size());
        for (const char c : plegado) {
            const std::size_t vocal = CON_DIERESIS.find(c);
            if (vocal == std::string_view::npos) {
                texto_ += c;
                continue;
            }
            almohadillas_.push_back(texto_.size());
            texto_.append("#") += VOCALES[vocal];
        }
    }

    [[nodiscard]] const std::string& Texto() const { return texto_; }

    // The stretch of the folded text from which a stretch of this one came; not for an empty one.
    [[nodiscard]] Tramo Original(Tramo tramo) const {
        const std::size_t primera = PosicionOriginal(tramo.Primera);
        return {primera, PosicionOriginal(tramo.Primera + tramo.Longitud - 1) + 1 - primera};
    }

  private:
    [[nodiscard]] std::size_t PosicionOriginal(std::size_t posicion) const {
        const auto antes = std::lower_bound(almohadillas_.begin(), almohadillas_.end(), posicion);
        return posicion - static_cast<std::size_t>(antes - almohadillas_.begin());
    }

    std::string texto_;
    std::vector<std::size_t> almohadillas_;  // their positions in texto_
};

// The first country, in alphabetical order, that the text names.
void BuscaPais(TTabla& paises, std::string_view plegado, TExtranjeria& extranjeria) {
    const TPalabrasEnteras palabras(plegado);
    for (paises.Primero(); !paises.Fin(); paises.Siguiente()) {
        const std::string nombre = paises.Texto("PROVINCIA");
        if (const auto posicion = palabras.Busca(nombre)) {
            extranjeria.Pais = {nombre, {*posicion, nombre.size()}};
            extranjeria.CodPais = paises.Entero("CODIGO");
            return;
        }
    }
}

struct TGentilicio {
    std::string Palabra;
    int Fila;  // its country's, from 0
};

// The words of the countries, one country after another as the table has them now, those of each in the order
// in which they are tried.
using TGentilicios = std::vector<TGentilicio>;

TGentilicios LeeGentilicios(TTabla& paises) {
    const auto& campos = EsCastellano() ? GENTILICIOS : GENTILICIOS_CATALANES;
    TGentilicios gentilicios;
    int fila = 0;
    for (paises.Primero(); !paises.Fin(); paises.Siguiente(), ++fila)
        for (const std::string_view campo : campos)
            if (std::string palabra = paises.Texto(campo); !palabra.empty())
                gentilicios.push_back({std::move(palabra), fila});
    return gentilicios;
}

// Those of the language of the deed: every paragraph with parties asks for them.
std::shared_ptr<const TGentilicios> Gentilicios(TTabla& paises) {
    static std::array<THechoDeTabla<TGentilicios>, 2> gentilicios;
    return gentilicios[EsCastellano() ? 0 : 1].De(paises, LeeGentilicios);
}

// Puts a country in its place by position, before those at the same one.
void InsertaPais(TPaises& paises, THallazgo<TRPais> pais) {
    const auto sitio =
        std::lower_bound(paises.begin(), paises.end(), pais.Valor.Posicion,
                         [](const auto& otro, int posicion) { return otro.Valor.Posicion < posicion; });
    paises.insert(sitio, std::move(pais));
}

TPaises BuscaGentilicios(TTabla& paises, std::string_view plegado) {
    const TTextoConAlmohadillas reescrito(EsCastellano() ? std::string_view{} : plegado);
    const TPalabrasEnteras palabras(EsCastellano() ? plegado : std::string_view(reescrito.Texto()));
    const auto gentilicios = Gentilicios(paises);
    TPaises hallados;
    int fila = 0;     // of the table's row
    int tomada = -1;  // one word of each country counts
    paises.Primero();
    for (const TGentilicio& gentilicio : *gentilicios) {
        if (gentilicio.Fila == tomada) continue;
        const auto posicion = palabras.Busca(gentilicio.Palabra);
        if (!posicion) continue;
        tomada = gentilicio.Fila;
        for (; fila < tomada; ++fila) paises.Siguiente();
        TRPais pais{paises.Texto("PROVINCIA"), paises.Entero("CODIGO"), gentilicio.Palabra,
                    static_cast<int>(*posicion) + 1};
        Tramo donde{*posicion, gentilicio.Palabra.size()};
        if (!EsCastellano()) donde = reescrito.Original(donde);
        InsertaPais(hallados, {std::move(pais), donde});
    }
    return hallados;
}

// Of two countries found through the same word: whether the first one stays.
bool QuedaElPrimero(std::string_view primero, std::string_view conocido) {
    if (!conocido.empty()) return primero == conocido;
    return std::find(PAISES_PREFERIDOS.begin(), PAISES_PREFERIDOS.end(), primero) != PAISES_PREFERIDOS.end();
}

void QuitaRepetidos(TPaises& paises, std::string_view conocido) {
    auto primero = paises.begin();
    while (primero != paises.end()) {
        const auto repetido = std::find_if(primero + 1, paises.end(), [&](const auto& otro) {
            return otro.Valor.Texto == primero->Valor.Texto;
        });
        if (repetido == paises.end())
            ++primero;
        else if (QuedaElPrimero(primero->Valor.Nombre, conocido))
            paises.erase(repetido);
        else
            primero = paises.erase(primero);
    }
}

// The country of a foreigner who names none: that of the first word of nationality.
void TomaPaisDeLaLista(TExtranjeria& extranjeria) {
    if (extranjeria.Paises.empty()) {
        extranjeria.Pais.Valor = "DESCONOCIDO";
        extranjeria.CodPais = PAIS_DESCONOCIDO;
        return;
    }
    const auto& primero = extranjeria.Paises.front();
    extranjeria.Pais = {primero.Valor.Nombre, primero.Donde};
    extranjeria.CodPais = primero.Valor.Codigo;
}

}  // namespace

TExtranjeria CompruebaExtranjeros(std::string_view parrafo) {
    const std::string plegado = Pliega(parrafo);
    const auto paises = CreaTabla(Config().GetAliasNorvex(), "PROVIN.DBF", "ALFABETICO", true, false);
    TBFiltra(*paises, "GRUPO=2");
    TExtranjeria extranjeria;
    extranjeria.Espannol = ContieneToken("EXTRANJEROS", plegado, {.Plegado = false}).Posicion == 0;
    if (!extranjeria.Espannol) BuscaPais(*paises, plegado, extranjeria);
    extranjeria.Paises = BuscaGentilicios(*paises, plegado);
    QuitaRepetidos(extranjeria.Paises, extranjeria.Pais.Valor);
    if (!extranjeria.Espannol && extranjeria.Pais.Valor.empty()) TomaPaisDeLaLista(extranjeria);
    return extranjeria;
}

}  // namespace analizador

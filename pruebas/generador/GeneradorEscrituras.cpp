#include "pruebas/generador/GeneradorEscrituras.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "plataforma/Ansi.h"
#include "pruebas/generador/Reglas.h"

namespace analizador::pruebas {

namespace {

using TParrafos = std::vector<std::string>;

// A symbol made once or more often: its paragraphs, UTF-8.
void Agrega(TParrafos& parrafos, TExpansion& expansion, std::string_view simbolo, std::size_t veces) {
    for (std::size_t i = 0; i < veces; ++i) {
        const std::string texto = expansion.Expande(simbolo);
        for (std::size_t desde = 0; desde <= texto.size();) {
            const std::size_t fin = std::min(texto.find('|', desde), texto.size());
            parrafos.push_back(texto.substr(desde, fin - desde));
            desde = fin + 1;
        }
    }
}

// A heading, left out once in a while: a section that is not found covers others.
void AgregaTitulo(TParrafos& parrafos, TExpansion& expansion, TAzar& azar, std::string_view simbolo) {
    if (!azar.UnaDe(12)) Agrega(parrafos, expansion, simbolo, 1);
}

constexpr std::size_t PARRAFOS_FIJOS = 10;  // headings, the deed's head and its close

// How often each section's paragraphs are made; the last section grows until the deed is long enough.
struct TMedidas {
    std::size_t Comparecientes;
    std::size_t Intervienen;
    std::size_t Exponen;
    std::size_t Otorgan;
};

TMedidas MedidasAlAzar(TAzar& azar, std::size_t parrafos) {
    TMedidas medidas{azar.Entre(1, 5), azar.Entre(0, 4), azar.Entre(4, 22), azar.Entre(4, 22)};
    const std::size_t naturales =
        PARRAFOS_FIJOS + medidas.Comparecientes + medidas.Intervienen + medidas.Exponen + medidas.Otorgan;
    const std::size_t faltan = parrafos > naturales ? parrafos - naturales : 0;
    medidas.Comparecientes += faltan / 40;
    medidas.Intervienen += faltan / 40;
    medidas.Exponen += faltan / 2;
    return medidas;
}

TParrafos Parrafos(TExpansion& expansion, TAzar& azar, std::size_t cuantos) {
    const TMedidas medidas = MedidasAlAzar(azar, cuantos);
    TParrafos parrafos;
    Agrega(parrafos, expansion, "cabecera", 1);
    AgregaTitulo(parrafos, expansion, azar, "titulo_comparecientes");
    Agrega(parrafos, expansion, "comparecientes", medidas.Comparecientes);
    AgregaTitulo(parrafos, expansion, azar, "titulo_intervienen");
    Agrega(parrafos, expansion, "intervienen", medidas.Intervienen);
    AgregaTitulo(parrafos, expansion, azar, "titulo_exponen");
    Agrega(parrafos, expansion, "exponen", medidas.Exponen);
    AgregaTitulo(parrafos, expansion, azar, "titulo_otorgan");
    Agrega(parrafos, expansion, "otorgan", medidas.Otorgan);
    while (parrafos.size() + 2 < cuantos) Agrega(parrafos, expansion, "otorgan", 1);
    Agrega(parrafos, expansion, "cierre", 1);
    return parrafos;
}

// A slip somewhere in a paragraph: a character doubled, lost or replaced by one that is not there in a clean
// text.
void Descuida(std::string& parrafo, TAzar& azar) {
    static const std::string RAROS = std::string(" \t,.;-\"'()") + '\xA0' + '\x93' + '\x94' + '\x92' +
                                     '\x96' + '\xAB' + '\xBB' + '\xB7' + '\x0B' + '\x1E' + '\x1F' + "xQ7";
    if (parrafo.empty()) return;
    const std::size_t donde = azar.Entre(0, static_cast<std::uint32_t>(parrafo.size()) - 1);
    switch (azar.Entre(0, 4)) {
        case 0:
            parrafo.insert(donde, 1, parrafo[donde]);
            break;
        case 1:
            parrafo.erase(donde, 1);
            break;
        case 2:
            parrafo[donde] = azar.Elige(RAROS);
            break;
        case 3:
            parrafo.insert(donde, 1, azar.Elige(RAROS));
            break;
        default:
            parrafo = AnsiUpperCase(parrafo);
    }
}

// Two neighbours change places, or one is lost, empty or twice there.
void Desordena(TParrafos& parrafos, TAzar& azar) {
    const auto donde = azar.Entre(0, static_cast<std::uint32_t>(parrafos.size()) - 2);
    switch (azar.Entre(0, 3)) {
        case 0:
            std::swap(parrafos[donde], parrafos[donde + 1]);
            break;
        case 1:
            parrafos[donde].clear();
            break;
        case 2:
            parrafos[donde + 1] = parrafos[donde];
            break;
        default:
            parrafos[donde] += " " + parrafos[donde + 1];
    }
}

}  // namespace

std::vector<std::string> GeneraEscritura(std::uint32_t semilla, std::size_t parrafos) {
    TAzar azar(semilla);
    TExpansion expansion(azar.UnaDe(3) ? ReglasCatalanas() : ReglasCastellanas(), azar);
    TParrafos hechos;
    for (const std::string& parrafo : Parrafos(expansion, azar, parrafos))
        hechos.push_back(AnsiDeUtf8(parrafo));
    return Descuidada(std::move(hechos), semilla);
}

std::vector<std::string> Descuidada(std::vector<std::string> parrafos, std::uint32_t semilla) {
    TAzar azar(semilla);
    for (std::string& parrafo : parrafos)
        while (azar.UnaDe(10)) Descuida(parrafo, azar);
    while (parrafos.size() > 1 && azar.UnaDe(3)) Desordena(parrafos, azar);
    return parrafos;
}

std::vector<std::string> Salpicada(std::vector<std::string> parrafos, std::uint32_t semilla,
                                   const std::vector<std::string>& palabras) {
    TAzar azar(semilla);
    for (std::string& parrafo : parrafos)
        while (!palabras.empty() && !azar.UnaDe(3)) {
            std::size_t donde = azar.Entre(0, static_cast<std::uint32_t>(parrafo.size()));
            if (!azar.UnaDe(4)) donde = std::min(parrafo.find(' ', donde), parrafo.size());
            parrafo.insert(donde, (azar.UnaDe(4) ? "" : " ") + azar.Elige(palabras));
        }
    return parrafos;
}

bool DescribeFinca(std::string_view parrafo) {
    return parrafo.starts_with("URBANA") || parrafo.starts_with("RÚSTICA"_ansi);
}

TContenidoDocumento ContenidoDe(const std::vector<std::string>& parrafos) {
    TContenidoDocumento contenido;
    for (const std::string& parrafo : parrafos) {
        const int inicio = static_cast<int>(contenido.Texto.size());
        const TIntervalo intervalo{inicio, inicio + static_cast<int>(parrafo.size())};
        if (DescribeFinca(parrafo))
            contenido.Marcadores.push_back(
                {"FINCA_" + std::to_string(contenido.Marcadores.size() + 1), intervalo});
        contenido.Texto += parrafo + "\r";
    }
    contenido.Variables.push_back({std::string(VARIABLE_EMPLEADO), std::string(EMPLEADO)});
    return contenido;
}

}  // namespace analizador::pruebas

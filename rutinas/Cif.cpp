#include "rutinas/Cif.h"

#include <algorithm>

#include "plataforma/Rnumcad.h"
#include "plataforma/Rvarias.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

constexpr std::string_view SIGNOS = ".-,;\t\n\r";
constexpr std::string_view INICIALES = "ABCDEFGHKLMNPQS";
constexpr std::string_view CIFRAS = "0123456789";
constexpr std::size_t LONGITUD_MINIMA = 8;  // what is shorter leaves no trace
constexpr std::size_t LONGITUD_CIF = 9;

// The first characters of a word once its signs are gone, enough to judge it.
std::string PrincipioSinSignos(std::string_view palabra) {
    std::string principio;
    for (const char c : palabra) {
        if (SIGNOS.find(c) != std::string_view::npos) continue;
        principio += c;
        if (principio.size() > LONGITUD_CIF) break;
    }
    return principio;
}

}  // namespace

TBuscadorCif::TBuscadorCif(std::string_view texto) : limpio_(texto, "\t"), texto_(limpio_.Texto()) {
    std::size_t blanco = NADA;
    std::size_t fin = 0;
    for (std::size_t i = 0; i < texto_.size(); ++i) {
        if (texto_[i] == ' ') blanco = i;
        if (CIFRAS.find(texto_[i]) == std::string_view::npos) continue;
        if (fin <= i) fin = std::min(texto_.find_first_of(" \n", i), texto_.size());
        cifras_.push_back({i, blanco, fin});
    }
}

std::size_t TBuscadorCif::CifraDesde(std::size_t posicion) const {
    const auto cifra = std::lower_bound(cifras_.begin(), cifras_.end(), posicion,
                                        [](const TCifra& c, std::size_t p) { return c.Posicion < p; });
    return static_cast<std::size_t>(cifra - cifras_.begin());
}

TBuscadorCif::TDictamen TBuscadorCif::Juzga(std::string_view palabra) {
    const std::string candidato = PrincipioSinSignos(palabra);
    if (candidato.size() < LONGITUD_MINIMA) return {};
    const bool aceptado = INICIALES.find(candidato.front()) != std::string_view::npos &&
                          candidato.find_first_not_of(CIFRAS, 1) == std::string::npos &&
                          EsUnCif(candidato, true);
    return {aceptado, true};
}

// Every word with a digit takes the place of the one before, until one is accepted. Once the start of the
// text is behind, what follows depends on the digit alone.
Tramo TBuscadorCif::PalabraDesde(std::size_t desde) {
    std::vector<std::size_t> recorridas;
    Tramo leido;
    for (std::size_t c = CifraDesde(desde); c < cifras_.size();) {
        TCifra& cifra = cifras_[c];
        const bool trasBlanco = cifra.Blanco != NADA && cifra.Blanco >= desde;
        if (trasBlanco && cifra.Leido) {
            leido = *cifra.Leido;
            break;
        }
        if (trasBlanco) recorridas.push_back(c);
        const std::size_t inicio = trasBlanco ? cifra.Blanco + 1 : desde;
        const std::size_t longitud = cifra.Fin - inicio;
        const TDictamen dictamen = Juzga(texto_.substr(inicio, longitud));
        leido = dictamen.Guardado ? Tramo{inicio, longitud} : Tramo{};
        if (dictamen.Aceptado) break;
        c = CifraDesde(cifra.Posicion + longitud + 1);
    }
    for (const std::size_t c : recorridas) cifras_[c].Leido = leido;
    return leido;
}

THallazgo<std::string> TBuscadorCif::Desde(std::size_t desde) {
    const Tramo leido = PalabraDesde(limpio_.Posicion(desde));
    std::string_view palabra = texto_.substr(leido.Primera, leido.Longitud);
    std::string cif = QuitaCaracteres(palabra, SIGNOS);
    palabra.remove_prefix(std::min(palabra.find_first_not_of(SIGNOS), palabra.size()));
    palabra = palabra.substr(0, palabra.find_last_not_of(SIGNOS) + 1);
    return {std::move(cif), limpio_.Original(palabra)};
}

THallazgo<std::string> BuscaCif(std::string_view texto) {
    return TBuscadorCif(texto).Desde(0);
}

}  // namespace analizador

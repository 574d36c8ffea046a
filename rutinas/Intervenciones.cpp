#include "plataforma/Encuentra.h"
#include "plataforma/Rut.h"
#include "rutinas/IndiceNombres.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

constexpr int TRANSMITE = 2;
constexpr int ADQUIERE = 1;
constexpr int DEUDOR = 4;
constexpr int NINGUNA = 99;
constexpr std::size_t NADA = std::string_view::npos;

std::size_t PosicionNombre(std::string_view nombre, std::string_view texto, std::size_t desde = 0) {
    return nombre.empty() ? NADA : Encuentra(texto, nombre, desde);
}

// Position of the section's phrase, from 1; 0 when none stands there.
std::size_t PosicionFrase(std::string_view seccion, std::string_view plegado) {
    const TToken frase = ContieneToken(seccion, plegado, {.Plegado = false, .PrimeraEntrada = true});
    return static_cast<std::size_t>(frase.Posicion);
}

}  // namespace

THallazgo<int> BuscaIntervencionVenden(std::string_view parrafo, std::string_view nombre) {
    return BuscaIntervencionesVenden(parrafo, {std::string(nombre)}).front();
}

std::vector<THallazgo<int>> BuscaIntervencionesVenden(std::string_view parrafo,
                                                      const std::vector<std::string>& nombres) {
    std::vector<THallazgo<int>> halladas(nombres.size(), {NINGUNA, {}});
    std::vector<std::string> plegados;
    TIndiceNombres indice;
    for (const std::string& nombre : nombres) {
        plegados.push_back(Pliega(nombre));
        indice.Pon(plegados.back(), plegados.size() - 1);
    }
    const std::string plegado = Pliega(parrafo);
    const std::size_t frase = PosicionFrase("TRANSMISION", plegado);
    // Both halves hold the phrase's first character.
    const std::size_t finCabeza = frase;
    const std::size_t inicioCola = frase == 0 ? 0 : frase - 1;
    indice.Recorre(plegado, [&](std::size_t i, Tramo donde) {
        if (halladas[i].Valor != NINGUNA) return;
        if (donde.Primera + donde.Longitud <= finCabeza)
            halladas[i] = {TRANSMITE, donde};
        else if (donde.Primera >= inicioCola)
            halladas[i] = {ADQUIERE, donde};
    });
    // Only the first of equal names was looked for.
    for (std::size_t i = 0; i < nombres.size(); ++i)
        halladas[i] = halladas[indice.LineaDe(plegados[i]).value_or(i)];
    return halladas;
}

THallazgo<int> BuscaIntervencionParteDeudora(std::string_view parrafo, std::string_view nombre) {
    const std::string plegado = Pliega(parrafo);
    const std::string buscado = Pliega(nombre);
    const std::size_t frase = PosicionFrase("PARTE DEUDORA", plegado);
    if (frase == 0) return {NINGUNA, {}};
    const std::size_t p = PosicionNombre(buscado, plegado, frase - 1);
    return p == NADA ? THallazgo<int>{NINGUNA, {}} : THallazgo<int>{DEUDOR, {p, buscado.size()}};
}

}  // namespace analizador

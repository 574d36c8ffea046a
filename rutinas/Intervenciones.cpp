#include "plataforma/Rut.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

constexpr int TRANSMITE = 2;
constexpr int ADQUIERE = 1;
constexpr int DEUDOR = 4;
constexpr int NINGUNA = 99;
constexpr std::size_t NADA = std::string_view::npos;

std::size_t PosicionNombre(std::string_view nombre, std::string_view texto, std::size_t desde = 0) {
    return nombre.empty() ? NADA : texto.find(nombre, desde);
}

// Position of the section's phrase, from 1; 0 when none stands there.
std::size_t PosicionFrase(std::string_view seccion, std::string_view plegado) {
    const TToken frase = ContieneToken(seccion, plegado, {.Plegado = false, .PrimeraEntrada = true});
    return static_cast<std::size_t>(frase.Posicion);
}

}  // namespace

THallazgo<int> BuscaIntervencionVenden(std::string_view parrafo, std::string_view nombre) {
    const std::string plegado = Pliega(parrafo);
    const std::string buscado = Pliega(nombre);
    const std::size_t frase = PosicionFrase("TRANSMISION", plegado);
    // Both halves hold the phrase's first character.
    const std::string_view cabeza = std::string_view(plegado).substr(0, frase);
    if (const std::size_t p = PosicionNombre(buscado, cabeza); p != NADA)
        return {TRANSMITE, {p, buscado.size()}};
    const std::size_t cola = frase == 0 ? 0 : frase - 1;
    if (const std::size_t p = PosicionNombre(buscado, plegado, cola); p != NADA)
        return {ADQUIERE, {p, buscado.size()}};
    return {NINGUNA, {}};
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

#include "analizador/Parrafos.h"

#include <algorithm>
#include <array>

#include "plataforma/Rnumcad.h"

namespace analizador {

std::vector<TParrafo> ParrafosDe(const TWordDocumentoCustom& documento, TIntervalo intervalo) {
    std::vector<TParrafo> parrafos;
    int numero = documento.GetNumeroParrafo(intervalo.Inicio);
    for (const std::string& texto : documento.GetParrafos(intervalo))
        parrafos.push_back({numero++, TraduceCaracteresExtranosDeWord(texto)});
    return parrafos;
}

namespace {

// For each character, whether it disappears when a text of the word processor is made plain.
const std::array<bool, 256>& Desaparecen() {
    static const auto TABLA = [] {
        std::array<bool, 256> tabla{};
        for (std::size_t i = 0; i < tabla.size(); ++i)
            tabla[i] = TraduceCaracteresExtranosDeWord(std::string(1, static_cast<char>(i))).empty();
        return tabla;
    }();
    return TABLA;
}

}  // namespace

TPosicionesPorParrafo::TPosicionesPorParrafo(std::string_view texto, int primerParrafo,
                                             std::size_t desplazamiento)
    : comienzos_{0}, primerParrafo_(primerParrafo), desplazamiento_(desplazamiento) {
    const auto& desaparece = Desaparecen();
    for (std::size_t i = 0; i < texto.size(); ++i) {
        if (desaparece[static_cast<unsigned char>(texto[i])])
            ausentes_.push_back(i);
        else if (texto[i] == '\r')
            comienzos_.push_back(i + 1);
    }
}

std::size_t TPosicionesPorParrafo::Llanos(std::size_t desde, std::size_t hasta) const {
    const auto hastaPosicion = [&](std::size_t p) {
        return std::lower_bound(ausentes_.begin(), ausentes_.end(), p) - ausentes_.begin();
    };
    return hasta - desde - static_cast<std::size_t>(hastaPosicion(hasta) - hastaPosicion(desde));
}

TOrigen TPosicionesPorParrafo::Origen(Tramo tramo) const {
    const auto siguiente = std::upper_bound(comienzos_.begin(), comienzos_.end(), tramo.Primera);
    const auto parrafo = siguiente - comienzos_.begin() - 1;
    const std::size_t comienzo = *(siguiente - 1);
    const std::size_t primera = Llanos(comienzo, tramo.Primera) + (parrafo == 0 ? desplazamiento_ : 0);
    return {primerParrafo_ + static_cast<int>(parrafo),
            {primera, Llanos(tramo.Primera, tramo.Primera + tramo.Longitud)}};
}

TPosicionesPorParrafo PosicionesDeSeccion(const TWordDocumentoCustom& documento, TIntervalo intervalo,
                                          std::string_view texto) {
    constexpr char MARCA_DE_CELDA = 7;
    const std::string primero = documento.GetParrafos({intervalo.Inicio, intervalo.Inicio}).front();
    // How much of its first paragraph the stretch holds; one without a line end stops before the paragraph's
    // own.
    std::size_t tomado = texto.find('\r') + 1;
    if (tomado == 0) tomado = texto.size() + 1;
    if (primero.ends_with(MARCA_DE_CELDA)) ++tomado;
    const std::size_t crudo = primero.size() - std::min(primero.size(), tomado);
    const std::size_t llano = TraduceCaracteresExtranosDeWord(primero.substr(0, crudo)).size();
    return {texto, documento.GetNumeroParrafo(intervalo.Inicio), llano};
}

}  // namespace analizador

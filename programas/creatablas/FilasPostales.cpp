#include "programas/creatablas/FilasPostales.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <numeric>
#include <span>
#include <tuple>

#include "analizador/ConstAnalizador.h"

namespace analizador {

namespace {

constexpr std::uint32_t SIN_FIN = 9998;  // the last number of either side that the street map can write

// A stretch under one of its street's names. `Orden` is the name's place among all in alphabetical order,
// `Turno` the municipality's by size.
struct TEntrada {
    std::uint32_t Orden, Turno;
    std::uint32_t CodPostal;
    std::uint16_t Primero, Ultimo;
    std::uint8_t Provincia, Tipo;
    bool Impar;

    [[nodiscard]] auto Via() const { return std::tie(Provincia, Orden); }
    [[nodiscard]] auto Grupo() const { return std::tie(Provincia, Orden, Turno, Tipo); }
    bool operator<(const TEntrada& otra) const {
        return std::tie(Provincia, Orden, Turno, Tipo, Impar, Primero, Ultimo, CodPostal) <
               std::tie(otra.Provincia, otra.Orden, otra.Turno, otra.Tipo, otra.Impar, otra.Primero,
                        otra.Ultimo, otra.CodPostal);
    }
};

struct TTirada {
    std::uint32_t Primero, Ultimo, CodPostal;
    bool Emparejada = false;
};

// The names in alphabetical order, and for each its place there; equal ones share theirs.
struct TOrdenNombres {
    std::vector<std::uint32_t> Lugar;     // by name
    std::vector<std::uint32_t> PorLugar;  // a name of each place
};

TOrdenNombres OrdenaNombres(const TCallejero& callejero) {
    std::vector<std::uint32_t> nombres(callejero.Nombres.size());
    std::iota(nombres.begin(), nombres.end(), 0U);
    std::sort(nombres.begin(), nombres.end(),
              [&](std::uint32_t a, std::uint32_t b) { return callejero.Nombre(a) < callejero.Nombre(b); });
    TOrdenNombres orden;
    orden.Lugar.resize(nombres.size());
    for (const std::uint32_t nombre : nombres) {
        if (orden.PorLugar.empty() || callejero.Nombre(orden.PorLugar.back()) != callejero.Nombre(nombre))
            orden.PorLugar.push_back(nombre);
        orden.Lugar[nombre] = static_cast<std::uint32_t>(orden.PorLugar.size() - 1);
    }
    return orden;
}

// Every municipality's turn, the one with most stretches first.
std::vector<std::uint32_t> Turnos(const TCallejero& callejero) {
    std::vector<std::uint32_t> municipios(callejero.Municipios.size());
    std::iota(municipios.begin(), municipios.end(), 0U);
    std::stable_sort(municipios.begin(), municipios.end(), [&](std::uint32_t a, std::uint32_t b) {
        return callejero.Municipios[a].Tramos > callejero.Municipios[b].Tramos;
    });
    std::vector<std::uint32_t> turnos(municipios.size());
    for (std::uint32_t i = 0; i < municipios.size(); ++i) turnos[municipios[i]] = i;
    return turnos;
}

std::vector<TEntrada> Entradas(const TCallejero& callejero, const std::vector<bool>& buscados,
                               const TOrdenNombres& orden) {
    const std::vector<std::uint32_t> turnos = Turnos(callejero);
    std::vector<TEntrada> entradas;
    entradas.reserve(callejero.Tramos.size());
    for (const TTramoCallejero& tramo : callejero.Tramos) {
        if (!buscados[tramo.Municipio]) continue;
        const TViaCallejero& via = callejero.Vias[tramo.Via];
        for (std::uint32_t i = 0; i < via.Cuantos; ++i)
            entradas.push_back({orden.Lugar[via.Primero + i], turnos[tramo.Municipio], tramo.CodPostal,
                                tramo.Primero, tramo.Ultimo,
                                static_cast<std::uint8_t>(tramo.Municipio / MUNICIPIOS_POR_PROVINCIA),
                                via.Tipo, tramo.Impar});
    }
    std::sort(entradas.begin(), entradas.end());
    return entradas;
}

bool EsSinNumero(const TEntrada& entrada) {
    return entrada.Primero == 0 && entrada.Ultimo == 0;
}

// True when the stretches without number of the group have different postal codes.
bool SinNumeroDudoso(std::span<const TEntrada> grupo) {
    const TEntrada* primera = nullptr;
    for (const TEntrada& entrada : grupo) {
        if (!EsSinNumero(entrada)) continue;
        if (primera != nullptr && primera->CodPostal != entrada.CodPostal) return true;
        primera = &entrada;
    }
    return false;
}

// One side's stretches, in their order, those that touch or overlap made one.
std::vector<TTirada> Tiradas(std::span<const TEntrada> grupo, bool impar, bool sinNumero) {
    std::vector<TTirada> tiradas;
    for (const TEntrada& entrada : grupo) {
        if (entrada.Impar != impar || (!sinNumero && EsSinNumero(entrada))) continue;
        if (!tiradas.empty() && tiradas.back().CodPostal == entrada.CodPostal &&
            entrada.Primero <= tiradas.back().Ultimo + 2)
            tiradas.back().Ultimo = std::max<std::uint32_t>(tiradas.back().Ultimo, entrada.Ultimo);
        else
            tiradas.push_back({entrada.Primero, entrada.Ultimo, entrada.CodPostal});
    }
    return tiradas;
}

TLadoPostal LadoDe(const TTirada& tirada) {
    if (tirada.Ultimo >= SIN_FIN) return {tirada.Primero, 0};
    return {tirada.Primero, std::max(tirada.Ultimo, 1U)};  // 0 to 1 holds the number 0 alone
}

// The rows of one province's street name.
class TFilasDeVia {
  public:
    TFilasDeVia(std::vector<TFilaPostal>& filas, std::uint32_t nombre, bool conSinTipo)
        : filas_(filas), primera_(filas.size()), nombre_(nombre), conSinTipo_(conSinTipo) {}

    // `grupo`: all stretches of one municipality and type.
    void Pon(std::span<const TEntrada> grupo) {
        if (grupo.front().Tipo == 0 && !conSinTipo_) return;
        const bool sinNumero = !SinNumeroDudoso(grupo);
        std::vector<TTirada> pares = Tiradas(grupo, false, sinNumero);
        for (const TTirada& impar : Tiradas(grupo, true, sinNumero)) {
            const auto par = std::find_if(pares.begin(), pares.end(), [&](const TTirada& p) {
                return !p.Emparejada && p.CodPostal == impar.CodPostal;
            });
            if (par != pares.end()) par->Emparejada = true;
            PonFila(grupo.front(), LadoDe(impar), par == pares.end() ? TLadoPostal{} : LadoDe(*par),
                    impar.CodPostal);
        }
        for (const TTirada& par : pares)
            if (!par.Emparejada) PonFila(grupo.front(), {}, LadoDe(par), par.CodPostal);
    }

  private:
    // One that another municipality gave already is of no use.
    void PonFila(const TEntrada& via, TLadoPostal impar, TLadoPostal par, std::uint32_t codPostal) {
        const TFilaPostal fila{nombre_, via.Provincia, via.Tipo, impar, par, codPostal};
        const bool repetida = std::any_of(filas_.begin() + static_cast<std::ptrdiff_t>(primera_),
                                          filas_.end(), [&](const TFilaPostal& f) {
                                              return f.Tipo == fila.Tipo && f.CodPostal == fila.CodPostal &&
                                                     f.Impar == fila.Impar && f.Par == fila.Par;
                                          });
        if (!repetida) filas_.push_back(fila);
    }

    std::vector<TFilaPostal>& filas_;
    std::size_t primera_;
    std::uint32_t nombre_;
    bool conSinTipo_;
};

// The end of the run of entries that agree with the first in what `clave` gives.
template <class Clave>
std::size_t FinDeIguales(std::span<const TEntrada> entradas, Clave clave) {
    std::size_t fin = 1;
    while (fin < entradas.size() && clave(entradas[fin]) == clave(entradas[0])) ++fin;
    return fin;
}

void PonVia(std::vector<TFilaPostal>& filas, std::span<const TEntrada> via, const TOrdenNombres& orden) {
    const bool conTipo = std::any_of(via.begin(), via.end(), [](const TEntrada& e) { return e.Tipo != 0; });
    TFilasDeVia deVia(filas, orden.PorLugar[via.front().Orden], !conTipo);
    while (!via.empty()) {
        const std::size_t fin = FinDeIguales(via, [](const TEntrada& e) { return e.Grupo(); });
        deVia.Pon(via.first(fin));
        via = via.subspan(fin);
    }
}

std::string ConCeros(std::uint32_t numero, int cifras) {
    std::string texto = std::to_string(numero);
    texto.insert(
        0, static_cast<std::size_t>(cifras) - std::min(texto.size(), static_cast<std::size_t>(cifras)), '0');
    return texto;
}

}  // namespace

std::vector<TFilaPostal> FilasPostales(const TCallejero& callejero, const std::vector<bool>& buscados) {
    const TOrdenNombres orden = OrdenaNombres(callejero);
    const std::vector<TEntrada> entradas = Entradas(callejero, buscados, orden);
    std::vector<TFilaPostal> filas;
    std::span<const TEntrada> resto = entradas;
    while (!resto.empty()) {
        const std::size_t fin = FinDeIguales(resto, [](const TEntrada& e) { return e.Via(); });
        PonVia(filas, resto.first(fin), orden);
        resto = resto.subspan(fin);
    }
    return filas;
}

TFilaDbf FilaDbfDe(const TCallejero& callejero, const TFilaPostal& fila) {
    return {ConCeros(fila.Provincia, 2),
            std::string(callejero.Nombre(fila.Nombre)),
            fila.Tipo == 0 ? std::string() : std::string(CONST_TIPO_VIA[fila.Tipo - 1U]),
            std::to_string(fila.Impar.Primero),
            std::to_string(fila.Impar.Ultimo),
            std::to_string(fila.Par.Primero),
            std::to_string(fila.Par.Ultimo),
            ConCeros(fila.CodPostal, 5)};
}

}  // namespace analizador

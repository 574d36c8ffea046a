#include "rutinas/Buscador.h"

#include <algorithm>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Encuentra.h"

namespace analizador {

TBuscadorEntradas::TBuscadorEntradas(std::string_view seccion, std::string_view texto)
    : fichero_(AbreFicheroIni(TOKENS_INI())), texto_(texto) {
    int numero = 0;
    for (const std::string& palabra : fichero_->Palabras(seccion)) {
        ++numero;
        if (!palabra.empty()) entradas_.push_back({palabra, numero, 0, Encuentra(texto_, palabra)});
    }
}

std::size_t TBuscadorEntradas::ProximaDe(TEntrada& entrada, std::size_t desde) const {
    if (desde < entrada.Desde || desde > entrada.Proxima) {
        entrada.Desde = desde;
        entrada.Proxima = Encuentra(texto_, entrada.Texto, desde);
    }
    return entrada.Proxima;
}

std::optional<TEntradaHallada> TBuscadorEntradas::MasALaIzquierda(std::size_t desde) {
    std::optional<TEntradaHallada> mejor;
    for (TEntrada& entrada : entradas_) {
        const std::size_t posicion = ProximaDe(entrada, desde);
        if (posicion != std::string_view::npos && (!mejor || posicion < mejor->Posicion))
            mejor = {posicion, entrada.Texto, entrada.Numero};
    }
    return mejor;
}

std::optional<TEntradaHallada> TBuscadorEntradas::PrimeraEntrada(std::size_t desde) {
    for (TEntrada& entrada : entradas_)
        if (const std::size_t posicion = ProximaDe(entrada, desde); posicion != std::string_view::npos)
            return TEntradaHallada{posicion, entrada.Texto, entrada.Numero};
    return std::nullopt;
}

bool TBuscadorEntradas::HayEntre(std::size_t desde, std::size_t hasta) {
    return std::any_of(entradas_.begin(), entradas_.end(), [&](TEntrada& entrada) {
        const std::size_t posicion = ProximaDe(entrada, desde);
        return posicion != std::string_view::npos && posicion + entrada.Texto.size() <= hasta;
    });
}

}  // namespace analizador

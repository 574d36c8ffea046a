#include "adaptadores/memoria/Parrafos.h"

#include <algorithm>
#include <cstddef>

namespace analizador {

TParrafos::TParrafos(std::string_view texto) : FInicios{0}, FLongitud(static_cast<int>(texto.size())) {
    for (auto cr = texto.find('\r'); cr != std::string_view::npos; cr = texto.find('\r', cr + 1)) {
        const auto siguiente = cr + (texto.substr(cr + 1).starts_with('\a') ? 2 : 1);
        if (siguiente < texto.size()) FInicios.push_back(static_cast<int>(siguiente));
    }
}

int TParrafos::Indice(int posicion) const {
    const auto siguiente = std::upper_bound(FInicios.begin(), FInicios.end(), std::max(posicion, 0));
    return static_cast<int>(siguiente - FInicios.begin()) - 1;
}

TIntervalo TParrafos::Parrafo(int indice) const {
    const auto i = static_cast<std::size_t>(indice);
    return {FInicios[i], i + 1 < FInicios.size() ? FInicios[i + 1] : FLongitud};
}

TIntervalo TParrafos::Acota(TIntervalo intervalo) const {
    const int fin = std::clamp(intervalo.Fin, 0, FLongitud);
    const int inicio = std::clamp(intervalo.Inicio, 0, fin);
    return inicio < fin ? TIntervalo{inicio, fin} : TIntervalo{std::min(fin, Fin()), std::min(fin, Fin())};
}

}  // namespace analizador

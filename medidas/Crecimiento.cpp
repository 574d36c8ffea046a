#include "medidas/Crecimiento.h"

#include <algorithm>
#include <cstddef>

namespace analizador {

std::vector<double> Crecimientos(const std::vector<TPuntoMedido>& puntos) {
    const auto porUnidad = [](const TPuntoMedido& punto) { return punto.Coste / punto.Tamanno; };
    std::vector<double> razones;
    for (std::size_t i = 1; i < puntos.size(); ++i)
        razones.push_back(porUnidad(puntos[i]) / porUnidad(puntos[i - 1]));
    return razones;
}

bool EsLineal(const std::vector<TPuntoMedido>& puntos) {
    const std::vector<double> razones = Crecimientos(puntos);
    // Written so that a ratio that is no number fails too.
    return !razones.empty() &&
           std::all_of(razones.begin(), razones.end(), [](double r) { return r <= CRECIMIENTO_MAXIMO; });
}

}  // namespace analizador

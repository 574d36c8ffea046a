#pragma once

// Whether a cost grows no faster than what it is spent on.

#include <vector>

namespace analizador {

// How many times linear a cost may grow from one size to the next.
constexpr double CRECIMIENTO_MAXIMO = 1.3;

struct TPuntoMedido {
    double Tamanno = 0;  // above 0, in any unit
    double Coste = 0;    // above 0, in any unit
};

// How many times the cost per unit of size grew from one point to the next: one ratio for each point but the
// first. 1 is linear, below it better than linear.
[[nodiscard]] std::vector<double> Crecimientos(const std::vector<TPuntoMedido>& puntos);

// True when none of the ratios passes CRECIMIENTO_MAXIMO and there is at least one.
[[nodiscard]] bool EsLineal(const std::vector<TPuntoMedido>& puntos);

}  // namespace analizador

#include "medidas/Crecimiento.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace analizador {
namespace {

template <class TCoste>
std::vector<TPuntoMedido> Sucesion(TCoste coste) {
    std::vector<TPuntoMedido> puntos;
    for (const double n : {1.0, 10.0, 100.0, 1000.0}) puntos.push_back({n, coste(n)});
    return puntos;
}

TEST(Crecimiento, DistingueLoLinealDeLoQueNoLoEs) {
    EXPECT_TRUE(EsLineal(Sucesion([](double) { return 7.0; })));
    EXPECT_TRUE(EsLineal(Sucesion([](double n) { return 5 + 3 * n; })));
    EXPECT_TRUE(EsLineal(Sucesion([](double n) { return 1000 * n; })));
    EXPECT_TRUE(EsLineal(Sucesion([](double n) { return std::pow(n, 1.1); })));
    EXPECT_FALSE(EsLineal(Sucesion([](double n) { return std::pow(n, 1.2); })));
    EXPECT_FALSE(EsLineal(Sucesion([](double n) { return n * n; })));
    // Square, though it shows only at the last size.
    EXPECT_FALSE(EsLineal(Sucesion([](double n) { return 1000 * n + n * n; })));
}

TEST(Crecimiento, UnSaltoEntreDosTamannosBasta) {
    EXPECT_TRUE(EsLineal({{1, 1}, {10, 13}, {100, 130}}));
    EXPECT_FALSE(EsLineal({{1, 1}, {10, 13.1}, {100, 130}}));
    EXPECT_FALSE(EsLineal({{1, 1}, {10, 5}, {100, 66}}));
}

TEST(Crecimiento, SinNadaQueCompararNoSeDaPorBueno) {
    EXPECT_FALSE(EsLineal({}));
    EXPECT_FALSE(EsLineal({{1, 1}}));
    EXPECT_FALSE(EsLineal({{1, 1}, {10, std::numeric_limits<double>::quiet_NaN()}}));
}

TEST(Crecimiento, RazonesDelCostePorUnidad) {
    const auto razones = Crecimientos({{1, 2}, {10, 20}, {100, 300}});
    ASSERT_EQ(razones.size(), 2U);
    EXPECT_DOUBLE_EQ(razones[0], 1.0);
    EXPECT_DOUBLE_EQ(razones[1], 1.5);
}

}  // namespace
}  // namespace analizador

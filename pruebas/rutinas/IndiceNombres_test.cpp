#include "rutinas/IndiceNombres.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <utility>
#include <vector>

namespace analizador {
namespace {

struct TNombreConLinea {
    std::string Nombre;
    std::size_t Linea;
    bool operator==(const TNombreConLinea&) const = default;
};

using TNombres = std::vector<TNombreConLinea>;

TIndiceNombres Indice(const TNombres& nombres) {
    TIndiceNombres indice;
    for (const auto& [nombre, linea] : nombres) indice.Pon(nombre, linea);
    return indice;
}

// The same look-up, one name after another.
std::optional<std::size_t> PrimeraUnaAUna(const TNombres& nombres, const std::string& texto) {
    std::optional<std::size_t> primera;
    for (const auto& [nombre, linea] : nombres)
        if (!nombre.empty() && texto.find(nombre) != std::string::npos && (!primera || linea < *primera))
            primera = linea;
    return primera;
}

const std::string LARGO(300, 'A');

TEST(IndiceNombres, DaLaPrimeraLineaNombradaEnElTexto) {
    const struct {
        TNombres Nombres;
        std::string Texto;
        std::optional<std::size_t> Linea;
    } CASOS[] = {
        {{}, "JUAN GIL", {}},
        {{{"JUAN GIL", 0}}, "", {}},
        {{{"JUAN GIL", 0}}, "JUAN GIL", 0},
        {{{"JUAN GIL", 0}}, "JUAN GI", {}},
        {{{"JUAN GIL", 0}}, "Juan Gil", {}},
        {{{"JUAN GIL", 0}}, "JUAN JUAN GIL MAS", 0},
        {{{"GIL", 1}, {"JUAN GIL MAS", 0}}, "JUAN GIL MAS", 0},
        {{{"GIL", 0}, {"JUAN GIL MAS", 1}}, "JUAN GIL MAS", 0},
        {{{"MAS", 0}, {"JUAN", 1}}, "JUAN GIL MAS", 0},
        {{{"", 0}, {"GIL", 1}}, "JUAN GIL", 1},
        {{{"GIL", 7}, {"GIL", 3}, {"GIL", 5}}, "GIL", 3},
        {{{LARGO, 0}}, LARGO.substr(1), {}},
        {{{LARGO, 4}, {"B", 5}}, "B" + LARGO, 4},
    };
    for (const auto& caso : CASOS)
        EXPECT_EQ(Indice(caso.Nombres).PrimeraEn(caso.Texto), caso.Linea) << caso.Texto;
}

TEST(IndiceNombres, OlvidaLoQueSeQuita) {
    for (const std::string& nombre : {std::string("GIL"), LARGO}) {
        TIndiceNombres indice = Indice({{nombre, 2}, {nombre, 5}, {"GILABERT", 9}});
        EXPECT_EQ(indice.LineaDe(nombre), 2U);
        indice.Quita(nombre, 2);
        EXPECT_EQ(indice.PrimeraEn(nombre), 5U);
        indice.Quita(nombre, 5);
        EXPECT_EQ(indice.PrimeraEn(nombre), std::nullopt);
        EXPECT_EQ(indice.LineaDe(nombre), std::nullopt);
        indice.Quita("NADIE", 1);
        EXPECT_EQ(indice.LineaDe("GILABERT"), 9U);
    }
}

TEST(IndiceNombres, RecorreTodasLasApariciones) {
    const TIndiceNombres indice = Indice({{"GIL", 3}, {"GIL", 1}, {"JUAN GIL", 0}, {LARGO, 2}});
    std::vector<std::pair<std::size_t, Tramo>> vistas;
    indice.Recorre("GIL, JUAN GIL" + LARGO + 'A',
                   [&](std::size_t linea, Tramo donde) { vistas.emplace_back(linea, donde); });
    const std::vector<std::pair<std::size_t, Tramo>> esperadas = {
        {1, {0, 3}}, {0, {5, 8}}, {1, {10, 3}}, {2, {13, 300}}, {2, {14, 300}}};
    EXPECT_EQ(vistas, esperadas);
}

TEST(IndiceNombres, HallaLoMismoQueBuscarUnoAUno) {
    std::mt19937 azar(7);
    const auto alAzar = [&](std::size_t hasta) {
        std::string texto;
        for (std::size_t n = azar() % (hasta + 1); n > 0; --n) texto += "AB "[azar() % 3];
        return texto;
    };
    for (int vuelta = 0; vuelta < 500; ++vuelta) {
        TNombres nombres;
        for (std::size_t i = azar() % 6; i > 0; --i) nombres.push_back({alAzar(6), azar() % 10});
        TIndiceNombres indice = Indice(nombres);
        const std::string texto = alAzar(12);
        EXPECT_EQ(indice.PrimeraEn(texto), PrimeraUnaAUna(nombres, texto)) << texto;
        if (nombres.empty()) continue;
        indice.Quita(nombres.front().Nombre, nombres.front().Linea);
        std::erase(nombres, TNombreConLinea(nombres.front()));
        EXPECT_EQ(indice.PrimeraEn(texto), PrimeraUnaAUna(nombres, texto)) << texto;
    }
}

}  // namespace
}  // namespace analizador

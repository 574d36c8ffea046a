#include <gtest/gtest.h>

#include "pruebas/comun/Literales.h"
#include "pruebas/comun/Tramos.h"
#include "pruebas/comun/VocabularioDePrueba.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

class Cuantias : public testing::Test {
  protected:
    TVocabularioDePrueba vocabulario_{{{"EURO", {"EURO", "", "\x80", "PESETAS", "PTS", "EUROS DE"}}}};
};

TEST_F(Cuantias, BuscaCuantias) {
    struct TCaso {
        std::string_view Texto;
        std::vector<std::string> Cuantias;
        std::vector<std::string> Leidas;
    };
    const std::vector<TCaso> casos = {
        {"", {}, {}},
        {"EUROS 300", {}, {}},
        {"   EUROS", {}, {}},
        {"300 euros", {"300"}, {"300"}},
        {"1.500.000,50 euros", {"1500000,50"}, {"1.500.000,50"}},
        {"1.500'50 \x80", {"1500,50"}, {"1.500'50"}},
        {"1.500\x92"
         "50 \x80",
         {"1500,50"},
         {"1.500\x92"
          "50"}},
        {"1500.50 \x80", {"150050"}, {"1500.50"}},
        {"(300.000) euros", {"300000"}, {"300.000"}},
        {"(300 euros)", {"300"}, {"300"}},
        {"((300)) euros", {}, {}},
        {"300.000,-- euros", {"300000,"}, {"300.000,--"}},
        {"300\x80", {"300"}, {"300"}},
        // No amount.
        {"TRESCIENTOS EUROS", {}, {}},
        {"0 euros, 0,00 euros", {}, {}},
        {"-- euros", {}, {}},
        // Each text once: also written with and without points, but not with other decimals.
        {"300.000 euros, 300000 pesetas y 300.000 euros", {"300000"}, {"300.000"}},
        {"300 euros y 300,0 euros", {"300", "300,0"}, {"300", "300,0"}},
        // Each mention reads between the one before and itself.
        {"5 euros euros 6 euros", {"5", "6"}, {"5", "6"}},
        {"5 pesetas, 7 euros", {"5", "7"}, {"5", "7"}},
        // Line ends and tabs part words too.
        {"SON\r300 euros\n12\t7\teuros", {"300", "7"}, {"300", "7"}},
        {"SON\xA0"
         "300\xA0"
         "euros",
         {"300"},
         {"300"}},
        // The shorter entry comes first in the file, so what follows it is read as text.
        {"9 EUROS DE 8 PTS", {"9", "8"}, {"9", "8"}},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Texto);
        std::vector<std::string> lista;
        std::vector<std::string> leidas;
        for (const Tramo tramo : BuscaCuantias(caso.Texto, lista))
            leidas.push_back(EnTramo(caso.Texto, tramo));
        EXPECT_EQ(lista, caso.Cuantias);
        EXPECT_EQ(leidas, caso.Leidas);
    }
}

TEST_F(Cuantias, LoQueLaListaYaTieneNoSeRepite) {
    std::vector<std::string> lista = {"300"};
    EXPECT_TRUE(BuscaCuantias("300 euros", lista).empty());
    EXPECT_EQ(BuscaCuantias("300 euros y 5 euros", lista).size(), 1U);
    EXPECT_EQ(lista, (std::vector<std::string>{"300", "5"}));
}

}  // namespace

}  // namespace analizador

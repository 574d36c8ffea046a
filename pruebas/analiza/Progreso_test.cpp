// What the terminal shows of a batch.

#include "programas/analiza/Progreso.h"

#include <gtest/gtest.h>

namespace analizador {
namespace {

using namespace std::chrono_literals;

TEST(Progreso, DiceCuantasVanYCuantoFalta) {
    struct TCaso {
        TAvance Avance;
        const char* Texto;
    };
    const std::vector<TCaso> casos = {
        {{.Hechas = 0, .Cuantas = 2000}, "[........................] 0 de 2000 escrituras"},
        {{.Hechas = 500, .Cuantas = 2000, .Tiempo = 10s},
         "[######..................] 500 de 2000 escrituras, faltan 0:30"},
        {{.Hechas = 1999, .Fallidas = 3, .Cuantas = 2000, .Tiempo = 1999s},
         "[#######################.] 1999 de 2000 escrituras, 3 con fallo, faltan 0:01"},
        {{.Hechas = 1, .Cuantas = 3601, .Tiempo = 1s},
         "[........................] 1 de 3601 escrituras, faltan 1:00:00"},
        {{.Hechas = 2000, .Cuantas = 2000, .Tiempo = 10s},
         "[########################] 2000 de 2000 escrituras"},
        // What an earlier run did says nothing of the pace.
        {{.Hechas = 900, .Conservadas = 900, .Cuantas = 1000, .Tiempo = 1s},
         "[#####################...] 900 de 1000 escrituras"},
        {{.Hechas = 910, .Conservadas = 900, .Cuantas = 1000, .Tiempo = 10s},
         "[#####################...] 910 de 1000 escrituras, faltan 1:30"},
        // A list tells its length only at its end.
        {{.Hechas = 1, .Tiempo = 10s}, "1 escritura"},
        {{.Hechas = 12, .Fallidas = 1, .Tiempo = 10s}, "12 escrituras, 1 con fallo"},
    };
    for (const auto& [avance, texto] : casos) EXPECT_EQ(TextoProgreso(avance, 100), texto);
}

TEST(Progreso, NuncaPasaDeLaLinea) {
    const TAvance avance{.Hechas = 500, .Fallidas = 12, .Cuantas = 2000, .Tiempo = 10s};
    const std::string entero = TextoProgreso(avance, 100);
    const std::string sinBarra = "500 de 2000 escrituras, 12 con fallo, faltan 0:30";
    EXPECT_EQ(TextoProgreso(avance, entero.size()), entero);
    EXPECT_EQ(TextoProgreso(avance, entero.size() - 1), sinBarra) << "the words are worth more than the bar";
    EXPECT_EQ(TextoProgreso(avance, sinBarra.size()), sinBarra);
    EXPECT_EQ(TextoProgreso(avance, 11), "500 de 2000");
    EXPECT_EQ(TextoProgreso(avance, 0), "");
}

TEST(Progreso, AlFinalDiceQueSeHizo) {
    EXPECT_EQ(TextoFinal({.Hechas = 2000, .Tiempo = 65s}), "2000 escrituras, en 1:05");
    EXPECT_EQ(TextoFinal({.Hechas = 1, .Fallidas = 1, .Tiempo = 100ms}), "1 escritura, 1 con fallo, en 0:00");
    EXPECT_EQ(TextoFinal({.Hechas = 20, .Conservadas = 15, .Tiempo = 2s}),
              "20 escrituras, 15 ya hechas, en 0:02");
}

}  // namespace
}  // namespace analizador

#include <gtest/gtest.h>

#include "plataforma/Rut.h"
#include "pruebas/comun/Literales.h"
#include "pruebas/comun/Tramos.h"
#include "pruebas/comun/VocabularioDePrueba.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

const TSeccionesDePrueba SECCIONES = {
    {"TRANSMISION", {"", "VENDE", "TRANSMITE", "A VENDER"}},
    {"PARTE DEUDORA", {"PARTE DEUDORA", "DEUDOR"}},
};

class Intervenciones : public testing::Test {
  protected:
    TVocabularioDePrueba vocabulario_{SECCIONES};
};

struct TCaso {
    std::string_view Texto;
    std::string_view Nombre;
    int Codigo;
    std::size_t Primera;  // of the name read
};

template <class TBusca>
void Comprueba(TBusca busca, const std::vector<TCaso>& casos) {
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Texto);
        const THallazgo<int> hallado = busca(caso.Texto, caso.Nombre);
        EXPECT_EQ(hallado.Valor, caso.Codigo);
        EXPECT_EQ(hallado.Donde.Primera, caso.Primera);
        EXPECT_EQ(Pliega(EnTramo(caso.Texto, hallado.Donde)), caso.Codigo == 99 ? "" : Pliega(caso.Nombre));
    }
}

TEST_F(Intervenciones, BuscaIntervencionVenden) {
    Comprueba(BuscaIntervencionVenden,
              {
                  {"", "LUIS", 99, 0},
                  {"LUIS VENDE A ANA", "", 99, 0},
                  {"", "", 99, 0},
                  {"LUIS VENDE A ANA", "LUIS", 2, 0},
                  {"LUIS VENDE A ANA", "ANA", 1, 13},
                  {"LUIS VENDE A ANA", "PAU", 99, 0},
                  // Before and after: who transfers.
                  {"ANA VENDE A LUIS Y A ANA", "ANA", 2, 0},
                  // Without a phrase everybody named acquires.
                  {"LUIS COMPRA", "LUIS", 1, 0},
                  {"LUIS COMPRA", "ANA", 99, 0},
                  // Folded both.
                  {"Don Luís Peña vénde"_a, "LUIS peña"_a, 2, 4},
                  {"Luis Pena vende", "LUIS PEÑA"_a, 99, 0},
                  {"LUIS SANZ VENDE", "SANZ LUIS", 99, 0},
                  // The first entry of the section, not the first phrase of the text.
                  {"LUIS TRANSMITE A ANA QUE VENDE A PAU", "ANA", 2, 17},
                  // Both halves hold the phrase's first letter and no more of it.
                  {"PAV", "PAV", 1, 0},
                  {"PAVENDE", "PAV", 2, 0},
                  {"PAVENDE", "PAVE", 99, 0},
                  {"PAU VENDE", "VENDE", 1, 4},
              });
}

TEST_F(Intervenciones, VariosNombresDeUnaVez) {
    const std::string_view parrafo = "Luís y Ana venden a PAU y a ANA MARI, esposa de PAU"_a;
    const std::vector<std::string> nombres = {"LUIS", "PAU", "EVA",      "",
                                              "Pau",  "ANA", "ANA MARI", std::string("LUÍS"_a)};
    const auto halladas = BuscaIntervencionesVenden(parrafo, nombres);
    ASSERT_EQ(halladas.size(), nombres.size());
    for (std::size_t i = 0; i < nombres.size(); ++i)
        EXPECT_EQ(halladas[i], BuscaIntervencionVenden(parrafo, nombres[i])) << nombres[i];
    const THallazgo<int> pau{1, {20, 3}};
    EXPECT_EQ(halladas[1], pau);
    EXPECT_EQ(halladas[4], pau);
    EXPECT_EQ(halladas[5], (THallazgo<int>{2, {7, 3}}));
}

TEST_F(Intervenciones, ParteDeLaFraseEnLosDosLados) {
    vocabulario_.Pon(TIdioma::Castellano, {{"TRANSMISION", {"A VENDER"}}});
    Comprueba(BuscaIntervencionVenden,
              {{"VA MARIA VENDER", "MARIA", 2, 3}, {"VA MARIA VENDER", "A V", 1, 7}});
}

TEST_F(Intervenciones, BuscaIntervencionParteDeudora) {
    Comprueba(BuscaIntervencionParteDeudora,
              {
                  {"", "LUIS", 99, 0},
                  {"PARTE DEUDORA: LUIS", "", 99, 0},
                  {"LA PARTE DEUDORA, Luís"_a, "LUIS", 4, 18},
                  {"LUIS, PARTE DEUDORA", "LUIS", 99, 0},
                  {"LUIS Y EL DEUDOR, LUIS", "LUIS", 4, 18},
                  {"LUIS PIDE", "LUIS", 99, 0},
                  // The first entry of the section, not the first phrase of the text.
                  {"EL DEUDOR LUIS, PARTE DEUDORA CON ANA", "LUIS", 99, 0},
                  {"EL DEUDOR LUIS, PARTE DEUDORA CON ANA", "ANA", 4, 34},
                  // From the phrase's first letter on.
                  {"PAUDEUDOR", "DEUDOR", 4, 3},
                  {"PAUDEUDOR", "UDEUDOR", 99, 0},
              });
}

}  // namespace

}  // namespace analizador

#include <gtest/gtest.h>

#include "pruebas/comun/Literales.h"
#include "pruebas/comun/Tramos.h"
#include "pruebas/comun/VocabularioDePrueba.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

const TSeccionesDePrueba SECCIONES = {
    {"NUMEROS", {"UN", "DOS", "TREINTA", "SESENTA", "TRESCIENTOS", "CERO"}},
    {"MES", {"MESES", "", "MES", "MENSUALIDADES"}},
    {"PORCENTAJE", {"POR CIENTO", "%"}},
    {"EURIBOR", {"EURIBOR", "", "EURIBO"}},
    {"IRPH", {"IRPH", "REFERENCIA DE PRESTAMOS"}},
    {"CECA", {"CECA"}},
};

class Prestamo : public testing::Test {
  protected:
    TVocabularioDePrueba vocabulario_{SECCIONES};
};

struct TCaso {
    std::string_view Texto;
    std::vector<std::string> Antes;
    std::vector<std::string> Despues;
    std::vector<std::string> Leidos;
};

template <class TBusca>
void Comprueba(TBusca busca, const std::vector<TCaso>& casos) {
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Texto);
        std::vector<std::string> lista = caso.Antes;
        std::vector<std::string> leidos;
        for (const Tramo tramo : busca(caso.Texto, lista)) leidos.push_back(EnTramo(caso.Texto, tramo));
        EXPECT_EQ(lista, caso.Despues);
        EXPECT_EQ(leidos, caso.Leidos);
    }
}

TEST_F(Prestamo, BuscaPlazo) {
    Comprueba(BuscaPlazo,
              {
                  {"", {}, {}, {}},
                  {"MESES", {}, {}, {}},
                  {"unos meses", {}, {}, {}},
                  {"plazo de 360 meses", {}, {"360"}, {"360"}},
                  {"trescientos sesenta (360) meses", {}, {"360"}, {"360"}},
                  {"TRESCIENTOS SESENTA MESES, luego 360 meses", {}, {"360"}, {"TRESCIENTOS SESENTA"}},
                  {"treinta y dos meses y 12 mensualidades", {}, {"32", "12"}, {"treinta y dos", "12"}},
                  // Equal by value with what the list holds, whose texts that are no numbers are 0.
                  {"12 meses, 24 meses", {"012"}, {"012", "24"}, {"24"}},
                  {"cero meses", {}, {"0"}, {"cero"}},
                  {"cero meses", {"doce"}, {"doce"}, {}},
                  // Each mention reads what stands behind the one before.
                  {"12 meses, otros meses", {}, {"12"}, {"12"}},
                  // The section's first entry jumps over mentions of the later ones that stand before it.
                  {"12 mes y 24 meses", {}, {"24"}, {"24"}},
                  {"24 meses y 12 mes", {}, {"24", "12"}, {"24", "12"}},
                  // Tabs and line ends go, so they part no words.
                  {"12\r\nmeses\t", {}, {"12"}, {"12"}},
                  {"3\t6 me\rses", {}, {"36"}, {"3\t6"}},
              });
}

TEST_F(Prestamo, BuscaTAE) {
    Comprueba(BuscaTAE, {
                            {"", {}, {}, {}},
                            {"%", {}, {}, {}},
                            {"el tanto por ciento", {}, {}, {}},
                            {"TAE: 3,5%", {}, {"3,5"}, {"3,5"}},
                            {"3'5 por ciento", {}, {"3,5"}, {"3'5"}},
                            {"3\x92"
                             "5 por ciento",
                             {},
                             {"3,5"},
                             {"3\x92"
                              "5"}},
                            {"3.5 %, 3,50 %, 4 %", {}, {"3,5", "4"}, {"3.5", "4"}},
                            {"5,25  %", {"5.250"}, {"5.250"}, {}},
                            {"0 %, 0,00 %, -1 %", {}, {}, {}},
                            {"1.234,5 %", {}, {}, {}},
                            {"(3,5 %)", {}, {}, {}},
                            {"3,5e1 %", {}, {}, {}},
                            {"7 %, otro %", {}, {"7"}, {"7"}},
                            // The section's first entry jumps over the others that stand before it.
                            {"2 % y 3 por ciento y 4 %", {}, {"3", "4"}, {"3", "4"}},
                            {"un 3,\t5\r%", {}, {"3,5"}, {"3,\t5"}},
                        });
}

TEST_F(Prestamo, BuscaTipoInteres) {
    struct TCasoIndice {
        std::string_view Texto;
        int Codigo;
        std::string_view Leido;
    };
    const std::vector<TCasoIndice> casos = {
        {"", 0, ""},
        {"INTERES FIJO", 0, ""},
        {"EL EURIBOR A UN ANO", 2, "EURIBOR"},
        {"INDICE DE REFERENCIA DE PRESTAMOS", 3, "REFERENCIA DE PRESTAMOS"},
        {"INDICE CECA", 4, "CECA"},
        // The order of the sections, not of the text.
        {"CECA, IRPH O EURIBOR", 2, "EURIBOR"},
        {"CECA O IRPH", 3, "IRPH"},
        {"EURIBO", 2, "EURIBO"},
        // As it is given.
        {"el euribor", 0, ""},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Texto);
        const THallazgo<int> hallado = BuscaTipoInteres(caso.Texto);
        EXPECT_EQ(hallado.Valor, caso.Codigo);
        EXPECT_EQ(EnTramo(caso.Texto, hallado.Donde), caso.Leido);
    }
}

}  // namespace

}  // namespace analizador

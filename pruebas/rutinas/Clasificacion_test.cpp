#include <gtest/gtest.h>

#include "pruebas/comun/Literales.h"
#include "pruebas/comun/VocabularioDePrueba.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

const TSeccionesDePrueba SECCIONES = {
    {"HOMBRE", {"", "DON"}},
    {"MUJER", {"DOÑA"_a}},
    {"REPRESENTACION", {"", "EN REPRESENTACION DE", "APODERADO"}},
};

class Clasificacion : public testing::Test {
  protected:
    TVocabularioDePrueba vocabulario_{SECCIONES};
};

struct TCaso {
    std::string_view Texto;
    bool Esperado;
};

TEST_F(Clasificacion, EsCliente) {
    const std::vector<TCaso> casos = {
        {"", false},
        {" ", false},
        {"LA SOCIEDAD", false},
        {"DON LUIS SANZ", true},
        {"y doña Ana Ros"_a, true},
        {"y doÑa Ana Ros"_a, true},
        // A blank behind, whatever before.
        {"DON", false},
        {"DON\rLUIS", false},
        {"DON\xA0"
         "LUIS",
         true},
        {"DONDE", false},
        {"EL CORDON ROJO", true},
        {"y dona Ana Ros", false},
    };
    for (const auto& caso : casos) EXPECT_EQ(EsCliente(caso.Texto), caso.Esperado) << caso.Texto;
}

TEST_F(Clasificacion, EsUnParrafoDeRepresentacion) {
    const std::vector<TCaso> casos = {
        {"", false},
        {" ", false},
        {"DON LUIS SANZ", false},
        {"Don Luis Sanz, en representación de"_a, true},
        {"COMO APODERADO", true},
        {"COMO APODERADOS", true},
        // A blank before it, so never at the very start.
        {"APODERADO DE LA SOCIEDAD", false},
        {" APODERADO DE LA SOCIEDAD", true},
        {"APODERADO, EL APODERADO", true},
        {"(APODERADO)", false},
        {"\tAPODERADO", false},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(EsUnParrafoDeRepresentacion(caso.Texto), caso.Esperado) << caso.Texto;
}

}  // namespace

}  // namespace analizador

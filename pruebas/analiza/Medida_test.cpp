#include "programas/analiza/Medida.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace analizador {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TCuenta Cuenta(const TMedida& medida, const std::string& campo) {
    for (const auto& cuenta : medida.Cuentas())
        if (cuenta.Campo == campo) return cuenta;
    return {campo};
}

TEST(Medida, CuentaAciertosSobrantesYFaltas) {
    struct TCaso {
        const char* Hechos;
        const char* Obtenido;
        TCuenta Esperada;
    };
    const std::vector<TCaso> casos = {
        {R"({"Cabecera": {"Fecha": "01/02/2024"}})",
         R"({"Cabecera": {"Fecha": "01/02/2024"}})",
         {"Cabecera.Fecha", 1, 0, 0}},
        {R"({"Cabecera": {"Fecha": "01/02/2024"}})",
         R"({"Cabecera": {"Fecha": "02/02/2024"}})",
         {"Cabecera.Fecha", 0, 1, 1}},
        {R"({"Cabecera": {"Fecha": "01/02/2024"}})",
         R"({"Cabecera": {"Fecha": ""}})",
         {"Cabecera.Fecha", 0, 0, 1}},
        {R"({"Cabecera": {"Fecha": ""}})",
         R"({"Cabecera": {"Fecha": "02/02/2024"}})",
         {"Cabecera.Fecha", 0, 1, 0}},
        {R"({"Cabecera": {"Fecha": null}})", R"({"Cabecera": {"Fecha": ""}})", {"Cabecera.Fecha", 0, 0, 0}},
        // what the facts do not speak of
        {R"({"Cabecera": {}})", R"({"Cabecera": {"Fecha": "02/02/2024"}})", {"Cabecera.Fecha", 0, 0, 0}},
        {R"({})", R"({"Cuantias": ["1"]})", {"Cuantias", 0, 0, 0}},
        // folded, blanks together
        {R"({"Cabecera": {"Notario": "Inés  Gil"}})",
         R"({"Cabecera": {"Notario": "INES GIL"}})",
         {"Cabecera.Notario", 1, 0, 0}},
        // numbers: 0 is nothing
        {R"({"Cabecera": {"NumeroProtocolo": "12"}})",
         R"({"Cabecera": {"NumeroProtocolo": 12}})",
         {"Cabecera.NumeroProtocolo", 1, 0, 0}},
        {R"({"Cabecera": {"NumeroProtocolo": 12}})",
         R"({"Cabecera": {"NumeroProtocolo": 0}})",
         {"Cabecera.NumeroProtocolo", 0, 0, 1}},
        // lists are sets
        {R"({"Cuantias": ["100,00", "200", 3.5]})",
         R"({"Cuantias": ["200,00", "3,50", "100", "7"]})",
         {"Cuantias", 3, 1, 0}},
        {R"({"Cuantias": ["1.000,00", "1.000,00"]})", R"({"Cuantias": ["1000,00"]})", {"Cuantias", 1, 0, 0}},
        {R"({"Operacion": {"Plazos": [300]}})",
         R"({"Operacion": {"Plazos": [300, 12]}})",
         {"Operacion.Plazos", 1, 1, 0}},
        // one of the names of a deed type will do
        {R"({"Conceptos": [{"Nombre": "Venda"}]})",
         R"({"Conceptos": [{"Nombre": "VENTA / VENDA"}]})",
         {"Conceptos", 1, 0, 0}},
        {R"({"Conceptos": [{"Nombre": "VEN"}]})",
         R"({"Conceptos": [{"Nombre": "VENTA / VENDA"}]})",
         {"Conceptos", 0, 1, 1}},
    };
    for (const auto& caso : casos) {
        TMedida medida;
        medida.Juzga("e", caso.Hechos, caso.Obtenido);
        EXPECT_EQ(Cuenta(medida, caso.Esperada.Campo), caso.Esperada) << caso.Hechos;
    }
}

TEST(Medida, LosOtorgantesSeEmparejanPorNombreYSiNoPorDocumento) {
    TMedida medida;
    medida.Juzga("e",
                 R"({"Otorgantes": [
                     {"Nombre": "JUAN", "Apellidos": "GIL PÉREZ", "Sexo": "H"},
                     {"Nombre": "ANA", "Apellidos": "RUIZ", "NumDocumento": "1.111.111-A", "Sexo": "M"},
                     {"Nombre": "EVA", "Apellidos": "MAS", "Sexo": "M"}]})",
                 R"({"Otorgantes": [
                     {"Nombre": "ANNA", "Apellidos": "RUIZ", "NumDocumento": "1111111A", "Sexo": "M"},
                     {"Nombre": "JUAN GIL", "Apellidos": "PEREZ", "NumDocumento": "2", "Sexo": "M"},
                     {"Nombre": "LUIS", "Apellidos": "COT", "Sexo": "H"}]})");
    EXPECT_EQ(Cuenta(medida, "Otorgantes"), (TCuenta{"Otorgantes", 2, 1, 1}));
    // Juan's is wrong, and Eva's is missing with her.
    EXPECT_EQ(Cuenta(medida, "Otorgante.Sexo"), (TCuenta{"Otorgante.Sexo", 1, 1, 2}));
    EXPECT_EQ(Cuenta(medida, "Otorgante.NumDocumento"), (TCuenta{"Otorgante.NumDocumento", 1, 0, 0}));
    EXPECT_THAT(medida.Fallos(),
                testing::IsSupersetOf({"e: Otorgante.Sexo de GIL PÉREZ, JUAN: se esperaba «H», salió «M»",
                                       "e: Otorgantes: se esperaba «MAS, EVA», salió nada",
                                       "e: Otorgantes: se esperaba nada, salió «COT, LUIS»"}));
}

TEST(Medida, LasIntervencionesTienenSuPropioVacio) {
    TMedida medida;
    medida.Juzga("e",
                 R"({"Otorgantes": [{"Apellidos": "GIL", "IntervencionVRK": 0, "IntervencionINTI": 99}]})",
                 R"({"Otorgantes": [{"Apellidos": "GIL", "IntervencionVRK": 1, "IntervencionINTI": 16}]})");
    EXPECT_EQ(Cuenta(medida, "Otorgante.IntervencionVRK"), (TCuenta{"Otorgante.IntervencionVRK", 0, 1, 1}));
    EXPECT_EQ(Cuenta(medida, "Otorgante.IntervencionINTI"), (TCuenta{"Otorgante.IntervencionINTI", 0, 1, 0}));
}

TEST(Medida, LaFechaDeNacimientoSeEscribeComoSeQuiera) {
    TMedida medida;
    medida.Juzga("e", R"({"Otorgantes": [{"Apellidos": "GIL", "FechaNacimiento": "03/09/1951"}]})",
                 R"({"Otorgantes": [{"Apellidos": "GIL", "FechaNacimiento": "1951-09-03"}]})");
    EXPECT_THAT(medida.Fallos(), IsEmpty());
}

TEST(Medida, SumaLasEscriturasYDaElTotal) {
    TMedida medida;
    const char* const obtenido = R"({"idioma": "catalan", "Empleado": "XYZ"})";
    medida.Juzga("una", R"({"idioma": "catalan"})", obtenido);
    medida.Juzga("otra", R"({"idioma": "castellano", "Empleado": "XYZ"})", obtenido);
    EXPECT_EQ(medida.Escrituras(), 2);
    EXPECT_THAT(medida.Cuentas(), ElementsAre(TCuenta{"idioma", 1, 1, 1}, TCuenta{"Empleado", 1, 0, 0}));
    EXPECT_EQ(medida.Total(), (TCuenta{"TOTAL", 2, 1, 1}));
    EXPECT_THAT(medida.Fallos(), ElementsAre("otra: idioma: se esperaba «castellano», salió «catalan»"));
    EXPECT_THAT(InformeMedida(medida), testing::ContainsRegex("\nidioma +1 +1 +1 +50,0 % +50,0 % +50,0 %\n"));
}

TEST(Medida, LasTresCifras) {
    const TCuenta cuenta{"x", 3, 1, 2};
    EXPECT_DOUBLE_EQ(Precision(cuenta).value(), 0.75);
    EXPECT_DOUBLE_EQ(Cobertura(cuenta).value(), 0.6);
    EXPECT_DOUBLE_EQ(F1(cuenta).value(), 6.0 / 9);
    EXPECT_FALSE(Precision({"x", 0, 0, 2}).has_value());
    EXPECT_FALSE(Cobertura({"x", 0, 2, 0}).has_value());
    EXPECT_FALSE(F1({"x"}).has_value());
}

TEST(Medida, LosHechosMalEscritosSeRechazanEnteros) {
    const std::vector<std::pair<const char*, const char*>> casos = {
        {"", "no es JSON"},
        {"{", "no es JSON"},
        {"[]", "no es un objeto"},
        {R"({"Cabezera": {}})", R"(no se conoce la clave "Cabezera")"},
        {R"({"idioma": "catalan", "Cabecera": {"Fexa": ""}})", R"(no se conoce la clave "Cabecera.Fexa")"},
        {R"({"Otorgantes": [{"Nom": ""}]})", R"(no se conoce la clave "Otorgantes.Nom")"},
        {R"({"Cabe\nzera": {}})", R"(no se conoce la clave "Cabe?zera")"},
        {R"({"Cuantias": "3"})", R"(la clave "Cuantias" no tiene la forma que debe)"},
        {R"({"Cuantias": [{}]})", R"(la clave "Cuantias" no tiene la forma que debe)"},
        {R"({"Cabecera": {"Fecha": []}})", R"(la clave "Cabecera.Fecha" no tiene la forma que debe)"},
        {R"({"Otorgantes": ["JUAN"]})", R"(la clave "Otorgantes" no tiene la forma que debe)"},
    };
    for (const auto& [hechos, causa] : casos) {
        TMedida medida;
        try {
            medida.Juzga("e", hechos, R"({"idioma": "catalan"})");
            ADD_FAILURE() << hechos;
        } catch (const ErrorHechos& error) {
            EXPECT_THAT(error.what(), HasSubstr(causa)) << hechos;
        }
        EXPECT_EQ(medida.Escrituras(), 0);
        EXPECT_THAT(medida.Cuentas(), IsEmpty()) << hechos;
    }
}

// A clerk may keep what the program printed, correct it and leave the rest of it there.
TEST(Medida, LoQueNoSonHechosSePuedeDejar) {
    TMedida medida;
    medida.Juzga("e",
                 R"({"archivo": "a.docx", "Pizarra": "x", "Origen": {"Cabecera": {}},
                     "Otorgantes": [{"Apellidos": "GIL", "EnXML": true, "Propuesto": false}]})",
                 R"({"archivo": "b.docx", "Pizarra": "y",
                     "Otorgantes": [{"Apellidos": "GIL", "EnXML": false, "Propuesto": true}]})");
    EXPECT_EQ(medida.Total(), (TCuenta{"TOTAL", 2, 0, 0}));
}

}  // namespace
}  // namespace analizador

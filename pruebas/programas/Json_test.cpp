// The line of JSON of a deed: its keys are what other programs rely on.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "pruebas/programas/ProgramaDePrueba.h"

namespace analizador {
namespace {

using TJson = nlohmann::ordered_json;
using testing::ElementsAre;
using testing::ElementsAreArray;

std::vector<std::string> Claves(const TJson& json) {
    std::vector<std::string> claves;
    for (const auto& [clave, valor] : json.items()) claves.push_back(clave);
    return claves;
}

TJson JsonDe(const char* ejemplo) {
    const auto ejecucion = Analiza({"--json", Ejemplo(ejemplo)});
    EXPECT_EQ(ejecucion.Codigo, 0) << ejecucion.Errores;
    EXPECT_EQ(Lineas(ejecucion.Salida).size(), 1U);
    return TJson::parse(ejecucion.Salida);
}

TEST(JsonAnaliza, LasClavesSonEstasYEnEsteOrden) {
    const auto json = JsonDe("compraventa");
    EXPECT_THAT(Claves(json), ElementsAre("archivo", "idioma", "Cabecera", "Conceptos", "Cuantias",
                                          "Otorgantes", "Operacion", "Fincas", "Empleado", "Pizarra"));
    EXPECT_THAT(Claves(json["Cabecera"]), ElementsAre("NumeroProtocolo", "Lugar", "Abreviatura", "Fecha",
                                                      "Notario", "NotarioSustituto"));
    EXPECT_THAT(Claves(json["Operacion"]), ElementsAre("Plazos", "TipoInteres", "TAEs"));
    ASSERT_FALSE(json["Conceptos"].empty());
    for (const auto& concepto : json["Conceptos"])
        EXPECT_THAT(Claves(concepto), ElementsAre("NumeroTipo", "Nombre", "CodOficial", "Prestamo"));
    const std::vector<std::string> campos = {
        "TipoDocumento",   "NumDocumento",    "Sexo",           "Nombre",
        "Apellidos",       "EstadoCivil",     "Regimen",        "Conyuge",
        "Vecindad",        "Provincia",       "TipoVia",        "Domicilio",
        "Numero",          "CodPostal",       "CodINE",         "IntervencionINTI",
        "IntervencionVRK", "Residente",       "CodPais",        "Pais",
        "Nacionalidad",    "LugarNacimiento", "PaisNacimiento", "ProvinciaNacimiento",
        "FechaNacimiento", "Padre",           "Madre",          "EnXML",
        "Propuesto"};
    ASSERT_FALSE(json["Otorgantes"].empty());
    for (const auto& otorgante : json["Otorgantes"]) EXPECT_THAT(Claves(otorgante), ElementsAreArray(campos));
}

TEST(JsonAnaliza, LosValoresVanConSuTipo) {
    const auto json = JsonDe("testamento");
    EXPECT_EQ(json["archivo"], Ejemplo("testamento").string());
    EXPECT_EQ(json["idioma"], "castellano");
    EXPECT_EQ(json["Cabecera"]["NumeroProtocolo"], 470);
    EXPECT_EQ(json["Cabecera"]["Fecha"], "06/05/2024");
    EXPECT_EQ(json["Empleado"], "MGR");
    ASSERT_FALSE(json["Otorgantes"].empty());
    const auto& testadora = json["Otorgantes"][0];
    EXPECT_EQ(testadora["TipoDocumento"], 1);
    EXPECT_EQ(testadora["NumDocumento"], "06942187M");
    EXPECT_EQ(testadora["FechaNacimiento"], "1948-05-17");
    EXPECT_TRUE(testadora["Propuesto"].is_boolean());
    EXPECT_EQ(JsonDe("compraventa")["Otorgantes"][0]["FechaNacimiento"], nullptr);
    EXPECT_EQ(JsonDe("testament")["idioma"], "catalan");
}

TEST(JsonAnaliza, LosMarcadoresYLasVariablesDelDocumentoCuentan) {
    const auto json = JsonDe("compraventa");
    EXPECT_EQ(json["Empleado"], "MGR");
    EXPECT_THAT(json["Fincas"], ElementsAre("1", "2"));
    std::vector<std::string> enXml;
    for (const auto& otorgante : json["Otorgantes"])
        if (otorgante["EnXML"].get<bool>()) enXml.push_back(otorgante["NumDocumento"]);
    EXPECT_THAT(enXml, ElementsAre("12213874T"));
}

TEST(JsonAnaliza, DosVecesDaLoMismoYNadaEnLosErrores) {
    for (const char* opcion : {"--json", "--forzar"}) {
        const std::vector<std::string> argumentos = {opcion, Ejemplo("prestamo_hipotecario"),
                                                     Ejemplo("compravenda")};
        const auto primera = Analiza(argumentos);
        EXPECT_EQ(primera.Codigo, 0);
        EXPECT_EQ(primera.Errores, "") << "no progress where nobody looks";
        EXPECT_EQ(Analiza(argumentos).Salida, primera.Salida);
    }
}

}  // namespace
}  // namespace analizador

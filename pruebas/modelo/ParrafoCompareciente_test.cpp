#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "analizador/ConstAnalizador.h"
#include "modelo/ClaseParrafoClientes.h"
#include "plataforma/Ansi.h"
#include "plataforma/Ruttb.h"
#include "pruebas/modelo/EscenaClientes.h"

namespace analizador {
namespace {

using TLeido = std::map<std::string, std::string>;

class ParrafoCompareciente : public EscenaClientes {
  protected:
    static constexpr int PARRAFO = 17;

    void Analiza(std::string_view parrafo) {
        TClassParrafoCompareciente compareciente(parrafo, PARRAFO);
        compareciente.Desglosa();
        compareciente.InsertaOtorgantes(lista_);
    }

    const TROtorgante& Otorgante(std::size_t i) const { return *lista_.Lista[i].Objeto; }
};

TEST_F(ParrafoCompareciente, UnaPersonaConTodosSusDatos) {
    constexpr std::string_view PARRAFO_ANA =
        "DOÑA ANA GARCÍA LÓPEZ, mayor de edad, soltera, vecina de Toledo, con domicilio en la calle Mayor, número 7, 2º B, y con D.N.I. número 12.345.678-Z.\r"_ansi;
    Analiza(PARRAFO_ANA);
    ASSERT_EQ(lista_.Lista.Cuenta(), 1U);
    EXPECT_EQ(lista_.Lista[0].Texto, "ANA GARCIA LOPEZ");
    EXPECT_EQ(Otorgante(0), (TROtorgante{.TipoDocumento = 1,
                                         .NumDocumento = "12345678Z",
                                         .Sexo = "M",
                                         .Nombre = "ANA",
                                         .Apellidos = "GARCIA LOPEZ",
                                         .EstadoCivil = 5,
                                         .Regimen = 0,
                                         .Conyuge = "",
                                         .Vecindad = "TOLEDO",
                                         .Provincia = "TOLEDO",
                                         .TipoVia = "CL",
                                         .Domicilio = "MAYOR",
                                         .Numero = "7",
                                         .CodPostal = "45001",
                                         .CodINE = "45168",
                                         .IntervencionINTI = 99,
                                         .IntervencionVRK = 0,
                                         .Residente = true,
                                         .CodPais = 0,
                                         .Pais = "",
                                         .Nacionalidad = "",
                                         .LugarNacimiento = "",
                                         .PaisNacimiento = "",
                                         .ProvinciaNacimiento = "",
                                         .FechaNacimiento = {},
                                         .Padre = "",
                                         .Madre = "",
                                         .EnXML = false}));
    ASSERT_EQ(lista_.Origenes.size(), 1U);
    EXPECT_EQ(Leido(PARRAFO_ANA, lista_.Origenes[0], PARRAFO), (TLeido{{"TipoDocumento", "12.345.678-Z"},
                                                                       {"NumDocumento", "12.345.678-Z"},
                                                                       {"Sexo", "DOÑA"},
                                                                       {"Nombre", "ANA GARCÍA LÓPEZ"},
                                                                       {"Apellidos", "ANA GARCÍA LÓPEZ"},
                                                                       {"EstadoCivil", "solter"},
                                                                       {"Vecindad", "Toledo"},
                                                                       {"TipoVia", "calle"},
                                                                       {"Domicilio", "Mayor"},
                                                                       {"Numero", "7"}}));
}

TEST_F(ParrafoCompareciente, UnMatrimonioConSusDosDocumentos) {
    constexpr std::string_view PARRAFO_DOS =
        "DON PIERRE MARTIN DUBOIS, de nacionalidad francesa, y DOÑA MARÍA JOSÉ LÓPEZ RUIZ, casados en régimen de separación de bienes, vecinos de 28013-Madrid, con domicilio en la plaza de Oriente, número 3, con N.I.E. X1234567L y D.N.I. 87654321-X, respectivamente.\r"_ansi;
    Analiza(PARRAFO_DOS);
    ASSERT_EQ(lista_.Lista.Cuenta(), 2U);
    const TROtorgante pierre{.TipoDocumento = 3,
                             .NumDocumento = "X1234567L",
                             .Sexo = "H",
                             .Nombre = "PIERRE",
                             .Apellidos = "MARTIN DUBOIS",
                             .EstadoCivil = 1,
                             .Regimen = 2,
                             .Conyuge = "LOPEZ RUIZ, MARIA JOSE",
                             .Vecindad = "Madrid",
                             .Provincia = "MADRID",
                             .TipoVia = "PZ",
                             .Domicilio = "ORIENTE",
                             .Numero = "3",
                             .CodPostal = "28013",
                             .CodINE = "28079",
                             .IntervencionINTI = 99,
                             .IntervencionVRK = 0,
                             .Residente = true,
                             .CodPais = 0,
                             .Pais = "",
                             .Nacionalidad = "FRANCIA",
                             .LugarNacimiento = "",
                             .PaisNacimiento = "",
                             .ProvinciaNacimiento = "",
                             .FechaNacimiento = {},
                             .Padre = "",
                             .Madre = "",
                             .EnXML = false};
    TROtorgante maria = pierre;
    maria.TipoDocumento = 1;
    maria.NumDocumento = "87654321X";
    maria.Sexo = "M";
    maria.Nombre = "MARIA JOSE";
    maria.Apellidos = "LOPEZ RUIZ";
    maria.Conyuge = "MARTIN DUBOIS, PIERRE";
    EXPECT_EQ(Otorgante(0), pierre);
    EXPECT_EQ(Otorgante(1), maria);
    EXPECT_EQ(lista_.Lista[0].Texto, "PIERRE MARTIN DUBOIS");
    EXPECT_EQ(lista_.Lista[1].Texto, "MARIA JOSE LOPEZ RUIZ");

    const TLeido dePierre = {{"TipoDocumento", "X1234567L"},
                             {"NumDocumento", "X1234567L"},
                             {"Sexo", "DON"},
                             {"Nombre", "PIERRE MARTIN DUBOIS"},
                             {"Apellidos", "PIERRE MARTIN DUBOIS"},
                             {"EstadoCivil", "casad"},
                             {"Regimen", "separación de bienes"},
                             {"Conyuge", "MARÍA JOSÉ LÓPEZ RUIZ"},
                             {"Vecindad", "Madrid"},
                             {"TipoVia", "plaza"},
                             {"Domicilio", "Oriente"},
                             {"Numero", "3"},
                             {"CodPostal", "28013"},
                             {"Nacionalidad", "francesa"}};
    TLeido deMaria = dePierre;
    deMaria["TipoDocumento"] = deMaria["NumDocumento"] = "87654321-X";
    deMaria["Sexo"] = "DOÑA";
    deMaria["Nombre"] = deMaria["Apellidos"] = "MARÍA JOSÉ LÓPEZ RUIZ";
    deMaria["Conyuge"] = "PIERRE MARTIN DUBOIS";
    EXPECT_EQ(Leido(PARRAFO_DOS, lista_.Origenes[0], PARRAFO), dePierre);
    EXPECT_EQ(Leido(PARRAFO_DOS, lista_.Origenes[1], PARRAFO), deMaria);
}

TEST_F(ParrafoCompareciente, EnCatalan) {
    vocabulario_.Elige(TIdioma::Catalan);
    constexpr std::string_view PARRAFO_CATALAN =
        "La senyora MONTSERRAT PUIG I SERRA, major d'edat, casada en règim de separació de béns, veïna de Lleida, amb domicili a la plaça de Sant Joan, número 12, amb D.N.I. 12345678-Z.\r"_ansi;
    Analiza(PARRAFO_CATALAN);
    ASSERT_EQ(lista_.Lista.Cuenta(), 1U);
    EXPECT_EQ(Otorgante(0), (TROtorgante{.TipoDocumento = 1,
                                         .NumDocumento = "12345678Z",
                                         .Sexo = "M",
                                         .Nombre = "MONTSERRAT",
                                         .Apellidos = "PUIG I SERRA",
                                         .EstadoCivil = 1,
                                         .Regimen = 2,
                                         .Conyuge = "",
                                         .Vecindad = "LLEIDA",
                                         .Provincia = "LERIDA",
                                         .TipoVia = "PZ",
                                         .Domicilio = "SANT JOAN",
                                         .Numero = "12",
                                         .CodPostal = "25007",
                                         .CodINE = "25120",
                                         .IntervencionINTI = 99,
                                         .IntervencionVRK = 0,
                                         .Residente = true,
                                         .CodPais = 0,
                                         .Pais = "",
                                         .Nacionalidad = "",
                                         .LugarNacimiento = "",
                                         .PaisNacimiento = "",
                                         .ProvinciaNacimiento = "",
                                         .FechaNacimiento = {},
                                         .Padre = "",
                                         .Madre = "",
                                         .EnXML = false}));
    EXPECT_EQ(Leido(PARRAFO_CATALAN, lista_.Origenes[0], PARRAFO),
              (TLeido{{"TipoDocumento", "12345678-Z"},
                      {"NumDocumento", "12345678-Z"},
                      {"Sexo", "La senyora"},
                      {"Nombre", "MONTSERRAT PUIG I SERRA"},
                      {"Apellidos", "MONTSERRAT PUIG I SERRA"},
                      {"EstadoCivil", "casad"},
                      {"Regimen", "separació de béns"},
                      {"Vecindad", "Lleida"},
                      {"TipoVia", "plaça"},
                      {"Domicilio", "Sant Joan"},
                      {"Numero", "12"}}));
}

TEST_F(ParrafoCompareciente, ElMatrimonioCatalanSeSeparaPorSuConjuncion) {
    vocabulario_.Elige(TIdioma::Catalan);
    Analiza(
        "El senyor JORDI ROIG MAS i la senyora EVA PUIG SERRA, casats, veïns de Lleida, amb domicili al carrer Major, número 4, amb D.N.I. 12345678-Z i 87654321-X, respectivament.\r"_ansi);
    ASSERT_EQ(lista_.Lista.Cuenta(), 2U);
    EXPECT_EQ(Otorgante(0).NombreOtorgante(), "JORDI ROIG MAS");
    EXPECT_EQ(Otorgante(0).Conyuge, "PUIG SERRA, EVA");
    EXPECT_EQ(Otorgante(1).Conyuge, "ROIG MAS, JORDI");
    EXPECT_EQ(Otorgante(1).NumDocumento, "87654321X");
    EXPECT_EQ(Otorgante(1).CodINE, "25120");
    EXPECT_EQ(Otorgante(1).TipoVia, "CL");
}

TEST_F(ParrafoCompareciente, DeUnExtranjeroLaDireccionEnteraYNadaDeLasTablas) {
    constexpr std::string_view PARRAFO_HANS =
        "DON HANS MEYER, mayor de edad, casado, no residente, con domicilio en Berlín, Hauptstrasse 5 (Alemania), con pasaporte de su nacionalidad francesa número C01X00T47.\r"_ansi;
    Analiza(PARRAFO_HANS);
    ASSERT_EQ(lista_.Lista.Cuenta(), 1U);
    EXPECT_EQ(Otorgante(0), (TROtorgante{.TipoDocumento = 4,
                                         .NumDocumento = "C01X00T47",
                                         .Sexo = "H",
                                         .Nombre = "HANS",
                                         .Apellidos = "MEYER",
                                         .EstadoCivil = 1,
                                         .Regimen = 4,
                                         .Conyuge = "",
                                         .Vecindad = "",
                                         .Provincia = "",
                                         .TipoVia = "",
                                         .Domicilio = "BERLIN, HAUPTSTRASSE 5",
                                         .Numero = "",
                                         .CodPostal = "",
                                         .CodINE = "",
                                         .IntervencionINTI = 99,
                                         .IntervencionVRK = 0,
                                         .Residente = false,
                                         .CodPais = 126,
                                         .Pais = "ALEMANIA",
                                         .Nacionalidad = "FRANCIA",
                                         .LugarNacimiento = "",
                                         .PaisNacimiento = "",
                                         .ProvinciaNacimiento = "",
                                         .FechaNacimiento = {},
                                         .Padre = "",
                                         .Madre = "",
                                         .EnXML = false}));
    EXPECT_EQ(Leido(PARRAFO_HANS, lista_.Origenes[0], PARRAFO),
              (TLeido{{"TipoDocumento", "C01X00T47"},
                      {"NumDocumento", "C01X00T47"},
                      {"Sexo", "DON"},
                      {"Nombre", "HANS MEYER"},
                      {"Apellidos", "HANS MEYER"},
                      {"EstadoCivil", "casad"},
                      {"Domicilio", "Berlín, Hauptstrasse 5"},
                      {"Pais", "Alemania"},
                      {"Nacionalidad", "francesa"}}));
}

// Abroad the second party has what the paragraph says, and no more.
TEST_F(ParrafoCompareciente, UnMatrimonioEnElExtranjero) {
    Analiza(
        "DON HANS MEYER y DOÑA EVA BRAUN, cónyuges, vecinos de 10115 - Berlín, no residentes, con domicilio en Hauptstrasse 5 (Alemania), con pasaportes C01X00T47 y C02X00T48.\r"_ansi);
    ASSERT_EQ(lista_.Lista.Cuenta(), 2U);
    for (const std::size_t i : {0U, 1U}) {
        EXPECT_EQ(Otorgante(i).Domicilio, "HAUPTSTRASSE 5") << i;
        EXPECT_EQ(Otorgante(i).Vecindad, "BERLIN") << i;
        EXPECT_EQ(Otorgante(i).CodPostal, "10115") << i;
        EXPECT_EQ(Otorgante(i).CodINE, "") << i;
        EXPECT_EQ(Otorgante(i).Provincia, "") << i;
        EXPECT_FALSE(Otorgante(i).Residente) << i;
        EXPECT_EQ(Otorgante(i).Pais, "ALEMANIA") << i;
        EXPECT_EQ(Otorgante(i).CodPais, 126) << i;
    }
    EXPECT_EQ(Otorgante(1).NumDocumento, "C02X00T48");
}

// A municipality that the tables do not know becomes the office's, which was read nowhere.
TEST_F(ParrafoCompareciente, LoQueDeciDenLasTablasNoTieneOrigen) {
    Analiza(
        "DOÑA ANA GIL, vecina de Villaperdida, con domicilio en la calle Mayor, número 7, con D.N.I. 12345678-Z.\r"_ansi);
    ASSERT_EQ(lista_.Lista.Cuenta(), 1U);
    EXPECT_EQ(Otorgante(0).Vecindad, "MADRID");
    EXPECT_EQ(Otorgante(0).CodPostal, "28001");
    EXPECT_FALSE(lista_.Origenes[0].contains("Vecindad"));
    EXPECT_FALSE(lista_.Origenes[0].contains("CodPostal"));
    EXPECT_TRUE(lista_.Origenes[0].contains("Domicilio"));
}

TEST_F(ParrafoCompareciente, LoDeLasTablasTampocoTieneOrigenEnElSegundo) {
    Analiza(
        "DOÑA ANA GIL y DON LUIS MAS, vecinos de Villaperdida, con domicilio en la calle Mayor, número 7, con D.N.I. 12345678-Z y 87654321-X.\r"_ansi);
    ASSERT_EQ(lista_.Lista.Cuenta(), 2U);
    EXPECT_EQ(Otorgante(1).Vecindad, "MADRID");
    EXPECT_EQ(Otorgante(1).CodPostal, "28001");
    EXPECT_EQ(Otorgante(1).CodINE, "28079");
    EXPECT_EQ(Otorgante(1).Provincia, "MADRID");
    EXPECT_FALSE(lista_.Origenes[1].contains("Vecindad"));
    EXPECT_TRUE(lista_.Origenes[1].contains("Domicilio"));
}

TEST_F(ParrafoCompareciente, LaCalleDecideElCodigoPostalDeLosDos) {
    Analiza(
        "DOÑA ANA GIL y DON LUIS MAS, vecinos de Madrid, con domicilio en la calle Mayor, número 7, con D.N.I. 12345678-Z y 87654321-X.\r"_ansi);
    ASSERT_EQ(lista_.Lista.Cuenta(), 2U);
    for (const std::size_t i : {0U, 1U}) {
        EXPECT_EQ(Otorgante(i).CodPostal, "28013") << i;
        EXPECT_FALSE(lista_.Origenes[i].contains("CodPostal")) << i;
        EXPECT_TRUE(lista_.Origenes[i].contains("Vecindad")) << i;
    }
}

// What each person of a paragraph becomes: name, document, spouse.
TEST_F(ParrafoCompareciente, QuienEsParteYConQueDocumento) {
    struct Caso {
        const char* Que;
        std::string_view Parrafo;
        std::vector<std::string> Otorgantes;
    };
    const std::vector<Caso> casos = {
        {"a person without a document", "DON JUAN GIL MAS, mayor de edad.\r"_ansi, {}},
        {"a document without a person", "El titular del D.N.I. 12345678-Z.\r"_ansi, {}},
        {"nothing", "", {}},
        {"two persons, one document",
         "DON JUAN GIL MAS y DOÑA EVA ROIG SANZ, el primero con D.N.I. 12345678-Z.\r"_ansi,
         {"GIL MAS, JUAN - 12345678Z (1) / ROIG SANZ, EVA"}},
        {"a NIE, then a NIF",
         "DON JUAN GIL MAS y DOÑA EVA ROIG SANZ, con X1234567L y 12345678-Z.\r"_ansi,
         {"GIL MAS, JUAN - X1234567L (3) / ROIG SANZ, EVA",
          "ROIG SANZ, EVA - 12345678Z (1) / GIL MAS, JUAN"}},
        {"a company's code, then a NIF: both take the NIF",
         "DON JUAN GIL MAS y DOÑA EVA ROIG SANZ, con B12345674 y 12345678-Z.\r"_ansi,
         {"GIL MAS, JUAN - 12345678Z (1) / ROIG SANZ, EVA",
          "ROIG SANZ, EVA - 12345678Z (1) / GIL MAS, JUAN"}},
        {"a NIF, then another document",
         "DON JUAN GIL MAS y DOÑA EVA ROIG SANZ, con 12345678-Z y B12345674.\r"_ansi,
         {"GIL MAS, JUAN - 12345678Z (1) / ROIG SANZ, EVA",
          "ROIG SANZ, EVA - B12345674 (5) / GIL MAS, JUAN"}},
        {"a date between two NIFs",
         "DON JUAN GIL MAS y DOÑA EVA ROIG SANZ, con 12345678-Z, de 12-03-2001, y 87654321-X.\r"_ansi,
         {"GIL MAS, JUAN - 12345678Z (1) / ROIG SANZ, EVA",
          "ROIG SANZ, EVA - 87654321X (1) / GIL MAS, JUAN"}},
        {"two passports",
         "DON JUAN GIL MAS y DOÑA EVA ROIG SANZ, con pasaportes AAA123456 y BBB654321.\r"_ansi,
         {"GIL MAS, JUAN - AAA123456 (4) / ROIG SANZ, EVA",
          "ROIG SANZ, EVA - BBB654321 (4) / GIL MAS, JUAN"}},
        {"a passport, then a NIF",
         "DON JUAN GIL MAS, con pasaporte AAA123456.\r"_ansi,
         {"GIL MAS, JUAN - AAA123456 (4)"}},
        {"three persons: the first, and nobody's spouse",
         "DON JUAN GIL MAS, DOÑA EVA ROIG SANZ y DON LUIS COSTA, con 12345678-Z, 87654321-X y X1234567L.\r"_ansi,
         {"GIL MAS, JUAN - 12345678Z (1)"}},
        {"a person with one name only",
         "DON MOHAMED y DOÑA EVA ROIG SANZ, con 12345678-Z.\r"_ansi,
         {"MOHAMED - 12345678Z (1) / ROIG SANZ, EVA"}},
        {"the spouse has one name only",
         "DOÑA EVA ROIG SANZ y DON MOHAMED, con 12345678-Z.\r"_ansi,
         {"ROIG SANZ, EVA - 12345678Z (1) / MOHAMED,"}},
        {"the notary is nobody's spouse",
         "DON JUAN GIL MAS, con 12345678-Z, según poder ante el notario de Madrid DON LUIS COSTA.\r"_ansi,
         {"GIL MAS, JUAN - 12345678Z (1)"}},
    };
    for (const auto& [que, parrafo, esperados] : casos) {
        lista_.Limpia();
        Analiza(parrafo);
        std::vector<std::string> otorgantes;
        for (const auto& [nombre, o] : lista_.Lista) {
            EXPECT_EQ(nombre, o->NombreOtorgante()) << que;
            std::string linea = o->MuestraOtorgante() + " (" + std::to_string(o->TipoDocumento) + ")";
            if (!o->Conyuge.empty()) linea += " / " + o->Conyuge;
            otorgantes.push_back(std::move(linea));
        }
        EXPECT_EQ(otorgantes, esperados) << que;
        EXPECT_EQ(lista_.Origenes.size(), lista_.Lista.Cuenta()) << que;
    }
}

TEST_F(ParrafoCompareciente, Nacionalidades) {
    using TNacionalidades = std::vector<std::string>;
    const std::vector<std::pair<std::string_view, TNacionalidades>> casos = {
        {"DON JUAN GIL, alemán, y DOÑA EVA MAS, francesa, con 12345678-Z y 87654321-X.\r"_ansi,
         {"ALEMANIA", "FRANCIA"}},
        {"DON JUAN GIL, francés, y DOÑA EVA MAS, alemana, con 12345678-Z y 87654321-X.\r"_ansi,
         {"FRANCIA", "ALEMANIA"}},
        {"DON JUAN GIL y DOÑA EVA MAS, de nacionalidad francesa, con 12345678-Z y 87654321-X.\r"_ansi,
         {"FRANCIA", "FRANCIA"}},
        {"DON JUAN GIL y DOÑA EVA MAS, con 12345678-Z y 87654321-X.\r"_ansi, {"", ""}},
        {"DON JUAN GIL, francés o alemán, con 12345678-Z.\r"_ansi, {"FRANCIA"}},
    };
    for (const auto& [parrafo, esperadas] : casos) {
        lista_.Limpia();
        Analiza(parrafo);
        TNacionalidades nacionalidades;
        for (const auto& linea : lista_.Lista) nacionalidades.push_back(linea.Objeto->Nacionalidad);
        EXPECT_EQ(nacionalidades, esperadas) << Utf8DeAnsi(parrafo);
    }
}

TEST_F(ParrafoCompareciente, NoMiraSiYaEstaba) {
    constexpr std::string_view JUAN = "DON JUAN GIL MAS, con D.N.I. 12345678-Z.\r"_ansi;
    Analiza(JUAN);
    Analiza(JUAN);
    ASSERT_EQ(lista_.Lista.Cuenta(), 2U);
    EXPECT_EQ(lista_.Lista[1].Texto, "JUAN GIL MAS");
}

// The last character of a paragraph without a comma is dropped by the rule on names; whatever stays, no field
// holds a blank or a line end at its ends.
TEST_F(ParrafoCompareciente, LosTextosQuedanRecortados) {
    Analiza("Con D.N.I. 12345678-Z DON JUAN GIL MAS \r"_ansi);
    ASSERT_EQ(lista_.Lista.Cuenta(), 1U);
    EXPECT_EQ(Otorgante(0).Nombre, "JUAN");
    EXPECT_EQ(Otorgante(0).Apellidos, "GIL MAS");
    EXPECT_EQ(lista_.Lista[0].Texto, "JUAN GIL MAS");
}

TEST_F(ParrafoCompareciente, DesglosaRellenaLosCampos) {
    TClassParrafoCompareciente parrafo(
        "DON JUAN GIL MAS, viudo, vecino de 28013-Madrid, con domicilio en la calle Mayor, número 7, con D.N.I. 12345678-Z.\r"_ansi);
    EXPECT_TRUE(parrafo.Residente);
    EXPECT_TRUE(parrafo.Personas.empty());
    parrafo.Desglosa();
    ASSERT_EQ(parrafo.Documentos.size(), 2U);
    EXPECT_EQ(parrafo.Documentos[0].Valor, (TRDocumento{5, "28013Madrid"}));  // any long word with a digit
    EXPECT_EQ(parrafo.Documentos[1].Valor, (TRDocumento{1, "12345678Z"}));
    ASSERT_EQ(parrafo.Personas.size(), 1U);
    EXPECT_EQ(parrafo.Personas[0].Valor, (TRPersona{"H", "JUAN", "GIL MAS"}));
    EXPECT_TRUE(parrafo.Sociedades.empty());
    EXPECT_EQ(parrafo.EstadoCivil.Valor, 6);
    EXPECT_EQ(parrafo.Regimen.Valor, 0);
    EXPECT_EQ(parrafo.Vecindad.Valor, "MADRID");
    EXPECT_EQ(parrafo.CodPostal.Valor, "28013");
    EXPECT_EQ(parrafo.TipoVia.Valor, "CL");
    EXPECT_EQ(parrafo.Domicilio.Valor, "MAYOR");
    EXPECT_EQ(parrafo.Numero.Valor, "7");
    EXPECT_TRUE(parrafo.Residente);
    EXPECT_EQ(parrafo.CodPais, 0);
    EXPECT_EQ(parrafo.Pais.Valor, "");
}

TEST_F(ParrafoCompareciente, SinTablasEsUnErrorDeTabla) {
    tablas_.Quita("PROVIN.DBF");
    TClassParrafoCompareciente parrafo("DON JUAN GIL MAS, con D.N.I. 12345678-Z.\r"_ansi);
    EXPECT_THROW(parrafo.Desglosa(), ErrorTabla);
}

}  // namespace
}  // namespace analizador

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "analizador/ConstAnalizador.h"
#include "modelo/ClaseParrafoClientes.h"
#include "plataforma/Ansi.h"
#include "pruebas/modelo/EscenaClientes.h"

namespace analizador {
namespace {

using TLeido = std::map<std::string, std::string>;

class ParrafosConSociedad : public EscenaClientes {
  protected:
    static constexpr int PARRAFO = 31;

    template <class TParrafo>
    void Analiza(std::string_view texto) {
        TParrafo parrafo(texto, PARRAFO);
        parrafo.Desglosa();
        parrafo.RellenaListaOtorgantes(lista_);
    }

    // Files a party that appeared before.
    void Comparecio(const std::string& nombre, const std::string& apellidos, const std::string& documento) {
        TROtorgante o;
        o.Nombre = nombre;
        o.Apellidos = apellidos;
        o.TipoDocumento = 1;
        o.NumDocumento = documento;
        lista_.Anade({o, {}});
    }

    std::vector<std::string> Lineas() const {
        std::vector<std::string> lineas;
        for (const auto& linea : lista_.Lista) lineas.push_back(linea.Texto);
        return lineas;
    }

    const TROtorgante& Otorgante(std::size_t i) const { return *lista_.Lista[i].Objeto; }
};

TEST_F(ParrafosConSociedad, QuienYaComparecioSoloTraeALosQueRepresenta) {
    Comparecio("JUAN", "PEREZ GIL", "12345678Z");
    constexpr std::string_view TEXTO =
        "DON JUAN PÉREZ GIL, con D.N.I. 12345678-Z, interviene en nombre y representación de la mercantil \"Promociones Sur, S.L.\", domiciliada en 45003 - Toledo, avenida de Europa, número 14, con C.I.F. B12345674, y de DOÑA EVA MAS ROIG, viuda, con D.N.I. 87654321-X.\r"_ansi;
    Analiza<TClassParrafoRepresentacion>(TEXTO);
    ASSERT_EQ(Lineas(),
              (std::vector<std::string>{"JUAN PEREZ GIL", "Promociones Sur, S.L.", "EVA MAS ROIG"}));
    EXPECT_EQ(Otorgante(0).IntervencionVRK, 0);

    // The postal code is the municipality's in the tables, not the one that the paragraph tells.
    EXPECT_EQ(Otorgante(1), (TROtorgante{.TipoDocumento = 2,
                                         .NumDocumento = "B12345674",
                                         .Sexo = "S",
                                         .Nombre = "",
                                         .Apellidos = "Promociones Sur, S.L.",
                                         .EstadoCivil = 0,
                                         .Regimen = 0,
                                         .Conyuge = "",
                                         .Vecindad = "TOLEDO",
                                         .Provincia = "TOLEDO",
                                         .TipoVia = "AV",
                                         .Domicilio = "EUROPA",
                                         .Numero = "14",
                                         .CodPostal = "45001",
                                         .CodINE = "45168",
                                         .IntervencionINTI = 99,
                                         .IntervencionVRK = 5,
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
    EXPECT_EQ(Leido(TEXTO, lista_.Origenes[1], PARRAFO), (TLeido{{"TipoDocumento", "B12345674"},
                                                                 {"NumDocumento", "B12345674"},
                                                                 {"Apellidos", "Promociones Sur, S.L."},
                                                                 {"Vecindad", "Toledo"},
                                                                 {"TipoVia", "avenida"},
                                                                 {"Domicilio", "Europa"},
                                                                 {"Numero", "14"}}));

    EXPECT_EQ(Otorgante(2), (TROtorgante{.TipoDocumento = 1,
                                         .NumDocumento = "87654321X",
                                         .Sexo = "M",
                                         .Nombre = "EVA",
                                         .Apellidos = "MAS ROIG",
                                         .EstadoCivil = 6,
                                         .Regimen = 0,
                                         .Conyuge = "",
                                         .Vecindad = "TOLEDO",
                                         .Provincia = "TOLEDO",
                                         .TipoVia = "AV",
                                         .Domicilio = "EUROPA",
                                         .Numero = "14",
                                         .CodPostal = "45003",
                                         .CodINE = "45168",
                                         .IntervencionINTI = 99,
                                         .IntervencionVRK = 5,
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
}

TEST_F(ParrafosConSociedad, EnCatalan) {
    vocabulario_.Elige(TIdioma::Catalan);
    Comparecio("JORDI", "ROIG MAS", "12345678Z");
    Analiza<TClassParrafoRepresentacion>(
        "El senyor JORDI ROIG MAS, en nom i representació de \"L'Estel, S.L.\", amb C.I.F. B12345674, i de la senyora EVA PUIG SERRA, vídua, veïna de Lleida, amb domicili al carrer Major, número 4, amb D.N.I. 87654321-X.\r"_ansi);
    ASSERT_EQ(Lineas(), (std::vector<std::string>{"JORDI ROIG MAS", "Estel, S.L.", "EVA PUIG SERRA"}));
    EXPECT_EQ(Otorgante(1).NumDocumento, "B12345674");
    EXPECT_EQ(Otorgante(1).CodINE, "25120");
    EXPECT_EQ(Otorgante(1).IntervencionVRK, 5);
    EXPECT_EQ(Otorgante(2).IntervencionVRK, 5);
    EXPECT_EQ(Otorgante(2).EstadoCivil, 6);
}

TEST_F(ParrafosConSociedad, AQuienesAnadeUnaRepresentacion) {
    struct Caso {
        const char* Que;
        std::string_view Texto;
        std::vector<std::string> Nuevos;
    };
    const std::vector<Caso> casos = {
        {"neither company nor persons", "Según poder otorgado en esta ciudad.\r"_ansi, {}},
        {"the attorney alone", "DON JUAN PEREZ GIL, con D.N.I. 12345678-Z.\r"_ansi, {}},
        {"an attorney who is not known",
         "DON LUIS COSTA, con D.N.I. 00000000-T, en nombre y representación de \"BANCO SUR\".\r"_ansi,
         {"BANCO SUR", "LUIS COSTA"}},
        {"only the first company",
         "En nombre, y en nombre y representación de \"BANCO SUR\", y en nombre y representación de \"CAJA NORTE\".\r"_ansi,
         {"BANCO SUR"}},
        {"the represented has no document of his own",
         "DON JUAN PEREZ GIL, con D.N.I. 12345678-Z, en nombre y representación de DOÑA EVA MAS ROIG, viuda.\r"_ansi,
         {}},
        {"the company's tax code is nobody else's document",
         "DON JUAN PEREZ GIL en nombre y representación de \"BANCO SUR\", con C.I.F. B12345674, y de DOÑA EVA MAS ROIG, viuda.\r"_ansi,
         {"BANCO SUR"}},
        {"once the attorney is gone, two spouses are left",
         "DON JUAN PEREZ GIL, con D.N.I. 12345678-Z, en nombre y representación de DON LUIS COSTA y DOÑA EVA MAS ROIG, con D.N.I. 00000000-T y 87654321-X.\r"_ansi,
         {"LUIS COSTA", "EVA MAS ROIG"}},
        {"two attorneys, both known, side by side",
         "DON JUAN PEREZ GIL, DON PEDRO SANZ, con D.N.I. 12345678-Z y X1234567L, en nombre y representación de DOÑA EVA MAS ROIG, con D.N.I. 87654321-X.\r"_ansi,
         {"EVA MAS ROIG"}},
        {"a known name inside the paragraph's longer one",
         "DON JUAN PEREZ GILABERT, con D.N.I. 00000000-T.\r"_ansi,
         {}},
        {"a company without a code takes the next number, whose bearer is left without it",
         "En nombre, y en nombre y representación de \"BANCO SUR\" y de DOÑA EVA MAS ROIG, con D.N.I. 87654321-X.\r"_ansi,
         {"BANCO SUR"}},
        {"a quote that is never closed",
         "DON JUAN PEREZ GIL en nombre y representación de \"BANCO SUR.\r"_ansi,
         {""}},
    };
    for (const auto& [que, texto, nuevos] : casos) {
        lista_.Limpia();
        Comparecio("JUAN", "PEREZ GIL", "12345678Z");
        Comparecio("PEDRO", "SANZ", "X1234567L");
        Analiza<TClassParrafoRepresentacion>(texto);
        std::vector<std::string> esperados = {"JUAN PEREZ GIL", "PEDRO SANZ"};
        esperados.insert(esperados.end(), nuevos.begin(), nuevos.end());
        EXPECT_EQ(Lineas(), esperados) << que;
        for (std::size_t i = 0; i < lista_.Lista.Cuenta(); ++i)
            EXPECT_EQ(Otorgante(i).IntervencionVRK, i < 2 ? 0 : 5) << que << ' ' << i;
        EXPECT_EQ(lista_.Origenes.size(), lista_.Lista.Cuenta()) << que;
    }
}

// The two that are left once the attorney is gone are each other's spouse, with the documents that are left.
TEST_F(ParrafosConSociedad, LosQueQuedanSeEmparejanEntreSi) {
    Comparecio("JUAN", "PEREZ GIL", "12345678Z");
    Analiza<TClassParrafoRepresentacion>(
        "DON JUAN PEREZ GIL, con D.N.I. 12345678-Z, en nombre y representación de DON LUIS COSTA y DOÑA EVA MAS ROIG, con D.N.I. 00000000-T y 87654321-X.\r"_ansi);
    ASSERT_EQ(lista_.Lista.Cuenta(), 3U);
    EXPECT_EQ(Otorgante(1).NumDocumento, "00000000T");
    EXPECT_EQ(Otorgante(1).Conyuge, "MAS ROIG, EVA");
    EXPECT_EQ(Otorgante(2).NumDocumento, "87654321X");
    EXPECT_EQ(Otorgante(2).Conyuge, "COSTA, LUIS");
}

TEST_F(ParrafosConSociedad, ElRepresentanteEsLaPrimeraPersonaYLoSigueSiendo) {
    Comparecio("JUAN", "PEREZ GIL", "12345678Z");
    constexpr std::string_view TEXTO =
        "DON JUAN PÉREZ GIL, con D.N.I. 12345678-Z, en nombre y representación de DOÑA EVA MAS ROIG, con D.N.I. 87654321-X.\r"_ansi;
    TClassParrafoRepresentacion parrafo(TEXTO);
    parrafo.Desglosa();
    EXPECT_EQ(parrafo.Representante.Valor, "JUAN PEREZ GIL");
    parrafo.RellenaListaOtorgantes(lista_);
    ASSERT_EQ(parrafo.Personas.size(), 1U);
    EXPECT_EQ(parrafo.Personas[0].Valor.NombreCompleto(), "EVA MAS ROIG");
    EXPECT_EQ(parrafo.Documentos.size(), 1U);
    EXPECT_EQ(parrafo.Representante.Valor, "JUAN PEREZ GIL");
    EXPECT_EQ(TEXTO.substr(parrafo.Representante.Donde.Primera, parrafo.Representante.Donde.Longitud),
              "JUAN PÉREZ GIL"_ansi);
}

TEST_F(ParrafosConSociedad, SinPersonasNoHayRepresentante) {
    for (const auto& [texto, representante] : std::vector<std::pair<std::string_view, std::string>>{
             {"En nombre y representación de \"BANCO SUR\".\r"_ansi, ""},
             {"DON MOHAMED, apoderado.\r", "MOHAMED"}}) {
        TClassParrafoRepresentacion parrafo(texto);
        parrafo.Desglosa();
        EXPECT_EQ(parrafo.Representante.Valor, representante);
    }
}

TEST_F(ParrafosConSociedad, UnaSociedadExtranjeraNoSeCompleta) {
    Analiza<TClassParrafoRepresentacion>(
        "En nombre, y en nombre y representación de \"Kurfürst GmbH\", sociedad no residente, con domicilio en Hauptstrasse 5, Berlín (Alemania).\r"_ansi);
    ASSERT_EQ(lista_.Lista.Cuenta(), 1U);
    EXPECT_EQ(Otorgante(0).Apellidos, "Kurfürst GmbH"_ansi);
    EXPECT_EQ(Otorgante(0).Domicilio, "HAUPTSTRASSE 5, BERLIN");
    EXPECT_EQ(Otorgante(0).Vecindad, "");
    EXPECT_EQ(Otorgante(0).CodINE, "");
    EXPECT_FALSE(Otorgante(0).Residente);
    EXPECT_EQ(Otorgante(0).Pais, "ALEMANIA");
    EXPECT_EQ(Otorgante(0).CodPais, 126);
}

TEST_F(ParrafosConSociedad, LosDeudoresTomanLaIntervencionQueDiceElParrafo) {
    constexpr std::string_view TEXTO =
        "La parte deudora, \"Promociones Sur, S.L.\", con C.I.F. B12345674, y DON LUIS COSTA y DOÑA EVA MAS ROIG, casados, con D.N.I. 00000000-T y 87654321-X.\r"_ansi;
    Analiza<TClassParrafoParteDeudora>(TEXTO);
    ASSERT_EQ(Lineas(), (std::vector<std::string>{"Promociones Sur, S.L.", "LUIS COSTA", "EVA MAS ROIG"}));
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(Otorgante(i).IntervencionINTI, 4) << i;
        EXPECT_EQ(Otorgante(i).IntervencionVRK, 0) << i;
        EXPECT_TRUE(lista_.Origenes[i].contains("IntervencionINTI")) << i;
    }
}

TEST_F(ParrafosConSociedad, QuienEstaAntesDeLaFraseNoEsDeudor) {
    Analiza<TClassParrafoParteDeudora>(
        "\"BANCO SUR\", con C.I.F. A12345674, presta a la parte deudora, DON LUIS COSTA, con D.N.I. 00000000-T.\r"_ansi);
    ASSERT_EQ(Lineas(), (std::vector<std::string>{"BANCO SUR", "LUIS COSTA"}));
    EXPECT_EQ(Otorgante(0).IntervencionINTI, 99);
    EXPECT_EQ(Otorgante(1).IntervencionINTI, 4);
    EXPECT_FALSE(lista_.Origenes[0].contains("IntervencionINTI"));
}

TEST_F(ParrafosConSociedad, SinLaFraseNadieEsDeudor) {
    Analiza<TClassParrafoParteDeudora>("DON LUIS COSTA, con D.N.I. 00000000-T.\r"_ansi);
    ASSERT_EQ(lista_.Lista.Cuenta(), 1U);
    EXPECT_EQ(Otorgante(0).IntervencionINTI, 99);
}

// Those who appeared before keep what they have: the paragraph's own stage does not mark them.
TEST_F(ParrafosConSociedad, ElDeudorYaConocidoNoSeToca) {
    Comparecio("LUIS", "COSTA", "00000000T");
    Analiza<TClassParrafoParteDeudora>("La parte deudora, DON LUIS COSTA, con D.N.I. 00000000-T.\r"_ansi);
    ASSERT_EQ(lista_.Lista.Cuenta(), 1U);
    EXPECT_EQ(Otorgante(0).IntervencionINTI, 99);
}

}  // namespace
}  // namespace analizador

#include <gtest/gtest.h>

#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "pruebas/comun/Literales.h"
#include "pruebas/comun/Tramos.h"
#include "pruebas/comun/VocabularioDePrueba.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

const TSeccionesDePrueba SECCIONES = {{"VECINDAD", {"VECINO DE", "VECINA DE"}},
                                      {"DOMICILIO", {"CON DOMICILIO EN", "DOMICILIADO EN"}}};

struct TCaso {
    std::string_view Texto;
    std::string_view Municipio;
    std::string_view CodPostal;
    std::size_t Primera = 0;  // of the municipality
};

const std::vector<TCaso> CASOS = {
    {"", "", ""},
    {"Casado, mayor de edad", "", ""},
    {"VECINO DE 28001-MADRID, CON DOMICILIO EN LA CALLE DEL PRADO, NUMERO 5, 2º"_a, "MADRID", "28001", 16},
    {"vecino de Alcalá de Henares, casado"_a, "ALCALA DE HENARES", "", 10},
    // The word's own occurrence of the name is the one told.
    {"En Madrid, don Juan, vecino de Madrid, casado", "MADRID", "", 31},
    // Without a comma there is no municipality, whatever else follows.
    {"VECINO DE MADRID", "", ""},
    {"VECINO DE MADRID CON DOMICILIO EN LA CALLE MAYOR", "", ""},
    {"CON DOMICILIO EN SORIA, VECINO DE MADRID", "", ""},
    // The address ends it when it comes before the comma.
    {"VECINO DE MADRID CON DOMICILIO EN CALLE MAYOR, 3", "MADRID", "", 10},
    {"VECINO DE MADRID, CASADO CON DOMICILIO EN CALLE MAYOR, 3", "MADRID", "", 10},
    // An address before the word leaves nothing.
    {"CON DOMICILIO EN LA CALLE MAYOR, VECINO DE MADRID, CASADO", "", ""},
    // The first address entry in the file's order counts, though another one stands nearer.
    {"VECINO DE MADRID DOMICILIADO EN CALLE MAYOR CON DOMICILIO EN X, 3", "MADRID DOMICILIADO EN CALLE MAYOR",
     "", 10},
    // So does the first word of residence.
    {"VECINA DE SORIA, Y SU ESPOSO VECINO DE LUGO, CASADOS", "LUGO", "", 39},
    // One character after the word is skipped, whatever it is.
    {"VECINO DE:MADRID, CASADO", "MADRID", "", 10},
    {"VECINO DEMADRID, CASADO", "ADRID", "", 10},
    {"VECINO DE,MADRID, CASADO", "MADRID", "", 10},
    {"VECINO DE", "", ""},
    {"VECINO DE ", "", ""},
    {"VECINO DE , CASADO", "", ""},
    {"VECINO DE   MADRID \r , CASADO", "MADRID", "", 12},
    // A bracket and what follows it go.
    {"VECINO DE MADRID (ESPAÑA), CASADO"_a, "MADRID", "", 10},
    {"VECINO DE CIUTAT (MALLORCA) (ESPAÑA), CASADO"_a, "CIUTAT", "", 10},
    {"VECINO DE (ESPAÑA) MADRID, CASADO"_a, "", ""},
    // A number before the first dash is the postal code, padded to five digits.
    {"VECINO DE 8001-BARCELONA, CASADO", "BARCELONA", "08001", 15},
    {"VECINO DE 28001 - MADRID, CASADO", " MADRID", "28001", 17},
    {"VECINO DE 8001 - BARCELONA, CASADO", " BARCELONA", "08001", 16},
    {"VECINO DE 43001-REUS-CENTRE, CASADO", "REUS-CENTRE", "43001", 16},
    {"VECINO DE 28001-, CASADO", "", "28001"},
    {"VECINO DE SANT-ADRIA, CASADO", "SANT-ADRIA", "", 10},
    {"VECINO DE 0-MADRID, CASADO", "0-MADRID", "", 10},
    {"VECINO DE 28001 MADRID, CASADO", "28001 MADRID", "", 10},
    {"VECINO DE -MADRID, CASADO", "-MADRID", "", 10},
    // After the bracket is cut no dash is left.
    {"VECINO DE REUS (43201-TARRAGONA), CASADO", "REUS", "", 10},
};

}  // namespace

TEST(Vecindad, MunicipioYCodigoPostal) {
    const TVocabularioDePrueba vocabulario(SECCIONES);
    for (const TCaso& caso : CASOS) {
        SCOPED_TRACE(Utf8DeAnsi(caso.Texto));
        const TVecindad hallada = BuscaVecindad(caso.Texto);
        EXPECT_EQ(hallada.Municipio.Valor, caso.Municipio);
        EXPECT_EQ(hallada.Municipio.Donde, (Tramo{caso.Primera, caso.Municipio.size()}));
        EXPECT_EQ(Pliega(EnTramo(caso.Texto, hallada.Municipio.Donde)), caso.Municipio);
        EXPECT_EQ(hallada.CodPostal.Valor, caso.CodPostal);
        const std::string escrito = EnTramo(caso.Texto, hallada.CodPostal.Donde);
        EXPECT_EQ(escrito.empty() ? "" : StrCeros(escrito, 5), caso.CodPostal);
    }
}

}  // namespace analizador

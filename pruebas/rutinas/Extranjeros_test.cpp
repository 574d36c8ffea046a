#include <gtest/gtest.h>

#include "plataforma/Ansi.h"
#include "plataforma/Rut.h"
#include "pruebas/comun/ConfigDePrueba.h"
#include "pruebas/comun/Literales.h"
#include "pruebas/comun/TablasDePrueba.h"
#include "pruebas/comun/Tramos.h"
#include "pruebas/comun/VocabularioDePrueba.h"
#include "pruebas/rutinas/ProvinciasDePrueba.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

const TSeccionesDePrueba VOCABULARIO = {{"EXTRANJEROS", {"NO RESIDENTE", "RESIDENTE EN FRANCIA"}}};

const std::vector<TFilaProvincia> PAISES = {
    {"28", "MADRID", "1", {"MADRILEÑA"_a}},
    {"300", "EUROPA", "3", {"EUROPEA"}},
    {"126",
     "ALEMANIA",
     "2",
     {"ALEMANA", "ALEMAN", "GERMANO", "TEUTONA", "GERMANA"},
     {"ALEMANYA", "ALEMANY", "GERMANIC", "TEUTONA", "GERMANICA"}},
    {"110", "FRANCIA", "2", {"FRANCESA", "FRANCES", "GALO", "", "GALA"}, {"FRANCESA", "FRANC#ES"}},
    {"115", "ITALIA", "2", {"ITALIANA", "ITALIANO"}, {"ITALIANA", "ITALI#A"}},
    {"135", "UCRANIA", "2", {"UCRANIANA"}, {"", "", "UCRA#IN#ES", "UCRA#INESA"}},
    {"230", "HAITI", "2", {"HAITIANA"}, {"HA#ITIANA"}},
    {"103", "HOLANDA", "2", {"HOLANDESA", "HOLANDES"}},
    {"104", "PAISES BAJOS", "2", {"HOLANDESA", "HOLANDES"}},
    {"400", "CONGO", "2", {"CONGOLESA"}},
    {"401", "ZAIRE", "2", {"CONGOLESA"}},
};

// A country as "NAME code WORD position", for comparing lists at a glance.
std::vector<std::string> Resumen(const std::vector<THallazgo<TRPais>>& paises) {
    std::vector<std::string> resumen;
    for (const auto& pais : paises)
        resumen.push_back(pais.Valor.Nombre + " " + std::to_string(pais.Valor.Codigo) + " " +
                          pais.Valor.Texto + " " + std::to_string(pais.Valor.Posicion));
    return resumen;
}

struct TCaso {
    std::string_view Texto;
    bool Espannol;
    std::string_view Pais;
    int CodPais;
    std::string_view PaisEscrito;
    std::vector<std::string> Paises;
};

const std::vector<TCaso> CASOS = {
    {"", true, "", 0, "", {}},
    {"don Juan, vecino de Madrid, madrileño y europea"_a, true, "", 0, "", {}},
    // Without a marker he is Spanish, yet the list is filled.
    {"de nacionalidad francesa, vecino de Italia", true, "", 0, "", {"FRANCIA 110 FRANCESA 17"}},
    // A marker and the country's name.
    {"no residente, vecino de París, Francia"_a, false, "FRANCIA", 110, "Francia", {}},
    {"residente en Francia, de nacionalidad italiana",
     false,
     "FRANCIA",
     110,
     "Francia",
     {"ITALIA 115 ITALIANA 39"}},
    // The first name in alphabetical order, whatever its place in the text.
    {"NO RESIDENTE, VECINO DE ITALIA Y ALEMANIA", false, "ALEMANIA", 126, "ALEMANIA", {}},
    {"NO RESIDENTE, MADRID, EUROPA", false, "DESCONOCIDO", 999, "", {}},
    // A marker alone: the country of the first word of nationality, in the order of the text.
    {"NO RESIDENTE, ITALIANO CASADO CON ALEMANA",
     false,
     "ITALIA",
     115,
     "ITALIANO",
     {"ITALIA 115 ITALIANO 15", "ALEMANIA 126 ALEMANA 35"}},
    {"NO RESIDENTE", false, "DESCONOCIDO", 999, "", {}},
    // One entry for a country, through the first of its fields that is there, in the fields' order.
    {"FRANCES CASADO CON FRANCESA", true, "", 0, "", {"FRANCIA 110 FRANCESA 20"}},
    {"GALO CASADO CON FRANCES", true, "", 0, "", {"FRANCIA 110 FRANCES 17"}},
    {"GALA CASADA CON GALO", true, "", 0, "", {"FRANCIA 110 GALO 17"}},
    {"GERMANO Y ALEMAN", true, "", 0, "", {"ALEMANIA 126 ALEMAN 11"}},
    {"TEUTONA Y GERMANO", true, "", 0, "", {"ALEMANIA 126 GERMANO 11"}},
    {"GERMANA Y TEUTONA", true, "", 0, "", {"ALEMANIA 126 TEUTONA 11"}},
    // As a whole word; any occurrence counts, and the first that passes gives the position.
    {"ALEMANAS Y SUBALEMANA", true, "", 0, "", {}},
    {"ALEMANAS, SUBALEMANA, ALEMANA", true, "", 0, "", {"ALEMANIA 126 ALEMANA 23"}},
    {"(ALEMANA)", true, "", 0, "", {"ALEMANIA 126 ALEMANA 2"}},
    {"NO RESIDENTE, ITALIANIZADO", false, "DESCONOCIDO", 999, "", {}},
    {"NO RESIDENTE, LA FRANCIAL, LA FRANCIA", false, "FRANCIA", 110, "FRANCIA", {}},
    // The order of the text.
    {"FRANCESA, ALEMANA E ITALIANA",
     true,
     "",
     0,
     "",
     {"FRANCIA 110 FRANCESA 1", "ALEMANIA 126 ALEMANA 11", "ITALIA 115 ITALIANA 21"}},
    // Found through the same word: the preferred name stays, else the later one of the list, in which the
    // country found later goes before at the same position.
    {"DE NACIONALIDAD HOLANDESA", true, "", 0, "", {"HOLANDA 103 HOLANDESA 17"}},
    {"DE NACIONALIDAD CONGOLESA", true, "", 0, "", {"CONGO 400 CONGOLESA 17"}},
    // A country that the text names decides: against the preferred one, and for either of the pair.
    {"NO RESIDENTE, HOLANDESA DE LOS PAISES BAJOS",
     false,
     "PAISES BAJOS",
     104,
     "PAISES BAJOS",
     {"PAISES BAJOS 104 HOLANDESA 15"}},
    {"NO RESIDENTE, CONGOLESA DEL ZAIRE", false, "ZAIRE", 401, "ZAIRE", {"ZAIRE 401 CONGOLESA 15"}},
    {"NO RESIDENTE, CONGOLESA DEL CONGO", false, "CONGO", 400, "CONGO", {"CONGO 400 CONGOLESA 15"}},
    // Of a pair without the named country the first goes.
    {"NO RESIDENTE, EN ITALIA, HOLANDESA", false, "ITALIA", 115, "ITALIA", {"HOLANDA 103 HOLANDESA 26"}},
    // Each word of several is cleared of its own repetitions.
    {"CONGOLESA Y HOLANDESA", true, "", 0, "", {"CONGO 400 CONGOLESA 1", "HOLANDA 103 HOLANDESA 13"}},
};

const std::vector<TCaso> CASOS_CATALANES = {
    {"de nacionalitat francesa", true, "", 0, "", {"FRANCIA 110 FRANCESA 17"}},
    // The Castilian words are not those of a Catalan deed, nor the other way round.
    {"GALO Y TEUTONA", true, "", 0, "", {"ALEMANIA 126 TEUTONA 8"}},
    {"ALEMANA", true, "", 0, "", {}},
    {"GERMANICA I GERMANIC", true, "", 0, "", {"ALEMANIA 126 GERMANIC 13"}},
    // Vowels with dieresis are searched as the demonyms are stored, and every one before the word moves its
    // position by one.
    {"de nacionalitat ucraïnesa"_a, true, "", 0, "", {"UCRANIA 135 UCRA#INESA 17"}},
    {"veïna de Süria, ucraïnesa"_a, true, "", 0, "", {"UCRANIA 135 UCRA#INESA 19"}},
    {"ä ë ï ö ü, haïtiana i francesa"_a,
     true,
     "",
     0,
     "",
     {"HAITI 230 HA#ITIANA 17", "FRANCIA 110 FRANCESA 29"}},
    {"NO RESIDENTE, VEÏNA, UCRAÏNESA"_a, false, "UCRANIA", 135, "UCRAÏNESA"_a, {"UCRANIA 135 UCRA#INESA 23"}},
    // Names of countries are searched in the text itself.
    {"NO RESIDENTE, VEÏNA DE FRANCIA"_a, false, "FRANCIA", 110, "FRANCIA", {}},
};

// What the demonym looks like where it was read: the letters with dieresis themselves.
std::string SinAlmohadillas(std::string gentilicio) {
    constexpr std::string_view VOCALES = "AEIOU";
    constexpr std::string_view CON_DIERESIS = "ÄËÏÖÜ"_ansi;
    for (auto p = gentilicio.find('#'); p != std::string::npos; p = gentilicio.find('#'))
        gentilicio.replace(p, 2, 1, CON_DIERESIS.at(VOCALES.find(gentilicio[p + 1])));
    return gentilicio;
}

void Comprueba(const TCaso& caso) {
    SCOPED_TRACE(Utf8DeAnsi(caso.Texto));
    const TExtranjeria hallada = CompruebaExtranjeros(caso.Texto);
    EXPECT_EQ(hallada.Espannol, caso.Espannol);
    EXPECT_EQ(hallada.Pais.Valor, caso.Pais);
    EXPECT_EQ(hallada.CodPais, caso.CodPais);
    EXPECT_EQ(EnTramo(caso.Texto, hallada.Pais.Donde), caso.PaisEscrito);
    EXPECT_EQ(Resumen(hallada.Paises), caso.Paises);
    for (const auto& pais : hallada.Paises)
        EXPECT_EQ(Pliega(EnTramo(caso.Texto, pais.Donde)), SinAlmohadillas(pais.Valor.Texto));
}

class Extranjeros : public testing::Test {
  protected:
    Extranjeros() { tablas_.Pon("PROVIN.DBF", Provincias(PAISES)); }

    TVocabularioDePrueba vocabulario_{VOCABULARIO, VOCABULARIO};
    TTablasDePrueba tablas_;
    InstalaTablas guarda_{tablas_};
};

}  // namespace

TEST_F(Extranjeros, PaisYNacionalidades) {
    for (const TCaso& caso : CASOS) Comprueba(caso);
}

TEST_F(Extranjeros, LaMismaTablaEnCadaIdioma) {
    const std::string_view parrafo = "ALEMANA Y ALEMANY";
    for (int vez = 0; vez < 2; ++vez) {
        vocabulario_.Elige(TIdioma::Castellano);
        EXPECT_EQ(Resumen(CompruebaExtranjeros(parrafo).Paises),
                  std::vector<std::string>{"ALEMANIA 126 ALEMANA 1"});
        vocabulario_.Elige(TIdioma::Catalan);
        EXPECT_EQ(Resumen(CompruebaExtranjeros(parrafo).Paises),
                  std::vector<std::string>{"ALEMANIA 126 ALEMANY 11"});
    }
}

TEST_F(Extranjeros, EnCatalan) {
    vocabulario_.Elige(TIdioma::Catalan);
    for (const TCaso& caso : CASOS_CATALANES) Comprueba(caso);
}

TEST_F(Extranjeros, PaisesPreferidos) {
    for (const std::string_view preferido :
         {"REINO UNIDO", "HOLANDA", "BENIN", "BURUNDI", "COREA NORTE", "BURKINA FASO", "LESOTHO",
          "ISLAS SEYCHELLES", "SRI LANKA", "GUINEA BISSAU", "MALASIA", "ISLAS MALDIVAS", "MADAGASCAR",
          "RUANDA"}) {
        // The preferred one is in front of its pair in the list, then behind it.
        for (const std::string_view otro : {"AAA", "ZZZ"}) {
            tablas_.Pon("PROVIN.DBF", Provincias({{"1", preferido, "2", {"COMPARTIDA"}},
                                                  {"2", otro, "2", {"COMPARTIDA"}}}));
            EXPECT_EQ(Resumen(CompruebaExtranjeros("COMPARTIDA").Paises),
                      std::vector<std::string>{std::string(preferido) + " 1 COMPARTIDA 1"});
        }
    }
}

TEST_F(Extranjeros, TresPaisesConLaMismaPalabra) {
    struct TCasoTriple {
        std::vector<std::string_view> Paises;
        std::string_view Queda;
    };
    // In the list they stand in the reverse order of the alphabet.
    const std::vector<TCasoTriple> casos = {
        {{"AAA", "BBB", "CCC"}, "AAA"},
        {{"AAA", "BENIN", "CCC"}, "BENIN"},
        {{"AAA", "BBB", "RUANDA"}, "RUANDA"},
        {{"AAA", "BENIN", "RUANDA"}, "RUANDA"},
    };
    for (const auto& caso : casos) {
        std::vector<TFilaProvincia> filas;
        for (const std::string_view pais : caso.Paises) filas.push_back({"7", pais, "2", {"COMPARTIDA"}});
        tablas_.Pon("PROVIN.DBF", Provincias(filas));
        EXPECT_EQ(Resumen(CompruebaExtranjeros("COMPARTIDA").Paises),
                  std::vector<std::string>{std::string(caso.Queda) + " 7 COMPARTIDA 1"});
    }
}

TEST_F(Extranjeros, SinTabla) {
    tablas_.Quita("PROVIN.DBF");
    EXPECT_THROW((void)CompruebaExtranjeros("NO RESIDENTE"), ErrorTabla);
    EXPECT_THROW((void)CompruebaExtranjeros(""), ErrorTabla);
}

TEST_F(Extranjeros, ConOtroAlias) {
    TConfigDePrueba config;
    config.Alias = "OTRO";
    const InstalaConfig guarda(config);
    EXPECT_THROW((void)CompruebaExtranjeros(""), ErrorTabla);
}

}  // namespace analizador

#include <gtest/gtest.h>

#include "modelo/TROtorgante.h"
#include "plataforma/Ansi.h"
#include "pruebas/comun/ConfigDePrueba.h"
#include "pruebas/comun/Literales.h"
#include "pruebas/comun/TablasDePrueba.h"

namespace analizador {

namespace {

const TDatosDePrueba MUNICIPI = {{"NOM_MUNICI", "CODPOSTAL", "NOMBRE", "COD_INE", "COD_PROV"},
                                 {
                                     {"MADRID", "28001", "Madrid", "28079", "28"},
                                     {"SORIA", "42001", "Soria", "42173", "42"},
                                     // Several rows of one name: towns, or postal codes of a town.
                                     {"VILLANUEVA", "24700", "Villanueva (L)", "24100", "24"},
                                     {"VILLANUEVA", "33700", "Villanueva (A)", "33100", "33"},
                                     {"REUS", "43201", "Reus", "43123", "43"},
                                     {"REUS", "43202", "Reus", "43123", "43"},
                                     {"SINCODIGO", "50001", "Sin codigo", "", "50"},
                                 }};

const TDatosDePrueba POSTAL = {
    {"PROVINCIA", "VIA", "TIPO_VIA", "IMPAR_INI", "IMPAR_FIN", "PAR_INI", "PAR_FIN", "CODPOSTAL"},
    {
        {"33", "MAYOR", "CL", "1", "13", "2", "12", "33701"},
        {"33", "MAYOR", "CL", "15", "0", "14", "0", "33702"},
        {"33", "NUEVA", "PZ", "1", "9", "2", "8", "33703"},
        {"24", "NUEVA", "CL", "1", "9", "2", "8", "24703"},
        {"33", "SOLA", "", "5", "0", "6", "0", "33704"},
        {"24", "CORTA", "", "1", "9", "2", "8", "24705"},
        {"24", "CORTA", "CL", "1", "9", "2", "8", "24706"},
        {"24", "LARGA", "CL", "1", "9", "2", "8", "24707"},
        {"24", "LARGA", "", "1", "9", "2", "8", "24708"},
        {"24", "IGUAL", "CL", "1", "0", "0", "0", "24709"},
        {"33", "IGUAL", "CL", "1", "0", "0", "0", "33709"},
        // A street of no municipality of the name.
        {"28", "AJENA", "CL", "1", "0", "0", "0", "28709"},
    }};

const TDatosDePrueba AYUNTAM = {
    {"LUGAR", "COD_INE", "CODPOSTAL", "NOMBRE"},
    {{"2", "28006", "28100", "Alcobendas"}, {"1", "08019", "08001", "Barcelona"}}};

const TDatosDePrueba PROVIN = {{"CODIGO", "PROVINCIA"},
                               {{"08", "BARCELONA"},
                                {"24", "LEON"},
                                {"28", "MADRID"},
                                {"33", "ASTURIAS"},
                                {"42", "SORIA"},
                                {"43", "TARRAGONA"},
                                {"50", "ZARAGOZA"},
                                {"110", "FRANCIA"}}};

struct TResidencia {
    std::string_view Vecindad;
    std::string_view CodPostal;
    std::string_view CodINE;
    std::string_view Provincia;
};

struct TVia {
    std::string_view Tipo;
    std::string_view Via;
    std::string_view Numero;
};

struct TCaso {
    TResidencia Antes;
    TVia Via;
    TResidencia Despues;
};

const TResidencia OFICINA = {"Barcelona", "08001", "08019", "BARCELONA"};

const std::vector<TCaso> CASOS = {
    // By the postal code alone.
    {{"", "28001", "", ""}, {}, {"Madrid", "28001", "28079", "MADRID"}},
    // One that no table has leaves everything as it was, and the office is not taken; the province is found.
    {{"", "28999", "", ""}, {}, {"", "28999", "", "MADRID"}},
    {{"", "28999", "11111", "X"}, {}, {"", "28999", "11111", "MADRID"}},
    {{"", "99999", "", "X"}, {}, {"", "99999", "", ""}},
    // By the municipality: a single row.
    {{"MADRID", "", "", ""}, {}, {"MADRID", "28001", "28079", "MADRID"}},
    {{"  SORIA ", "", "", ""}, {}, {"  SORIA ", "42001", "42173", "SORIA"}},
    {{"SÓRIA"_a, "", "", ""}, {}, {"SÓRIA"_a, "42001", "42173", "SORIA"}},
    // A known postal code is never replaced then, and it gives the province; an old code is.
    {{"MADRID", "42002", "", ""}, {}, {"MADRID", "42002", "28079", "SORIA"}},
    {{"MADRID", "", "99999", "X"}, {}, {"MADRID", "28001", "28079", "MADRID"}},
    // The street does not matter then.
    {{"SORIA", "", "", ""}, {"CL", "MAYOR", "15"}, {"SORIA", "42001", "42173", "SORIA"}},
    // Several rows and a postal code: its row decides, the name too.
    {{"VILLANUEVA", "33700", "", ""}, {"CL", "NUEVA", "3"}, {"Villanueva (A)", "33700", "33100", "ASTURIAS"}},
    {{"VILLANUEVA", "42001", "", ""}, {}, {"Soria", "42001", "42173", "SORIA"}},
    // One that no table has: the first row's code.
    {{"VILLANUEVA", "33999", "", ""}, {}, {"VILLANUEVA", "33999", "24100", "ASTURIAS"}},
    // An unknown name and a known postal code.
    {{"NINGUNA", "33700", "", ""}, {}, {"Villanueva (A)", "33700", "33100", "ASTURIAS"}},
    // Several rows and no postal code: the street and its number decide.
    {{"VILLANUEVA", "", "", ""}, {"CL", "MAYOR", "15"}, {"VILLANUEVA", "33702", "33100", "ASTURIAS"}},
    {{"VILLANUEVA", "", "", ""}, {"CL", "MAYOR", "13"}, {"VILLANUEVA", "33701", "33100", "ASTURIAS"}},
    {{"VILLANUEVA", "", "", ""}, {"CL", "MAYOR", "1"}, {"VILLANUEVA", "33701", "33100", "ASTURIAS"}},
    {{"VILLANUEVA", "", "", ""}, {"CL", "MAYOR", "12"}, {"VILLANUEVA", "33701", "33100", "ASTURIAS"}},
    {{"VILLANUEVA", "", "", ""}, {"CL", "MAYOR", "14"}, {"VILLANUEVA", "33702", "33100", "ASTURIAS"}},
    {{"VILLANUEVA", "", "", ""}, {"CL", "MAYOR", "9998"}, {"VILLANUEVA", "33702", "33100", "ASTURIAS"}},
    // No number, or none that is one, counts as 0, which is even.
    {{"VILLANUEVA", "", "", ""}, {"CL", "MAYOR", ""}, {"VILLANUEVA", "24700", "24100", "LEON"}},
    {{"VILLANUEVA", "", "", ""}, {"CL", "IGUAL", "S/N"}, {"VILLANUEVA", "24709", "24100", "LEON"}},
    // Out of every range: the first row.
    {{"VILLANUEVA", "", "", ""}, {"PZ", "NUEVA", "11"}, {"VILLANUEVA", "24700", "24100", "LEON"}},
    {{"VILLANUEVA", "", "", ""}, {"PZ", "NUEVA", "10"}, {"VILLANUEVA", "24700", "24100", "LEON"}},
    {{"VILLANUEVA", "", "", ""}, {"PZ", "NUEVA", "9"}, {"VILLANUEVA", "33703", "33100", "ASTURIAS"}},
    // The street type counts, by its first three letters without blanks.
    {{"VILLANUEVA", "", "", ""}, {"CL", "NUEVA", "9"}, {"VILLANUEVA", "24703", "24100", "LEON"}},
    {{"VILLANUEVA", "", "", ""}, {"PZ ANTIGUA", "NUEVA", "9"}, {"VILLANUEVA", "33703", "33100", "ASTURIAS"}},
    {{"VILLANUEVA", "", "", ""}, {" PZX", "NUEVA", "9"}, {"VILLANUEVA", "33703", "33100", "ASTURIAS"}},
    {{"VILLANUEVA", "", "", ""}, {"PZA", "NUEVA", "9"}, {"VILLANUEVA", "24700", "24100", "LEON"}},
    {{"VILLANUEVA", "", "", ""}, {"", "NUEVA", "9"}, {"VILLANUEVA", "24700", "24100", "LEON"}},
    // Of two municipalities that have the street the first in the table.
    {{"VILLANUEVA", "", "", ""}, {"CL", "IGUAL", "3"}, {"VILLANUEVA", "24709", "24100", "LEON"}},
    {{"VILLANUEVA", "", "", ""}, {"CL", "AJENA", "3"}, {"VILLANUEVA", "24700", "24100", "LEON"}},
    {{"VILLANUEVA", "", "", ""}, {"CL", "MAYORAL", "15"}, {"VILLANUEVA", "24700", "24100", "LEON"}},
    // A street stored without type: found on the second pass, or on the first by a party without one.
    {{"VILLANUEVA", "", "", ""}, {"CL", "SOLA", "5"}, {"VILLANUEVA", "33704", "33100", "ASTURIAS"}},
    {{"VILLANUEVA", "", "", ""}, {"", "SOLA", "5"}, {"VILLANUEVA", "33704", "33100", "ASTURIAS"}},
    {{"VILLANUEVA", "", "", ""}, {"CL", "SOLA", "3"}, {"VILLANUEVA", "24700", "24100", "LEON"}},
    // The second pass is run whenever the first one passed over such a row, though it found the street.
    {{"VILLANUEVA", "", "", ""}, {"CL", "CORTA", "5"}, {"VILLANUEVA", "24705", "24100", "LEON"}},
    {{"VILLANUEVA", "", "", ""}, {"CL", "LARGA", "5"}, {"VILLANUEVA", "24707", "24100", "LEON"}},
    // Several postal codes of one town, no street: the first row.
    {{"REUS", "", "", ""}, {}, {"REUS", "43201", "43123", "TARRAGONA"}},
    // An unknown municipality, or one without a code, is the office's; what was known is overwritten.
    {{"NINGUNA", "", "", ""}, {"CL", "MAYOR", "15"}, OFICINA},
    {{"NINGUNA", "33999", "77777", "X"}, {}, OFICINA},
    {{"SINCODIGO", "50001", "", ""}, {}, OFICINA},
    {{"", "", "", ""}, {}, OFICINA},
};

class CompletaPostal : public testing::Test {
  protected:
    CompletaPostal() {
        tablas_.Pon("MUNICIPI.DBF", MUNICIPI);
        tablas_.Pon("POSTAL.DBF", POSTAL);
        tablas_.Pon("AYUNTAM.DBF", AYUNTAM);
        tablas_.Pon("PROVIN.DBF", PROVIN);
    }

    static TROtorgante Otorgante(const TResidencia& residencia, const TVia& via) {
        TROtorgante otorgante;
        otorgante.Vecindad = residencia.Vecindad;
        otorgante.CodPostal = residencia.CodPostal;
        otorgante.CodINE = residencia.CodINE;
        otorgante.Provincia = residencia.Provincia;
        otorgante.TipoVia = via.Tipo;
        otorgante.Domicilio = via.Via;
        otorgante.Numero = via.Numero;
        return otorgante;
    }

    static void Comprueba(const TCaso& caso) {
        SCOPED_TRACE(Utf8DeAnsi(caso.Antes.Vecindad) + " " + std::string(caso.Antes.CodPostal) + ", " +
                     std::string(caso.Via.Tipo) + " " + std::string(caso.Via.Via) + " " +
                     std::string(caso.Via.Numero));
        TROtorgante otorgante = Otorgante(caso.Antes, caso.Via);
        otorgante.CompletaPostal();
        EXPECT_EQ(otorgante.Vecindad, caso.Despues.Vecindad);
        EXPECT_EQ(otorgante.CodPostal, caso.Despues.CodPostal);
        EXPECT_EQ(otorgante.CodINE, caso.Despues.CodINE);
        EXPECT_EQ(otorgante.Provincia, caso.Despues.Provincia);
        // Nothing else changes, the street type least of all.
        EXPECT_EQ(otorgante, Otorgante(caso.Despues, caso.Via));
    }

    TTablasDePrueba tablas_;
    InstalaTablas guarda_{tablas_};
};

}  // namespace

TEST_F(CompletaPostal, ResidenciaEnEspanna) {
    for (const TCaso& caso : CASOS) Comprueba(caso);
}

// The search for the office's own row is not checked: without it the row that there is not reads empty.
TEST_F(CompletaPostal, OficinaSinPuebloPropio) {
    tablas_.Pon("AYUNTAM.DBF", {{"LUGAR", "COD_INE", "CODPOSTAL", "NOMBRE"}, {{"2", "28006", "28100", "X"}}});
    Comprueba({{"NINGUNA", "33999", "77777", "X"}, {}, {"", "", "", ""}});
}

TEST_F(CompletaPostal, TablasQueFaltan) {
    struct TCasoTabla {
        std::string_view Tabla;
        TResidencia Residencia;
    };
    const std::vector<TCasoTabla> casos = {
        {"MUNICIPI.DBF", {"", "28001", "", ""}}, {"MUNICIPI.DBF", {"MADRID", "", "", ""}},
        {"POSTAL.DBF", {"REUS", "", "", ""}},    {"AYUNTAM.DBF", {"NINGUNA", "", "", ""}},
        {"PROVIN.DBF", {"MADRID", "", "", ""}},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Tabla);
        TTablasDePrueba incompletas;
        const InstalaTablas guarda(incompletas);
        for (const auto& [nombre, datos] :
             {std::pair("MUNICIPI.DBF", &MUNICIPI), std::pair("POSTAL.DBF", &POSTAL),
              std::pair("AYUNTAM.DBF", &AYUNTAM), std::pair("PROVIN.DBF", &PROVIN)})
            if (nombre != caso.Tabla) incompletas.Pon(nombre, *datos);
        TROtorgante otorgante = Otorgante(caso.Residencia, {"CL", "MAYOR", "1"});
        EXPECT_THROW(otorgante.CompletaPostal(), ErrorTabla);
        EXPECT_EQ(otorgante.TipoVia, "CL");
    }
}

// A table that the case does not need is not opened.
TEST_F(CompletaPostal, TablasQueNoHacenFalta) {
    tablas_.Quita("POSTAL.DBF");
    tablas_.Quita("AYUNTAM.DBF");
    Comprueba({{"MADRID", "", "", ""}, {"CL", "MAYOR", "1"}, {"MADRID", "28001", "28079", "MADRID"}});
}

TEST_F(CompletaPostal, ConOtroAlias) {
    TConfigDePrueba config;
    config.Alias = "OTRO";
    const InstalaConfig guarda(config);
    TROtorgante otorgante = Otorgante({"MADRID", "", "", ""}, {});
    EXPECT_THROW(otorgante.CompletaPostal(), ErrorTabla);
}

// The same tables under an alias of the office's own.
TEST_F(CompletaPostal, AliasDeLaConfiguracion) {
    TConfigDePrueba config;
    config.Alias = "OTRO";
    const InstalaConfig guardaConfig(config);
    TTablasDePrueba otras("OTRO");
    otras.Pon("MUNICIPI.DBF", MUNICIPI);
    otras.Pon("PROVIN.DBF", PROVIN);
    const InstalaTablas guardaTablas(otras);
    Comprueba({{"", "28001", "", ""}, {}, {"Madrid", "28001", "28079", "MADRID"}});
}

}  // namespace analizador

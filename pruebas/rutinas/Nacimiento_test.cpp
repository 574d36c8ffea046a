#include <gtest/gtest.h>

#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "pruebas/comun/Literales.h"
#include "pruebas/comun/TablasDePrueba.h"
#include "pruebas/comun/Tramos.h"
#include "pruebas/comun/VocabularioDePrueba.h"
#include "pruebas/rutinas/ProvinciasDePrueba.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

const TSeccionesDePrueba CASTELLANO = {
    {"LUGAR NACIMIENTO", {"NATURAL DE", "NACIDO EN"}},
    {"FECHA NACIMIENTO", {"NACIDO EL", "FECHA DE NACIMIENTO:"}},
    {"MESES",
     {"ENERO", "FEBRERO", "MARZO", "ABRIL", "MAYO", "JUNIO", "JULIO", "AGOSTO", "SEPTIEMBRE", "OCTUBRE",
      "NOVIEMBRE", "DICIEMBRE", "SETIEMBRE"}},
    {"NUMEROS", {"TRES", "QUINCE", "TREINTA", "UNO", "MIL", "NOVECIENTOS", "SETENTA"}},
};

const TSeccionesDePrueba CATALAN = {
    {"LUGAR NACIMIENTO", {"NATURAL DE"}},
    {"FECHA NACIMIENTO", {"NASCUT EL"}},
    {"MESES", {"GENER", "FEBRER", "MARÇ"_a, "ABRIL", "MAIG"}},
    {"NUMEROS", {"QUINZE"}},
};

const std::vector<TFilaProvincia> PROVINCIAS = {
    {"28", "MADRID", "1"},   {"24", "LEON", "1"},    {"5", "AVILA", "1"},   {"110", "FRANCIA", "2"},
    {"115", "ITALIA", "2"},  {"300", "EUROPA", "3"}, {"25", "LLEIDA", "1"}, {"109", "ANDORRA", "2"},
    {"33", "ASTURIAS", "1"}, {"301", "", "1"},
};

struct TCaso {
    std::string_view Texto;
    std::string_view Lugar;
    std::string_view Provincia;
    std::string_view Pais;
    std::string_view Fecha;         // dd/mm/yyyy; empty when there is none
    std::string_view FechaEscrita;  // where it was read
};

std::string FechaEscrita(const std::optional<TFecha>& fecha) {
    if (!fecha) return "";
    return StrCeros(static_cast<int>(static_cast<unsigned>(fecha->day())), 2) + "/" +
           StrCeros(static_cast<int>(static_cast<unsigned>(fecha->month())), 2) + "/" +
           StrCeros(static_cast<int>(fecha->year()), 4);
}

const std::vector<TCaso> CASOS = {
    {"", "", "", "", "", ""},
    {"don Juan, mayor de edad, el 3 de mayo de 1970", "", "", "", "", ""},
    // Both phrases: each read after its own, in either order.
    {"natural de León, nacido el 3 de mayo de 1970, casado"_a, "LEON", "", "", "03/05/1970",
     "3 de mayo de 1970"},
    {"nacido el 3 de mayo de 1970, natural de León, casado"_a, "LEON", "", "", "03/05/1970",
     "3 de mayo de 1970"},
    {"NATURAL DE OVIEDO (ASTURIAS), NACIDO EL 3 DE MAYO DE 1970", "OVIEDO", "ASTURIAS", "", "03/05/1970",
     "3 DE MAYO DE 1970"},
    // Of several phrases the earliest.
    {"NACIDO EN OVIEDO, NATURAL DE LEON, CASADO", "OVIEDO", "LEON", "", "", ""},
    // Only the place: the date is looked for in what is left.
    {"nacido en Lyon (Francia), el día 8 de agosto de 1951, hijo"_a, "LYON", "", "FRANCIA", "08/08/1951",
     "8 de agosto de 1951"},
    {"NATURAL DE OVIEDO, 3 DE MAYO DE 1970", "OVIEDO", "", "", "03/05/1970", "3 DE MAYO DE 1970"},
    {"NATURAL DE OVIEDO. TIENE 3 DE MAYO DE 1970", "OVIEDO", "", "", "03/05/1970", "3 DE MAYO DE 1970"},
    {"NATURAL DE OVIEDO EL 3 DE MAYO DE 1970", "OVIEDO EL 3 DE MAYO DE 1970", "", "", "", ""},
    // Only the date: the place follows, after the connector or without it.
    {"NACIDO EL 3 DE MAYO DE 1970 EN OVIEDO, CASADO", "OVIEDO", "", "", "03/05/1970", "3 DE MAYO DE 1970"},
    {"NACIDO EL 3 DE MAYO DE 1970, EN OVIEDO, CASADO", "OVIEDO", "", "", "03/05/1970", "3 DE MAYO DE 1970"},
    {"NACIDO EL 3 DE MAYO DE 1970 , EN OVIEDO, CASADO", "OVIEDO", "", "", "03/05/1970", "3 DE MAYO DE 1970"},
    {"NACIDO EL 3 DE MAYO DE 1970 EN  OVIEDO (ASTURIAS), CASADO", "OVIEDO", "ASTURIAS", "", "03/05/1970",
     "3 DE MAYO DE 1970"},
    {"NACIDO EL 3 DE MAYO DE 1970 OVIEDO, CASADO", "OVIEDO", "", "", "03/05/1970", "3 DE MAYO DE 1970"},
    {"NACIDO EL 3 DE MAYO DE 1970 A OVIEDO, CASADO", "A OVIEDO", "", "", "03/05/1970", "3 DE MAYO DE 1970"},
    {"NACIDO EL 3 DE MAYO DE 1970 ENTRE RIOS, CASADO", "ENTRE RIOS", "", "", "03/05/1970",
     "3 DE MAYO DE 1970"},
    {"NACIDO EL 3 DE MAYO DE 1970", "", "", "", "03/05/1970", "3 DE MAYO DE 1970"},
    // A year in words swallows the connector, or the word that stands in its place.
    {"NACIDO EL QUINCE DE MAYO DE MIL NOVECIENTOS SETENTA EN OVIEDO, CASADO", "OVIEDO", "", "", "15/05/1970",
     "QUINCE DE MAYO DE MIL NOVECIENTOS SETENTA"},
    {"NACIDO EL QUINCE DE MAYO DE MIL NOVECIENTOS SETENTA OVIEDO, CASADO", "CASADO", "", "", "15/05/1970",
     "QUINCE DE MAYO DE MIL NOVECIENTOS SETENTA"},
    // A date that is no day of the calendar is none; the place is read all the same.
    {"NACIDO EL 31 DE FEBRERO DE 1970 EN OVIEDO, CASADO", "OVIEDO", "", "", "", ""},
    {"NACIDO EL 31/2 31 2 1970 EN OVIEDO, CASADO", "OVIEDO", "", "", "", ""},
    {"NACIDO EL 29 DE FEBRERO DE 1970 EN OVIEDO", "OVIEDO", "", "", "", ""},
    {"NACIDO EL 29 DE FEBRERO DE 1972 EN OVIEDO", "OVIEDO", "", "", "29/02/1972", "29 DE FEBRERO DE 1972"},
    {"NACIDO EL DIA DE HOY", "", "", "", "", ""},
    {"NACIDO EL 3 DE MAYO", "", "", "", "", ""},
    {"NACIDO EL 3 1970", "", "", "", "", ""},
    // The month by its word or by its number; words between are skipped, and a 0 too.
    {"NACIDO EL 3 DEL MES DE MAYO DEL AÑO 1970"_a, "", "", "", "03/05/1970",
     "3 DEL MES DE MAYO DEL AÑO 1970"_a},
    {"NACIDO EL 3 DE SEPTIEMBRE DE 1970", "", "", "", "03/09/1970", "3 DE SEPTIEMBRE DE 1970"},
    {"NACIDO EL 3 DE SETIEMBRE DE 1970", "", "", "", "03/09/1970", "3 DE SETIEMBRE DE 1970"},
    {"NACIDO EL 3 5 1970", "", "", "", "03/05/1970", "3 5 1970"},
    {"NACIDO EL 3 0 5 1970", "", "", "", "03/05/1970", "3 0 5 1970"},
    {"NACIDO EL 3 13 1970", "", "", "", "", ""},
    // A month is a whole word.
    {"NACIDO EL 3 DE MAYORES 6 1970", "", "", "", "03/06/1970", "3 DE MAYORES 6 1970"},
    // Signs are blanks for the readers of the date: in front of a word, between numbers, within a year.
    {"NACIDO EL 3-5-1970", "", "", "", "03/05/1970", "3-5-1970"},
    {"NACIDO EL 03.05.1970;", "", "", "", "03/05/1970", "03.05.1970"},
    {"NACIDO EL 3,MAYO;1970", "", "", "", "03/05/1970", "3,MAYO;1970"},
    {"NACIDO EL 3 DE MAYO DE 1.970", "970", "", "", "03/05/0001", "3 DE MAYO DE 1"},
    {"NACIDO EL 3/5/1970", "", "", "", "", ""},
    // A word that ends the number of the day is lost.
    {"NACIDO EL TRES MAYO 6 1970", "", "", "", "03/06/1970", "TRES MAYO 6 1970"},
    {"NACIDO EL TREINTA Y UNO DE MAYO DE 1970", "", "", "", "31/05/1970", "TREINTA Y UNO DE MAYO DE 1970"},
    // The place ends at the first of comma, sentence end and opening bracket.
    {"NATURAL DE OVIEDO. (ASTURIAS), LEON", "OVIEDO", "", "", "", ""},
    {"NATURAL DE OVIEDO (ASTURIAS), LEON.", "OVIEDO", "ASTURIAS", "", "", ""},
    {"NATURAL DE  OVIEDO , ASTURIAS. LEON", "OVIEDO", "ASTURIAS", "", "", ""},
    {"NATURAL DE OVIEDO", "OVIEDO", "", "", "", ""},
    {"NATURAL DE", "", "", "", "", ""},
    {"NATURAL DE, LEON", "", "LEON", "", "", ""},
    // TAB and line ends are not there.
    {"NATURAL\t DE OVI\tEDO\r (ASTU\nRIAS)\r", "OVIEDO", "ASTURIAS", "", "", ""},
    // Province up to the sentence's end, to the first closing bracket, to the text's end.
    {"NATURAL DE OVIEDO, PROVINCIA DE ASTURIAS, CASADO", "OVIEDO", "ASTURIAS", "", "", ""},
    {"NATURAL DE OVIEDO, CASADO. VECINO DE LEON", "OVIEDO", "", "", "", ""},
    {"NATURAL DE OVIEDO (NORTE) LEON)", "OVIEDO", "", "", "", ""},
    {"NATURAL DE OVIEDO (ASTURIAS", "OVIEDO", "ASTURIAS", "", "", ""},
    {"NATURAL DE OVIEDO (CERCA. DE ASTURIAS)", "OVIEDO", "ASTURIAS", "", "", ""},
    // The first in alphabetical order wins, be it province or country; rows of group 3 do not exist.
    {"NATURAL DE OVIEDO (MADRID, LEON)", "OVIEDO", "LEON", "", "", ""},
    {"NATURAL DE OVIEDO (MADRID, FRANCIA)", "OVIEDO", "", "FRANCIA", "", ""},
    {"NATURAL DE OVIEDO (ITALIA, EUROPA)", "OVIEDO", "", "ITALIA", "", ""},
    {"NATURAL DE OVIEDO (EUROPA)", "OVIEDO", "", "", "", ""},
    // As a whole word only; any occurrence counts.
    {"NATURAL DE OVIEDO (NAPOLEON)", "OVIEDO", "", "", "", ""},
    {"NATURAL DE OVIEDO (LEONES)", "OVIEDO", "", "", "", ""},
    {"NATURAL DE OVIEDO (LEONES DE LEON)", "OVIEDO", "LEON", "", "", ""},
    {"NATURAL DE OVIEDO (-LEON-)", "OVIEDO", "LEON", "", "", ""},
};

const std::vector<TCaso> CASOS_CATALANES = {
    {"NASCUT EL 15 DE MAIG DE 1970 A LLEIDA, CASAT", "LLEIDA", "", "", "15/05/1970", "15 DE MAIG DE 1970"},
    {"nascut el quinze de març de 1970, a Tàrrega (Lleida), casat"_a, "TARREGA", "LLEIDA", "", "15/03/1970",
     "quinze de març de 1970"_a},
    {"NASCUT EL 15 DE MAIG DE 1970 EN LLEIDA, CASAT", "EN LLEIDA", "", "", "15/05/1970",
     "15 DE MAIG DE 1970"},
    // The point of a geminated L ends no sentence.
    {"NATURAL DE SANT MARCEL.LI, LLEIDA", "SANT MARCEL.LI", "LLEIDA", "", "", ""},
};

void Comprueba(const TCaso& caso) {
    SCOPED_TRACE(Utf8DeAnsi(caso.Texto));
    const TNacimiento hallado = BuscaLugaryFechaNacimiento(caso.Texto);
    const auto escrito = [&](Tramo tramo) { return QuitaCaracteres(EnTramo(caso.Texto, tramo), "\t\r\n"); };
    EXPECT_EQ(hallado.Lugar.Valor, caso.Lugar);
    EXPECT_EQ(Pliega(escrito(hallado.Lugar.Donde)), caso.Lugar);
    EXPECT_EQ(hallado.Provincia.Valor, caso.Provincia);
    EXPECT_EQ(Pliega(escrito(hallado.Provincia.Donde)), caso.Provincia);
    EXPECT_EQ(hallado.Pais.Valor, caso.Pais);
    EXPECT_EQ(Pliega(escrito(hallado.Pais.Donde)), caso.Pais);
    EXPECT_EQ(FechaEscrita(hallado.Fecha.Valor), caso.Fecha);
    // The readers take a word with the signs around it.
    EXPECT_EQ(escrito(hallado.Fecha.Donde), caso.FechaEscrita);
}

class Nacimiento : public testing::Test {
  protected:
    Nacimiento() { tablas_.Pon("PROVIN.DBF", Provincias(PROVINCIAS)); }

    TVocabularioDePrueba vocabulario_{CASTELLANO, CATALAN};
    TTablasDePrueba tablas_;
    InstalaTablas guarda_{tablas_};
};

}  // namespace

TEST_F(Nacimiento, LugarYFecha) {
    for (const TCaso& caso : CASOS) Comprueba(caso);
}

TEST_F(Nacimiento, EnCatalan) {
    vocabulario_.Elige(TIdioma::Catalan);
    for (const TCaso& caso : CASOS_CATALANES) Comprueba(caso);
}

TEST_F(Nacimiento, DondeSeLeyoLaProvincia) {
    const auto hallado = BuscaLugaryFechaNacimiento("DE LEON, NATURAL DE SAHAGUN (NAPOLEON, LEON)");
    EXPECT_EQ(hallado.Provincia.Donde, (Tramo{39, 4}));
}

TEST_F(Nacimiento, SinTablaDeProvincias) {
    tablas_.Quita("PROVIN.DBF");
    EXPECT_THROW((void)BuscaLugaryFechaNacimiento("NATURAL DE OVIEDO (ASTURIAS)"), ErrorTabla);
}

}  // namespace analizador

#include <gtest/gtest.h>

#include "plataforma/Rut.h"
#include "pruebas/comun/ConfigDePrueba.h"
#include "pruebas/comun/Literales.h"
#include "pruebas/comun/TablasDePrueba.h"
#include "pruebas/comun/Tramos.h"
#include "pruebas/comun/VocabularioDePrueba.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

constexpr TIdioma CAS = TIdioma::Castellano;
constexpr TIdioma CAT = TIdioma::Catalan;

const TSeccionesDePrueba CASTELLANO = {
    {"NUMERO", {"NUMERO", "PROTOCOLO NUM.", "NUM."}},
    {"NUMEROS", {"UNO", "DOS", "CUATRO", "SEIS", "MIL", "DOSCIENTOS", "TREINTA"}},
    {"MESES",
     {"ENERO", "FEBRERO", "MARZO", "ABRIL", "MAYO", "JUNIO", "JULIO", "AGOSTO", "SEPTIEMBRE", "OCTUBRE",
      "NOVIEMBRE", "DICIEMBRE", "SETIEMBRE"}},
    {"ANTE MI", {"ANTE MI", "NOTARIO AUTORIZANTE"}},
    {"SUSTITUTO", {"POR SUSTITUCION", "SUSTITUTO"}},
    {"HOMBRE", {"DON"}},
    {"MUJER",
     {"DO\xD1"
      "A"}},
};
const TSeccionesDePrueba CATALAN = {
    {"NUMERO", {"NUMERO"}},
    {"NUMEROS", {"DOS", "MIL"}},
    {"MESES", {"GENER"}},
};

class Cabecera : public testing::Test {
  protected:
    TVocabularioDePrueba vocabulario_{CASTELLANO, CATALAN};
    TTablasDePrueba tablas_;
    InstalaTablas instalaTablas_{tablas_};
    TConfigDePrueba config_;
    InstalaConfig instalaConfig_{config_};
};

TEST_F(Cabecera, PosicionPunto) {
    struct TCaso {
        TIdioma Idioma;
        std::string_view Texto;
        int Posicion;
    };
    const std::vector<TCaso> casos = {
        {CAS, "", 0},
        {CAS, "SIN FIN", 0},
        {CAS, ".", 1},
        {CAS, "FIN. OTRO.", 4},
        {CAS, "COL.LEGI NOTARIAL. FIN", 4},
        {CAT, "COL.LEGI NOTARIAL. FIN", 18},
        {CAT, "Col.legi notarial. Fi", 4},
        {CAT, "COL.LEGI I L.L. FI", 15},
        {CAT, "COL.lEGI.", 4},
        {CAT, "CO.LEGI.", 3},
        {CAT, ".LEGI.", 1},
        {CAT, "COL.", 4},
        {CAT, "L.L", 0},
        {CAT, "L.L.L", 0},
    };
    for (const auto& caso : casos) {
        vocabulario_.Elige(caso.Idioma);
        EXPECT_EQ(PosicionPunto(caso.Texto), caso.Posicion) << caso.Texto;
    }
}

TEST_F(Cabecera, BuscaNumeroProtocolo) {
    struct TCaso {
        TIdioma Idioma;
        std::string_view Texto;
        int Numero;
        std::string_view Leido;
    };
    const std::vector<TCaso> casos = {
        {CAS, "", 0, ""},
        {CAS, "MIL DOSCIENTOS CUATRO", 0, ""},
        {CAS, "NÚMERO MIL DOSCIENTOS CUATRO.\r"_a, 1204, "MIL DOSCIENTOS CUATRO"},
        {CAS, "Escritura número: mil doscientos cuatro. En Lugo"_a, 1204, "mil doscientos cuatro"},
        {CAS, "NUMERO MIL DOSCIENTOS CUATRO", 1204, "MIL DOSCIENTOS CUATRO"},
        {CAS, "NUMERO 1204", 1204, "1204"},
        {CAS, "NUMERO\t1204", 204, "204"},
        {CAS, "NU\tMERO --- MIL-DOS ---", 1002, "MIL-DOS"},
        // The character right behind the phrase goes whatever it is.
        {CAS, "NUMERO1204", 204, "204"},
        // The first full stop ends it, that of thousands too.
        {CAS, "NUMERO 1.204", 1, "1"},
        {CAS, "NUMERO MIL DOS. CUATRO", 1002, "MIL DOS"},
        // A bracket ends the number.
        {CAS, "NUMERO MIL DOS (1.002)", 1002, "MIL DOS (1"},
        // The phrase that begins first.
        {CAS, "PROTOCOLO NUM. SEIS", 6, "SEIS"},
        {CAS, "NUM. SEIS, NUMERO DOS", 0, ""},
        {CAS, "NUMERO", 0, ""},
        {CAS, "NUMERO.", 0, ""},
        {CAS, "NUMERO DE ORDEN", 0, ""},
        // The number's language is the deed's.
        {CAT, "NÚMERO DOS MIL VUIT."_a, 2008, "DOS MIL VUIT"},
        {CAS, "NÚMERO DOS MIL VUIT."_a, 0, ""},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Texto);
        vocabulario_.Elige(caso.Idioma);
        const THallazgo<int> hallado = BuscaNumeroProtocolo(caso.Texto);
        EXPECT_EQ(hallado.Valor, caso.Numero);
        EXPECT_EQ(EnTramo(caso.Texto, hallado.Donde), caso.Leido);
    }
}

class LugarFecha : public Cabecera {
  protected:
    void SetUp() override {
        tablas_.Pon("AYUNTAM.DBF", {{"NOMBRE", "LUGAR", "ABREVIATUR"},
                                    {{"Fuera", "100", "FU"},
                                     {"Villanueva", "3", "VN"},
                                     {std::string("Villanueva del Río"_a), "2", "VR"},
                                     {"Nueva", "10", "NU"},
                                     {"", "1", "VACIO"},
                                     {"Sin clave", "0", "SC"},
                                     {std::string("Móstoles"_a), "5", "MO"}}});
    }
};

TEST_F(LugarFecha, BuscaLugarFecha) {
    struct TCaso {
        std::string_view Texto;
        int Lugar;
        std::string_view Abreviatura;
        std::string_view LugarLeido;
        std::string_view Fecha;
        std::string_view FechaLeida;
    };
    const std::vector<TCaso> casos = {
        {"En Móstoles, a dos de enero de dos mil seis.\r"_a, 5, "MO", "Móstoles"_a, "02/01/2006",
         "dos de enero de dos mil seis"},
        {"EN MOSTOLES, A 2 DE ENERO DE 2.006, ANTE MI", 5, "MO", "MOSTOLES", "02/01/2006",
         "2 DE ENERO DE 2.006"},
        // The second spelling of the ninth month.
        {"A 30 DE SEPTIEMBRE DE 2006", 0, "", "", "30/09/2006", "30 DE SEPTIEMBRE DE 2006"},
        {"A 30 DE SETIEMBRE DE 2006", 0, "", "", "30/09/2006", "30 DE SETIEMBRE DE 2006"},
        // The month that comes first in the list, not in the text.
        {"PRORROGA DE 1 DE MAYO DE 2005 A 2 DE ENERO DE 2006", 0, "", "", "02/01/2006", "2 DE ENERO DE 2006"},
        // Of towns within one another the first by code, however they stand in the table.
        {"EN VILLANUEVA DEL RIO, A 2 DE ENERO DE 2006", 2, "VR", "VILLANUEVA DEL RIO", "02/01/2006",
         "2 DE ENERO DE 2006"},
        {"EN VILLANUEVA, A 2 DE ENERO DE 2006", 3, "VN", "VILLANUEVA", "02/01/2006", "2 DE ENERO DE 2006"},
        // Codes outside 1..99 are no towns of the office.
        {"FUERA, SIN CLAVE, A 2 DE ENERO DE 2006", 0, "", "", "02/01/2006", "2 DE ENERO DE 2006"},
        // What was not found is -1.
        {"EL MES DE ENERO DE 2006", 0, "", "", "-1/01/2006", "ENERO DE 2006"},
        {"EL DIA 2 DE ENERO", 0, "", "", "02/01/-1", "2 DE ENERO"},
        {"ENERO", 0, "", "", "-1/01/-1", "ENERO"},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Texto);
        const TLugarFecha hallado = BuscaLugarFecha(caso.Texto);
        ASSERT_TRUE(hallado.Fecha);
        EXPECT_EQ(hallado.Fecha->Valor, caso.Fecha);
        EXPECT_EQ(EnTramo(caso.Texto, hallado.Fecha->Donde), caso.FechaLeida);
        ASSERT_EQ(hallado.Lugar.has_value(), caso.Lugar != 0);
        if (!hallado.Lugar) continue;
        EXPECT_EQ(hallado.Lugar->Valor.Codigo, caso.Lugar);
        EXPECT_EQ(hallado.Lugar->Valor.Abreviatura, caso.Abreviatura);
        EXPECT_EQ(EnTramo(caso.Texto, hallado.Lugar->Donde), caso.LugarLeido);
    }
}

TEST_F(LugarFecha, SinMesNoHayNada) {
    for (const std::string_view texto : {"", "EN MOSTOLES, A 2 DE 2006"}) {
        EXPECT_FALSE(BuscaLugarFecha(texto).Lugar) << texto;
        EXPECT_FALSE(BuscaLugarFecha(texto).Fecha) << texto;
    }
}

TEST_F(LugarFecha, UnaTablaQueFaltaEsUnErrorSoloCuandoHayMes) {
    tablas_.Quita("AYUNTAM.DBF");
    EXPECT_NO_THROW((void)BuscaLugarFecha("EN MOSTOLES"));
    EXPECT_THROW((void)BuscaLugarFecha("EN MOSTOLES, ENERO"), ErrorTabla);
}

struct TCasoNotario {
    std::string_view Texto;
    std::string_view Notario;
    std::string_view Sustituto;
};

void CompruebaNotarios(const std::vector<TCasoNotario>& casos) {
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Texto);
        const TNotario hallado = BuscaNotario(caso.Texto);
        EXPECT_EQ(hallado.Notario.Valor, caso.Notario);
        EXPECT_EQ(hallado.Sustituto.Valor, caso.Sustituto);
    }
}

TEST_F(Cabecera, BuscaNotarioDeLaLista) {
    config_.Notarios = {"LUIS SANZ PUIG", std::string("Ana Gómez Mas"_a)};
    config_.Nombre1 = "NADIE";
    CompruebaNotarios({
        {"", "", ""},
        {"COMPARECE DON LUIS SANZ PUIG, NOTARIO", "", ""},
        {"ANTE MI, LUIS SANZ PUIG, NOTARIO", "LUIS SANZ PUIG", ""},
        // The character behind the phrase goes, a comma here: the name is up to the next one.
        {"Ante mí, don Luis Sanz Puig, notario"_a, "Luis Sanz Puig", ""},
        {"ANTE MI DON LUIS SANZ PUIG", "LUIS SANZ PUIG", ""},
        {"ANTE MI: DON LUIS SANZ PUIG Y OTRO\r", "LUIS SANZ PUIG Y OTRO", ""},
        {"ANTE MI, DO\xD1"
         "A ANA GOMEZ MAS, NOTARIO",
         "ANA GOMEZ MAS", ""},
        // Only at the start of the name is a form of address dropped.
        {"ANTE MI, EL NOTARIO DON LUIS SANZ PUIG, ", "EL NOTARIO DON LUIS SANZ PUIG", ""},
        {"ANTE MI,\tDON LUIS\rSANZ, ", "LUISSANZ", ""},
        {"ANTE MI,", "", ""},
        // The phrase that begins first.
        {"NOTARIO AUTORIZANTE DON LUIS SANZ, ANTE MI, OTRO", "LUIS SANZ", ""},
        // One of the office is never a substitute, whatever the case and the accents.
        {"ANTE MI, ANA GÓMEZ MAS, COMO SUSTITUTO DE LUIS SANZ PUIG,"_a, "ANA GÓMEZ MAS"_a, ""},
        // Another one is, and the notary is the first of the list named exactly as the list has it.
        {"ANTE MI, DON PAU ROS, SUSTITUTO DE DON LUIS SANZ PUIG", "LUIS SANZ PUIG", "PAU ROS"},
        {"Ante mí, don Pau Ros, por sustitución de doña Ana Gómez Mas"_a, "Ana Gómez Mas"_a, "Pau Ros"},
        {"ANTE MI, PAU ROS, SUSTITUTO DE Ana G\xF3mez Mas Y LUIS SANZ PUIG", "LUIS SANZ PUIG", "PAU ROS"},
        {"ANTE MI, PAU ROS, SUSTITUTO DE ANA GOMEZ MAS", "", "PAU ROS"},
        {"ANTE MI, PAU ROS, SUSTITUTO DE Luis Sanz Puig", "", "PAU ROS"},
        {"ANTE MI, PAU ROS, SUSTITUTO DE NADIE", "", "PAU ROS"},
        {"ANTE MI, PAU ROS, NOTARIO", "PAU ROS", ""},
    });
}

TEST_F(Cabecera, BuscaNotarioSinLista) {
    config_.Nombre1 = "LUIS SANZ PUIG";
    CompruebaNotarios({
        {"ANTE MI, Luis Sanz Puig, SUSTITUTO DE OTRO", "Luis Sanz Puig", ""},
        {"ANTE MI, PAU ROS, SUSTITUTO DE LUIS SANZ PUIG", "LUIS SANZ PUIG", "PAU ROS"},
        {"ANTE MI, PAU ROS, SUSTITUTO DE OTRO", "", "PAU ROS"},
    });
}

TEST_F(Cabecera, DondeSeLeyoElNotario) {
    config_.Nombre1 = "LUIS SANZ PUIG";
    const std::string_view texto = "\tANTE MI,\rDON PAU ROS, SUSTITUTO DE\tLUIS SANZ PUIG\r";
    const TNotario hallado = BuscaNotario(texto);
    EXPECT_EQ(EnTramo(texto, hallado.Sustituto.Donde), "PAU ROS");
    EXPECT_EQ(EnTramo(texto, hallado.Notario.Donde), "LUIS SANZ PUIG");
    EXPECT_EQ(BuscaNotario("PAU ROS").Notario.Donde.Longitud, 0U);
    EXPECT_EQ(BuscaNotario("ANTE MI, PAU ROS, SUSTITUTO DE OTRO").Notario.Donde.Longitud, 0U);
}

}  // namespace

}  // namespace analizador

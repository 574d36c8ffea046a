#include <gtest/gtest.h>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rut.h"
#include "pruebas/comun/Literales.h"
#include "pruebas/comun/Tramos.h"
#include "pruebas/comun/VocabularioDePrueba.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

// Every street type has the name of its section as a word; some have more.
TSeccionesDePrueba Secciones(std::vector<std::string_view> domicilios,
                             std::vector<std::string_view> palabrasDeCalle) {
    TSeccionesDePrueba secciones = {{"DOMICILIO", std::move(domicilios)},
                                    {"NUMERO", {"NUMERO", "NUM.", "", "Nº"_a}}};
    for (const std::string_view seccion : CONST_SECCION_TIPO_VIA) secciones.push_back({seccion, {seccion}});
    for (auto& [nombre, entradas] : secciones) {
        if (nombre == "CALLE") entradas = palabrasDeCalle;
        if (nombre == "GLORIETA") entradas = {"PLAZA", "GLORIETA"};
    }
    return secciones;
}

struct TCaso {
    std::string_view Texto;
    std::string_view Palabra;  // of the street type
    std::string_view TipoVia;
    std::string_view Via;
    std::string_view Numero;
};

void Comprueba(const TCaso& caso) {
    SCOPED_TRACE(Utf8DeAnsi(caso.Texto));
    const TDomicilio hallado = BuscaDomicilio(caso.Texto);
    EXPECT_EQ(hallado.TipoVia.Valor, caso.TipoVia);
    EXPECT_EQ(Pliega(EnTramo(caso.Texto, hallado.TipoVia.Donde)), caso.Palabra);
    EXPECT_EQ(hallado.Via.Valor, caso.Via);
    EXPECT_EQ(AnsiUpperCase(EnTramo(caso.Texto, hallado.Via.Donde)), caso.Via);
    EXPECT_EQ(hallado.Numero.Valor, caso.Numero);
    EXPECT_EQ(EnTramo(caso.Texto, hallado.Numero.Donde), caso.Numero);
}

const std::vector<TCaso> CASOS = {
    {"", "", "", "", ""},
    {"VECINO DE MADRID, 5", "", "", "", ""},
    {"VECINO DE 28001-MADRID, CON DOMICILIO EN LA CALLE DEL PRADO, NUMERO 5, 2º"_a, "CALLE", "CL", "PRADO",
     "5"},
    {"con domicilio en la calle de Ávila, núm. 7, bajo"_a, "CALLE", "CL", "ÁVILA"_a, "7"},
    // Without the address word the street type alone starts the address, and the text is not trimmed.
    {"vecino de Madrid, calle Mayor, 5", "CALLE", "CL", "MAYOR", "5"},
    {"CALLE MAYOR 12\r", "CALLE", "CL", "MAYOR 12\r", ""},
    {"CON DOMICILIO EN  CALLE MAYOR 12 \r", "CALLE", "CL", "MAYOR 12", ""},
    // Without the street type the address word alone; only one article goes, and no preposition.
    {"CON DOMICILIO EN EL POLIGONO SUR, NAVE 7", "", "", "POLIGONO SUR", "7"},
    {"CON DOMICILIO EN LA LA SALLE, 3", "", "", "LA SALLE", "3"},
    {"CON DOMICILIO EN DEL PINAR, 3", "", "", "DEL PINAR", "3"},
    {"CON DOMICILIO EN LOS PINOS, 3", "", "", "LOS PINOS", "3"},
    // The first address word in the file's order, at its first occurrence.
    {"DOMICILIADO EN PLAZA VIEJA, 1, CON DOMICILIO EN CALLE MAYOR, 2", "CALLE", "CL", "MAYOR", "2"},
    {"CON DOMICILIO EN CALLE MAYOR, 2, CON DOMICILIO EN CALLE LUNA, 3", "CALLE", "CL", "MAYOR", "2"},
    // A street type before the address word is not seen.
    {"PLAZA VIEJA, CON DOMICILIO EN CALLE MAYOR, 2", "CALLE", "CL", "MAYOR", "2"},
    // The leftmost street type wins; of two at the same place the one that comes first.
    {"URBANIZACION SOL, CALLE LUNA, 5", "URBANIZACION", "UR", "SOL", "5"},
    {"PLAZA VIEJA, 5", "PLAZA", "PZ", "VIEJA", "5"},
    {"GLORIETA VIEJA, 5", "GLORIETA", "GL", "VIEJA", "5"},
    // The character after the street type is skipped, whatever it is.
    {"C/:MAYOR, 5", "C/", "CL", "MAYOR", "5"},
    {"C/MAYOR, 5", "C/", "CL", "AYOR", "5"},
    {"CALLE", "CALLE", "CL", "", ""},
    // One preposition or article goes after the street type.
    {"CALLE DE LA PAZ, 5", "CALLE", "CL", "LA PAZ", "5"},
    {"CALLE LA PAZ, 5", "CALLE", "CL", "PAZ", "5"},
    {"CALLE LOS PINOS, 5", "CALLE", "CL", "PINOS", "5"},
    {"CALLE EL PINO, 5", "CALLE", "CL", "PINO", "5"},
    {"CALLE DELICIAS, 5", "CALLE", "CL", "DELICIAS", "5"},
    {"CALLE  DEL PINO, 5", "CALLE", "CL", "DEL PINO", "5"},
    // A word for the number counts only in front of a comma; it leaves the blank before it.
    {"CALLE MAYOR NUMERO 3", "CALLE", "CL", "MAYOR NUMERO 3", ""},
    {"CALLE MAYOR 12", "CALLE", "CL", "MAYOR 12", ""},
    {"CALLE MAYOR NUMERO 3, 2º"_a, "CALLE", "CL", "MAYOR ", "3"},
    {"CALLE MAYOR Nº 3, 2º"_a, "CALLE", "CL", "MAYOR ", "3"},
    {"CALLE MAYOR NUM. 4 NUMERO 5, 2", "CALLE", "CL", "MAYOR ", "4"},
    {"CALLE MAYOR, PORTAL 2, NUMERO 3", "CALLE", "CL", "MAYOR", "2"},
    // A name that would end before it begins has no end.
    {"CALLE , 3", "CALLE", "CL", ", 3", ""},
    {"CALLE NUMERO 3, 2", "CALLE", "CL", "NUMERO 3, 2", ""},
    // The number is the first run of digits.
    {"CALLE MAYOR, 12-14, 3", "CALLE", "CL", "MAYOR", "12"},
    {"CALLE MAYOR, 12BIS", "CALLE", "CL", "MAYOR", "12"},
    {"CALLE MAYOR, BAJO", "CALLE", "CL", "MAYOR", ""},
    {"CALLE MAYOR, s/n, 28001 Madrid", "CALLE", "CL", "MAYOR", "28001"},
    {"CALLE 25 DE MAYO, 7", "CALLE", "CL", "25 DE MAYO", "7"},
    {"CALLE MAYOR,", "CALLE", "CL", "MAYOR", ""},
    // Only a Catalan deed drops the Catalan articles.
    {"CALLE DELS ARBRES, 4", "CALLE", "CL", "DELS ARBRES", "4"},
    {"CALLE ELS ARBRES, 4", "CALLE", "CL", "ELS ARBRES", "4"},
};

const std::vector<TCaso> CASOS_CATALANES = {
    {"CARRER DELS ARBRES, 4", "CARRER", "CL", "ARBRES", "4"},
    {"amb domicili a la carrer dels Àngels, número 4"_a, "CARRER", "CL", "ÀNGELS"_a, "4"},
    {"CARRER ELS ARBRES, 4", "CARRER", "CL", "ARBRES", "4"},
    {"CARRER DEL PI, 4", "CARRER", "CL", "PI", "4"},
    {"CARRER DE LA PAU, 4", "CARRER", "CL", "LA PAU", "4"},
    {"CARRER LA PAU, 4", "CARRER", "CL", "PAU", "4"},
    {"CARRER EL PI, 4", "CARRER", "CL", "PI", "4"},
    {"CARRER LOS PINOS, 4", "CARRER", "CL", "LOS PINOS", "4"},
};

TSeccionesDePrueba SeccionesCastellanas() {
    return Secciones({"CON DOMICILIO EN", "DOMICILIADO EN"}, {"", "CALLE", "C/"});
}
TSeccionesDePrueba SeccionesCatalanas() {
    return Secciones({"AMB DOMICILI A"}, {"CARRER"});
}

}  // namespace

TEST(Domicilio, TipoViaYNumero) {
    const TVocabularioDePrueba vocabulario(SeccionesCastellanas());
    for (const TCaso& caso : CASOS) Comprueba(caso);
}

TEST(Domicilio, EnCatalan) {
    const TVocabularioDePrueba vocabulario(SeccionesCastellanas(), SeccionesCatalanas());
    vocabulario.Elige(TIdioma::Catalan);
    for (const TCaso& caso : CASOS_CATALANES) Comprueba(caso);
}

TEST(Domicilio, LosDoceTiposDeVia) {
    const TVocabularioDePrueba vocabulario(SeccionesCastellanas());
    for (std::size_t i = 0; i < CONST_SECCION_TIPO_VIA.size(); ++i) {
        const std::string texto = std::string(CONST_SECCION_TIPO_VIA[i]) + " MAYOR, 3";
        Comprueba({texto, CONST_SECCION_TIPO_VIA[i], CONST_TIPO_VIA[i], "MAYOR", "3"});
    }
}

// What is told as read stands where the address is, not where the same words stand first.
TEST(Domicilio, DondeSeLeyo) {
    const TVocabularioDePrueba vocabulario(SeccionesCastellanas());
    const TDomicilio hallado = BuscaDomicilio("CALLE MAYOR, 5, CON DOMICILIO EN LA CALLE MAYOR, 5");
    EXPECT_EQ(hallado.TipoVia.Donde, (Tramo{36, 5}));
    EXPECT_EQ(hallado.Via.Donde, (Tramo{42, 5}));
    EXPECT_EQ(hallado.Numero.Donde, (Tramo{49, 1}));
}

namespace {

struct TCasoExtranjero {
    std::string_view Texto;
    std::string_view Domicilio;
};

const std::vector<TCasoExtranjero> CASOS_EXTRANJEROS = {
    {"", ""},
    {"con domicilio en 12, Rue de la Paix, París (Francia), y pasaporte"_a, "12, RUE DE LA PAIX, PARIS"},
    {"CON DOMICILIO EN 10 DOWNING STREET, LONDRES. TIENE N.I.E.", "10 DOWNING STREET, LONDRES"},
    // Neither bracket nor full stop.
    {"CON DOMICILIO EN 10 DOWNING STREET, LONDRES", ""},
    // A bracket anywhere comes before the full stop.
    {"CON DOMICILIO EN AV. FOCH 3, PARIS (FRANCIA). TIENE", "AV. FOCH 3, PARIS"},
    {"CON DOMICILIO EN (FRANCIA), RUE X.", ""},
    {"CON DOMICILIO EN . RUE X.", ""},
    // One sign at the end goes, once.
    {"CON DOMICILIO EN RUE X, (FRANCIA)", "RUE X"},
    {"CON DOMICILIO EN RUE X; (FRANCIA)", "RUE X"},
    {"CON DOMICILIO EN RUE X. (FRANCIA)", "RUE X"},
    {"CON DOMICILIO EN RUE X;, (FRANCIA)", "RUE X;"},
    {"CON DOMICILIO EN RUE X: (FRANCIA)", "RUE X:"},
    // Nothing is cut from the start but blanks; without the address word all the text counts.
    {"CON DOMICILIO EN LA RUE X (FRANCIA)", "LA RUE X"},
    {"RESIDE EN RUE X (FRANCIA)", "RESIDE EN RUE X"},
    {"DOMICILIADO EN LYON, CON DOMICILIO EN RUE X (FRANCIA)", "RUE X"},
    // A bracket before the address word does not count.
    {"DON JOHN (INGLES) CON DOMICILIO EN RUE X (FRANCIA)", "RUE X"},
    // The point of a geminated L ends the address of a Castilian deed.
    {"CON DOMICILIO EN PLAZA DEL COL.LEGI, ANDORRA. TIENE", "PLAZA DEL COL"},
};

void Comprueba(const TCasoExtranjero& caso) {
    SCOPED_TRACE(Utf8DeAnsi(caso.Texto));
    const auto hallado = BuscaDomicilioExtranjero(caso.Texto);
    EXPECT_EQ(hallado.Valor, caso.Domicilio);
    EXPECT_EQ(Pliega(EnTramo(caso.Texto, hallado.Donde)), caso.Domicilio);
}

}  // namespace

TEST(Domicilio, Extranjero) {
    const TVocabularioDePrueba vocabulario(SeccionesCastellanas());
    for (const TCasoExtranjero& caso : CASOS_EXTRANJEROS) Comprueba(caso);
}

TEST(Domicilio, ExtranjeroEnCatalan) {
    const TVocabularioDePrueba vocabulario(SeccionesCastellanas(), SeccionesCatalanas());
    vocabulario.Elige(TIdioma::Catalan);
    Comprueba(
        TCasoExtranjero{"AMB DOMICILI A PLACA DEL COL.LEGI, ANDORRA. TE", "PLACA DEL COL.LEGI, ANDORRA"});
}

}  // namespace analizador

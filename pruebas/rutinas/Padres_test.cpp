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

const TSeccionesDePrueba CASTELLANO = {
    {"PADRES", {"HIJO DE", "HIJA LEGITIMA DE"}}, {"HOMBRE", {"DON", "D."}}, {"MUJER", {"DOÑA"_a}}};
const TSeccionesDePrueba CATALAN = {
    {"PADRES", {"FILL DE"}}, {"HOMBRE", {"EN"}}, {"MUJER", {"NA", "SENYORA"}}};

struct TCaso {
    std::string_view Texto;
    std::string_view Padre;
    std::string_view Madre;
};

const std::vector<TCaso> CASOS = {
    {"", "", ""},
    {"don Juan y doña Ana, casados"_a, "", ""},
    {"hijo de don José Pérez y doña Ana Núñez, vecino"_a, "JOSE PEREZ", "ANA NUÑEZ"_a},
    {"hijo de don José Pérez y de doña Ana Núñez. Soltero"_a, "JOSE PEREZ Y DE", "ANA NUÑEZ"_a},
    // The phrase that comes first in the text; forms of address before it do not count.
    {"DON LUIS, HIJA LEGITIMA DE DON PEDRO Y DOÑA EVA, HIJO DE DON JUAN"_a, "PEDRO", "EVA"},
    // What stands between the phrase and the first form of address is passed over.
    {"HIJO DE LOS CONYUGES DON PEDRO Y DOÑA EVA, CASADO"_a, "PEDRO", "EVA"},
    // The father ends at a comma or at the next form of address.
    {"HIJO DE DON PEDRO, DIFUNTO, Y DOÑA EVA, CASADO"_a, "PEDRO", "EVA"},
    {"HIJO DE DON PEDRO Y, DOÑA EVA"_a, "PEDRO", "EVA"},
    {"HIJO DE DON PEDRO DOÑA EVA"_a, "PEDRO", "EVA"},
    {"HIJO DE DON PEDRO. VIVE EN SORIA", "PEDRO. VIVE EN SORIA", ""},
    {"HIJO DE DON PEDRO Y EVA, CASADO", "PEDRO Y EVA", ""},
    // The connector goes from the end alone, and only as a word.
    {"HIJO DE DON PEDRO Y LUIS Y DOÑA EVA"_a, "PEDRO Y LUIS", "EVA"},
    {"HIJO DE DON PEDRO GODOY DOÑA EVA"_a, "PEDRO GODOY", "EVA"},
    {"HIJO DE DON PEDRO I DOÑA EVA"_a, "PEDRO I", "EVA"},
    // The mother ends at a comma, at the sentence's end, with the text.
    {"HIJO DE DON PEDRO Y DOÑA EVA. NACIO, DICEN"_a, "PEDRO", "EVA"},
    {"HIJO DE DON PEDRO Y DOÑA EVA, D.N.I. 5"_a, "PEDRO", "EVA"},
    {"HIJO DE DON PEDRO Y DOÑA EVA \r"_a, "PEDRO", "EVA"},
    // A form of address that opens the name goes too.
    {"HIJO DE DON PEDRO Y DOÑA DOÑA EVA, CASADO"_a, "PEDRO", "EVA"},
    // The point of an abbreviation ends the sentence, hence the name.
    {"HIJO DE DON PEDRO Y DOÑA Mª. EVA, CASADO"_a, "PEDRO", "Mª"_a},
    // TAB and line ends are not there.
    {"HIJO\t DE DON PE\tDRO Y \rDOÑA E\nVA, CASADO"_a, "PEDRO", "EVA"},
    // Once a form of address inside another word was passed over, the next one is counted from there on: the
    // one after "CORDON" is taken to stand at its second letter, and the name to begin at the fifth.
    {"HIJO DE CORDON DON PEDRO, CASADO", "ON", "PEDRO"},
    // No form of address after the phrase: the connector parts them.
    {"hija legítima de Gastón Fournier y Elena Duval, casada"_a, "GASTON FOURNIER", "ELENA DUVAL"},
    {"DON LUIS, HIJO DE PEDRO Y EVA. CASADO, NATURAL", "PEDRO", "EVA"},
    {"HIJO DE PEDRO Y EVA", "PEDRO", "EVA"},
    {"HIJO DE PEDRO GODOY Y EVA", "PEDRO GODOY", "EVA"},
    {"HIJO DE PEDRO YUSTE, CASADO", "PEDRO YUSTE", ""},
    {"HIJO DE PEDRO Y", "PEDRO", ""},
    {"HIJO DE PEDRO", "PEDRO", ""},
    {"HIJO DE", "", ""},
};

const std::vector<TCaso> CASOS_CATALANES = {
    {"fill d'en Pere i na Eva", "", ""},
    {"FILL DE EN PERE I NA EVA, CASAT", "PERE", "EVA"},
    {"FILL DE EN PERE Y NA EVA, CASAT", "PERE Y", "EVA"},
    {"FILL DE PERE I EVA, CASAT", "PERE", "EVA"},
    {"FILL DE PERE Y EVA I ROSA, CASAT", "PERE Y EVA", "ROSA"},
    {"FILL DE EN PERE I NA EVA MARCEL.LI. CASAT", "PERE", "EVA MARCEL.LI"},
};

void Comprueba(const TCaso& caso) {
    SCOPED_TRACE(Utf8DeAnsi(caso.Texto));
    const TPadres hallados = BuscaPadres(caso.Texto);
    const auto escrito = [&](Tramo tramo) {
        return Pliega(QuitaCaracteres(EnTramo(caso.Texto, tramo), "\t\r\n"));
    };
    EXPECT_EQ(hallados.Padre.Valor, caso.Padre);
    EXPECT_EQ(escrito(hallados.Padre.Donde), caso.Padre);
    EXPECT_EQ(hallados.Madre.Valor, caso.Madre);
    EXPECT_EQ(escrito(hallados.Madre.Donde), caso.Madre);
}

}  // namespace

TEST(Padres, ConTratamientoYSinEl) {
    const TVocabularioDePrueba vocabulario(CASTELLANO);
    for (const TCaso& caso : CASOS) Comprueba(caso);
}

TEST(Padres, EnCatalan) {
    const TVocabularioDePrueba vocabulario(CASTELLANO, CATALAN);
    vocabulario.Elige(TIdioma::Catalan);
    for (const TCaso& caso : CASOS_CATALANES) Comprueba(caso);
}

TEST(Padres, DondeSeLeyeron) {
    const TVocabularioDePrueba vocabulario(CASTELLANO);
    const TPadres hallados = BuscaPadres("DON PEDRO Y EVA, HIJO DE DON PEDRO Y DOÑA EVA"_a);
    EXPECT_EQ(hallados.Padre.Donde, (Tramo{29, 5}));
    EXPECT_EQ(hallados.Madre.Donde, (Tramo{42, 3}));
}

}  // namespace analizador

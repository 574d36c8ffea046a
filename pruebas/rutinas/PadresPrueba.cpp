#include <gtest/gtest.h>

#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "pruebas/comun/Tramos.h"
#include "pruebas/comun/VocabularioDePrueba.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

const TSeccionesDePrueba CASTELLANO = {{"PADRES", {"HIJO DE", "HIJA LEGITIMA DE"}},
                                       {"HOMBRE", {"DON", "D."}},
                                       {"MUJER", {"DOÑA"_ansi}}};
const TSeccionesDePrueba CATALAN = {
    {"PADRES", {"FILL DE"}}, {"HOMBRE", {"EN"}}, {"MUJER", {"NA", "SENYORA"}}};

struct TCaso {
    std::string_view Texto;
    std::string_view Padre;
    std::string_view Madre;
};

const std::vector<TCaso> CASOS = {
    {"", "", ""},
    {"don Juan y doña Ana, casados"_ansi, "", ""},
    {"hijo de don José Pérez y doña Ana Núñez, vecino"_ansi, "JOSE PEREZ", "ANA NUÑEZ"_ansi},
    {"hijo de don José Pérez y de doña Ana Núñez. Soltero"_ansi, "JOSE PEREZ Y DE", "ANA NUÑEZ"_ansi},
    // The phrase that comes first in the text; forms of address before it do not count.
    {"DON LUIS, HIJA LEGITIMA DE DON PEDRO Y DOÑA EVA, HIJO DE DON JUAN"_ansi, "PEDRO", "EVA"},
    // What stands between the phrase and the first form of address is passed over.
    {"HIJO DE LOS CONYUGES DON PEDRO Y DOÑA EVA, CASADO"_ansi, "PEDRO", "EVA"},
    // The father ends at a comma or at the next form of address.
    {"HIJO DE DON PEDRO, DIFUNTO, Y DOÑA EVA, CASADO"_ansi, "PEDRO", "EVA"},
    {"HIJO DE DON PEDRO Y, DOÑA EVA"_ansi, "PEDRO", "EVA"},
    {"HIJO DE DON PEDRO DOÑA EVA"_ansi, "PEDRO", "EVA"},
    {"HIJO DE DON PEDRO. VIVE EN SORIA", "PEDRO. VIVE EN SORIA", ""},
    {"HIJO DE DON PEDRO Y EVA, CASADO", "PEDRO Y EVA", ""},
    // The connector goes from the end alone, and only as a word.
    {"HIJO DE DON PEDRO Y LUIS Y DOÑA EVA"_ansi, "PEDRO Y LUIS", "EVA"},
    {"HIJO DE DON PEDRO GODOY DOÑA EVA"_ansi, "PEDRO GODOY", "EVA"},
    {"HIJO DE DON PEDRO I DOÑA EVA"_ansi, "PEDRO I", "EVA"},
    // The mother ends at a comma, at the sentence's end, with the text.
    {"HIJO DE DON PEDRO Y DOÑA EVA. NACIO, DICEN"_ansi, "PEDRO", "EVA"},
    {"HIJO DE DON PEDRO Y DOÑA EVA, D.N.I. 5"_ansi, "PEDRO", "EVA"},
    {"HIJO DE DON PEDRO Y DOÑA EVA \r"_ansi, "PEDRO", "EVA"},
    // A form of address that opens the name goes too.
    {"HIJO DE DON PEDRO Y DOÑA DOÑA EVA, CASADO"_ansi, "PEDRO", "EVA"},
    {"HIJO DE DON PEDRO Y DOÑA D. EVA, CASADO"_ansi, "PEDRO", "EVA"},
    // TAB and line ends are not there.
    {"HIJO\tDE DON PE\tDRO Y \rDOÑA E\nVA, CASADO"_ansi, "PEDRO", "EVA"},
    // Once a form of address inside another word was passed over, the next one is counted from there on:
    // after "CORDON" the name is taken to begin at the third character of the text.
    {"HIJO DE CORDON DON PEDRO, CASADO", "DON DON PEDRO", ""},
    // No form of address after the phrase: the connector parts them.
    {"hija legítima de Gastón Fournier y Elena Duval, casada"_ansi, "GASTON FOURNIER", "ELENA DUVAL"},
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
    const TPadres hallados = BuscaPadres("DON PEDRO Y EVA, HIJO DE DON PEDRO Y DOÑA EVA"_ansi);
    EXPECT_EQ(hallados.Padre.Donde, (Tramo{29, 5}));
    EXPECT_EQ(hallados.Madre.Donde, (Tramo{42, 3}));
}

}  // namespace analizador

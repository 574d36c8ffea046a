#include "rutinas/Tratamiento.h"

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

#include "plataforma/Rut.h"
#include "pruebas/comun/Literales.h"
#include "pruebas/comun/Tramos.h"
#include "pruebas/comun/VocabularioDePrueba.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

const TSeccionesDePrueba SECCIONES = {
    {"HOMBRE", {"DON", "", "SE\xD1OR DON", "D.", "EL SR."}},
    {"MUJER",
     {"DO\xD1"
      "A",
      "DON", "D.\xAA", "EL"}},
};

struct TCaso {
    std::string_view Texto;
    int Posicion;
    std::string_view Tratamiento;
    char Sexo;
    std::size_t Verdadera;  // from 0
};

const std::vector<TCaso> CASOS = {
    {"", 0, "", ' ', 0},
    {"Juan Pérez"_a, 0, "", ' ', 0},
    {"don Juan", 1, "DON", 'H', 0},
    {"doña Ana"_a, 1, "DOÑA"_a, 'M', 0},
    {"Comparece D. Juan", 11, "D.", 'H', 10},
    // A blank must follow.
    {"DON", 0, "", ' ', 0},
    {"DON, Juan", 0, "", ' ', 0},
    {"DON\rJuan", 0, "", ' ', 0},
    {"DONDE DON Juan", 7, "DON", 'H', 6},
    // A blank, LF or CR must stand before it.
    {"(DON Juan", 0, "", ' ', 0},
    {"\tDON Juan", 0, "", ' ', 0},
    {"\nDON Juan", 2, "DON", 'H', 1},
    {"UNO\rDON Juan", 5, "DON", 'H', 4},
    // The leftmost one; on a tie the section of men, and the earlier entry.
    {"doña Ana y don Luis"_a, 1, "DOÑA"_a, 'M', 0},
    {"don Luis y doña Ana"_a, 1, "DON", 'H', 0},
    {"el señor don Luis"_a, 1, "EL", 'M', 0},
    {"el sr. Luis", 1, "EL SR.", 'H', 0},
    // After a false one the position counts in the cut text: here "DON " ends another word.
    {"CORDON DON LUIS", 2, "DON", 'H', 7},
    {"CORDON Y DON LUIS", 4, "DON", 'H', 9},
    // After two, from the second.
    {"CORDON Y CORDON DON LUIS", 2, "DON", 'H', 16},
    {"CORDON SOLO", 0, "", ' ', 0},
    // The approximation decides which one is the nearest: the last DON is taken to stand at 2.
    {"COMPARECE DOÑA ANA CORDON DON LUIS"_a, 2, "DON", 'H', 26},
};

class Tratamiento : public testing::Test {
  protected:
    TVocabularioDePrueba vocabulario_{SECCIONES};
};

TEST_F(Tratamiento, BuscaTratamiento) {
    for (const auto& caso : CASOS) {
        SCOPED_TRACE(caso.Texto);
        const TTratamiento hallado = BuscaTratamiento(caso.Texto);
        EXPECT_EQ(hallado.Posicion, caso.Posicion);
        EXPECT_EQ(hallado.Tratamiento, caso.Tratamiento);
        EXPECT_EQ(hallado.Sexo, caso.Sexo);
        EXPECT_EQ(hallado.Donde, (Tramo{caso.Verdadera, caso.Tratamiento.size()}));
    }
}

// Asking from a position is the same as asking about the text cut there, whether positions move on or back.
TEST_F(Tratamiento, DesdeUnaPosicionEsComoElTextoCortado) {
    std::string texto;
    for (const auto& caso : CASOS) texto.append(caso.Texto).append(" ");
    texto = Pliega(texto + "DON DON DON CORDON DON DON DO\xD1" + "A DON ");
    const TBuscadorTratamientos buscador(texto);
    std::vector<std::size_t> posiciones(texto.size() + 1);
    std::iota(posiciones.begin(), posiciones.end(), 0);
    const std::vector<std::size_t> atras(posiciones.rbegin(), posiciones.rend());
    posiciones.insert(posiciones.end(), atras.begin(), atras.end());
    for (const std::size_t desde : posiciones) {
        const TTratamiento cortado = BuscaTratamiento(texto.substr(desde));
        const TTratamiento hallado = buscador.Desde(desde);
        ASSERT_EQ(hallado.Posicion, cortado.Posicion) << desde;
        ASSERT_EQ(hallado.Tratamiento, cortado.Tratamiento) << desde;
        ASSERT_EQ(hallado.Sexo, cortado.Sexo) << desde;
        if (hallado.Posicion == 0) continue;
        ASSERT_EQ(hallado.Donde.Primera, desde + cortado.Donde.Primera) << desde;
        ASSERT_EQ(EnTramo(texto, hallado.Donde), hallado.Tratamiento) << desde;
    }
}

// An entry that begins with a blank starts the cut text and so counts there.
TEST_F(Tratamiento, UnaEntradaConBlancoDelante) {
    vocabulario_.Pon(TIdioma::Castellano, {{"HOMBRE", {" DON"}}});
    EXPECT_EQ(BuscaTratamiento("X DON LUIS").Posicion, 0);
    EXPECT_EQ(BuscaTratamiento(" DON LUIS").Posicion, 1);
    const TTratamiento segundo = BuscaTratamiento("X DON DON LUIS");
    EXPECT_EQ(segundo.Posicion, 1);
    EXPECT_EQ(segundo.Donde, (Tramo{5, 4}));
}

}  // namespace

}  // namespace analizador

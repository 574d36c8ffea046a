#include "rutinas/PalabrasEnteras.h"

#include <gtest/gtest.h>

#include "plataforma/Ansi.h"
#include "pruebas/comun/Literales.h"

namespace analizador {

namespace {

constexpr std::size_t NADA = std::string_view::npos;

struct TCaso {
    std::string_view Texto;
    std::string_view Nombre;
    std::size_t Posicion;  // NADA: not found
};

const std::vector<TCaso> CASOS = {
    {"", "", NADA},
    {"LEON", "", NADA},
    {"", "LEON", NADA},
    {"LEON", "LEON", 0},
    {"LEO", "LEON", NADA},
    {"DE LEON", "LEON", 3},
    {"LEONES", "LEON", NADA},
    {"NAPOLEON", "LEON", NADA},
    {"LEONES LEON", "LEON", 7},
    {"NAPOLEON, LEON", "LEON", 10},
    // Only A to Z are letters here: digits, signs, small letters and letters of other alphabets are not.
    {"3LEON3", "LEON", 1},
    {"aLEONz", "LEON", 1},
    {"ÑLEONÇ"_a, "LEON", 1},
    {"@LEON[", "LEON", 1},
    {"ALEON", "LEON", NADA},
    {"ZLEON", "LEON", NADA},
    {"LEONA", "LEON", NADA},
    {"LEONZ", "LEON", NADA},
    // Names of several words, with signs at their ends, that overlap with themselves.
    {"LOS PAISES BAJOS", "PAISES BAJOS", 4},
    {"X (UE) Y", "(UE)", 2},
    {"X(UE)Y", "(UE)", NADA},
    {"A A AB A A A", "A A A", 7},
    // Of several words that begin a name, the one that the rest of it follows.
    {"REINO DE LEON Y REINO UNIDO", "REINO UNIDO", 16},
    {"REINO UNIDO", "REINO", 0},
    {"REINOUNIDO REINO", "REINO", 11},
    {"DE ÑU ÑANDU"_a, "ÑANDU"_a, 6},
    {"DE  ESPAÑA"_a, " ESPAÑA"_a, 3},
};

}  // namespace

TEST(PalabrasEnteras, PrimeraQueNoEsParteDeOtra) {
    for (const TCaso& caso : CASOS) {
        SCOPED_TRACE(Utf8DeAnsi(caso.Texto) + " / " + Utf8DeAnsi(caso.Nombre));
        EXPECT_EQ(TPalabrasEnteras(caso.Texto).Busca(caso.Nombre).value_or(NADA), caso.Posicion);
    }
}

}  // namespace analizador

#include <gtest/gtest.h>

#include "pruebas/comun/Tramos.h"
#include "pruebas/comun/VocabularioDePrueba.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

const TSeccionesDePrueba CASTELLANO = {
    {"NUMEROS",
     {"UN", "DOS", "TRES", "CINCO", "SEIS", "VEINTE", "TREINTA", "SESENTA", "TRESCIENTOS", "MIL", "CERO"}}};
const TSeccionesDePrueba CATALAN = {{"NUMEROS", {"DOS", "TRES", "CINC", "TRENTA", "MIL"}}};

class NumerosDelTexto : public testing::Test {
  protected:
    TVocabularioDePrueba vocabulario_{CASTELLANO, CATALAN};
};

struct TCaso {
    TIdioma Idioma;
    std::string_view Texto;
    int Numero;
    std::string_view Resto;  // of NumeroInicial
    std::string_view Leido;  // what the stretch holds
};

constexpr TIdioma CAS = TIdioma::Castellano;
constexpr TIdioma CAT = TIdioma::Catalan;

TEST_F(NumerosDelTexto, NumeroInicial) {
    const std::vector<TCaso> casos = {
        {CAS, "", -1, "", ""},
        {CAS, "   ", -1, "", ""},
        {CAS, "NADA QUE CONTAR", -1, "", ""},
        // Digits.
        {CAS, "12", 12, "", "12"},
        {CAS, "NUMERO 12, PISO 3", 12, "PISO 3", "12"},
        {CAS, "\"1.999\"; FIN", 1999, "FIN", "1.999"},
        {CAS, "-1 FIN", 1, "FIN", "1"},
        {CAS, "1-2 FIN", 12, "FIN", "1-2"},
        // The backward reader alone takes brackets off.
        {CAS, "(30) DOS", 2, "", "DOS"},
        {CAS, "EL 1o Y 2 FIN", 2, "FIN", "2"},
        {CAS, "99999999999 DOS", 2, "", "DOS"},
        // A sign by itself is an empty word and ends the search.
        {CAS, "CALLE - 12", -1, "12", ""},
        {CAS, "DOS - MIL", 2, "MIL", "DOS"},
        // Words.
        {CAS, "EL NUMERO TRES", 3, "", "TRES"},
        {CAS, "DOS MIL CINCO Y MEDIO", 2005, "", "DOS MIL CINCO"},
        {CAS, "DOS MIL CINCO Y MEDIO PISO", 2005, "PISO", "DOS MIL CINCO"},
        {CAS, "DOS MIL, CINCO. ANTE MI", 2005, "MI", "DOS MIL, CINCO"},
        {CAS, "TREINTA Y DOS CASAS Y MAS", 32, "Y MAS", "TREINTA Y DOS"},
        {CAS, "TREINTA I DOS", 30, "DOS", "TREINTA"},
        {CAS, "dos TRES", 3, "", "TRES"},
        {CAS, "CERO CASAS", 0, "", "CERO"},
        // A conjunction before the number is none of its own, nor one that other words follow.
        {CAS, "Y DOS", 2, "", "DOS"},
        {CAS, "Y LUEGO DOS", 2, "", "DOS"},
        // Digits win over the words gathered before them.
        {CAS, "DOS MIL 17 FIN", 17, "FIN", "17"},
        // The blank alone separates words; the signs between joined words go.
        {CAS, "DOS\rMIL FIN", -1, "", ""},
        {CAS, "DOS  MIL FIN", 2000, "", "DOS  MIL"},
        {CAT, "TRENTA I DOS PISOS", 32, "", "TRENTA I DOS"},
        {CAT, "TRENTA Y DOS PISOS", 30, "DOS PISOS", "TRENTA"},
        {CAT, "CINC MIL", 5000, "", "CINC MIL"},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Texto);
        vocabulario_.Elige(caso.Idioma);
        const TNumeroLeido leido = NumeroInicial(caso.Texto);
        EXPECT_EQ(leido.Numero, caso.Numero);
        EXPECT_EQ(leido.Resto, caso.Resto);
        EXPECT_EQ(EnTramo(caso.Texto, leido.Donde), caso.Leido);
    }
}

TEST_F(NumerosDelTexto, NumeroFinal) {
    const std::vector<TCaso> casos = {
        {CAS, "", -1, "", ""},
        {CAS, "  ", -1, "", ""},
        {CAS, "NADA QUE CONTAR", -1, "", ""},
        {CAS, "PLAZO DE (30)", 30, "", "30"},
        {CAS, "PLAZO DE 30 DIAS", 30, "", "30"},
        {CAS, "EL 5, A 30, DIAS", 30, "", "30"},
        {CAS, "PLAZO DE TRESCIENTOS SESENTA", 360, "", "TRESCIENTOS SESENTA"},
        {CAS, "A (DOS) DE", 2, "", "DOS"},
        {CAS, "A TREINTA Y DOS DE", 32, "", "TREINTA Y DOS"},
        {CAS, "A TREINTA I DOS DE", 2, "", "DOS"},
        {CAS, "VEINTE PISOS Y DOS", 2, "", "DOS"},
        // A conjunction after the number is none of its own.
        {CAS, "A DOS Y", 2, "", "DOS"},
        {CAS, "A DOS Y ADEMAS", 2, "", "DOS"},
        // Digits drop the words gathered behind them.
        {CAS, "17 DOS MIL", 17, "", "17"},
        {CAS, "DOS - MIL", 1000, "", "MIL"},
        {CAS, "12 -", -1, "", ""},
        {CAS, "99999999999", -1, "", ""},
        {CAT, "A TRENTA I DOS DE", 32, "", "TRENTA I DOS"},
        {CAT, "A TRENTA Y DOS DE", 2, "", "DOS"},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Texto);
        vocabulario_.Elige(caso.Idioma);
        const TNumeroLeido leido = NumeroFinal(caso.Texto);
        EXPECT_EQ(leido.Numero, caso.Numero);
        EXPECT_EQ(leido.Resto, "");
        EXPECT_EQ(EnTramo(caso.Texto, leido.Donde), caso.Leido);
    }
}

}  // namespace

}  // namespace analizador

#include <gtest/gtest.h>

#include "pruebas/comun/Literales.h"
#include "pruebas/comun/VocabularioDePrueba.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

const TSeccionesDePrueba SECCIONES = {
    {"CON HUECO", {"UNO", "", "TRES"}},       {"NIE", {"N.I.E.", "TARJETA DE RESIDENCIA"}},
    {"ORDEN", {"VENDE", "COMPRA"}},           {"EMPATE", {"CASA", "CASADO"}},
    {"MAL ESCRITAS", {"vende", "ACCI\xD3N"}}, {"NUMEROS", {"DOS", "", "CIEN MIL"}},
    {"LETRAS", {"SE\xD1ORA", "BARÇA"_a}},
};

class Palabras : public testing::Test {
  protected:
    TVocabularioDePrueba vocabulario_{SECCIONES, {{"ORDEN", {"VEN"}}}};
};

TEST_F(Palabras, ListaTokens) {
    EXPECT_EQ(ListaTokens("CON HUECO"), (std::vector<std::string>{"UNO", "", "TRES"}));
    EXPECT_EQ(ListaTokens("con hueco"), ListaTokens("CON HUECO"));
    EXPECT_TRUE(ListaTokens("NO ESTA").empty());
}

TEST_F(Palabras, ListaTokensLeeElFicheroDelIdioma) {
    vocabulario_.Elige(TIdioma::Catalan);
    EXPECT_EQ(ListaTokens("ORDEN"), (std::vector<std::string>{"VEN"}));
    vocabulario_.Elige(TIdioma::Castellano);
    EXPECT_EQ(ListaTokens("ORDEN"), (std::vector<std::string>{"VENDE", "COMPRA"}));
}

TEST_F(Palabras, SinFicheroNoSeHallaNada) {
    vocabulario_.Quita(TIdioma::Castellano);
    EXPECT_TRUE(ListaTokens("ORDEN").empty());
    EXPECT_EQ(ContieneToken("ORDEN", "VENDE"), TToken{});
    EXPECT_FALSE(EsPalabraNumero("DOS"));
}

TEST_F(Palabras, UnCambioDelFicheroSeVeEnLaBusquedaSiguiente) {
    EXPECT_EQ(ContieneToken("ORDEN", "PERMUTA").Posicion, 0);
    vocabulario_.Pon(TIdioma::Castellano, {{"ORDEN", {"PERMUTA"}}});
    EXPECT_EQ(ContieneToken("ORDEN", "PERMUTA").Posicion, 1);
}

TEST_F(Palabras, LasClavesPorEncimaDeNumPalabrasNoSeLeen) {
    vocabulario_.PonBytes(TIdioma::Castellano,
                          "[ORDEN]\r\nNumPalabras=1\r\n1=VENDE\r\n2=COMPRA\r\n"
                          "[SIN CUENTA]\r\n1=VENDE\r\n[MALA CUENTA]\r\nNumPalabras=dos\r\n1=VENDE\r\n");
    EXPECT_EQ(ContieneToken("ORDEN", "COMPRA").Posicion, 0);
    EXPECT_EQ(ContieneToken("ORDEN", "VENDE").Posicion, 1);
    EXPECT_EQ(ContieneToken("SIN CUENTA", "VENDE").Posicion, 0);
    EXPECT_EQ(ContieneToken("MALA CUENTA", "VENDE").Posicion, 0);
}

struct TCasoToken {
    std::string_view Seccion;
    std::string_view Texto;
    TModoBusqueda Modo;
    TToken Esperado;
};

TEST_F(Palabras, ContieneToken) {
    const std::vector<TCasoToken> casos = {
        {"NO ESTA", "VENDE", {}, {}},
        {"ORDEN", "", {}, {}},
        {"ORDEN", "nada de eso", {}, {}},
        // Folded, and the position counts in the text given.
        {"ORDEN", "Don Luis vénde a"_a, {}, {10, "VENDE", 1}},
        {"ORDEN", "Don Luis vende a", {.Plegado = false}, {}},
        {"ORDEN", "Don Luis VENDE a", {.Plegado = false}, {10, "VENDE", 1}},
        {"ORDEN", "Don Luis VÉNDE a"_a, {.Plegado = false}, {}},
        {"LETRAS", "la señora"_a, {}, {4, "SE\xD1ORA", 1}},
        {"LETRAS", "la senora", {}, {}},
        {"LETRAS",
         "el barça"_a,
         {},
         {4,
          "BAR\xC7"
          "A",
          2}},
        // No word boundaries.
        {"ORDEN", "REVENDEDOR", {}, {3, "VENDE", 1}},
        // An entry that is not folded finds nothing.
        {"MAL ESCRITAS", "vende una acción"_a, {}, {}},
        {"MAL ESCRITAS", "VENDE UNA ACCION", {}, {}},
        // A missing entry counts in the numbers and never matches.
        {"CON HUECO", "DOS", {}, {}},
        {"CON HUECO", "y tres", {}, {3, "TRES", 3}},
        // Leftmost: all are tried; on a tie the first of the file stays.
        {"ORDEN", "QUIEN COMPRA Y QUIEN VENDE", {}, {7, "COMPRA", 2}},
        {"EMPATE", "CASADO", {}, {1, "CASA", 1}},
        // First entry: wherever it stands.
        {"ORDEN", "QUIEN COMPRA Y QUIEN VENDE", {.PrimeraEntrada = true}, {22, "VENDE", 1}},
        {"ORDEN", "QUIEN COMPRA", {.PrimeraEntrada = true}, {7, "COMPRA", 2}},
        // Each at its last occurrence, and of those the leftmost.
        {"NIE", "N.I.E. UNO, N.I.E. DOS", {.Ultima = true}, {13, "N.I.E.", 1}},
        {"NIE",
         "TARJETA DE RESIDENCIA, N.I.E. UNO, TARJETA DE RESIDENCIA, N.I.E. DOS",
         {.Ultima = true},
         {36, "TARJETA DE RESIDENCIA", 2}},
        {"NIE",
         "TARJETA DE RESIDENCIA, N.I.E. DOS",
         {.Ultima = true, .PrimeraEntrada = true},
         {24, "N.I.E.", 1}},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Texto);
        const TToken hallado = ContieneToken(caso.Seccion, caso.Texto, caso.Modo);
        EXPECT_EQ(hallado.Posicion, caso.Esperado.Posicion);
        EXPECT_EQ(hallado.Entrada, caso.Esperado.Entrada);
        EXPECT_EQ(hallado.Numero, caso.Esperado.Numero);
    }
}

TEST_F(Palabras, EsPalabraNumero) {
    EXPECT_TRUE(EsPalabraNumero("DOS"));
    EXPECT_TRUE(EsPalabraNumero("CIEN MIL"));
    EXPECT_FALSE(EsPalabraNumero("dos"));
    EXPECT_FALSE(EsPalabraNumero("DOSCIENTOS"));
    EXPECT_FALSE(EsPalabraNumero("DO"));
    EXPECT_FALSE(EsPalabraNumero("CIEN"));
    EXPECT_FALSE(EsPalabraNumero(" DOS"));
    EXPECT_FALSE(EsPalabraNumero(""));
}

TEST(NumeroEntero, EsNumeroEntero) {
    for (const std::string_view si : {"0", "12", "-12", "+12", " 12 ", "2147483647", "007"})
        EXPECT_TRUE(EsNumeroEntero(si)) << si;
    for (const std::string_view no :
         {"", " ", "1.2", "12a", "a12", "1 2", "2147483648", "0x1F", "12\r", "+-1", "-"})
        EXPECT_FALSE(EsNumeroEntero(no)) << no;
}

struct TCasoPalabra {
    std::string_view Texto;
    std::string_view Palabra;
    std::string_view Resto;
};

TEST(Corte, PrimeraPalabra) {
    const std::vector<TCasoPalabra> casos = {
        {"", "", ""},
        {"    ", "", ""},
        {"UNA", "UNA", ""},
        {"  UNA", "UNA", ""},
        {"UNA ", "UNA", ""},
        {"UNA CASA", "UNA", "CASA"},
        {"UNA   CASA ", "UNA", "  CASA "},
        {"\t\r\n UNA CASA", "UNA", "CASA"},
        {"UNA\tCASA\rY OTRA", "UNA\tCASA\rY", "OTRA"},
        {"UNA\xA0"
         "CASA NUEVA",
         "UNA\xA0"
         "CASA",
         "NUEVA"},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Texto);
        EXPECT_EQ(PrimeraPalabra(caso.Texto).Palabra, caso.Palabra);
        EXPECT_EQ(PrimeraPalabra(caso.Texto).Resto, caso.Resto);
    }
}

TEST(Corte, UltimaPalabra) {
    const std::vector<TCasoPalabra> casos = {
        {"", "", ""},
        {"    ", "", ""},
        {"UNA", "UNA", ""},
        {"UNA  ", "UNA", ""},
        {" UNA", "UNA", ""},
        {"UNA CASA", "CASA", "UNA"},
        {" UNA   CASA ", "CASA", " UNA  "},
        {"UNA CASA \t\r\n", "CASA", "UNA"},
        {"LA UNA\tCASA", "UNA\tCASA", "LA"},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Texto);
        EXPECT_EQ(UltimaPalabra(caso.Texto).Palabra, caso.Palabra);
        EXPECT_EQ(UltimaPalabra(caso.Texto).Resto, caso.Resto);
    }
}

}  // namespace

}  // namespace analizador

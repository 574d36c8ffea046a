#include <gtest/gtest.h>

#include "pruebas/comun/Literales.h"
#include "pruebas/comun/Tramos.h"
#include "pruebas/comun/VocabularioDePrueba.h"
#include "rutinas/Cif.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

const TSeccionesDePrueba SECCIONES = {
    {"NIF", {"D.N.I.", "", "N.I.F.", "CARNE"}},
    {"NIE", {"N.I.E.", "RESIDENCIA", "CARNE"}},
    {"PASAPORTE", {"PASAPORTE", "PASS "}},
};

class Documentos : public testing::Test {
  protected:
    TVocabularioDePrueba vocabulario_{SECCIONES};
};

struct TLeido {
    int Tipo;
    std::string_view Numero;
    std::string_view Leido;
};

struct TCaso {
    std::string_view Texto;
    std::vector<TLeido> Documentos;
};

void Comprueba(const std::vector<TCaso>& casos) {
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Texto);
        const auto hallados = BuscaDocumentos(caso.Texto);
        ASSERT_EQ(hallados.size(), caso.Documentos.size());
        for (std::size_t i = 0; i < hallados.size(); ++i) {
            EXPECT_EQ(hallados[i].Valor.TipoDocumento, caso.Documentos[i].Tipo);
            EXPECT_EQ(hallados[i].Valor.Numero, caso.Documentos[i].Numero);
            EXPECT_EQ(EnTramo(caso.Texto, hallados[i].Donde), caso.Documentos[i].Leido);
        }
    }
}

TEST_F(Documentos, LosNumeros) {
    Comprueba({
        {"", {}},
        {"SIN NUMEROS", {}},
        {"CON D.N.I. NUMERO 12.345.678-Z", {{1, "12345678Z", "12.345.678-Z"}}},
        {"con 12345678z.\r", {{1, "12345678Z", "12345678z"}}},
        {"con (12345678Z), vecino", {{1, "12345678Z", "12345678Z"}}},
        {"D.N.I. 12345\t67\r8\nZ", {{1, "12345678Z", "12345\t67\r8\nZ"}}},
        // Padded on the left.
        {"D.N.I. 1234567-L", {{1, "01234567L", "1234567-L"}}},
        {"N.I.E. X-1234567-L,", {{3, "X1234567L", "X-1234567-L"}}},
        {"D.N.I. X1234567L", {{3, "X1234567L", "X1234567L"}}},
        {"PASAPORTE x1234567l", {{3, "x1234567l", "x1234567l"}}},
        // Six characters at least, once the signs are gone.
        {"REAL 12345, DE 1.999, 1234S", {}},
        {"REAL 123456 AB12-34", {{5, "123456", "123456"}, {5, "AB1234", "AB12-34"}}},
        {"EL 12-03-2001", {{5, "12032001", "12-03-2001"}}},
        // Other signs are part of the number.
        {"CON D.N.I.:12345678Z", {{5, "DNI:12345678Z", "D.N.I.:12345678Z"}}},
        // The first word of the paragraph is never found.
        {"12345678Z", {}},
        {"12345678Z Y 87654321X", {{1, "87654321X", "87654321X"}}},
        {" 12345678Z", {{1, "12345678Z", "12345678Z"}}},
        {"\t12345678Z", {}},
    });
}

TEST_F(Documentos, ElTipoPorLasPalabrasDeDelante) {
    Comprueba({
        {"con 12345678", {{5, "12345678", "12345678"}}},
        {"con d.n.i. 12345678", {{1, "12345678", "12345678"}}},
        {"Permís de residència 12345678"_a, {{3, "12345678", "12345678"}}},
        {"pasaporte AB123456", {{4, "AB123456", "AB123456"}}},
        // The nearest one.
        {"D.N.I. O PASAPORTE 12345678", {{4, "12345678", "12345678"}}},
        {"PASAPORTE O D.N.I. 12345678", {{1, "12345678", "12345678"}}},
        {"PASAPORTE O N.I.E. 12345678", {{3, "12345678", "12345678"}}},
        {"N.I.E. O D.N.I. 12345678", {{1, "12345678", "12345678"}}},
        {"D.N.I. O N.I.E. 12345678", {{3, "12345678", "12345678"}}},
        // Of each kind the leftmost of its entries' last occurrences: N.I.F. here, before the passport...
        {"N.I.F. PASAPORTE D.N.I. 12345678", {{4, "12345678", "12345678"}}},
        // ... unless it comes again.
        {"N.I.F. PASAPORTE D.N.I. N.I.F. 12345678", {{1, "12345678", "12345678"}}},
        {"N.I.F. PASAPORTE N.I.F. 12345678", {{1, "12345678", "12345678"}}},
        // The same word announces two kinds: neither is the nearer.
        {"CARNE 12345678", {{5, "12345678", "12345678"}}},
        {"PASAPORTE Y CARNE 12345678", {{5, "12345678", "12345678"}}},
        {"CARNE Y PASAPORTE 12345678", {{4, "12345678", "12345678"}}},
        // What stands in front reaches up to the number's blank, and no further.
        {"PASS 12345678", {{4, "12345678", "12345678"}}},
        {"CON 12345678 DE PASAPORTE", {{5, "12345678", "12345678"}}},
        {"CON PASAPORTE12345678", {{5, "PASAPORTE12345678", "PASAPORTE12345678"}}},
        // Each number by all that stands in front of it.
        {"D.N.I. 12345678, PASAPORTE AB123456 Y 765432",
         {{1, "12345678", "12345678"}, {4, "AB123456", "AB123456"}, {4, "765432", "765432"}}},
    });
}

TEST_F(Documentos, LaBusquedaSigueDesdeLaPrimeraCifra) {
    Comprueba({
        {"CON 9123456 123DEFGH", {{5, "9123456", "9123456"}, {5, "123DEFGH", "123DEFGH"}}},
        // Three letters before the first digit: three characters of the next word are jumped over.
        {"CON ABC123456 123DEFGH", {{5, "ABC123456", "ABC123456"}}},
        {"CON ABC123456 123DEFGH4", {{5, "ABC123456", "ABC123456"}, {5, "123DEFGH4", "123DEFGH4"}}},
        {"CON ABC123456 Y 123DEFGH", {{5, "ABC123456", "ABC123456"}, {5, "123DEFGH", "123DEFGH"}}},
        {"CON 12 3CDEFGH", {{5, "3CDEFGH", "3CDEFGH"}}},
        {"CON B2 3CDEFGH", {}},
        {"N.I.E. X1234567L 12345678Z", {{3, "X1234567L", "X1234567L"}, {1, "12345678Z", "12345678Z"}}},
    });
}

struct TCasoCif {
    std::string_view Texto;
    std::string_view Cif;
    std::string_view Leido;
};

const std::vector<TCasoCif> CASOS_CIF = {
    {"", "", ""},
    {"SIN CODIGO", "", ""},
    {"CON CIF A58818501", "A58818501", "A58818501"},
    // At the very start and at the very end too.
    {"A58818501", "A58818501", "A58818501"},
    {"CIF A-58.818.501;\r", "A58818501", "A-58.818.501"},
    {"CIF A5881\t8501, FIN", "A58818501", "A5881\t8501"},
    {"\tA58818501\t", "A58818501", "A58818501"},
    // LF ends the word that holds the digit.
    {"A58818501\nB", "A58818501", "A58818501"},
    {"\nA58818501", "A58818501", "A58818501"},
    {"UNO\nA58818501", "UNOA58818501", "UNO\nA58818501"},
    // Seven characters or fewer leave nothing.
    {"B123456", "", ""},
    {"B-12.34.56", "", ""},
    {"X1234567 Y 12", "", ""},
    // Eight do, though nothing was accepted.
    {"X1234567", "X1234567", "X1234567"},
    {"12345678", "12345678", "12345678"},
    {"B1234567", "B1234567", "B1234567"},
    {"B1234567A", "B1234567A", "B1234567A"},
    {"B12345675.", "B12345675", "B12345675"},
    {"J58818501", "J58818501", "J58818501"},
    {"(A58818501)", "(A58818501)", "(A58818501)"},
    {"B123456740", "B123456740", "B123456740"},
    {"X1234567 Y Z7654321", "Z7654321", "Z7654321"},
    // The search ends with the first one accepted, and goes on after others.
    {"A58818501 Y B12345674", "A58818501", "A58818501"},
    {"b12345674, A58818501", "A58818501", "A58818501"},
    {"A58818501 X1234567 12", "A58818501", "A58818501"},
    // It goes on from the first digit by the word's length, so the lonely digit is jumped over.
    {"X1234567 1", "X1234567", "X1234567"},
    {"01234567 1", "", ""},
    {"ABCD123 12B A58818501", "A58818501", "A58818501"},
};

TEST(Cif, BuscaCif) {
    for (const auto& caso : CASOS_CIF) {
        SCOPED_TRACE(caso.Texto);
        const THallazgo<std::string> hallado = BuscaCif(caso.Texto);
        EXPECT_EQ(hallado.Valor, caso.Cif);
        EXPECT_EQ(EnTramo(caso.Texto, hallado.Donde), caso.Leido);
    }
}

// Asking from a position is the same as asking about the text cut there, in whatever order one asks.
TEST(Cif, DesdeUnaPosicionEsComoElTextoCortado) {
    std::string texto;
    for (const auto& caso : CASOS_CIF) texto.append(caso.Texto).append(" ");
    texto += "AB1 2CD34 EFG567 8 X1234567 AAA1 23 B1\t2345678 C\n1 Y12345678";
    for (const bool alReves : {false, true}) {
        TBuscadorCif buscador(texto);
        for (std::size_t i = 0; i <= texto.size(); ++i) {
            const std::size_t desde = alReves ? texto.size() - i : i;
            const THallazgo<std::string> cortado = BuscaCif(std::string_view(texto).substr(desde));
            const THallazgo<std::string> hallado = buscador.Desde(desde);
            ASSERT_EQ(hallado.Valor, cortado.Valor) << desde;
            ASSERT_EQ(hallado.Donde.Longitud, cortado.Donde.Longitud) << desde;
            if (hallado.Donde.Longitud != 0) {
                ASSERT_EQ(hallado.Donde.Primera, desde + cortado.Donde.Primera) << desde;
            }
        }
    }
}

}  // namespace

}  // namespace analizador

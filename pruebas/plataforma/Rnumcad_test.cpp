#include "plataforma/Rnumcad.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <map>
#include <string>

#include "plataforma/Ansi.h"

namespace analizador {
namespace {

TEST(TraduceCaracteresExtranosDeWord, LosDoscientosCincuentaYSeisBytes) {
    std::map<unsigned char, std::string> cambios;
    const auto pasanA = [&](std::string_view signos, const std::string& plano) {
        for (const char c : signos) cambios[static_cast<unsigned char>(c)] = plano;
    };
    pasanA("“”„«»‹›"_ansi, "\"");
    pasanA("‘’‚´`"_ansi, "'");
    pasanA("–—\x1E"_ansi, "-");
    pasanA("\t\u00A0\v\f\x0E"_ansi, " ");
    pasanA("…"_ansi, ".");
    pasanA("\x01\x02\x05\x07\x08\x1F\u00AD"_ansi, "");
    for (int c = 0; c < 256; ++c) {
        const std::string texto(1, static_cast<char>(c));
        const auto cambio = cambios.find(static_cast<unsigned char>(c));
        EXPECT_EQ(TraduceCaracteresExtranosDeWord(texto), cambio == cambios.end() ? texto : cambio->second)
            << "byte " << c;
    }
}

TEST(TraduceCaracteresExtranosDeWord, Frases) {
    EXPECT_EQ(TraduceCaracteresExtranosDeWord("“NORTE, S.L.” –en\u00A0junta…\r"_ansi),
              "\"NORTE, S.L.\" -en junta.\r");
    EXPECT_EQ(TraduceCaracteresExtranosDeWord("com\x1Fpra\u00ADventa\r\x07"_ansi), "compraventa\r");
}

TEST(Rnumcad, QuitaYCuentaCaracteres) {
    EXPECT_EQ(QuitaCaracteres("12.345.678-Z", ".-"), "12345678Z");
    EXPECT_EQ(QuitaCaracteres("abc", ""), "abc");
    EXPECT_EQ(QuitaCaracter("1.234.567", '.'), "1234567");
    EXPECT_EQ(CuentaCaracter("1.234.567", '.'), 2);
    EXPECT_EQ(CuentaCaracter("", '.'), 0);
}

TEST(Rnumcad, StrLeftYStrRight) {
    const struct {
        int N;
        std::string_view Izquierda, Derecha;
    } casos[] = {{-1, "", ""}, {0, "", ""}, {2, "CA", "SA"}, {4, "CASA", "CASA"}, {9, "CASA", "CASA"}};
    for (const auto& [n, izquierda, derecha] : casos) {
        EXPECT_EQ(StrLeft("CASA", n), izquierda) << n;
        EXPECT_EQ(StrRight("CASA", n), derecha) << n;
    }
}

TEST(Rnumcad, PosYRightPos) {
    const struct {
        std::string_view Buscado, Texto;
        int Primera, Ultima;
    } casos[] = {{"DE", "DEUDOR DE", 1, 8},
                 {"X", "DEUDOR", 0, 0},
                 {"", "DEUDOR", 0, 0},
                 {"DEUDOR", "DEUDOR", 1, 1},
                 {"A", "", 0, 0}};
    for (const auto& [buscado, texto, primera, ultima] : casos) {
        EXPECT_EQ(Pos(buscado, texto), primera) << buscado;
        EXPECT_EQ(RightPos(buscado, texto), ultima) << buscado;
    }
}

TEST(Rnumcad, RecortaBlancosTabuladoresYFinesDeLinea) {
    EXPECT_EQ(Recorta(" \t\r\nUN NOMBRE \r\n"), "UN NOMBRE");
    EXPECT_EQ(RecortaIzquierda(" \tA "), "A ");
    EXPECT_EQ(RecortaDerecha(" A\r\n "), " A");
    EXPECT_EQ(Recorta(" \t "), "");
    EXPECT_EQ(Recorta(""), "");
    EXPECT_EQ(Recorta("\u00A0A"_ansi), "\u00A0A"_ansi);
}

TEST(Rnumcad, EnteroDeCadena) {
    const struct {
        std::string_view Texto;
        std::optional<int> Numero;
    } casos[] = {{"12", 12},
                 {" 28001 ", 28001},
                 {"-7", -7},
                 {"+7", 7},
                 {"007", 7},
                 {"2147483647", 2147483647},
                 {"0", 0},
                 {"2147483648", std::nullopt},
                 {"-2147483648", std::numeric_limits<int>::min()},
                 {"-2147483649", std::nullopt},
                 {"", std::nullopt},
                 {" ", std::nullopt},
                 {"+", std::nullopt},
                 {"-", std::nullopt},
                 {"+-5", std::nullopt},
                 {"--5", std::nullopt},
                 {"1 2", std::nullopt},
                 {"1.000", std::nullopt},
                 {"12A", std::nullopt},
                 {"$1F", std::nullopt},
                 {"0x1F", std::nullopt},
                 {"1e3", std::nullopt},
                 {"12\r", std::nullopt}};
    for (const auto& [texto, numero] : casos) {
        EXPECT_EQ(EnteroDeCadena(texto), numero) << texto;
        EXPECT_EQ(Cad_Int(texto), numero.value_or(0)) << texto;
    }
    EXPECT_EQ(Int_Cad(-12), "-12");
}

TEST(Rnumcad, StrCeros) {
    EXPECT_EQ(StrCeros("1234567L", 9), "01234567L");
    EXPECT_EQ(StrCeros("12345", 3), "12345");
    EXPECT_EQ(StrCeros("", 2), "00");
    EXPECT_EQ(StrCeros("7", -1), "7");
    EXPECT_EQ(StrCeros(2, 2), "02");
    EXPECT_EQ(StrCeros(2006, 2), "2006");
    EXPECT_EQ(StrCeros(-1, 2), "-1");
}

TEST(Rnumcad, RealDeCadena) {
    const struct {
        std::string Texto;
        std::optional<double> Numero;
    } casos[] = {{"3,5", 3.5},
                 {"3.5", 3.5},
                 {"1234,", 1234},
                 {",5", 0.5},
                 {".5", 0.5},
                 {" -0,25 ", -0.25},
                 {"+7", 7},
                 {"1500000,50", 1500000.5},
                 {"1.500,50", std::nullopt},
                 {"1,2,3", std::nullopt},
                 {"", std::nullopt},
                 {",", std::nullopt},
                 {"-", std::nullopt},
                 {"+-1", std::nullopt},
                 {"--1", std::nullopt},
                 {"1 2", std::nullopt},
                 {"1e3", std::nullopt},
                 {"0x10", std::nullopt},
                 {"inf", std::nullopt},
                 {"nan", std::nullopt},
                 {"EUROS", std::nullopt},
                 {std::string(400, '9'), std::nullopt},
                 {"-" + std::string(400, '9'), std::nullopt},
                 {"0," + std::string(400, '0') + "1", 0.0}};
    for (const auto& [texto, numero] : casos) {
        EXPECT_EQ(RealDeCadena(texto), numero) << texto;
        EXPECT_EQ(Cad_Float(texto), numero.value_or(0)) << texto;
    }
}

TEST(Rnumcad, FloatCadEsLoMasCortoYSinExponente) {
    const struct {
        double Numero;
        std::string Texto;
    } casos[] = {{0, "0"},
                 {3.5, "3,5"},
                 {0.1, "0,1"},
                 {-2.25, "-2,25"},
                 {1e15, "1000000000000000"},
                 {1e-7, "0,0000001"},
                 {1500000.5, "1500000,5"},
                 {4, "4"},
                 {1e22, "1" + std::string(22, '0')}};
    for (const auto& [numero, texto] : casos) EXPECT_EQ(Float_Cad(numero), texto);
}

TEST(Rnumcad, FloatCadVuelveASerElMismoNumero) {
    std::uint64_t semilla = 1;
    int probados = 0;
    while (probados < 20000) {
        semilla = semilla * 6364136223846793005U + 1442695040888963407U;
        const auto numero = std::bit_cast<double>(semilla);
        if (!std::isfinite(numero)) continue;
        ++probados;
        ASSERT_EQ(RealDeCadena(Float_Cad(numero)), numero);
    }
    for (const double extremo :
         {std::numeric_limits<double>::max(), std::numeric_limits<double>::lowest(),
          std::numeric_limits<double>::min(), std::numeric_limits<double>::denorm_min()})
        EXPECT_EQ(RealDeCadena(Float_Cad(extremo)), extremo);
}

}  // namespace
}  // namespace analizador

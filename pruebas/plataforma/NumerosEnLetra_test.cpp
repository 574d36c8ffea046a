#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "plataforma/Ansi.h"
#include "plataforma/Rut.h"

namespace analizador {
namespace {

struct TCaso {
    std::string_view Texto;
    int Numero;
};

void Comprueba(std::initializer_list<TCaso> casos, bool catalan) {
    for (const auto& [texto, numero] : casos) {
        EXPECT_EQ(ConvierteNumeroDeCadenaAEnteroNvx(texto, catalan), numero) << Utf8DeAnsi(texto);
        EXPECT_EQ(ConvierteNumeroDeCadenaAEnteroNvx(Pliega(texto), catalan), numero) << Utf8DeAnsi(texto);
    }
}

TEST(NumerosEnLetra, Castellano) {
    Comprueba({{"CERO", 0},
               {"UNO", 1},
               {"una", 1},
               {"PRIMERO", 1},
               {"primer", 1},
               {"dieciséis"_ansi, 16},
               {"DIEZ Y SEIS", 16},
               {"diez y nueve", 19},
               {"VEINTIUNO", 21},
               {"veintiún"_ansi, 21},
               {"VEINTIUNA", 21},
               {"VEINTE Y UNO", 21},
               {"veintidós"_ansi, 22},
               {"VEINTE Y DOS", 22},
               {"VEINTI DOS", 22},
               {"TREINTA Y UNA", 31},
               {"TREINTAIUNO", 31},
               {"TREINTAYUNO", 31},
               {"TREINTA-Y-UNO", 31},
               {"CIEN", 100},
               {"CIENTO", 100},
               {"CIENTO UNO", 101},
               {"CIENTO Y CINCO", 105},
               {"CIENTOSEIS", 106},
               {"CIENTO SETENTA Y SIETE", 177},
               {"DOSCIENTAS", 200},
               {"DOS CIENTOS", 200},
               {"DOSCIENTOS SEIS", 206},
               {"TRESCIENTAS CUARENTA Y DOS", 342},
               {"QUINIENTAS", 500},
               {"SETECIENTOS", 700},
               {"SIETECIENTOS", 700},
               {"NOVECIENTOS NOVENTA Y NUEVE", 999},
               {"NUEVECIENTOS", 900}},
              false);
}

TEST(NumerosEnLetra, CastellanoDeMilArriba) {
    Comprueba(
        {{"MIL", 1000},
         {"UN MIL", 1000},
         {"MIL DOS", 1002},
         {"MIL Y DOS", 1002},
         {"MIL DOSCIENTOS CUATRO", 1204},
         {"MIL NOVECIENTOS NOVENTA Y NUEVE", 1999},
         {"DoS MIL", 2000},
         {"DOS MIL,UNO", 2001},
         {"DOS MIL VEINTIUNO", 2021},
         {"DOSMIL VEINTE", 2020},
         {"VEINTIUN MIL", 21000},
         {"VEINTIÚN MIL"_ansi, 21000},
         {"VEINTIUNO MIL", 21000},
         {"VEINTIUNA MIL", 21000},
         {"TREINTA Y UN MIL CIEN", 31100},
         {"CIEN MIL", 100000},
         {"CIENTO VEINTE MIL", 120000},
         {"DOSCIENTAS MIL DOSCIENTAS", 200200},
         {"UN MILLON", 1000000},
         {"millón"_ansi, 1000000},
         {"UN MILLÓN UNO"_ansi, 1000001},
         {"UN MILLON, DOSCIENTOS MIL", 1200000},
         {"DOS MILLONES MIL", 2001000},
         {"VEINTIUN MILLONES TRESCIENTOS MIL CINCO", 21300005},
         {"MIL MILLONES", 1000000000},
         {"UN MILLARDO", 1000000000},
         {"UN MILLARDO CIEN MILLONES TRES", 1100000003},
         {"MIL CIEN MILLONES", 1100000000},
         {"DOS MIL CIENTO CUARENTA Y SIETE MILLONES CUATROCIENTOS OCHENTA Y TRES MIL SEISCIENTOS CUARENTA Y "
          "SIETE",
          2147483647},
         {"DOS MIL CIENTO CUARENTA Y SIETE MILLONES CUATROCIENTOS OCHENTA Y TRES MIL SEISCIENTOS CUARENTA Y "
          "OCHO",
          0},
         {"CUATRO MIL DOSCIENTOS NOVENTA Y CINCO MILLONES", 0},
         {"TRES MILLARDOS", 0},
         {"NOVECIENTOS MIL MILLONES", 0}},
        false);
}

TEST(NumerosEnLetra, Catalan) {
    Comprueba({{"ZERO", 0},
               {"U", 1},
               {"UNA", 1},
               {"PRIMER", 1},
               {"DUES", 2},
               {"HUIT", 8},
               {"QUATORZE", 14},
               {"DESSET", 17},
               {"DIHUIT", 18},
               {"DENOU", 19},
               {"VINT-I-U", 21},
               {"VINT-I-UN", 21},
               {"VINT-I-DOS", 22},
               {"VINT I DOS", 22},
               {"VINTIDOS", 22},
               {"vint-i-dues", 22},
               {"TRENTA-U", 31},
               {"TRENTA U", 31},
               {"TRENTAUNA", 31},
               {"TRENTA I UN", 31},
               {"SIXANTA-SIS", 66},
               {"HUITANTA-HUIT", 88},
               {"CENT", 100},
               {"CENT DIVUIT", 118},
               {"CENTSIS", 106},
               {"CENT SETANTA-SET", 177},
               {"DOS-CENTS", 200},
               {"DOS CENTS", 200},
               {"DOSCENTS", 200},
               {"DUES-CENTES", 200},
               {"QUATRE-CENTS", 400},
               {"CINC-CENTS", 500},
               {"CINCENTS", 500},
               {"CINCCENTS", 500},
               {"SETCENTS SETANTA SET", 777},
               {"MIL VUIT-CENTS QUARANTA-SET", 1847},
               {"MIL I UN", 1001},
               {"DOS MIL DINOU", 2019},
               {"DUES MIL", 2000},
               {"VINT-I-UN MIL", 21000},
               {"UN MILIÓ"_ansi, 1000000},
               {"UN MILLO", 1000000},
               {"DOS MILIONS CENT MIL", 2100000},
               {"DOS MILLONS", 2000000},
               {"MIL MILIONS", 1000000000},
               {"UN MILIARD", 1000000000},
               {"DOS MIL CENT QUARANTA-VUIT MILIONS", 0}},
              true);
}

TEST(NumerosEnLetra, EnCifras) {
    for (const bool catalan : {false, true})
        Comprueba({{"12", 12},
                   {"0012", 12},
                   {"1.002", 1002},
                   {"12.345.678", 12345678},
                   {" 1002. ", 1002},
                   {"1.002,", 1002},
                   {"2147483647", 2147483647},
                   {"2.147.483.648", 0},
                   {"99999999999999999999999999", 0},
                   {"0", 0},
                   {"12.34", 0},
                   {"1234.567", 0},
                   {".567", 0},
                   {"1.002,50", 0},
                   {"1 002", 0},
                   {"-5", 0},
                   {"+5", 0},
                   {"12A", 0},
                   {"2 MIL", 0},
                   {"MIL 2", 0}},
                  catalan);
}

TEST(NumerosEnLetra, LoQueAcabaElNumero) {
    Comprueba({{"MIL DOS (1.002)", 1002},
               {"MIL DOS(1.002)", 1002},
               {"MIL DOS [1.002]", 1002},
               {"1.002 (MIL DOS)", 1002},
               {"OCHO ----", 8},
               {"OCHO----------- PALABRAS", 8},
               {"OCHO.- EN MADRID", 8},
               {"OCHO **", 8},
               {"OCHO == NUEVE", 8},
               {"OCHO __", 8},
               {"OCHO ~~", 8},
               {"OCHO ..", 8},
               {"1.002.-", 1002},
               {"1.002 ====", 1002},
               {"==== MIL DOS ====", 1002},
               {"---- 1.002 ----", 1002},
               {"(MIL DOS)", 0},
               {"MIL DOS.", 1002},
               {"MIL DOS;", 1002},
               {"MIL DOS,", 1002},
               {"MIL DOS\"", 1002},
               {"MIL DOS -", 1002},
               {" \tMIL \r\n DOS\r", 1002},
               {"MIL\u00A0"
                "DOS\v"_ansi,
                1002},
               {"MIL = DOS", 0},
               {"MIL * DOS", 0},
               {"MIL: DOS", 0}},
              false);
    Comprueba({{"VINT-I-DOS", 22}, {"VINT--I--DOS", 20}, {"VINT - I - DOS", 22}}, true);
}

TEST(NumerosEnLetra, LoQueNoEsUnNumero) {
    Comprueba({{"", 0},
               {"   ", 0},
               {"----", 0},
               {"DOS TRES", 0},
               {"UNO DOS", 0},
               {"ONCE DOS", 0},
               {"DIEZ DOS", 0},
               {"DIEZ Y DOS", 0},
               {"VEINTE DIEZ", 0},
               {"VEINTE Y DIEZ", 0},
               {"TREINTA CINCO", 0},
               {"TREINTA Y", 0},
               {"Y DOS", 0},
               {"VEINTI", 0},
               {"DIECI", 0},
               {"DIECIUNO", 0},
               {"CIEN DOS", 0},
               {"CIENTO CIENTO", 0},
               {"CIENTO DOSCIENTOS", 0},
               {"DOSCIENTOS CIENTO", 0},
               {"CIENTO MIL DOSCIENTOS CIENTO", 0},
               {"MIL MIL", 0},
               {"MIL DOS MIL", 0},
               {"CERO MIL", 0},
               {"CERO CINCO", 0},
               {"MILLONES", 0},
               {"UN MILLONES", 0},
               {"DOS MILLON", 0},
               {"UN MILLON UN MILLON", 0},
               {"MIL MILLARDOS", 0},
               {"UN MILLARDO MIL MILLONES", 0},
               {"UN BILLON", 0},
               {"PRIMERO MIL", 0},
               {"SEGUNDO", 0},
               {"QUIN]ENTOS", 0},
               {"CIENTOS", 0},
               {"UNCIENTOS", 0},
               {"DOS,TRES", 0},
               {"DOS DE", 0},
               {"EL NUMERO DOS", 0},
               {"DOS CON CINCO", 0},
               {"DOSX", 0},
               {"D OS", 0},
               {"CINCO MIL EUROS", 0},
               {"VINT-I-DOS", 0},
               {"QUATRE", 0}},
              false);
    Comprueba({{"DOS TRES", 0},
               {"VINT DOS", 0},
               {"CENT CENTS", 0},
               {"UN CENTS", 0},
               {"DOS CENT", 0},
               {"DEU DOS", 0},
               {"MILIONS", 0},
               {"UN MILIONS", 0},
               {"VEINTIDOS", 0},
               {"CUATRO", 0},
               {"TRENTA I", 0}},
              true);
}

// Whatever bytes come, an answer comes, and what is accepted is never negative.
TEST(NumerosEnLetra, BytesCualesquiera) {
    static constexpr std::string_view TROZOS[] = {"DOS", "CIENTOS", "CIEN",  "MIL",  "MILLON", "ES",  "Y",
                                                  "I",   "VEINTI",  "CENTS", "VINT", "U",      "-",   "--",
                                                  ".",   "(",       " ",     ",",    "9",      "\xFF"};
    std::uint32_t semilla = 12345;
    const auto azar = [&](std::uint32_t n) {
        semilla = semilla * 1664525U + 1013904223U;
        return (semilla >> 8) % n;
    };
    for (int vez = 0; vez < 20000; ++vez) {
        std::string texto;
        for (auto longitud = azar(20); longitud > 0; --longitud) {
            if (vez % 2 == 0)
                texto += static_cast<char>(azar(256));
            else
                texto += TROZOS[azar(std::size(TROZOS))];
        }
        ASSERT_GE(ConvierteNumeroDeCadenaAEnteroNvx(texto, vez % 3 == 0), 0) << texto;
    }
}

// A reader that went back over the text would not end today.
TEST(NumerosEnLetra, TextosLarguisimos) {
    constexpr std::size_t VECES = 200'000;
    std::string miles, cientos;
    for (std::size_t i = 0; i < VECES; ++i) {
        miles += "MIL ";
        cientos += "CIENTO Y ";
    }
    EXPECT_EQ(ConvierteNumeroDeCadenaAEnteroNvx(miles, false), 0);
    EXPECT_EQ(ConvierteNumeroDeCadenaAEnteroNvx(cientos, false), 0);
    EXPECT_EQ(ConvierteNumeroDeCadenaAEnteroNvx("MIL" + std::string(VECES, ' ') + "DOS", false), 1002);
    EXPECT_EQ(
        ConvierteNumeroDeCadenaAEnteroNvx(std::string(VECES, '-') + "DOS" + std::string(VECES, '-'), false),
        2);
    EXPECT_EQ(ConvierteNumeroDeCadenaAEnteroNvx(std::string(VECES, '9'), false), 0);
    EXPECT_EQ(ConvierteNumeroDeCadenaAEnteroNvx(std::string(VECES, '0') + "7", false), 7);
}

}  // namespace
}  // namespace analizador

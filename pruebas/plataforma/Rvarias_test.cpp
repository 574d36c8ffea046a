#include "plataforma/Rvarias.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

namespace analizador {
namespace {

struct TCaso {
    std::string_view Numero;
    bool Vale;
};

TEST(Rvarias, EsNif) {
    const TCaso casos[] = {
        {"12345678Z", true},   {"12345678z", true},   {"00000000T", true},   {"1234567L", true},
        {"01234567L", true},   {"0T", true},          {"99999999R", true},   {"K0867756N", true},
        {"L2871288Z", true},   {"M1234567L", true},   {"m1234567l", true},   {"12345678A", false},
        {"12345678", false},   {"123456789Z", false}, {"012345678Z", false}, {"12.345.678-Z", false},
        {"12345678-Z", false}, {" 12345678Z", false}, {"", false},           {"T", false},
        {"K086775N", false},   {"K0867756A", false},  {"X2482300W", false},  {"A13585625", false},
        {"-1234567L", false},  {"+1234567L", false},  {"1234 567L", false},  {"12345678I", false},
        {"KKK", false}};
    for (const auto& [numero, vale] : casos) {
        EXPECT_EQ(EsNif(numero, false), vale) << numero;
        EXPECT_EQ(EsNif(numero, true), vale) << numero;
    }
}

TEST(Rvarias, CadaLetraDeControl) {
    const std::string letras = "TRWAGMYFPDXBNJZSQVHLCKE";
    for (int resto = 0; resto < 23; ++resto)
        for (char letra = 'A'; letra <= 'Z'; ++letra)
            EXPECT_EQ(EsNif(std::to_string(23 * 434782 + resto) + letra, false),
                      letra == letras[static_cast<std::size_t>(resto)])
                << resto << letra;
}

TEST(Rvarias, EsUnNie) {
    const TCaso casos[] = {
        {"X2482300W", true},   {"x2482300w", true}, {"X5253868R", true},  {"Y0000000Z", true},
        {"Z0000000M", true},   {"X0000000T", true}, {"X2482300A", false}, {"X2482300", false},
        {"X02482300W", false}, {"X248230W", false}, {"W2482300W", false}, {"X-2482300-W", false},
        {"12345678Z", false},  {"", false},         {"X", false},         {"X24823O0W", false}};
    for (const auto& [numero, vale] : casos) EXPECT_EQ(EsUnNie(numero, false), vale) << numero;
}

TEST(Rvarias, EsUnCif) {
    const TCaso casos[] = {{"A13585625", true},  {"a13585625", true},   {"B58378431", true},
                           {"B64717838", true},  {"B64717839", false},  {"J99216582", true},
                           {"J99216583", false}, {"J992165831", false}, {"M1234567L", false},
                           {"O1234567L", false}, {"B5837843", false},   {"B-58378431", false},
                           {"", false},          {"B5837843A", false},  {"X2482300W", false},
                           {"I58378431", false}, {"T58378431", false},  {"B58A78431", false}};
    for (const auto& [numero, vale] : casos) EXPECT_EQ(EsUnCif(numero, true), vale) << numero;
}

// For the seven digits 5837843 the control digit is 1 and the control letter A.
TEST(Rvarias, QueControlLlevaCadaLetraDeSociedad) {
    const std::string conCifra = "ABEH";
    const std::string conLetra = "KPQSNRW";
    const std::string conUnaUOtra = "CDFGJUV";
    for (char inicial = 'A'; inicial <= 'Z'; ++inicial) {
        const auto es = [&](const std::string& letras) { return letras.find(inicial) != std::string::npos; };
        const std::string cifras = inicial + std::string("5837843");
        EXPECT_EQ(EsUnCif(cifras + "1", true), es(conCifra) || es(conUnaUOtra)) << inicial;
        EXPECT_EQ(EsUnCif(cifras + "A", true), es(conLetra) || es(conUnaUOtra)) << inicial;
        EXPECT_FALSE(EsUnCif(cifras + "2", true)) << inicial;
        EXPECT_FALSE(EsUnCif(cifras + "B", true)) << inicial;
    }
}

TEST(Rvarias, FormateaDNI) {
    const struct {
        std::string_view Numero, Impreso;
    } casos[] = {{"12345678Z", "12345678Z"},
                 {"12345678z", "12345678Z"},
                 {"12.345.678-Z", "12345678Z"},
                 {"1234567L", "01234567L"},
                 {"01234567L", "01234567L"},
                 {"1.234.567-l", "01234567L"},
                 {"k0867756n", "K0867756N"},
                 {"12.345.678-a", "12345678A"},
                 {"1234567a", "1234567A"},
                 {"x-2482300-w", "X2482300W"},
                 {"", ""}};
    for (const auto& [numero, impreso] : casos) EXPECT_EQ(FormateaDNI(numero), impreso) << numero;
}

TEST(Rvarias, EsFechaValida) {
    const struct {
        int Dia, Mes, Anno;
        bool Vale;
    } casos[] = {{1, 1, 1900, true},   {31, 12, 9999, true},  {1, 1, 1, true},      {29, 2, 2000, true},
                 {29, 2, 2024, true},  {29, 2, 1900, false},  {29, 2, 2023, false}, {30, 2, 2024, false},
                 {31, 4, 2006, false}, {30, 4, 2006, true},   {0, 1, 2006, false},  {32, 1, 2006, false},
                 {1, 0, 2006, false},  {1, 13, 2006, false},  {1, 1, 0, false},     {1, 1, 10000, false},
                 {-1, 1, 2006, false}, {257, 1, 2006, false}, {1, 257, 2006, false}};
    for (const auto& [dia, mes, anno, vale] : casos)
        EXPECT_EQ(EsFechaValida(dia, mes, anno), vale) << dia << '/' << mes << '/' << anno;
}

TEST(Rvarias, VerificaFecha) {
    using namespace std::chrono;
    const struct {
        std::string_view Texto, Fecha;  // empty when refused
    } casos[] = {
        {"07/03/1965", "07/03/1965"},
        {"7/3/1965", "07/03/1965"},
        {" 7 / 3 / 1 9 6 5 ", "07/03/1965"},
        {"7 /3 /65  ", "07/03/1965"},
        {"31/12/24", "31/12/2024"},  // the year is what must not be in the future
        {"01/01/25", "01/01/1925"},
        {"01/01/00", "01/01/2000"},
        {"29/02/00", "29/02/2000"},
        {"29/02/2000", "29/02/2000"},
        {"01/01/1900", "01/01/1900"},
        {"01/01/2090", "01/01/2090"},
        {"31/12/9999", "31/12/9999"},
        {"31/02/2001", ""},
        {"29/02/1900", ""},
        {"29/02/2023", ""},
        {"31/12/1899", ""},
        {"01/01/0001", ""},
        {"00/01/2000", ""},
        {"01/00/2000", ""},
        {"32/01/2000", ""},
        {"01/13/2000", ""},
        {"01/01/200", ""},
        {"01/01/2", ""},
        {"01/01/20000", ""},
        {"001/01/2000", ""},
        {"01/001/2000", ""},
        {"/01/2000", ""},
        {"01//2000", ""},
        {"01/01/", ""},
        {"01/01", ""},
        {"01/01/20/00", ""},
        {"01-01-2000", ""},
        {"01012000", ""},
        {"+1/01/2000", ""},
        {"-1/01/2000", ""},
        {"1a/01/2000", ""},
        {"", ""},
        {"  /  /    ", ""},
        {"//", ""},
        {"1", ""},
    };
    for (const auto& [texto, fecha] : casos) {
        const auto leida = VerificaFecha(texto, year(2024) / 6 / 15);
        EXPECT_EQ(leida ? Fecha_Cad(*leida) : "", fecha) << texto;
    }
}

TEST(Rvarias, AnnosDeDosCifras) {
    using namespace std::chrono;
    const struct {
        int Hoy;
        std::string_view Texto, Fecha;
    } casos[] = {{1999, "1/1/99", "01/01/1999"},
                 {1999, "1/1/00", "01/01/1900"},
                 {2000, "1/1/00", "01/01/2000"},
                 {2000, "1/1/01", "01/01/1901"},
                 {2100, "1/1/01", "01/01/2001"},
                 {2100, "1/1/00", "01/01/2100"},
                 {1990, "1/1/95", ""}};  // 1895
    for (const auto& [hoy, texto, fecha] : casos) {
        const auto leida = VerificaFecha(texto, year(hoy) / 1 / 1);
        EXPECT_EQ(leida ? Fecha_Cad(*leida) : "", fecha) << hoy << " " << texto;
    }
}

}  // namespace
}  // namespace analizador

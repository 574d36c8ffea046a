#include <gtest/gtest.h>

#include "plataforma/Ansi.h"
#include "programas/creatablas/CreaTablas.h"
#include "programas/creatablas/LectorCsv.h"

namespace analizador {
namespace {

using TCampos = std::vector<std::string>;

TEST(LectorCsv, LeeLosCamposYSuLinea) {
    const struct {
        std::string_view Csv;
        std::vector<std::pair<int, TCampos>> Registros;
    } casos[] = {
        {"", {}},
        {"\n\n", {}},
        {"A", {{1, {"A"}}}},
        {"A,B\nC,D\n", {{1, {"A", "B"}}, {2, {"C", "D"}}}},
        {"A,B\r\nC,\r\n", {{1, {"A", "B"}}, {2, {"C", ""}}}},
        {"\xEF\xBB\xBF"
         "A\n\n,\n",
         {{1, {"A"}}, {3, {"", ""}}}},
        {"\"A,\"\"B\"\"\",C\n", {{1, {"A,\"B\"", "C"}}}},
        {"\"A\nB\",C\nD", {{1, {"A\nB", "C"}}, {3, {"D"}}}},
        {"\"\",\"\"\n", {{1, {"", ""}}}},
        {" A , B \n", {{1, {" A ", " B "}}}},
        {"A\rB\n", {{1, {"A\rB"}}}},
    };
    for (const auto& caso : casos) {
        TLectorCsv lector(caso.Csv);
        std::vector<std::pair<int, TCampos>> leidos;
        while (const auto registro = lector.Siguiente())
            leidos.emplace_back(registro->Linea, registro->Campos);
        EXPECT_EQ(leidos, caso.Registros) << caso.Csv;
    }
}

TEST(LectorCsv, UnasComillasMalPuestasSonUnError) {
    const struct {
        std::string_view Csv;
        int Linea;
    } casos[] = {
        {"A\n\"B", 2}, {"\"A\nB\nC", 1}, {"A\nB\"C\"", 2}, {"\"A\"B", 1}, {"\"A\n\"\nX,\"B\" ,C", 3}};
    for (const auto& caso : casos) {
        TLectorCsv lector(caso.Csv);
        try {
            while (lector.Siguiente()) {
            }
            ADD_FAILURE() << caso.Csv;
        } catch (const ErrorCsv& error) {
            EXPECT_EQ(error.Linea, caso.Linea) << caso.Csv;
        }
    }
}

const TEsquema ESQUEMA = {"PRUEBA",
                          {{"NOMBRE", TTipoColumna::Texto, 4},
                           {"NUMERO", TTipoColumna::Numero, 3},
                           {"VALE", TTipoColumna::Logico, 1}}};

TEST(FilasDeCsv, ConvierteA1252) {
    const auto filas = FilasDeCsv("NOMBRE,NUMERO,VALE\nMUÑ€,-12,T\n,,\n", ESQUEMA);
    ASSERT_EQ(filas.size(), 2U);
    EXPECT_EQ(filas[0], (TFilaDbf{std::string("MUÑ€"_ansi), "-12", "T"}));
    EXPECT_EQ(filas[1], (TFilaDbf{"", "", ""}));
    EXPECT_TRUE(FilasDeCsv("NOMBRE,NUMERO,VALE\n", ESQUEMA).empty());
}

TEST(FilasDeCsv, LoQueNoCabeEsUnErrorConSuLinea) {
    const std::string cabecera = "NOMBRE,NUMERO,VALE\nANA,1,T\n";
    const struct {
        std::string Csv;
        int Linea;
        std::string_view Causa;
    } casos[] = {
        {"", 1, "vacío"},
        {"NOMBRE,NUMERO\n", 1, "NOMBRE,NUMERO,VALE"},
        {"NUMERO,NOMBRE,VALE\n", 1, "cabecera"},
        {"nombre,NUMERO,VALE\n", 1, "cabecera"},
        {cabecera + "ANA,1", 3, "2 campos"},
        {cabecera + "ANA,1,T,", 3, "4 campos"},
        {cabecera + "\nANABEL,1,T", 4, "campo NOMBRE: no cabe en 4 caracteres: ANABEL"},
        {cabecera + "ANA,1234,T", 3, "campo NUMERO"},
        {cabecera + "ANA,1.5,T", 3, "no es un número entero: 1.5"},
        {cabecera + "ANA,0x1,T", 3, "NUMERO"},
        {cabecera + "ANA,1,S", 3, "campo VALE"},
        {cabecera + "ЖЖ,1,T", 3, "1252"},
        {cabecera + "A\xFF,1,T", 3, "1252"},
        {cabecera + "\"ANA,1,T", 3, "comillas"},
    };
    for (const auto& caso : casos) {
        try {
            static_cast<void>(FilasDeCsv(caso.Csv, ESQUEMA));
            ADD_FAILURE() << caso.Csv;
        } catch (const ErrorCsv& error) {
            EXPECT_EQ(error.Linea, caso.Linea) << caso.Csv;
            EXPECT_NE(std::string(error.what()).find(caso.Causa), std::string::npos) << error.what();
        }
    }
}

}  // namespace
}  // namespace analizador

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "plataforma/Ansi.h"
#include "plataforma/Rut.h"
#include "pruebas/dbase/ConstructorDbf.h"

namespace analizador {
namespace {

TFichero DeNombres(const std::vector<std::string_view>& nombres) {
    TFichero fichero{.Campos = {{"NOMBRE", 'C', 12}, {"ORDEN", 'N', 4}}};
    int orden = 0;
    for (const std::string_view nombre : nombres)
        fichero.Filas.push_back({std::string(nombre), std::to_string(++orden)});
    return fichero;
}

TEST(Indices, OrdenanPorElPlegadoYLuegoPorElTexto) {
    static constexpr std::string_view GUARDADOS[] = {"MUÑOZ"_ansi, "zoe",   "Álvaro"_ansi, "ALVARO", "MUNOZ",
                                                     "",           "ana b", "ANA",         "MUZ"};
    static constexpr std::string_view ORDENADOS[] = {"",      "ALVARO", "Álvaro"_ansi, "ANA", "ana b",
                                                     "MUNOZ", "MUZ",    "MUÑOZ"_ansi,  "zoe"};
    const auto tabla = TablaDe(DeNombres({std::begin(GUARDADOS), std::end(GUARDADOS)}), "PILA", "NOMBRE");
    const std::vector<std::string> esperados(std::begin(ORDENADOS), std::end(ORDENADOS));
    EXPECT_EQ(Columna(*tabla, "NOMBRE"), esperados);
}

TEST(Indices, LasClavesSonIgualesPlegadas) {
    const auto tabla =
        TablaDe(DeNombres({"MUÑOZ"_ansi, "CAÑAS"_ansi, "PEREZ", "Güell"_ansi, ""}), "PILA", "NOMBRE");
    const struct {
        std::string_view Clave;
        std::string_view Hallado;  // "-" for none
    } casos[] = {
        {"muñoz"_ansi, "MUÑOZ"_ansi},
        {"MUNOZ", "-"},
        {"Pérez"_ansi, "PEREZ"},
        {"PEREZ   ", "PEREZ"},
        {"GÜELL"_ansi, "Güell"_ansi},
        {"GUELL", "-"},
        {"PERE", "-"},
        {"PEREZ SANCHO Y UN NOMBRE MAS LARGO QUE EL CAMPO", "-"},
        {"", ""},
        {"   ", ""},
    };
    for (const auto& caso : casos) {
        const bool hallado = TBBusca(*tabla, {{"NOMBRE", caso.Clave}}, true);
        EXPECT_EQ(hallado, caso.Hallado != "-") << caso.Clave;
        EXPECT_EQ(tabla->Fin(), !hallado);
        EXPECT_EQ(tabla->Texto("NOMBRE"), hallado ? caso.Hallado : "") << caso.Clave;
    }
}

TEST(Indices, UnaClaveVaciaSoloEsIgualAUnCampoVacio) {
    const auto tabla = TablaDe(DeNombres({"A", "B"}), "PILA", "NOMBRE");
    EXPECT_FALSE(TBBusca(*tabla, {{"NOMBRE", ""}}, true));
    EXPECT_TRUE(tabla->Fin());
}

TEST(Indices, LaPrimeraDeLasIgualesEsLaPrimeraGuardada) {
    const auto tabla = TablaDe(DeNombres({"B", "A", "B", "A", "A"}), "PILA", "NOMBRE");
    ASSERT_TRUE(TBBusca(*tabla, {{"NOMBRE", "A"}}, true));
    EXPECT_EQ(tabla->Entero("ORDEN"), 2);
    ASSERT_TRUE(TBBusca(*tabla, {{"NOMBRE", "B"}}, true));
    EXPECT_EQ(tabla->Entero("ORDEN"), 1);
}

TFichero Numeros(char tipo) {
    TFichero fichero{.Campos = {{"CODIGO", tipo, 4}, {"LETRA", 'C', 1}}};
    for (const auto& [codigo, letra] : {std::pair{"10", "a"}, {"2", "b"}, {"", "c"}, {"99", "d"}, {"1", "e"}})
        fichero.Filas.push_back({codigo, letra});
    return fichero;
}

TEST(Indices, LosNumerosSeOrdenanYComparanComoNumeros) {
    const auto tabla = TablaDe(Numeros('N'), "TIPO_INT", "CODIGO");
    EXPECT_EQ(Columna(*tabla, "LETRA"), (std::vector<std::string>{"c", "e", "b", "a", "d"}));
    EXPECT_TRUE(TBBusca(*tabla, {{"CODIGO", 2}}, true));
    EXPECT_EQ(tabla->Texto("LETRA"), "b");
    EXPECT_TRUE(TBBusca(*tabla, {{"CODIGO", "02"}}, true));
    EXPECT_EQ(tabla->Texto("LETRA"), "b");
    EXPECT_TRUE(TBBusca(*tabla, {{"CODIGO", ""}}, true));
    EXPECT_EQ(tabla->Texto("LETRA"), "c");
    EXPECT_FALSE(TBBusca(*tabla, {{"CODIGO", 0}}, true));
    EXPECT_FALSE(TBBusca(*tabla, {{"CODIGO", "DOS"}}, true));
    EXPECT_FALSE(TBBusca(*tabla, {{"CODIGO", 100}}, true));
}

TEST(Indices, UnEnteroSobreUnTextoSeComparaComoNumero) {
    const auto tabla = TablaDe(Numeros('C'), "AYUNTAM", "CODIGO");
    EXPECT_TRUE(TBBusca(*tabla, {{"CODIGO", 10}}, true));
    EXPECT_EQ(tabla->Texto("LETRA"), "a");
    EXPECT_FALSE(TBBusca(*tabla, {{"CODIGO", "01"}}, true)) << "a text key compares as text";
    EXPECT_FALSE(TBBusca(*tabla, {{"CODIGO", 0}}, true));
    ASSERT_TRUE(TBRango(*tabla, {{"CODIGO", 1}}, {{"CODIGO", 10}}));
    EXPECT_EQ(tabla->CuentaFilas(), 3);
    EXPECT_EQ(Columna(*tabla, "LETRA"), (std::vector<std::string>{"e", "a", "b"}));
    EXPECT_TRUE(TBBusca(*tabla, {{"CODIGO", 2}}, true));
    EXPECT_FALSE(TBBusca(*tabla, {{"CODIGO", 99}}, true)) << "outside the range";
    EXPECT_FALSE(TBBusca(*tabla, {{"CODIGO", "99"}}, true));
    tabla->CancelaRango();
    EXPECT_TRUE(TBBusca(*tabla, {{"CODIGO", "99"}}, true));
}

TEST(Indices, LasExpresionesIncorporadas) {
    const TFichero tipos{.Campos = {{"NUMEROTIPO", 'N', 4}, {"TIPO", 'C', 4}, {"CLAVE_INTI", 'C', 4}},
                         .Filas = {{"9", "A", "z"}, {"1", "B", "y"}}};
    EXPECT_EQ(Columna(*TablaDe(tipos, "TIPOS", "NUMERO"), "TIPO"), (std::vector<std::string>{"B", "A"}));
    EXPECT_EQ(Columna(*TablaDe(tipos, "TIPOS", "TIPO"), "TIPO"), (std::vector<std::string>{"A", "B"}));
    EXPECT_EQ(Columna(*TablaDe(tipos, "TIPOS", "CLAVE_INTI"), "TIPO"), (std::vector<std::string>{"B", "A"}));
    const TFichero provincias{.Campos = {{"PROVINCIA", 'C', 9}, {"CODIGO", 'C', 3}},
                              .Filas = {{"MADRID", "28"}, {"ALAVA", "01"}, {"ZAMORA", "49"}}};
    EXPECT_EQ(Columna(*TablaDe(provincias, "PROVIN", "ALFABETICO"), "CODIGO"),
              (std::vector<std::string>{"01", "28", "49"}));
    const auto porCodigo = TablaDe(provincias, "PROVIN", "CODIGO");
    EXPECT_TRUE(TBBusca(*porCodigo, {{"CODIGO", "28"}}, true));
    EXPECT_EQ(porCodigo->Texto("PROVINCIA"), "MADRID");
    EXPECT_FALSE(TBBusca(*porCodigo, {{"CODIGO", "1"}}, true));
    EXPECT_TRUE(TBBusca(*porCodigo, {{"CODIGO", 1}}, true));
}

TFichero Calles() {
    return {.Campos = {{"PROVINCIA", 'C', 2}, {"VIA", 'C', 20}, {"IMPAR_INI", 'N', 5}},
            .Filas = {{"28", "MAYOR", "1"},
                      {"08", "MAYOR", "2"},
                      {"28", "ATOCHA", "3"},
                      {"28", "MAYOR", "4"},
                      {"28", "MAYORAZGO", "5"},
                      {"28", "", "6"}}};
}

TEST(Indices, LaClaveCompuestaYSuPrefijo) {
    const auto tabla = TablaDe(Calles(), "POSTAL", "NOMBREVIA");
    EXPECT_EQ(Columna(*tabla, "IMPAR_INI"), (std::vector<std::string>{"2", "6", "3", "1", "4", "5"}));
    const struct {
        std::string_view Provincia, Via;
        std::vector<std::string> Filas;
    } casos[] = {
        {"28", "MAYOR", {"1", "4"}},
        {"28", "mayor  ", {"1", "4"}},
        {"08", "MAYOR", {"2"}},
        {"28", "", {"6"}},
        {"08", "", {}},
        {"28", "MAYO", {}},
        {"99", "MAYOR", {}},
        {"28", "MAYÓR"_ansi, {"1", "4"}},
    };
    for (const auto& caso : casos) {
        const bool puesto = TBRango(*tabla, {{"PROVINCIA", caso.Provincia}, {"VIA", caso.Via}},
                                    {{"PROVINCIA", caso.Provincia}, {"VIA", caso.Via}});
        EXPECT_TRUE(puesto) << "an empty range is a range too";
        EXPECT_EQ(Columna(*tabla, "IMPAR_INI"), caso.Filas) << caso.Provincia << caso.Via;
        EXPECT_EQ(tabla->CuentaFilas(), static_cast<int>(caso.Filas.size()));
        EXPECT_TRUE(tabla->Fin());
        tabla->CancelaRango();
        EXPECT_EQ(tabla->CuentaFilas(), 6);
    }
    ASSERT_TRUE(TBRango(*tabla, {{"PROVINCIA", "28"}}, {{"PROVINCIA", "28"}}));
    EXPECT_EQ(tabla->CuentaFilas(), 5);
    EXPECT_TRUE(TBBusca(*tabla, {{"PROVINCIA", "28"}}, true));
    EXPECT_EQ(tabla->Entero("IMPAR_INI"), 6);
    EXPECT_THROW(TBBusca(*tabla, {{"PROVINCIA", "28"}, {"VIA", "MAYOR"}, {"X", "Y"}}, true), ErrorTabla);
}

TEST(Indices, UnIndiceQueNoHayEsUnError) {
    EXPECT_THROW(TablaDe(Calles(), "POSTAL", "CODPOSTAL"), ErrorTabla);
    EXPECT_THROW(TablaDe(Calles(), "PROVIN", "NOMBREVIA"), ErrorTabla);
    try {
        const auto tabla = TablaDe({.Campos = {{"VIA", 'C', 2}}, .Filas = {}}, "POSTAL", "NOMBREVIA");
        FAIL();
    } catch (const ErrorTabla& error) {
        EXPECT_NE(std::string(error.what()).find("POSTAL.DBF no tiene el campo PROVINCIA"),
                  std::string::npos);
    }
}

// The binary search against the plain one, on many rows with many equal keys.
TEST(Indices, LaBusquedaRapidaDaLoMismoQueLaLenta) {
    std::mt19937 azar(7);
    static constexpr std::string_view LETRAS = "aÁBbñNÇ  "_ansi;
    TFichero fichero{.Campos = {{"PROVINCIA", 'C', 2}, {"VIA", 'C', 9}}};
    const auto palabra = [&](std::size_t maximo) {
        std::string texto;
        for (std::size_t i = azar() % (maximo + 1); i > 0; --i) texto += LETRAS[azar() % LETRAS.size()];
        return texto;
    };
    for (int i = 0; i < 3000; ++i) fichero.Filas.push_back({palabra(2), palabra(9)});
    const auto tabla = TablaDe(fichero, "POSTAL", "NOMBREVIA");
    const auto sinFinal = [](const std::string& t) { return t.substr(0, t.find_last_not_of(' ') + 1); };
    int halladas = 0;
    for (int i = 0; i < 500; ++i) {
        const std::string provincia = palabra(2);
        const std::string via = i % 2 == 0 ? palabra(3) : fichero.Filas[azar() % 3000][1];
        const auto iguales = std::count_if(fichero.Filas.begin(), fichero.Filas.end(), [&](const auto& fila) {
            return Pliega(sinFinal(fila[0])) == Pliega(sinFinal(provincia)) &&
                   Pliega(sinFinal(fila[1])) == Pliega(sinFinal(via));
        });
        TBRango(*tabla, {{"PROVINCIA", provincia}, {"VIA", via}}, {{"PROVINCIA", provincia}, {"VIA", via}});
        ASSERT_EQ(tabla->CuentaFilas(), iguales) << provincia << "," << via;
        tabla->CancelaRango();
        ASSERT_EQ(TBBusca(*tabla, {{"PROVINCIA", provincia}, {"VIA", via}}, true), iguales > 0);
        halladas += iguales > 0 ? 1 : 0;
    }
    EXPECT_GT(halladas, 30);
}

}  // namespace
}  // namespace analizador

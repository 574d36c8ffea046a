#include <gtest/gtest.h>

#include "pruebas/dbase/ConstructorDbf.h"

namespace analizador {
namespace {

TFichero Provincias() {
    return {.Campos = {{"PROVINCIA", 'C', 10}, {"CODIGO", 'C', 3}, {"GRUPO", 'N', 1}, {"FIRME", 'L', 1}},
            .Filas = {{"FRANCIA", "250", "2", "T"},
                      {"*borrada*", "PRUSIA", "001", "2", "T"},
                      {"MADRID", "28", "1", "F"},
                      {"OTROS", "", "3", ""},
                      {"ALAVA", "01", "1", "T"}}};
}

TEST(Tabla, RecorreSinLasBorradasEnElOrdenGuardado) {
    const auto tabla = TablaDe(Provincias(), "PROVIN", "");
    EXPECT_EQ(Columna(*tabla, "provincia"),
              (std::vector<std::string>{"FRANCIA", "MADRID", "OTROS", "ALAVA"}));
    EXPECT_EQ(tabla->CuentaFilas(), 4);
}

TEST(Tabla, PasadaLaUltimaTodoSeLeeVacio) {
    const auto tabla = TablaDe(Provincias(), "PROVIN", "ALFABETICO");
    for (int i = 0; i < 9; ++i) tabla->Siguiente();
    EXPECT_TRUE(tabla->Fin());
    EXPECT_EQ(tabla->Texto("PROVINCIA"), "");
    EXPECT_EQ(tabla->Entero("GRUPO"), 0);
    EXPECT_FALSE(tabla->Logico("FIRME"));
    EXPECT_THROW(static_cast<void>(tabla->Texto("NO_HAY")), ErrorTabla);
}

TEST(Tabla, LeeElCampoDeCadaForma) {
    const auto tabla = TablaDe(Provincias(), "PROVIN", "CODIGO");
    ASSERT_TRUE(TBBusca(*tabla, {{"CODIGO", "28"}}, true));
    EXPECT_EQ(tabla->Entero("CODIGO"), 28);
    EXPECT_EQ(tabla->Entero("PROVINCIA"), 0);
    EXPECT_EQ(tabla->Texto("GRUPO"), "1");
    EXPECT_EQ(tabla->Texto("FIRME"), "F");
    EXPECT_FALSE(tabla->Logico("FIRME"));
    EXPECT_FALSE(tabla->Logico("PROVINCIA"));
    ASSERT_TRUE(TBBusca(*tabla, {{"CODIGO", "01"}}, true));
    EXPECT_TRUE(tabla->Logico("FIRME"));
}

TEST(Tabla, EnteroEsCeroSiNoEsUnEntero) {
    const auto tabla = TablaDe(
        {.Campos = {{"N", 'N', 12, 2}}, .Filas = {{"1.5"}, {"3.00"}, {"9999999999"}, {"-2147483648"}, {""}}},
        "X", "");
    std::vector<int> enteros;
    for (; !tabla->Fin(); tabla->Siguiente()) enteros.push_back(tabla->Entero("N"));
    EXPECT_EQ(enteros, (std::vector<int>{0, 3, 0, -2147483648, 0}));
}

TEST(Tabla, FiltraPorUnEntero) {
    const auto tabla = TablaDe(Provincias(), "PROVIN", "ALFABETICO");
    const struct {
        std::string_view Condicion;
        std::vector<std::string> Filas;
    } casos[] = {
        {"GRUPO=2", {"FRANCIA"}},
        {"grupo = 1", {"ALAVA", "MADRID"}},
        {"GRUPO<>3", {"ALAVA", "FRANCIA", "MADRID"}},
        {" GRUPO <> 1 ", {"FRANCIA", "OTROS"}},
        {"GRUPO=-4", {}},
        {"CODIGO=28", {"MADRID"}},
        {"", {"ALAVA", "FRANCIA", "MADRID", "OTROS"}},
    };
    for (const auto& caso : casos) {
        TBFiltra(*tabla, caso.Condicion);
        EXPECT_EQ(tabla->Texto("PROVINCIA"), caso.Filas.empty() ? "" : caso.Filas.front());
        EXPECT_EQ(tabla->CuentaFilas(), static_cast<int>(caso.Filas.size())) << caso.Condicion;
        EXPECT_EQ(Columna(*tabla, "PROVINCIA"), caso.Filas) << caso.Condicion;
    }
}

TEST(Tabla, UnaCondicionQueNoSeEntiendeEsUnError) {
    const auto tabla = TablaDe(Provincias(), "PROVIN", "");
    for (const std::string_view condicion : {"GRUPO", "GRUPO>2", "GRUPO<2", "GRUPO=", "GRUPO=DOS",
                                             "GRUPO=1.5", "=2", "NO_HAY=2", "GRUPO=99999999999"})
        EXPECT_THROW(TBFiltra(*tabla, condicion), ErrorTabla) << condicion;
    EXPECT_EQ(tabla->CuentaFilas(), 4);
}

TEST(Tabla, LaBusquedaRespetaFiltroYRango) {
    const auto tabla = TablaDe(Provincias(), "PROVIN", "ALFABETICO");
    TBFiltra(*tabla, "GRUPO=1");
    EXPECT_FALSE(TBBusca(*tabla, {{"PROVINCIA", "FRANCIA"}}, true));
    EXPECT_TRUE(tabla->Fin());
    EXPECT_TRUE(TBBusca(*tabla, {{"PROVINCIA", "MADRID"}}, true));
    ASSERT_TRUE(TBRango(*tabla, {{"PROVINCIA", "B"}}, {{"PROVINCIA", "N"}}));
    EXPECT_EQ(Columna(*tabla, "PROVINCIA"), (std::vector<std::string>{"MADRID"}));
    EXPECT_FALSE(TBBusca(*tabla, {{"PROVINCIA", "ALAVA"}}, true));
    TBFiltra(*tabla, "");
    EXPECT_EQ(Columna(*tabla, "PROVINCIA"), (std::vector<std::string>{"FRANCIA", "MADRID"}));
    tabla->CancelaRango();
    EXPECT_EQ(tabla->Texto("PROVINCIA"), "ALAVA");
    EXPECT_EQ(tabla->CuentaFilas(), 4);
}

TEST(Tabla, UnRangoDelRevesEstaVacio) {
    const auto tabla = TablaDe(Provincias(), "PROVIN", "ALFABETICO");
    EXPECT_TRUE(TBRango(*tabla, {{"PROVINCIA", "Z"}}, {{"PROVINCIA", "A"}}));
    EXPECT_EQ(tabla->CuentaFilas(), 0);
    EXPECT_TRUE(tabla->Fin());
}

TEST(Tabla, SinIndiceNoHayRangoNiBusqueda) {
    const auto tabla = TablaDe(Provincias(), "PROVIN", "");
    EXPECT_FALSE(TBRango(*tabla, {{"CODIGO", "01"}}, {{"CODIGO", "99"}}));
    EXPECT_EQ(tabla->CuentaFilas(), 4);
    EXPECT_FALSE(TBBusca(*tabla, {{"CODIGO", "28"}}, true));
    EXPECT_TRUE(tabla->Fin());
}

TEST(Tabla, IndexaCambiaElOrdenYQuitaElRango) {
    const auto tabla = TablaDe(Provincias(), "PROVIN", "CODIGO");
    TBRango(*tabla, {{"CODIGO", "28"}}, {{"CODIGO", "28"}});
    TBFiltra(*tabla, "GRUPO<>3");
    TBIndexa(*tabla, "ALFABETICO");
    EXPECT_EQ(tabla->Texto("PROVINCIA"), "ALAVA");
    EXPECT_EQ(tabla->CuentaFilas(), 3) << "the filter stays";
    TBIndexa(*tabla, "");
    EXPECT_EQ(tabla->Texto("PROVINCIA"), "FRANCIA");
    EXPECT_THROW(TBIndexa(*tabla, "LUGAR"), ErrorTabla);
}

TEST(Tabla, UnaTablaSinFilas) {
    TFichero vacia = Provincias();
    vacia.Filas.clear();
    const auto tabla = TablaDe(vacia, "PROVIN", "CODIGO");
    EXPECT_TRUE(tabla->Fin());
    EXPECT_FALSE(TBBusca(*tabla, {{"CODIGO", ""}}, true));
    EXPECT_TRUE(TBRango(*tabla, {{"CODIGO", "01"}}, {{"CODIGO", "99"}}));
    EXPECT_EQ(tabla->CuentaFilas(), 0);
}

}  // namespace
}  // namespace analizador

// What is the memory document's own: byte positions, and the content that it takes and gives back.

#include "adaptadores/memoria/DocumentoMemoria.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace analizador {
namespace {

TDocumentoMemoria Documento(std::string texto) {
    return TDocumentoMemoria(TContenidoDocumento{std::move(texto), {}, {}});
}

TEST(DocumentoMemoria, NaceConLaSeleccionAlInicio) {
    auto documento = Documento("Uno\r");
    EXPECT_EQ(documento.GetSeleccion().GetIntervalo(), (TIntervalo{0, 0}));
}

TEST(DocumentoMemoria, LasPosicionesSonIndicesDelTexto) {
    auto documento = Documento("Uno\r\aDos\r\a\r\aTres\r");
    ASSERT_TRUE(documento.Busca("Tres", {true, true, false, false, false, true, true, false}));
    EXPECT_EQ(documento.GetSeleccion().GetIntervalo(), (TIntervalo{12, 16}));
    documento.IrAlFinalDocumento();
    EXPECT_EQ(documento.GetSeleccion().GetIntervalo(), (TIntervalo{16, 16}));
    documento.GetSeleccion().BajaParrafo(true);
    EXPECT_EQ(documento.GetSeleccion().GetIntervalo(), (TIntervalo{16, 17}));
    for (const auto& [posicion, numero] : std::vector<std::pair<int, int>>{
             {-1, 1}, {0, 1}, {4, 1}, {5, 2}, {9, 2}, {10, 3}, {11, 3}, {12, 4}, {16, 4}, {17, 4}, {99, 4}}) {
        EXPECT_EQ(documento.GetNumeroParrafo(posicion), numero) << posicion;
    }
}

TEST(DocumentoMemoria, AnadeElUltimoCR) {
    EXPECT_EQ(Documento("").GetTexto(), "\r");
    EXPECT_EQ(Documento("Uno").GetTexto(), "Uno\r");
    EXPECT_EQ(Documento("Uno\r").GetTexto(), "Uno\r");
    EXPECT_EQ(Documento("Uno\r\a\r\a").GetTexto(), "Uno\r\a\r\a\r");
    EXPECT_EQ(Documento("Uno").Contenido().Texto, "Uno\r");
}

TEST(DocumentoMemoria, UnSieteQueNoSigueAUnCRNoAcabaParrafo) {
    EXPECT_EQ(Documento("Uno\adós\r").GetParrafos({0, 99}).size(), 1U);
}

TEST(DocumentoMemoria, TraeLosMarcadoresAlTexto) {
    const TDocumentoMemoria documento(
        {"Uno\r", {{"A", {-3, 99}}, {"B", {99, 99}}, {"C", {3, 1}}, {"D", {1, 3}}}, {}});
    EXPECT_EQ(documento.GetMarcadores(),
              (std::vector<TMarcador>{{"A", {0, 4}}, {"B", {3, 3}}, {"C", {1, 1}}, {"D", {1, 3}}}));
}

TEST(DocumentoMemoria, DeDosNombresIgualesValeElPrimero) {
    const TDocumentoMemoria documento(
        {"Uno\r", {{"b", {1, 2}}, {"a", {0, 1}}, {"B", {2, 3}}}, {{"Xml", "uno"}, {"XML", "dos"}}});
    EXPECT_EQ(documento.GetMarcadores(), (std::vector<TMarcador>{{"a", {0, 1}}, {"b", {1, 2}}}));
    EXPECT_EQ(documento.VariableValor("XML"), "uno");
}

TEST(DocumentoMemoria, DevuelveTodoSuContenido) {
    TDocumentoMemoria documento({"Uno Dos\r",
                                 {{"Zeta", {0, 3}}, {"_oculto", {4, 7}}, {"con-guion", {0, 1}}},
                                 {{"EMPLEADO", "Marta"}}});
    documento.GetSeleccion().PonIntervalo({4, 7});
    documento.NuevoMarcador("CABECERA", true);
    const auto& contenido = documento.Contenido();
    EXPECT_EQ(contenido.Texto, "Uno Dos\r");
    EXPECT_EQ(contenido.Marcadores,
              (std::vector<TMarcador>{
                  {"CABECERA", {4, 7}}, {"con-guion", {0, 1}}, {"Zeta", {0, 3}}, {"_oculto", {4, 7}}}));
    EXPECT_EQ(contenido.Variables, (std::vector<TVariable>{{"EMPLEADO", "Marta"}}));
}

}  // namespace
}  // namespace analizador

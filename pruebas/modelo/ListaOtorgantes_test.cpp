#include "modelo/ListaOtorgantes.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

namespace analizador {
namespace {

TROtorgante Persona(std::string nombre, std::string apellidos, std::string documento) {
    TROtorgante o;
    o.Nombre = std::move(nombre);
    o.Apellidos = std::move(apellidos);
    o.NumDocumento = std::move(documento);
    return o;
}

void Elige(ListaTextos<TROtorgante>& elegidos, TROtorgante otorgante) {
    std::string nombre = otorgante.NombreOtorgante();
    elegidos.Anade(std::move(nombre), std::make_unique<TROtorgante>(std::move(otorgante)));
}

TOrigen En(int parrafo) {
    return {parrafo, {1, 5}};
}

class ListaOtorgantes : public testing::Test {
  protected:
    ListaOtorgantes() {
        TROtorgante ana = Persona("ANA", "GIL", "12345678Z");
        ana.Vecindad = "TOLEDO";
        lista_.Anade({ana, {{"Nombre", En(1)}, {"NumDocumento", En(1)}, {"Vecindad", En(1)}}});
        lista_.Anade({Persona("LUIS", "MAS", "87654321X"), {{"Nombre", En(2)}, {"NumDocumento", En(2)}}});
    }
    TListaOtorgantes lista_;
};

TEST_F(ListaOtorgantes, CadaUnoBajoSuNombre) {
    ASSERT_EQ(lista_.Lista.Cuenta(), 2U);
    EXPECT_EQ(lista_.Lista[0].Texto, "ANA GIL");
    EXPECT_EQ(lista_.Lista[1].Texto, "LUIS MAS");
    EXPECT_EQ(lista_.Lista[1].Objeto->NumDocumento, "87654321X");
}

TEST_F(ListaOtorgantes, OrigenesDeEsLaEntradaDeSuLinea) {
    for (std::size_t i = 0; i < 2; ++i)
        EXPECT_EQ(&lista_.OrigenesDe(*lista_.Lista[i].Objeto), &lista_.Origenes[i]);
}

TEST_F(ListaOtorgantes, LimpiaVaciaLasDosPartes) {
    lista_.Limpia();
    EXPECT_TRUE(lista_.Lista.Vacia());
    EXPECT_TRUE(lista_.Origenes.empty());
}

TEST_F(ListaOtorgantes, LoRevisadoConservaElOrigenDeLoQueNoCambio) {
    TROtorgante ana = Persona("ANA", "GIL", "00000000T");  // another document
    ana.Vecindad = "TOLEDO";
    ListaTextos<TROtorgante> elegidos;
    Elige(elegidos, Persona("EVA", "NUEVA", ""));           // a new one
    Elige(elegidos, Persona("LUISA", "MAS", "87654321X"));  // another name
    Elige(elegidos, ana);
    lista_.Sustituye(std::move(elegidos));
    ASSERT_EQ(lista_.Lista.Cuenta(), 3U);
    EXPECT_EQ(lista_.Lista[0].Texto, "EVA NUEVA");
    EXPECT_EQ(*lista_.Lista[2].Objeto, ana);
    ASSERT_EQ(lista_.Origenes.size(), 3U);
    EXPECT_EQ(lista_.Origenes[0], TOrigenes{});
    EXPECT_EQ(lista_.Origenes[1], (TOrigenes{{"NumDocumento", En(2)}}));
    EXPECT_EQ(lista_.Origenes[2], (TOrigenes{{"Nombre", En(1)}, {"Vecindad", En(1)}}));
}

TEST_F(ListaOtorgantes, HallaALosNombradosYSusDocumentos) {
    EXPECT_EQ(lista_.LineaNombradaEn("DON LUIS MAS Y ANA GIL"), 0U);
    EXPECT_EQ(lista_.LineaNombradaEn("DON LUIS MAS"), 1U);
    EXPECT_EQ(lista_.LineaNombradaEn("DON LUIS"), std::nullopt);
    EXPECT_TRUE(lista_.HayDocumentoEn("NIF 87654321X."));
    EXPECT_FALSE(lista_.HayDocumentoEn("NIF 8765432X."));

    lista_.Anade({Persona("EVA", "ROS", "00000000T"), {}});  // after the first look-up
    EXPECT_EQ(lista_.LineaNombradaEn("EVA ROS"), 2U);
    EXPECT_TRUE(lista_.HayDocumentoEn("00000000T"));
}

TEST_F(ListaOtorgantes, NoHallaALosQueYaNoEstan) {
    ASSERT_EQ(lista_.LineaNombradaEn("ANA GIL"), 0U);
    ListaTextos<TROtorgante> elegidos;
    Elige(elegidos, Persona("EVA", "ROS", "00000000T"));
    lista_.Sustituye(std::move(elegidos));
    EXPECT_EQ(lista_.LineaNombradaEn("ANA GIL"), std::nullopt);
    EXPECT_EQ(lista_.LineaNombradaEn("EVA ROS"), 0U);
    lista_.Limpia();
    EXPECT_EQ(lista_.LineaNombradaEn("EVA ROS"), std::nullopt);
    EXPECT_FALSE(lista_.HayDocumentoEn("00000000T"));
}

TEST_F(ListaOtorgantes, SustituyePorNadie) {
    lista_.Sustituye({});
    EXPECT_TRUE(lista_.Lista.Vacia());
    EXPECT_TRUE(lista_.Origenes.empty());
}

}  // namespace
}  // namespace analizador

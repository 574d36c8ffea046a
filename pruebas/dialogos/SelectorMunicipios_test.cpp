#include "dialogos/SelectorMunicipios.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "pruebas/comun/Literales.h"
#include "pruebas/dialogos/EscenaDatos.h"

namespace analizador {
namespace {

std::vector<std::string> Lista(std::initializer_list<std::string_view> textos) {
    return {textos.begin(), textos.end()};
}

std::string Muestra(const TMunicipio& m) {
    return m.Nombre + " " + m.CodPostal;
}

std::vector<std::string> Filas(const TSelectorMunicipios& selector) {
    std::vector<std::string> filas;
    for (std::size_t i = 0; i < selector.Cuenta(); ++i) filas.push_back(Muestra(selector.Fila(i)));
    return filas;
}

class SelectorMunicipios : public testing::Test {
  protected:
    TEscenaDatos escena_;
};

TEST_F(SelectorMunicipios, FilasEnElOrdenDeSusNombres) {
    const TSelectorMunicipios selector({});
    EXPECT_EQ(Filas(selector), Lista({"A CORUÑA 15001"_a, "ÁGREDA 42100"_a, "OLMEDO 47410", "PINTO 28320",
                                      "VALDEMORO 28340", "VALLADOLID 47001", "VALLADOLID 47002"}));
    EXPECT_EQ(selector.Fila(2), (TMunicipio{"OLMEDO", "VALLADOLID", "47", "47410", "47104"}));
    // The province's code is its last two digits; a province that the table lacks has no name.
    EXPECT_EQ(selector.Fila(3), (TMunicipio{"PINTO", "MADRID", "28", "28320", "28113"}));
    EXPECT_EQ(selector.Fila(1).Provincia, "");
    EXPECT_EQ(selector.Actual(), 0U);
}

TEST_F(SelectorMunicipios, Filtra) {
    const struct {
        std::string_view Texto;
        std::vector<std::string> Filas;
    } casos[] = {
        {"olm", Lista({"OLMEDO 47410"})},
        {"  Olmedo ", Lista({"OLMEDO 47410"})},
        {"agreda", Lista({"ÁGREDA 42100"_a})},
        {"ÁGREDA"_a, Lista({"ÁGREDA 42100"_a})},
        {"coruña"_a, Lista({"A CORUÑA 15001"_a})},
        {"coruna", {}},                            // the tilde of the N makes another letter
        {"la coru", Lista({"A CORUÑA 15001"_a})},  // a form of the name that is not the shown one
        {"28", Lista({"PINTO 28320", "VALDEMORO 28340"})},
        {"2811", Lista({"PINTO 28320"})},
        {"madrid", Lista({"PINTO 28320", "VALDEMORO 28340"})},
        {"valla", Lista({"VALLADOLID 47001", "VALLADOLID 47002", "OLMEDO 47410"})},  // the name's come first
        {"valla 002", Lista({"VALLADOLID 47002"})},
        {"47410 vall", Lista({"OLMEDO 47410"})},
        {"valla madrid", {}},
        {"o", Lista({"OLMEDO 47410", "A CORUÑA 15001"_a, "PINTO 28320", "VALDEMORO 28340", "VALLADOLID 47001",
                     "VALLADOLID 47002"})},
        {"zz", {}},
    };
    TSelectorMunicipios selector({});
    for (const auto& [texto, filas] : casos) {
        selector.Filtra(std::string(texto));
        EXPECT_EQ(Filas(selector), filas) << texto;
        EXPECT_EQ(selector.Filtro(), texto);
        EXPECT_EQ(selector.Actual(), filas.empty() ? std::nullopt : std::optional<std::size_t>(0)) << texto;
    }
    selector.Filtra(" ");
    EXPECT_EQ(selector.Cuenta(), 7U);
}

TEST_F(SelectorMunicipios, AbreEnLaFilaQueMejorEncaja) {
    const struct {
        std::string_view CodPostal, CodINE, Nombre;
        std::string_view Fila;
    } casos[] = {
        {"", "", "", "A CORUÑA 15001"_a},
        {"47410", "47104", "OLMEDO", "OLMEDO 47410"},
        {"28340", "", "", "VALDEMORO 28340"},
        {"", "28113", "", "PINTO 28320"},
        {"", "", "olmedo", "OLMEDO 47410"},
        {"", "", " LA CORUÑA "_a, "A CORUÑA 15001"_a},
        {"", "47186", "VALLADOLID", "VALLADOLID 47001"},
        {"47002", "47186", "VALLADOLID", "VALLADOLID 47002"},
        {"47002", "", "VALLADOLID", "VALLADOLID 47002"},
        {"47099", "47186", "VALLADOLID", "VALLADOLID 47001"},
        {"28340", "28161", "OLMEDO", "VALDEMORO 28340"},  // two against one
        {"47410", "28161", "OLMEDO", "OLMEDO 47410"},
        {"28340", "47104", "PINTO", "OLMEDO 47410"},  // one each: the statistics code
        {"28340", "", "PINTO", "PINTO 28320"},        // the name before the postal code
        {"", "", "VALL", "VALLADOLID 47001"},         // as far as it goes
        {"28340", "", "VALL", "VALDEMORO 28340"},
        {"47002", "", "VALLA", "VALLADOLID 47002"},
        {"99999", "99999", "ZZ", "A CORUÑA 15001"_a},
    };
    for (const auto& [codPostal, codINE, nombre, fila] : casos) {
        const TSelectorMunicipios selector(
            {std::string(codPostal), std::string(codINE), std::string(nombre)});
        ASSERT_TRUE(selector.Actual());
        EXPECT_EQ(Muestra(selector.Fila(*selector.Actual())), fila)
            << codPostal << "," << codINE << "," << nombre;
        EXPECT_EQ(selector.Cuenta(), 7U);
    }
}

TEST_F(SelectorMunicipios, UnaFilaQueNoExisteNoEsNinguna) {
    TSelectorMunicipios selector({});
    selector.PonActual(6);
    EXPECT_EQ(selector.Actual(), 6U);
    selector.PonActual(7);
    EXPECT_EQ(selector.Actual(), std::nullopt);
}

TEST_F(SelectorMunicipios, TablaVacia) {
    escena_.Tablas.Pon("MUNICIPI.DBF", {{"NOM_MUNICI", "CODPOSTAL", "NOMBRE", "COD_INE", "COD_PROV"}, {}});
    TSelectorMunicipios selector({"47001", "47186", "VALLADOLID"});
    EXPECT_EQ(selector.Cuenta(), 0U);
    EXPECT_EQ(selector.Actual(), std::nullopt);
}

TEST_F(SelectorMunicipios, UnaTablaQueFalta) {
    for (const char* tabla : {"MUNICIPI.DBF", "PROVIN.DBF"}) {
        TEscenaDatos escena;
        escena.Tablas.Quita(tabla);
        EXPECT_THROW(TSelectorMunicipios({}), ErrorTabla) << tabla;
    }
}

TEST_F(SelectorMunicipios, IMunicipiosDaLaFilaElegida) {
    EXPECT_EQ(IMunicipios({}), std::nullopt);  // nobody to show it
    TVistaMunicipiosDePrueba vista;
    const InstalaVistaMunicipios instala(vista);
    EXPECT_EQ(IMunicipios({"47410", "", ""}), std::nullopt);  // closed
    EXPECT_EQ(vista.Abierto->Nombre, "OLMEDO");
    vista.Elige = 3;
    EXPECT_EQ(IMunicipios({}), (TMunicipio{"PINTO", "MADRID", "28", "28320", "28113"}));
    vista.Elige = 70;  // confirmed with no current row
    EXPECT_EQ(IMunicipios({}), std::nullopt);
}

}  // namespace
}  // namespace analizador

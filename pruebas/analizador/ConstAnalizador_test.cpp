#include "analizador/ConstAnalizador.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "plataforma/Rficheros.h"
#include "pruebas/comun/Literales.h"

namespace analizador {
namespace {

TEST(ConstAnalizador, Sexos) {
    EXPECT_EQ(CONST_SECCION_SEXOS, (std::array<std::string_view, 2>{"HOMBRE", "MUJER"}));
}

TEST(ConstAnalizador, EstadosCivilesEnElOrdenEnQueSePrueban) {
    const std::vector<std::pair<std::string_view, int>> filas = {{"CASADO EN SEGUNDAS NUPCIAS", 2},
                                                                 {"DIVORCIADO", 3},
                                                                 {"SOLTERO", 5},
                                                                 {"VIUDO", 6},
                                                                 {"PAREJA DE HECHO", 7},
                                                                 {"SEPARADO", 4},
                                                                 {"CASADO", 1}};
    ASSERT_EQ(CONST_SECCION_ESTADO_CIVIl.size(), filas.size());
    ASSERT_EQ(CONST_ESTADO_CIVIL.size(), filas.size());
    for (std::size_t i = 0; i < filas.size(); ++i) {
        EXPECT_EQ(CONST_SECCION_ESTADO_CIVIl[i], filas[i].first);
        EXPECT_EQ(CONST_ESTADO_CIVIL[i], filas[i].second);
    }
}

TEST(ConstAnalizador, ElUltimoRegimenNoTieneSeccion) {
    EXPECT_EQ(CONST_SECCION_REGIMEN_MATRIMONIAL,
              (std::array<std::string_view, 3>{"GANANCIALES", "SEPARACION DE BIENES", "PARTICIPACION"}));
    EXPECT_EQ(CONST_REGIMEN_MATRIMONIAL, (std::array{1, 2, 3, 4}));
}

TEST(ConstAnalizador, IndicesDeInteresDesdeElDos) {
    EXPECT_EQ(CONST_SECCION_TIPO_INTERES, (std::array<std::string_view, 3>{"EURIBOR", "IRPH", "CECA"}));
    EXPECT_EQ(CONST_TIPO_INTERES, (std::array{2, 3, 4}));
}

TEST(ConstAnalizador, TiposDeVia) {
    const std::vector<std::pair<std::string_view, std::string_view>> filas = {
        {"CALLE", "CL"},        {"PLAZA", "PZ"},     {"AVENIDA", "AV"}, {"TRAVESIA", "TR"},
        {"URBANIZACION", "UR"}, {"RONDA", "RD"},     {"PASEO", "PS"},   {"GLORIETA", "GL"},
        {"FINCA", "FN"},        {"CARRETERA", "CR"}, {"COLONIA", "CN"}, {"RAMBLA", "RB"}};
    ASSERT_EQ(CONST_SECCION_TIPO_VIA.size(), filas.size());
    ASSERT_EQ(CONST_TIPO_VIA.size(), filas.size());
    for (std::size_t i = 0; i < filas.size(); ++i) {
        EXPECT_EQ(CONST_SECCION_TIPO_VIA[i], filas[i].first);
        EXPECT_EQ(CONST_TIPO_VIA[i], filas[i].second);
    }
}

TEST(ConstAnalizador, IntervencionesDesdeElCero) {
    const std::vector<std::pair<int, std::string_view>> filas = {{0, "0. En su nombre"},
                                                                 {1, "1. En representación de"_a},
                                                                 {2, "2. Por sí y en representación de"_a},
                                                                 {3, "3. Mandatario verbal"},
                                                                 {4, "4. Los dos en representación de"_a},
                                                                 {5, "5. Representado"},
                                                                 {6, "6. Por sí y mandatario verbal"_a},
                                                                 {-1, ""},
                                                                 {7, ""},
                                                                 {99, ""}};
    for (const auto& [codigo, texto] : filas) EXPECT_EQ(TextoIntervencionVRK(codigo), texto) << codigo;
    EXPECT_EQ(CONST_TIPO_INTERVENCION_VRK.size(), 7U);
}

// The process's paths, put back at the end of the test.
class RutasAnalizador : public testing::Test {
  protected:
    ~RutasAnalizador() override { PonCarpetaAplicacion(anterior_); }

  private:
    std::filesystem::path anterior_ = Rutas().PATH_APLICACION;
};

TEST_F(RutasAnalizador, SonLasDelProgramaMientrasNadieDigaOtraCosa) {
    EXPECT_EQ(Rutas().PATH_APLICACION, SlashSep(RutaPrograma().parent_path(), ""));
    EXPECT_EQ(TOKENS_INI(), Rutas().CASTELLANO_INI);
}

TEST_F(RutasAnalizador, CuelganDeLaCarpetaDelPrograma) {
    const auto separador = std::string(1, static_cast<char>(std::filesystem::path::preferred_separator));
    for (const auto& carpeta : {std::string("casa"), "casa" + separador}) {
        PonCarpetaAplicacion(carpeta);
        EXPECT_EQ(Rutas().PATH_APLICACION.string(), "casa" + separador);
        EXPECT_EQ(Rutas().PATH_TOKEN_AP.string(), "casa" + separador + "CONFIG" + separador);
        EXPECT_EQ(Rutas().CASTELLANO_INI.string(),
                  "casa" + separador + "CONFIG" + separador + "CASTELLANO.INI");
        EXPECT_EQ(Rutas().CATALAN_INI.string(), "casa" + separador + "CONFIG" + separador + "CATALAN.INI");
    }
}

TEST_F(RutasAnalizador, ElIdiomaEsElDelFicheroElegido) {
    struct Caso {
        std::filesystem::path Fichero;
        bool Castellano, Catalan;
    };
    for (const auto& [fichero, castellano, catalan] : std::vector<Caso>{{Rutas().CASTELLANO_INI, true, false},
                                                                        {Rutas().CATALAN_INI, false, true},
                                                                        {"OTRO.INI", false, false}}) {
        PonTOKENS_INI(fichero);
        EXPECT_EQ(TOKENS_INI(), fichero);
        EXPECT_EQ(EsCastellano(), castellano) << fichero;
        EXPECT_EQ(EsCatalan(), catalan) << fichero;
    }
}

TEST_F(RutasAnalizador, CambiarDeCarpetaVuelveAlCastellano) {
    PonTOKENS_INI(Rutas().CATALAN_INI);
    PonCarpetaAplicacion("otra");
    EXPECT_EQ(TOKENS_INI(), Rutas().CASTELLANO_INI);
    EXPECT_TRUE(EsCastellano());
}

TEST_F(RutasAnalizador, CadaHiloTieneSuFichero) {
    PonTOKENS_INI(Rutas().CATALAN_INI);
    bool castellanoEnElOtro = false;
    std::thread([&] { castellanoEnElOtro = EsCastellano(); }).join();
    EXPECT_TRUE(castellanoEnElOtro);
    EXPECT_TRUE(EsCatalan());
}

}  // namespace
}  // namespace analizador

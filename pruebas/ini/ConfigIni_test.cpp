#include "adaptadores/ini/ConfigIni.h"

#include <gtest/gtest.h>

#include <fstream>

#include "plataforma/Rficheros.h"
#include "pruebas/comun/Literales.h"

namespace analizador {
namespace {

class ConfigIni : public testing::Test {
  protected:
    ConfigIni() : Ruta(FicheroTemporal_({}, "OFI", "INI")) {}
    ~ConfigIni() override { std::filesystem::remove(Ruta); }
    [[nodiscard]] TConfigIni Lee(std::string_view bytes) const {
        std::ofstream(Ruta, std::ios::binary | std::ios::trunc) << bytes;
        return {Ruta, "/oficina"};
    }
    const std::filesystem::path Ruta;
};

TEST_F(ConfigIni, SinFicheroEsLaDeUnaOficinaSinNotarios) {
    const TConfigIni config("/no/existe/OFICINA.INI", "/oficina");
    EXPECT_EQ(config.CarpetaTablas(), "/oficina/TABLAS");
    EXPECT_EQ(config.GetnCuantos(), 0);
    EXPECT_EQ(config.GetNombre1(), "");
    EXPECT_EQ(config.GetNotarioPorDefecto(), "");
    EXPECT_FALSE(config.GetbAnalWordSoloAnalizadorSinXML());
}

TEST_F(ConfigIni, LaQueSeEntregaDiceLoMismoQueNinguna) {
    const TConfigIni config(OFICINA_INI, "/oficina");
    EXPECT_EQ(config.CarpetaTablas(), "/oficina/TABLAS");
    EXPECT_EQ(config.GetnCuantos(), 0);
    EXPECT_EQ(config.GetNotarioPorDefecto(), "");
    EXPECT_FALSE(config.GetbAnalWordSoloAnalizadorSinXML());
}

TEST_F(ConfigIni, LosNotariosVanEnSuOrdenConSusAcentos) {
    const auto config =
        Lee("[NOTARIOS]\r\nNumPalabras=2\r\n1=ANA P\xC9REZ\r\n2=LUIS GIL\r\nPorDefecto=2\r\nNombre=OTRO\r\n");
    EXPECT_EQ(config.GetnCuantos(), 2);
    EXPECT_EQ(config.GetNotarios(), (std::vector<std::string>{std::string("ANA PÉREZ"_a), "LUIS GIL"}));
    EXPECT_EQ(config.GetNotarioPorDefecto(), "2");
    EXPECT_EQ(config.GetNombre1(), "OTRO");
}

TEST_F(ConfigIni, LaCarpetaDeLasTablasPuedeSerCompletaODeLaAplicacion) {
    EXPECT_EQ(Lee("[TABLAS]\nCarpeta=/datos/tablas\n").CarpetaTablas(), "/datos/tablas");
    EXPECT_EQ(Lee("[TABLAS]\nCarpeta=../DATOS\n").CarpetaTablas(), "/oficina/../DATOS");
    EXPECT_EQ(Lee("[TABLAS]\nCarpeta=Espa\xF1"
                  "a\n")
                  .CarpetaTablas(),
              "/oficina/España");
}

TEST_F(ConfigIni, ElXmlPuedeNoMostrarse) {
    EXPECT_TRUE(Lee("[XML]\nMostrar=0\n").GetbAnalWordSoloAnalizadorSinXML());
    EXPECT_FALSE(Lee("[XML]\nMostrar=1\n").GetbAnalWordSoloAnalizadorSinXML());
}

TEST_F(ConfigIni, LoImposibleSeRechazaNombrandoElFicheroYLaCausa) {
    const std::pair<const char*, const char*> casos[] = {
        {"[NOTARIOS]\nNumPalabras=2\n1=ANA\n", "NumPalabras no coincide"},
        {"[NOTARIOS]\nNumPalabras=2\n2=ANA\n", "NumPalabras no coincide"},
        {"[NOTARIOS]\nNumPalabras=dos\n1=ANA\n2=LUIS\n", "NumPalabras debe ser un número"},
        {"[NOTARIOS]\nNumPalabras=1\n1=ANA\nPorDefecto=2\n", "PorDefecto no es"},
        {"[NOTARIOS]\nNumPalabras=1\n1=ANA\nPorDefecto=-1\n", "PorDefecto no es"},
        {"[NOTARIOS]\nPorDefecto=1\n", "PorDefecto no es"},
        {"[XML]\nMostrar=quizá\n", "Mostrar debe ser un número"},
    };
    for (const auto& [bytes, causa] : casos) {
        try {
            (void)Lee(bytes);
            ADD_FAILURE() << bytes;
        } catch (const ErrorConfiguracion& error) {
            EXPECT_TRUE(std::string(error.what()).starts_with(Ruta.string() + ": ")) << error.what();
            EXPECT_NE(std::string(error.what()).find(causa), std::string::npos) << error.what();
        }
    }
}

}  // namespace
}  // namespace analizador

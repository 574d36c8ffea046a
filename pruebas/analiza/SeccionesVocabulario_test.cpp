// The table of sections against the files that ship.

#include "programas/analiza/SeccionesVocabulario.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "programas/analiza/Vocabulario.h"

namespace analizador {
namespace {

TEST(SeccionesVocabulario, SonLasDeLosFicherosYPorSuOrden) {
    for (const char* nombre : {"CASTELLANO.INI", "CATALAN.INI"}) {
        const auto vocabulario = LeeVocabulario(std::filesystem::path(CARPETA_VOCABULARIO) / nombre);
        std::vector<std::string> escritas;
        for (const auto& seccion : vocabulario.Ini.Secciones()) escritas.push_back(seccion.Nombre);
        std::vector<std::string> leidas;
        for (const auto& seccion : SeccionesVocabulario()) leidas.emplace_back(seccion.Nombre);
        EXPECT_EQ(escritas, leidas) << nombre;
    }
}

TEST(SeccionesVocabulario, ElNombreSeBuscaSinMirarMayusculas) {
    ASSERT_NE(SeccionVocabulario("parte deudora"), nullptr);
    EXPECT_EQ(SeccionVocabulario("parte deudora")->Nombre, "PARTE DEUDORA");
    EXPECT_EQ(SeccionVocabulario("PARTE"), nullptr);
}

TEST(SeccionesVocabulario, CadaUnaDiceComoSeBuscaYParaQue) {
    for (const auto& seccion : SeccionesVocabulario()) {
        EXPECT_NE(TextoDeModo(seccion.Modo), "") << seccion.Nombre;
        EXPECT_NE(seccion.Para, "") << seccion.Nombre;
    }
}

}  // namespace
}  // namespace analizador

// The sections: all that the analysis reads, none besides, numbered without holes, each explained.

#include <algorithm>
#include <set>

#include "plataforma/Rnumcad.h"
#include "pruebas/vocabulario/Vocabularios.h"

namespace analizador::vocabulario {
namespace {

using Secciones = EnCadaVocabulario;
INSTANTIATE_TEST_SUITE_P(Vocabulario, Secciones, testing::Values(0, 1), NombreDeCaso);

TEST_P(Secciones, SonLasQueSeLeenYPorSuOrden) {
    std::vector<std::string_view> nombres;
    for (const auto& seccion : Actual().Ini.Secciones()) nombres.push_back(seccion.Nombre);
    EXPECT_EQ(nombres, SeccionesLeidas());
}

TEST_P(Secciones, NingunaEstaVacia) {
    for (const auto nombre : SeccionesLeidas())
        EXPECT_FALSE(Actual().Ini.Palabras(nombre).empty()) << Sitio(Actual(), nombre);
}

TEST_P(Secciones, NumPalabrasYLasClavesVanDeUnoANSinHuecos) {
    for (const auto& seccion : Actual().Ini.Secciones()) {
        ASSERT_FALSE(seccion.Claves.empty()) << Sitio(Actual(), seccion.Nombre);
        EXPECT_EQ(seccion.Claves.front().Nombre, "NumPalabras") << Sitio(Actual(), seccion.Nombre);
        EXPECT_EQ(seccion.Claves.front().Valor, std::to_string(seccion.Claves.size() - 1))
            << Sitio(Actual(), seccion.Nombre);
        for (std::size_t i = 1; i < seccion.Claves.size(); ++i) {
            EXPECT_EQ(seccion.Claves[i].Nombre, std::to_string(i)) << Sitio(Actual(), seccion.Nombre);
            EXPECT_FALSE(seccion.Claves[i].Valor.empty()) << Sitio(Actual(), seccion.Nombre);
        }
    }
}

TEST_P(Secciones, CadaUnaSeExplicaEncima) {
    for (const auto nombre : SeccionesLeidas()) {
        const auto titulo = Actual().Bytes.find("\n[" + std::string(nombre) + "]\r\n");
        ASSERT_NE(titulo, std::string::npos) << Sitio(Actual(), nombre);
        const auto linea = Actual().Bytes.rfind('\n', titulo - 1) + 1;
        EXPECT_EQ(Actual().Bytes[linea], ';') << Sitio(Actual(), nombre);
    }
}

}  // namespace
}  // namespace analizador::vocabulario

// analiza --revisa, as far as it goes without a screen.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "pruebas/programas/ProgramaDePrueba.h"

namespace analizador {
namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;
using testing::StartsWith;

TEST(Revisa, SinElProgramaDeLasVentanasDiceQueInstalar) {
    const TCarpetaTemporal carpeta;
    fs::copy_file(PROGRAMA_ANALIZA, carpeta.Ruta() / "analiza");
    const auto pedido = Ejecuta(
        carpeta.Ruta() / "analiza",
        {"--revisa", "--config", CARPETA_VOCABULARIO, "--tablas", CARPETA_TABLAS, Ejemplo("compraventa")});
    EXPECT_EQ(pedido.Codigo, 1);
    EXPECT_EQ(pedido.Salida, "");
    EXPECT_THAT(pedido.Errores, HasSubstr("qt6-base-dev"));
    EXPECT_EQ(Lineas(pedido.Errores).size(), 1U);
}

TEST(Revisa, SinPantallaLoDiceEnUnaLinea) {
    if (!fs::exists(fs::path(PROGRAMA_ANALIZA).parent_path() / "analiza-ventanas"))
        GTEST_SKIP() << "built without windows";
    const auto pedido = Ejecuta(PROGRAMA_ANALIZA, {"--revisa", Ejemplo("compraventa")},
                                "DISPLAY= WAYLAND_DISPLAY= QT_QPA_PLATFORM=xcb");
    EXPECT_EQ(pedido.Codigo, 1);
    EXPECT_EQ(pedido.Salida, "");
    EXPECT_THAT(pedido.Errores, StartsWith("analiza: no se pueden abrir las ventanas de la revisión: "));
    EXPECT_EQ(Lineas(pedido.Errores).size(), 1U);
}

}  // namespace
}  // namespace analizador

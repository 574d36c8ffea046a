// The example documents say exactly what their texts say.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

#include "adaptadores/docx/FicheroDocx.h"
#include "plataforma/Ansi.h"
#include "pruebas/programas/ProgramaDePrueba.h"

namespace analizador {
namespace {

using testing::StartsWith;

constexpr const char* EJEMPLOS[] = {"compraventa", "compraventa_extranjero",
                                    "compravenda", "prestamo_hipotecario",
                                    "testament",   "testamento"};

class EjemplosDocx : public testing::TestWithParam<const char*> {};

TEST_P(EjemplosDocx, ElDocumentoTieneElTextoDeSuFichero) {
    std::string texto = Bytes(Ejemplo(GetParam()).replace_extension(".txt"));
    ASSERT_GE(Lineas(texto).size(), 40U);
    std::ranges::replace(texto, '\n', '\r');
    EXPECT_EQ(Utf8DeAnsi(TFicheroDocx(Ejemplo(GetParam())).Contenido().Texto), texto);
}

INSTANTIATE_TEST_SUITE_P(Todos, EjemplosDocx, testing::ValuesIn(EJEMPLOS),
                         [](const auto& caso) { return std::string(caso.param); });

TEST(EjemplosDocxTodos, NingunoFaltaEnLaLista) {
    std::vector<std::string> nombres;
    for (const auto& entrada : std::filesystem::directory_iterator(CARPETA_EJEMPLOS))
        if (entrada.path().extension() == ".docx") nombres.push_back(entrada.path().stem());
    EXPECT_THAT(nombres, testing::UnorderedElementsAreArray(EJEMPLOS));
}

TEST(EjemplosDocxTodos, LasFincasEstanMarcadas) {
    const TFicheroDocx docx(Ejemplo("compraventa"));
    const auto& contenido = docx.Contenido();
    ASSERT_EQ(contenido.Marcadores.size(), 2U);
    const char* const comienzos[] = {"1.- URBANA. ", "2.- URBANA. "};
    for (std::size_t i = 0; i < 2; ++i) {
        const auto& [nombre, intervalo] = contenido.Marcadores[i];
        EXPECT_EQ(nombre, "FINCA_" + std::to_string(i + 1));
        EXPECT_THAT(contenido.Texto.substr(static_cast<std::size_t>(intervalo.Inicio)),
                    StartsWith(comienzos[i]));
        EXPECT_EQ(contenido.Texto[static_cast<std::size_t>(intervalo.Fin)], '\r');
    }
}

}  // namespace
}  // namespace analizador

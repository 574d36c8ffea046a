// The example deeds with the shipped vocabularies and tables: whatever word processor holds them, they give
// the reviewed reports and JSON, byte for byte.

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "programas/analiza/AnalisisEscritura.h"
#include "programas/analiza/Entorno.h"
#include "programas/analiza/SalidaJson.h"
#include "programas/analiza/SalidaTexto.h"
#include "pruebas/ejemplos/EscrituraDeEjemplo.h"
#ifdef _WIN32
#include "adaptadores/word/AplicacionWord.h"
#include "pruebas/word/WordDePrueba.h"
#endif
#ifdef CON_DOCX
#include "programas/analiza/AnalisisFichero.h"
#endif

namespace analizador {
namespace {

namespace fs = std::filesystem;

constexpr bool SIN_REVISION = false;

using TAnalizada = std::unique_ptr<TAnalisisEscritura>;

// A way in which a deed of a name is held, and analysed.
struct TForma {
    const char* Nombre;
    std::function<TAnalizada(const std::string&)> Analiza;
};

TAnalizada EnMemoria(const std::string& nombre) {
    return std::make_unique<TAnalisisEscritura>(pruebas::EscrituraDeEjemplo(nombre), SIN_REVISION);
}

#ifdef _WIN32
TAnalizada EnWord(const std::string& nombre) {
    const auto& servidor = pruebas::TWordDePrueba::EnMarcha();
    servidor.Abre(pruebas::EscrituraDeEjemplo(nombre));
    auto analizada = std::make_unique<TAnalisisEscritura>(std::make_unique<TAplicacionWord>(), SIN_REVISION);
    EXPECT_GT(servidor.Llamadas(), 100);
    testing::Test::RecordProperty("llamadas", servidor.Llamadas());
    EXPECT_EQ(servidor.Objetos(), 0);
    return analizada;
}
#endif

#ifdef CON_DOCX
TAnalizada EnDocx(const std::string& nombre) {
    return std::make_unique<TAnalisisFichero>(fs::path(CARPETA_EJEMPLOS) / (nombre + ".docx"),
                                              TOpcionesAnalisis{});
}
#endif

std::vector<TForma> Formas() {
    std::vector<TForma> formas = {{"memoria", EnMemoria}};
#ifdef _WIN32
    formas.push_back({"word", EnWord});
#endif
#ifdef CON_DOCX
    formas.push_back({"docx", EnDocx});
#endif
    return formas;
}

class Ejemplos : public testing::TestWithParam<std::tuple<TForma, std::string>> {
  protected:
    TAjustesOficina Ajustes{fs::path(CARPETA_BIN) / "CONFIG", fs::path(CARPETA_BIN) / "TABLAS"};
};

TEST_P(Ejemplos, DanElResultadoRevisado) {
    const auto& [forma, nombre] = GetParam();
    const auto analizada = forma.Analiza(nombre);
    ASSERT_EQ(analizada->Error(), "");
    EXPECT_EQ(InformeTexto(analizada->Sesion()), pruebas::ResultadoRevisado(nombre + ".txt"));
    const auto json = nlohmann::ordered_json::parse(LineaJson(nombre + ".docx", *analizada));
    EXPECT_EQ(json.dump(4) + "\n", pruebas::ResultadoRevisado(nombre + ".json"));
}

INSTANTIATE_TEST_SUITE_P(Todos, Ejemplos,
                         testing::Combine(testing::ValuesIn(Formas()),
                                          testing::Values("compravenda", "compraventa",
                                                          "compraventa_extranjero", "prestamo_hipotecario",
                                                          "testament", "testamento")),
                         [](const auto& caso) {
                             return std::string(std::get<0>(caso.param).Nombre) + "_" +
                                    std::get<1>(caso.param);
                         });

}  // namespace
}  // namespace analizador

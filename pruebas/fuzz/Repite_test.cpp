// Replays the fuzzers' seeds and what they once found, in every build and with any compiler. A finding
// becomes a file in regresiones/NAME and with that a test.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <vector>

#include "pruebas/fuzz/Fuzzers.h"

namespace analizador {
namespace {

struct TFuzzer {
    const char* Nombre;
    void (*Prueba)(std::string_view);
};

std::ostream& operator<<(std::ostream& salida, const TFuzzer& fuzzer) {
    return salida << fuzzer.Nombre;
}

std::vector<std::filesystem::path> Ficheros(const std::filesystem::path& carpeta) {
    std::vector<std::filesystem::path> ficheros;
    if (std::filesystem::exists(carpeta))
        for (const auto& entrada : std::filesystem::directory_iterator(carpeta))
            ficheros.push_back(entrada.path());
    std::ranges::sort(ficheros);
    return ficheros;
}

class Repite : public testing::TestWithParam<TFuzzer> {
  protected:
    // How many files were replayed.
    static int Todos(const char* clase) {
        int repetidos = 0;
        for (const auto& fichero :
             Ficheros(std::filesystem::path(CARPETA_FUZZ) / clase / GetParam().Nombre)) {
            SCOPED_TRACE(fichero.filename().string());
            std::ifstream entrada(fichero, std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(entrada), {}};
            EXPECT_NO_THROW(GetParam().Prueba(bytes));
            ++repetidos;
        }
        return repetidos;
    }
};

TEST_P(Repite, LasSemillas) {
    EXPECT_GT(Todos("semillas"), 0);
}

TEST_P(Repite, LoHallado) {
    Todos("regresiones");
}

INSTANTIATE_TEST_SUITE_P(Fuzzers, Repite,
                         testing::Values(TFuzzer{"ini", FuzzIni}, TFuzzer{"dbase", FuzzDbase},
                                         TFuzzer{"documento", FuzzDocumento},
                                         TFuzzer{"guardado", FuzzGuardado},
                                         TFuzzer{"reconocedores", FuzzReconocedores},
                                         TFuzzer{"sesion", FuzzSesion}, TFuzzer{"textos", FuzzTextos}),
                         [](const auto& caso) { return std::string(caso.param.Nombre); });

}  // namespace
}  // namespace analizador

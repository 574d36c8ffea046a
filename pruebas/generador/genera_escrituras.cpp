// Writes generated deeds as document files: escritura_000001.docx and so on, the same for the same seed.

#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>

#include "pruebas/generador/EscrituraEnDocx.h"
#include "pruebas/generador/GeneradorEscrituras.h"

namespace {

struct TPedido {
    std::uint32_t Semilla = 1;
    std::uint32_t Cuantas = 10;
    std::filesystem::path Carpeta = ".";
    std::size_t Parrafos = 0;
};

void Escribe(const TPedido& pedido) {
    using namespace analizador::pruebas;
    std::filesystem::create_directories(pedido.Carpeta);
    for (std::uint32_t i = 1; i <= pedido.Cuantas; ++i) {
        const std::string digitos = std::to_string(i);
        const std::string ceros(digitos.size() < 6 ? 6 - digitos.size() : 0, '0');
        EscribeEscritura(pedido.Carpeta / ("escritura_" + ceros + digitos + ".docx"),
                         GeneraEscritura(pedido.Semilla + i - 1, pedido.Parrafos));
    }
}

}  // namespace

int main(int argc, char** argv) {
    TPedido pedido;
    CLI::App orden("Writes generated deeds as document files.");
    orden.add_option("--semilla", pedido.Semilla, "seed of the first one; each next one has the next seed");
    orden.add_option("--cuantas", pedido.Cuantas, "how many");
    orden.add_option("--carpeta", pedido.Carpeta, "folder to write them in, made when missing");
    orden.add_option("--parrafos", pedido.Parrafos, "paragraphs that each has at least");
    CLI11_PARSE(orden, argc, argv);
    try {
        Escribe(pedido);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "genera_escrituras: %s\n", error.what());
        return 1;
    }
}

// analiza: reads deeds from word processor documents and prints what was found in them.

#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>

#include "plataforma/Rficheros.h"
#include "programas/analiza/Orden.h"
#include "programas/analiza/OrdenAnaliza.h"

namespace {

using namespace analizador;

// The windows live in a program of their own, so that an analysis without them does not wait for a toolkit to
// load. It takes the place of this one, with the same arguments.
std::unique_ptr<TVentanas> PasaALasVentanas(char** argv) {
    const auto programa = RutaPrograma().parent_path() / "analiza-ventanas";
    std::error_code error;
    if (!std::filesystem::exists(programa, error)) {
        Avisa(
            "--revisa abre ventanas, y este programa se construyó sin ellas: instale el paquete qt6-base-dev "
            "y "
            "vuelva a construirlo");
        return nullptr;
    }
    execv(programa.c_str(), argv);
    Avisa(programa.string() + ": no se puede ejecutar (" + std::strerror(errno) + ")");
    return nullptr;
}

}  // namespace

int main(int argc, char** argv) {
    std::signal(SIGXFSZ, SIG_IGN);  // a file that may not grow is a failure to write, which is told
    const std::string_view orden = argc > 1 ? argv[1] : "";
    if (orden == "vocabulario") return OrdenVocabulario(argc - 1, argv + 1);
    if (orden == "medida") return OrdenMedida(argc - 1, argv + 1);
    return OrdenAnaliza(argc, argv, [&] { return PasaALasVentanas(argv); });
}

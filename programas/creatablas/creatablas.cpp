// creatablas: makes the reference tables from their sources.

#include "programas/creatablas/CreaTablas.h"

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdint>
#include <iostream>
#include <string>
#include <string_view>

#include "plataforma/Utf8.h"
#include "programas/creatablas/ImportaCallejero.h"

namespace {

constexpr int FALLO = 1;
constexpr int MAL_USO = 2;

struct TOpciones {
    std::string Origen = "datos";
    std::string Destino = "TABLAS";
    std::string Callejero;
};

void Prepara(CLI::App& programa, TOpciones& opciones) {
    programa.get_formatter()->label("Usage", "Uso");
    programa.get_formatter()->label("OPTIONS", "OPCIONES");
    programa.get_formatter()->label("TEXT", "CARPETA");
    programa.option_defaults()->group("Opciones");
    programa.set_help_flag("--ayuda,--help", "Muestra esta ayuda");
    programa.set_version_flag("--version", "creatablas " VERSION_PROGRAMA, "Muestra la versión");
    programa.add_option("--origen", opciones.Origen, "Carpeta de los ficheros .csv (por omisión, datos)");
    programa.add_option("--destino", opciones.Destino,
                        "Carpeta de las tablas .DBF, que se crea si no existe (por omisión, TABLAS)");
    programa.add_option(
        "--callejero", opciones.Callejero,
        "Carpeta del callejero del censo electoral: hace de él POSTAL.DBF y MUNICIPI.DBF, y solo "
        "esas tablas");
}

// Tells on one line of the terminal how far each file has been read; nothing when the output is no terminal.
class TAvance {
  public:
    void operator()(std::string_view fichero, std::uint64_t leidos, std::uint64_t total) {
        if (!terminal_) return;
        const std::uint64_t porciento = total == 0 ? 100 : std::min<std::uint64_t>(100, leidos * 100 / total);
        std::cerr << '\r' << fichero << ": " << porciento << " %" << (leidos >= total ? "\n" : "")
                  << std::flush;
    }

  private:
    bool terminal_ = isatty(STDERR_FILENO) == 1;
};

int AvisaDelUso(const CLI::App& programa) {
    std::string sobra;
    for (const std::string& argumento : programa.remaining()) sobra += " " + argumento;
    std::cerr << "creatablas: "
              << (sobra.empty() ? std::string("falta el valor de una opción")
                                : "no se entiende" + analizador::EnUnaLinea(sobra))
              << " (vea creatablas --ayuda)\n";
    return MAL_USO;
}

}  // namespace

int main(int argc, char** argv) try {
    TOpciones opciones;
    CLI::App programa("Crea las tablas de referencia a partir de sus ficheros .csv.", "creatablas");
    Prepara(programa, opciones);
    try {
        programa.parse(argc, argv);
    } catch (const CLI::Success& informacion) {
        return programa.exit(informacion);
    } catch (const CLI::ParseError&) {
        return AvisaDelUso(programa);
    }
    const auto ruta = [](const std::string& utf8) {
        return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
    };
    const bool bien =
        programa.count("--callejero") > 0
            ? analizador::ImportaCallejero(ruta(opciones.Callejero), ruta(opciones.Origen),
                                           ruta(opciones.Destino), std::cout, std::cerr, TAvance())
            : analizador::CreaTablas(ruta(opciones.Origen), ruta(opciones.Destino), std::cerr);
    return bien ? 0 : FALLO;
} catch (const std::exception& error) {
    std::cerr << "creatablas: " << analizador::EnUnaLinea(error.what()) << '\n';
    return FALLO;
}

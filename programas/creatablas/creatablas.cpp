// creatablas: makes the reference tables from their sources.

#include "programas/creatablas/CreaTablas.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <string>

namespace {

constexpr int FALLO = 1;
constexpr int MAL_USO = 2;

struct TOpciones {
    std::string Origen = "datos";
    std::string Destino = "TABLAS";
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
}

int AvisaDelUso(const CLI::App& programa) {
    std::string sobra;
    for (const std::string& argumento : programa.remaining()) sobra += " " + argumento;
    std::cerr << "creatablas: "
              << (sobra.empty() ? std::string("falta el valor de una opción") : "no se entiende" + sobra)
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
    return analizador::CreaTablas(ruta(opciones.Origen), ruta(opciones.Destino), std::cerr) ? 0 : FALLO;
} catch (const std::exception& error) {
    std::cerr << "creatablas: " << error.what() << '\n';
    return FALLO;
}

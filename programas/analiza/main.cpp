// analiza: reads deeds from word processor documents and prints what was found in them.

#include <CLI/CLI.hpp>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "programas/analiza/AnalisisFichero.h"
#include "programas/analiza/Entorno.h"
#include "programas/analiza/SalidaJson.h"
#include "programas/analiza/SalidaTexto.h"

namespace {

using namespace analizador;
namespace fs = std::filesystem;

enum TCodigoSalida { TODO_BIEN = 0, ALGUNO_FALLO = 1, MAL_USO = 2 };

struct TOpciones {
    std::vector<std::string> Ficheros;
    std::optional<fs::path> Config;
    std::optional<fs::path> Tablas;
    std::optional<fs::path> Salida;
    bool Json = false;
    bool Guarda = false;
    bool Forzar = false;
};

void Declara(CLI::App& aplicacion, TOpciones& opciones) {
    aplicacion.set_help_flag("--ayuda,--help,-h", "Muestra esta ayuda y termina");
    aplicacion.set_version_flag("--version", "analiza " ANALIZADOR_VERSION, "Muestra la versión y termina");
    aplicacion.get_formatter()->label("REQUIRED", "(obligatorio)");
    aplicacion.get_formatter()->label("OPTIONS", "opciones");
    aplicacion.get_formatter()->label("Usage", "Uso");
    aplicacion.get_formatter()->label("Options", "Opciones");
    aplicacion.get_formatter()->label("Positionals", "Ficheros");
    aplicacion.get_formatter()->column_width(28);
    aplicacion.add_option("FICHERO", opciones.Ficheros, "Escrituras que se analizan (.docx, .docm, .dotx)")
        ->required()
        ->type_name("");
    aplicacion.add_flag("--json", opciones.Json, "Escribe una línea de JSON por fichero en lugar del informe");
    aplicacion.add_option("--config", opciones.Config, "Carpeta de los vocabularios y de OFICINA.INI")->type_name("CARPETA");
    aplicacion.add_option("--tablas", opciones.Tablas, "Carpeta de las tablas de referencia")->type_name("CARPETA");
    auto* const guarda =
        aplicacion.add_flag("--guarda", opciones.Guarda, "Guarda en cada fichero los marcadores de sus secciones");
    aplicacion.add_option("--salida", opciones.Salida, "Guarda el documento con los marcadores en otro fichero")
        ->type_name("FICHERO")
        ->excludes(guarda);
    aplicacion.add_flag("--forzar", opciones.Forzar, "Guarda aunque otro programa tenga abierto el documento");
}

// What CLI11 says of a wrong call, in the user's language.
std::string CausaDeMalUso(const CLI::ParseError& error) {
    if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) return "falta el fichero que se quiere analizar";
    if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr) return "opción desconocida";
    if (dynamic_cast<const CLI::ExcludesError*>(&error) != nullptr) return "--guarda y --salida no van juntas";
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) return "a una opción le falta su valor";
    return "no se entienden las opciones";
}

int MalUso(const std::string& causa) {
    std::fprintf(stderr, "analiza: %s (con --ayuda se ven las opciones)\n", causa.c_str());
    return MAL_USO;
}

void Escribe(const std::string& texto) { std::fwrite(texto.data(), 1, texto.size(), stdout); }

// False when the file could not be analysed.
bool Procesa(const fs::path& fichero, const TOpciones& opciones) {
    TOpcionesAnalisis pedido{opciones.Salida, opciones.Forzar};
    if (opciones.Guarda) pedido.Salida = fichero;
    const TAnalisisFichero analisis(fichero, pedido);
    if (!analisis.Error().empty()) std::fprintf(stderr, "analiza: %s\n", analisis.Error().c_str());
    if (opciones.Json) {
        Escribe(LineaJson(fichero, analisis) + "\n");
    } else if (analisis.Error().empty()) {
        if (opciones.Ficheros.size() > 1) Escribe("==== " + fichero.string() + "\n");
        Escribe(InformeTexto(analisis.Sesion()));
        if (opciones.Ficheros.size() > 1) Escribe("\n");
    }
    return analisis.Error().empty();
}

int Ejecuta(const TOpciones& opciones) {
    if (opciones.Salida && opciones.Ficheros.size() > 1) return MalUso("con --salida se analiza un solo fichero");
    try {
        const TEntorno entorno(opciones.Config, opciones.Tablas);
        int codigo = TODO_BIEN;
        for (const auto& fichero : opciones.Ficheros)
            if (!Procesa(fichero, opciones)) codigo = ALGUNO_FALLO;
        return codigo;
    } catch (const ErrorConfiguracion& error) {
        return MalUso(error.what());
    }
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App aplicacion("Lee escrituras notariales y extrae los datos que la notaría registra.", "analiza");
    TOpciones opciones;
    Declara(aplicacion, opciones);
    try {
        aplicacion.parse(argc, argv);
    } catch (const CLI::Success& pedido) {
        return aplicacion.exit(pedido);
    } catch (const CLI::ParseError& error) {
        return MalUso(CausaDeMalUso(error));
    }
    const int codigo = Ejecuta(opciones);
    if (std::fflush(stdout) != 0) {
        std::fprintf(stderr, "analiza: no se puede escribir la salida\n");
        return ALGUNO_FALLO;
    }
    return codigo;
}

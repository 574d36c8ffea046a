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
    bool Origen = false;
    bool Guarda = false;
    bool Forzar = false;
};

void Declara(CLI::App& aplicacion, TOpciones& opciones) {
    aplicacion.get_formatter()->label("Usage", "Uso");
    aplicacion.get_formatter()->label("OPTIONS", "opciones");
    aplicacion.get_formatter()->label("Positionals", "Ficheros");
    aplicacion.get_formatter()->column_width(24);
    aplicacion.option_defaults()->group("Opciones")->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    aplicacion.set_help_flag("-h,--ayuda,--help", "Muestra esta ayuda y termina");
    aplicacion.set_version_flag("--version", "analiza " ANALIZADOR_VERSION, "Muestra la versión y termina");
    aplicacion
        .add_option("FICHERO", opciones.Ficheros, "Escrituras que se analizan (.docx, .docm, .dotx, .dotm)")
        ->required()
        ->multi_option_policy(CLI::MultiOptionPolicy::Throw)
        ->option_text("... (obligatorio)");
    aplicacion.add_flag("--json", opciones.Json,
                        "Escribe una línea de JSON por fichero en lugar del informe");
    aplicacion.add_flag("--origen", opciones.Origen,
                        "Con --json: dice además en qué párrafo y dónde se leyó cada dato");
    aplicacion.add_option("--config", opciones.Config, "Carpeta de los vocabularios y de OFICINA.INI")
        ->option_text("CARPETA");
    aplicacion.add_option("--tablas", opciones.Tablas, "Carpeta de las tablas de referencia")
        ->option_text("CARPETA");
    aplicacion.add_flag("--guarda", opciones.Guarda,
                        "Guarda en cada fichero los marcadores de sus secciones");
    aplicacion
        .add_option("--salida", opciones.Salida, "Guarda el documento con los marcadores en otro fichero")
        ->option_text("FICHERO");
    aplicacion.add_flag("--forzar", opciones.Forzar,
                        "Guarda aunque otro programa lo tenga abierto o esté firmado");
}

// The parser's messages begin with the option that they are about.
std::string PrimeraPalabra(const std::string& mensaje) {
    return mensaje.substr(0, mensaje.find_first_of(": "));
}

// What is wrong with the call, in the user's language.
std::string CausaDeMalUso(const CLI::App& aplicacion, const CLI::ParseError& error) {
    if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr)
        return "falta el fichero que se quiere analizar";
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr)
        return "a " + PrimeraPalabra(error.what()) + " le falta su valor";
    if (const auto sobran = aplicacion.remaining(); !sobran.empty())
        return "no se conoce la opción " + sobran.front();
    return "una opción tiene un valor que no se entiende";
}

// What was printed before comes first where both go to one place.
void Avisa(const std::string& texto) {
    std::fflush(stdout);
    std::fprintf(stderr, "analiza: %s\n", texto.c_str());
}

int MalUso(const std::string& causa) {
    Avisa(causa + " (con --ayuda se ven las opciones)");
    return MAL_USO;
}

void Escribe(const std::string& texto) {
    std::fwrite(texto.data(), 1, texto.size(), stdout);
}

// False when the file could not be analysed.
bool Procesa(const fs::path& fichero, const TOpciones& opciones) {
    TOpcionesAnalisis pedido{opciones.Salida, opciones.Forzar};
    if (opciones.Guarda) pedido.Salida = fichero;
    const TAnalisisFichero analisis(fichero, pedido);
    if (!analisis.Error().empty()) Avisa(analisis.Error());
    if (opciones.Json) {
        Escribe(LineaJson(fichero, analisis, opciones.Origen) + "\n");
    } else if (analisis.Error().empty()) {
        if (opciones.Ficheros.size() > 1) Escribe("==== " + fichero.string() + "\n");
        Escribe(InformeTexto(analisis.Sesion()));
        if (opciones.Ficheros.size() > 1) Escribe("\n");
    }
    return analisis.Error().empty();
}

int Ejecuta(const TOpciones& opciones) {
    if (opciones.Salida && opciones.Guarda) return MalUso("--guarda y --salida no van juntas");
    if (opciones.Origen && !opciones.Json) return MalUso("--origen solo va con --json");
    if (opciones.Salida && opciones.Ficheros.size() > 1)
        return MalUso("con --salida se analiza un solo fichero");
    try {
        const TEntorno entorno(opciones.Config, opciones.Tablas);
        int codigo = TODO_BIEN;
        for (const auto& fichero : opciones.Ficheros)
            if (!Procesa(fichero, opciones)) codigo = ALGUNO_FALLO;
        return codigo;
    } catch (const ErrorConfiguracion& error) {
        Avisa(error.what());
        return MAL_USO;
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
        return MalUso(CausaDeMalUso(aplicacion, error));
    }
    const int codigo = Ejecuta(opciones);
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        Avisa("no se puede escribir la salida");
        return ALGUNO_FALLO;
    }
    return codigo;
}

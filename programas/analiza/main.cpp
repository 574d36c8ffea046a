// analiza: reads deeds from word processor documents and prints what was found in them.

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "programas/analiza/AnalisisFichero.h"
#include "programas/analiza/Entorno.h"
#include "programas/analiza/Orden.h"
#include "programas/analiza/SalidaJson.h"
#include "programas/analiza/SalidaTexto.h"

namespace {

using namespace analizador;
namespace fs = std::filesystem;

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
    PreparaOrden(aplicacion);
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
    aplicacion.footer(
        "Para quien cuida los vocabularios (cada una tiene su --ayuda):\n"
        "  analiza vocabulario   Revisa los vocabularios, o explica qué encuentran en un párrafo\n"
        "  analiza medida        Mide los aciertos con escrituras cuyos hechos se conocen\n"
        "Una escritura que se llame así se analiza con su carpeta: ./vocabulario");
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
    const TEntorno entorno(opciones.Config, opciones.Tablas);
    int codigo = TODO_BIEN;
    for (const auto& fichero : opciones.Ficheros)
        if (!Procesa(fichero, opciones)) codigo = ALGUNO_FALLO;
    return codigo;
}

int OrdenAnaliza(int argc, char** argv) {
    CLI::App aplicacion("Lee escrituras notariales y extrae los datos que la notaría registra.", "analiza");
    TOpciones opciones;
    Declara(aplicacion, opciones);
    return EjecutaOrden(aplicacion, argc, argv, "falta el fichero que se quiere analizar",
                        [&] { return Ejecuta(opciones); });
}

}  // namespace

int main(int argc, char** argv) {
    const std::string_view orden = argc > 1 ? argv[1] : "";
    if (orden == "vocabulario") return OrdenVocabulario(argc - 1, argv + 1);
    if (orden == "medida") return OrdenMedida(argc - 1, argv + 1);
    return OrdenAnaliza(argc, argv);
}

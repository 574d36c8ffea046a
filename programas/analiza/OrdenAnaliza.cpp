#include "programas/analiza/OrdenAnaliza.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "plataforma/Ansi.h"
#include "plataforma/Ruttb.h"
#include "programas/analiza/AnalisisFichero.h"
#include "programas/analiza/Entorno.h"
#include "programas/analiza/Orden.h"
#include "programas/analiza/SalidaJson.h"
#include "programas/analiza/SalidaTexto.h"

namespace analizador {

namespace {

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
    bool Revisa = false;
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
    aplicacion.add_flag("--revisa", opciones.Revisa,
                        "Muestra lo encontrado en ventanas, para corregirlo, y escribe lo elegido");
    aplicacion.footer(
        "Para quien cuida los vocabularios (cada una tiene su --ayuda):\n"
        "  analiza vocabulario   Revisa los vocabularios, o explica qué encuentran en un párrafo\n"
        "  analiza medida        Mide los aciertos con escrituras cuyos hechos se conocen\n"
        "Una escritura que se llame así se analiza con su carpeta: ./vocabulario");
}

// What is written of an analysis without an error. Throws ErrorTabla.
std::string Texto(const TAnalisisFichero& analisis, const TOpciones& opciones) {
    const std::string texto =
        opciones.Revisa ? EleccionTexto(analisis.Sesion()) : InformeTexto(analisis.Sesion());
    return opciones.Ficheros.size() > 1 ? texto + "\n" : texto;
}

// Analyses a file, lets the user review it where that was asked for, and writes what came of it.
TCodigoSalida Procesa(const fs::path& fichero, const TOpciones& opciones) {
    TOpcionesAnalisis pedido{opciones.Salida, opciones.Forzar, opciones.Revisa};
    if (opciones.Guarda) pedido.Salida = fichero;
    const TAnalisisFichero analisis(fichero, pedido);
    if (!analisis.Error().empty()) Avisa(analisis.Error());
    if (opciones.Json)
        Escribe(LineaJson(fichero, analisis, {.Origen = opciones.Origen, .Revisado = opciones.Revisa}) +
                "\n");
    if (!analisis.Error().empty()) return ALGUNO_FALLO;
    if (opciones.Revisa && !analisis.Sesion().Aceptado) {
        Avisa(fichero.string() + ": revisión cancelada");
        return REVISION_CANCELADA;
    }
    if (opciones.Json) return TODO_BIEN;
    if (opciones.Ficheros.size() > 1) Escribe("==== " + fichero.string() + "\n");
    try {
        Escribe(Texto(analisis, opciones));
    } catch (const ErrorTabla& error) {
        Avisa(fichero.string() + ": " + Utf8DeAnsi(error.what()));
        return ALGUNO_FALLO;
    }
    return TODO_BIEN;
}

TCodigoSalida PeorDe(TCodigoSalida uno, TCodigoSalida otro) {
    for (const auto peor : {ALGUNO_FALLO, REVISION_CANCELADA})
        if (uno == peor || otro == peor) return peor;
    return TODO_BIEN;
}

int Ejecuta(const TOpciones& opciones, const TCreaVentanas& creaVentanas) {
    if (opciones.Salida && opciones.Guarda) return MalUso("--guarda y --salida no van juntas");
    if (opciones.Origen && !opciones.Json) return MalUso("--origen solo va con --json");
    if (opciones.Salida && opciones.Ficheros.size() > 1)
        return MalUso("con --salida se analiza un solo fichero");
    const TEntorno entorno(opciones.Config, opciones.Tablas);
    const auto ventanas = opciones.Revisa ? creaVentanas() : nullptr;
    if (opciones.Revisa && ventanas == nullptr) return ALGUNO_FALLO;
    TCodigoSalida codigo = TODO_BIEN;
    for (const auto& fichero : opciones.Ficheros) codigo = PeorDe(codigo, Procesa(fichero, opciones));
    return codigo;
}

}  // namespace

int OrdenAnaliza(int argc, char** argv, const TCreaVentanas& creaVentanas) {
    CLI::App aplicacion("Lee escrituras notariales y extrae los datos que la notaría registra.", "analiza");
    TOpciones opciones;
    Declara(aplicacion, opciones);
    return EjecutaOrden(aplicacion, argc, argv, "falta el fichero que se quiere analizar",
                        [&] { return Ejecuta(opciones, creaVentanas); });
}

}  // namespace analizador

#include "programas/analiza/OrdenAnaliza.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include "programas/analiza/Entorno.h"
#include "programas/analiza/ListaEscrituras.h"
#include "programas/analiza/OpcionesAnaliza.h"
#include "programas/analiza/Orden.h"
#include "programas/analiza/OrdenLote.h"
#include "programas/analiza/ProcesaEscritura.h"

namespace analizador {

namespace {

constexpr unsigned HILOS_MAXIMOS = 1024;

void Declara(CLI::App& aplicacion, TOpcionesAnaliza& opciones) {
    PreparaOrden(aplicacion);
    aplicacion.set_version_flag("--version", "analiza " ANALIZADOR_VERSION, "Muestra la versión y termina");
    aplicacion
        .add_option(
            "FICHERO", opciones.Ficheros,
            "Escrituras que se analizan (.docx, .docm, .dotx, .dotm). Una carpeta vale por sus escrituras, "
            "y - por los nombres, uno por línea, que llegan por la entrada")
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
    aplicacion
        .add_option("--hilos", opciones.Hilos,
                    "Cuántas escrituras se analizan a la vez (si no se dice, tantas "
                    "como núcleos tiene el ordenador)")
        ->check(CLI::Range(1U, HILOS_MAXIMOS))
        ->option_text("N");
    aplicacion
        .add_option("--resultados", opciones.Resultados,
                    "Con --json: escribe las líneas en un fichero, del que se puede continuar")
        ->option_text("FICHERO");
    aplicacion.add_flag("--continua", opciones.Continua,
                        "Con --resultados: sigue donde se interrumpió, sin repetir lo que ya está");
    aplicacion.add_flag("-0,--nulos", opciones.Nulos,
                        "Los nombres que llegan por la entrada acaban en un byte nulo y no en fin de línea");
    aplicacion.footer(
        "Para quien cuida los vocabularios (cada una tiene su --ayuda):\n"
        "  analiza vocabulario   Revisa los vocabularios, o explica qué encuentran en un párrafo\n"
        "  analiza medida        Mide los aciertos con escrituras cuyos hechos se conocen\n"
        "Una escritura que se llame así se analiza con su carpeta: ./vocabulario");
}

// What does not go together; empty when all does.
std::string Incompatible(const TOpcionesAnaliza& opciones, bool varias) {
    const bool hayLista = std::ranges::find(opciones.Ficheros, "-") != opciones.Ficheros.end();
    struct TRegla {
        bool Falta;
        const char* Causa;
    };
    for (const auto& [falta, causa] : {
             TRegla{opciones.Salida && opciones.Guarda, "--guarda y --salida no van juntas"},
             TRegla{opciones.Origen && !opciones.Json, "--origen solo va con --json"},
             TRegla{opciones.Salida && varias, "con --salida se analiza un solo fichero"},
             TRegla{opciones.Resultados && !opciones.Json, "--resultados solo va con --json"},
             TRegla{opciones.Continua && !opciones.Resultados, "--continua solo va con --resultados"},
             TRegla{opciones.Nulos && !hayLista, "-0 solo va con - (los nombres llegan por la entrada)"},
             TRegla{opciones.Revisa && opciones.Resultados, "--revisa y --resultados no van juntas"},
             TRegla{opciones.Revisa && opciones.Hilos, "--revisa va de una en una: sobra --hilos"},
             TRegla{opciones.Guarda && opciones.Hilos, "--guarda va de una en una: sobra --hilos"},
         })
        if (falta) return causa;
    return {};
}

// One deed after another, with what the windows or the terminal show of each.
int AnalizaDeUnaEnUna(TListaEscrituras& lista, const TOpcionesAnaliza& opciones, bool varias,
                      const TCreaVentanas& creaVentanas) {
    const TEntorno entorno(opciones.Config, opciones.Tablas);
    const auto ventanas = opciones.Revisa ? creaVentanas() : nullptr;
    if (opciones.Revisa && ventanas == nullptr) return ALGUNO_FALLO;
    TCodigoSalida codigo = TODO_BIEN;
    while (const auto escritura = lista.Siguiente()) {
        const auto resultado = ProcesaEscritura(*escritura, opciones, varias);
        if (!resultado.Aviso.empty()) Avisa(resultado.Aviso);
        Escribe(resultado.Salida);
        codigo = PeorDe(codigo, resultado.Codigo);
    }
    return codigo;
}

int Ejecuta(const TOpcionesAnaliza& opciones, const TCreaVentanas& creaVentanas) {
    const bool varias = opciones.Ficheros.size() > 1 || EsDeVarias(opciones.Ficheros.front());
    if (const auto causa = Incompatible(opciones, varias); !causa.empty()) return MalUso(causa);
    TListaEscrituras lista(opciones.Ficheros, stdin, opciones.Nulos ? '\0' : '\n');
    if (opciones.Revisa || (!varias && !opciones.Resultados))
        return AnalizaDeUnaEnUna(lista, opciones, varias, creaVentanas);
    const TAjustesOficina ajustes(opciones.Config, opciones.Tablas);
    return AnalizaLote(lista, opciones);
}

}  // namespace

int OrdenAnaliza(int argc, char** argv, const TCreaVentanas& creaVentanas) {
    CLI::App aplicacion("Lee escrituras notariales y extrae los datos que la notaría registra.", "analiza");
    TOpcionesAnaliza opciones;
    Declara(aplicacion, opciones);
    return EjecutaOrden(aplicacion, argc, argv, "falta el fichero que se quiere analizar",
                        [&] { return Ejecuta(opciones, creaVentanas); });
}

}  // namespace analizador

// analiza vocabulario: checks the token files, or explains what they find in a paragraph.

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Ansi.h"
#include "plataforma/Ruttb.h"
#include "programas/analiza/Entorno.h"
#include "programas/analiza/Explicacion.h"
#include "programas/analiza/Orden.h"
#include "programas/analiza/RevisionVocabulario.h"

namespace analizador {

namespace {

namespace fs = std::filesystem;

struct TOpcionesVocabulario {
    std::optional<fs::path> Config;
    std::optional<fs::path> Tablas;
    std::optional<std::string> Explica;
    bool Catalan = false;
};

void Declara(CLI::App& orden, TOpcionesVocabulario& opciones) {
    PreparaOrden(orden);
    orden.add_option("--config", opciones.Config, "Carpeta de los vocabularios y de OFICINA.INI")
        ->option_text("CARPETA");
    orden
        .add_option("--explica", opciones.Explica,
                    "Explica qué se encuentra en ese párrafo; con - se lee de la entrada")
        ->option_text("TEXTO");
    orden.add_flag("--catalan", opciones.Catalan, "Con --explica: el párrafo es de una escritura catalana");
    orden.add_option("--tablas", opciones.Tablas, "Con --explica: carpeta de las tablas de referencia")
        ->option_text("CARPETA");
    orden.footer(
        "Sin --explica revisa los dos vocabularios, y dice en qué línea está cada reparo. Devuelve 1 si hay\n"
        "errores, 0 si no los hay aunque haya avisos.");
}

std::string LeeEntrada() {
    return {std::istreambuf_iterator<char>(std::cin), {}};
}

// Beside the token files; an office that keeps its own elsewhere need not copy it.
TPalabrasCorrientes PalabrasCorrientes() {
    constexpr auto NOMBRE = "palabras_corrientes.txt";
    for (const fs::path& carpeta : {Rutas().PATH_TOKEN_AP, Rutas().PATH_APLICACION / "CONFIG"}) {
        std::ifstream fichero(carpeta / NOMBRE, std::ios::binary);
        const std::string texto((std::istreambuf_iterator<char>(fichero)), std::istreambuf_iterator<char>());
        if (!texto.empty()) return LeePalabrasCorrientes(texto);
    }
    Avisa(std::string(NOMBRE) + ": falta, y no se mira si las entradas están dentro de otras palabras");
    return {};
}

std::string Cuantos(int n, const std::string& uno) {
    return std::to_string(n) + " " + uno + (n == 1 ? "" : uno.ends_with('r') ? "es" : "s");
}

int Revisa(const std::optional<fs::path>& config) {
    EligeVocabularios(config);
    const TPalabrasCorrientes corrientes = PalabrasCorrientes();
    int errores = 0;
    int avisos = 0;
    for (const bool catalan : {false, true}) {
        const auto vocabulario = LeeVocabulario(catalan ? Rutas().CATALAN_INI : Rutas().CASTELLANO_INI);
        const auto& palabras = catalan ? corrientes.Catalan : corrientes.Castellano;
        for (const TReparo& reparo : RevisaVocabulario(vocabulario, palabras)) {
            Escribe(LineaDeReparo(vocabulario, reparo) + "\n");
            ++(reparo.Error ? errores : avisos);
        }
    }
    Escribe(Cuantos(errores, "error") + ", " + Cuantos(avisos, "aviso") + "\n");
    return errores == 0 ? TODO_BIEN : ALGUNO_FALLO;
}

int ExplicaParrafo(const TOpcionesVocabulario& opciones) {
    const TEntorno entorno(opciones.Config, opciones.Tablas);
    const std::string parrafo = *opciones.Explica == "-" ? LeeEntrada() : *opciones.Explica;
    try {
        Escribe(Explica(parrafo, opciones.Catalan ? Rutas().CATALAN_INI : Rutas().CASTELLANO_INI));
        return TODO_BIEN;
    } catch (const ErrorTabla& error) {
        Avisa(Utf8DeAnsi(error.what()));
        return ALGUNO_FALLO;
    }
}

}  // namespace

int OrdenVocabulario(int argc, char** argv) {
    CLI::App orden("Revisa los vocabularios, o explica qué encuentran en un párrafo.", "analiza vocabulario");
    TOpcionesVocabulario opciones;
    Declara(orden, opciones);
    return EjecutaOrden(orden, argc, argv, "", [&]() -> int {
        if (opciones.Explica) return ExplicaParrafo(opciones);
        if (opciones.Catalan) return MalUso("--catalan solo va con --explica");
        if (opciones.Tablas) return MalUso("--tablas solo va con --explica");
        return Revisa(opciones.Config);
    });
}

}  // namespace analizador

// analiza medida: runs a folder of deeds against the facts that a clerk registered of each.

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <vector>

#include "programas/analiza/AnalisisFichero.h"
#include "programas/analiza/Entorno.h"
#include "programas/analiza/Medida.h"
#include "programas/analiza/Orden.h"
#include "programas/analiza/SalidaJson.h"

namespace analizador {

namespace {

namespace fs = std::filesystem;

struct TOpcionesMedida {
    fs::path Carpeta;
    std::optional<fs::path> Config;
    std::optional<fs::path> Tablas;
};

void Declara(CLI::App& orden, TOpcionesMedida& opciones) {
    PreparaOrden(orden);
    orden
        .add_option("CARPETA", opciones.Carpeta,
                    "Carpeta de las escrituras, con los hechos de cada una al lado (NOMBRE.json)")
        ->required()
        ->option_text("(obligatoria)");
    orden.add_option("--config", opciones.Config, "Carpeta de los vocabularios y de OFICINA.INI")
        ->option_text("CARPETA");
    orden.add_option("--tablas", opciones.Tablas, "Carpeta de las tablas de referencia")
        ->option_text("CARPETA");
    orden.footer(
        "Dice de cada dato cuántos salen bien, cuántos sobran y cuántos faltan, y después los fallos.\n"
        "Devuelve 1 si algo no se pudo leer.");
}

// The files of facts, by name.
std::vector<fs::path> FicherosDeHechos(const fs::path& carpeta) {
    std::vector<fs::path> hechos;
    std::error_code error;
    for (const auto& entrada : fs::directory_iterator(carpeta, error))
        if (entrada.path().extension() == ".json" && entrada.is_regular_file(error))
            hechos.push_back(entrada.path());
    std::ranges::sort(hechos);
    return hechos;
}

std::optional<fs::path> EscrituraDe(const fs::path& hechos) {
    std::error_code error;
    for (const char* extension : {".docx", ".docm", ".dotx", ".dotm"})
        if (fs::path escritura = fs::path(hechos).replace_extension(extension); fs::exists(escritura, error))
            return escritura;
    return std::nullopt;
}

std::string Contenido(const fs::path& fichero) {
    std::ifstream entrada(fichero, std::ios::binary);
    std::string bytes((std::istreambuf_iterator<char>(entrada)), std::istreambuf_iterator<char>());
    if (!entrada) throw ErrorHechos("no se puede leer");
    return bytes;
}

// Empty, or what is wrong.
std::string Juzga(const fs::path& hechos, TMedida& medida) {
    const auto escritura = EscrituraDe(hechos);
    if (!escritura) return hechos.string() + ": no tiene al lado su escritura";
    const TAnalisisFichero analisis(*escritura, {});
    if (!analisis.Error().empty()) return analisis.Error();
    try {
        medida.Juzga(hechos.stem().string(), Contenido(hechos), LineaJson(*escritura, analisis));
        return {};
    } catch (const ErrorHechos& error) {
        return hechos.string() + ": " + error.what();
    }
}

int Mide(const TOpcionesMedida& opciones) {
    const TEntorno entorno(opciones.Config, opciones.Tablas);
    std::error_code error;
    if (!fs::is_directory(opciones.Carpeta, error))
        throw ErrorConfiguracion(opciones.Carpeta.string() + ": no existe esa carpeta");
    const auto hechos = FicherosDeHechos(opciones.Carpeta);
    if (hechos.empty()) {
        Avisa(opciones.Carpeta.string() + ": no hay hechos (NOMBRE.json) con que medir");
        return ALGUNO_FALLO;
    }
    TMedida medida;
    int codigo = TODO_BIEN;
    for (const fs::path& fichero : hechos)
        if (const std::string fallo = Juzga(fichero, medida); !fallo.empty()) {
            Avisa(fallo);
            codigo = ALGUNO_FALLO;
        }
    Escribe(InformeMedida(medida));
    return codigo;
}

}  // namespace

int OrdenMedida(int argc, char** argv) {
    CLI::App orden("Mide cuánto acierta el programa con escrituras cuyos hechos se conocen.",
                   "analiza medida");
    TOpcionesMedida opciones;
    Declara(orden, opciones);
    return EjecutaOrden(orden, argc, argv, "falta la carpeta que se quiere medir",
                        [&] { return Mide(opciones); });
}

}  // namespace analizador

// Analyses deeds one after another and writes of each its name, its report and its JSON. Linked twice: with
// the library as it is, and with the plain readers and recognisers of this folder in place of the library's.

#include <CLI/CLI.hpp>
#include <cstdio>
#include <ctime>
#include <exception>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

#include "adaptadores/docx/FicheroDocx.h"
#include "analizador/ConstAnalizador.h"
#include "plataforma/Rnumcad.h"
#include "programas/analiza/AnalisisEscritura.h"
#include "programas/analiza/SalidaJson.h"
#include "programas/analiza/SalidaTexto.h"
#include "pruebas/generador/GeneradorEscrituras.h"
#include "pruebas/literal/AbreTablas.h"

namespace {

using namespace analizador;

struct TPedido {
    std::filesystem::path Carpeta;  // with CONFIG and TABLAS
    std::vector<std::filesystem::path> Ficheros;
    std::uint32_t Variantes = 0;
    std::uint32_t Semilla = 1;
    std::uint32_t Generadas = 0;
    std::uint32_t Salpicadas = 0;
    std::size_t Parrafos = 0;
    double Mide = 0;
};

// A deed and the name it goes by in the output.
using TToma = std::function<void(const std::string&, const TContenidoDocumento&)>;

std::vector<std::string> Parrafos(const std::string& texto) {
    std::vector<std::string> parrafos;
    for (std::size_t desde = 0; desde < texto.size();) {
        const std::size_t fin = texto.find('\r', desde);
        parrafos.push_back(texto.substr(desde, fin - desde));
        desde = fin + 1;
    }
    return parrafos;
}

// Every value of the two vocabularies.
std::vector<std::string> Vocabulario(const std::filesystem::path& config) {
    std::vector<std::string> palabras;
    for (const char* fichero : {"CASTELLANO.INI", "CATALAN.INI"}) {
        std::ifstream entrada(config / fichero, std::ios::binary);
        for (std::string linea; std::getline(entrada, linea);)
            if (const auto igual = linea.find('='); igual != std::string::npos && linea.front() != ';')
                palabras.push_back(QuitaCaracteres(linea.substr(igual + 1), "\r\""));
    }
    return palabras;
}

void Recorre(const TPedido& pedido, const TToma& toma) {
    for (const auto& fichero : pedido.Ficheros) {
        const TContenidoDocumento contenido = TFicheroDocx(fichero).Contenido();
        toma(fichero.filename().string(), contenido);
        for (std::uint32_t i = 0; i < pedido.Variantes; ++i)
            toma(fichero.filename().string() + ", variante " + std::to_string(pedido.Semilla + i),
                 pruebas::ContenidoDe(pruebas::Descuidada(Parrafos(contenido.Texto), pedido.Semilla + i)));
    }
    for (std::uint32_t i = 0; i < pedido.Generadas; ++i)
        toma("semilla " + std::to_string(pedido.Semilla + i),
             pruebas::ContenidoDe(pruebas::GeneraEscritura(pedido.Semilla + i, pedido.Parrafos)));
    const auto palabras = Vocabulario(pedido.Carpeta / "CONFIG");
    for (std::uint32_t i = 0; i < pedido.Salpicadas; ++i)
        toma("salpicada " + std::to_string(pedido.Semilla + i),
             pruebas::ContenidoDe(
                 pruebas::Salpicada(pruebas::GeneraEscritura(pedido.Semilla + i, pedido.Parrafos),
                                    pedido.Semilla + i, palabras)));
}

void Escribe(const std::string& nombre, const TContenidoDocumento& contenido) {
    const TAnalisisEscritura analisis(contenido, false);
    std::cout << "==== " << nombre << '\n'
              << (analisis.Error().empty() ? InformeTexto(analisis.Sesion()) : analisis.Error()) << '\n'
              << LineaJson("", analisis) << '\n';
}

// Processor time of one analysis, repeated for at least `segundos` of it.
void Mide(const std::string& nombre, const TContenidoDocumento& contenido, double segundos) {
    const auto ahora = [] { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; };
    { const TAnalisisEscritura calienta(contenido, false); }
    const double inicio = ahora();
    int veces = 0;
    for (; veces == 0 || ahora() - inicio < segundos; ++veces)
        const TAnalisisEscritura analisis(contenido, false);
    std::printf("%s\t%.6f\n", nombre.c_str(), (ahora() - inicio) * 1000 / veces);
}

void Ejecuta(const TPedido& pedido) {
    PonCarpetaAplicacion(pedido.Carpeta);
    const auto tablas = pruebas::AbreTablas(pedido.Carpeta / "TABLAS");
    const InstalaTablas instala(*tablas);
    Recorre(pedido, [&](const std::string& nombre, const TContenidoDocumento& contenido) {
        if (pedido.Mide > 0)
            Mide(nombre, contenido, pedido.Mide);
        else
            Escribe(nombre, contenido);
    });
}

}  // namespace

int main(int argc, char** argv) {
    TPedido pedido;
    CLI::App orden("Analyses deeds and writes their reports and JSON.");
    orden.add_option("--carpeta", pedido.Carpeta, "folder of CONFIG and TABLAS")->required();
    orden.add_option("--variantes", pedido.Variantes, "of each document, as many copies with slips");
    orden.add_option("--semilla", pedido.Semilla, "the first seed, of copies and generated deeds");
    orden.add_option("--generadas", pedido.Generadas, "as many generated deeds");
    orden.add_option("--salpicadas", pedido.Salpicadas,
                     "as many generated deeds with words of the vocabularies strewn over them");
    orden.add_option("--parrafos", pedido.Parrafos, "paragraphs that each generated one has at least");
    orden.add_option("--mide", pedido.Mide,
                     "write instead the milliseconds of processor time that an analysis "
                     "takes, repeated for so many seconds");
    orden.add_option("FICHERO", pedido.Ficheros, "documents");
    CLI11_PARSE(orden, argc, argv);
    try {
        Ejecuta(pedido);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}

// How time and memory of the analysis grow with the deed, the tables and the vocabulary: writes a table for
// each and ends with 1 when one of them grows more than CRECIMIENTO_MAXIMO times linear.

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "adaptadores/docx/FicheroDocx.h"
#include "adaptadores/memoria/DocumentoMemoria.h"
#include "medidas/Crecimiento.h"
#include "medidas/EscriturasCrecidas.h"
#include "medidas/MemoriaContada.h"
#include "programas/analiza/Entorno.h"

namespace {

using namespace analizador;

namespace fs = std::filesystem;

struct TCoste {
    double Segundos = 0;  // of processor
    double Bytes = 0;     // at most, above those in use before
};

double SegundosDeProcesador() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

// The least of several runs, since whatever else the machine does only adds: as many as fit into a while.
TCoste Mide(const std::function<void()>& trabajo) {
    constexpr double BASTANTE = 1.0;
    constexpr int AL_MENOS = 2;
    TCoste coste{HUGE_VAL, 0};
    double gastado = 0;
    for (int i = 0; i < AL_MENOS || gastado < BASTANTE; ++i) {
        EmpiezaMaximo();
        const std::size_t antes = MemoriaEnUso();
        const double principio = SegundosDeProcesador();
        trabajo();
        const double segundos = SegundosDeProcesador() - principio;
        coste.Segundos = std::min(coste.Segundos, segundos);
        coste.Bytes = static_cast<double>(MemoriaMaxima() - antes);
        gastado += segundos;
    }
    return coste;
}

// What is measured at one size.
struct TCaso {
    int Veces;
    std::function<void()> Trabajo;
};

std::vector<TPuntoMedido> Puntos(const std::vector<TCaso>& casos, const std::vector<TCoste>& costes,
                                 double TCoste::*cual) {
    std::vector<TPuntoMedido> puntos;
    for (std::size_t i = 0; i < casos.size(); ++i)
        puntos.push_back({static_cast<double>(casos[i].Veces), costes[i].*cual});
    return puntos;
}

void EscribeFilas(const std::string& titulo, const std::vector<TCaso>& casos,
                  const std::vector<TCoste>& costes) {
    const auto tiempo = Crecimientos(Puntos(casos, costes, &TCoste::Segundos));
    const auto memoria = Crecimientos(Puntos(casos, costes, &TCoste::Bytes));
    const auto razon = [](const std::vector<double>& razones, std::size_t i) {
        std::array<char, 64> texto{};
        if (i == 0) return std::string("-");
        std::snprintf(texto.data(), texto.size(), "%.2f %s", razones[i - 1],
                      razones[i - 1] <= CRECIMIENTO_MAXIMO ? "OK" : "NO");
        return std::string(texto.data());
    };
    for (std::size_t i = 0; i < casos.size(); ++i)
        std::printf("| %s | %d | %.2f ms | %s | %.2f MB | %s |\n", titulo.c_str(), casos[i].Veces,
                    costes[i].Segundos * 1e3, razon(tiempo, i).c_str(), costes[i].Bytes / 1e6,
                    razon(memoria, i).c_str());
    std::fflush(stdout);
}

// Measures the cases and writes them; false when one grows too fast. Noise only adds, so what seems to grow
// is measured again and the least of each size counts.
bool Comprueba(const std::string& titulo, const std::vector<TCaso>& casos) {
    constexpr int INTENTOS = 3;
    std::vector<TCoste> costes(casos.size(), {HUGE_VAL, 0});
    bool lineal = false;
    for (int intento = 0; intento < INTENTOS && !lineal; ++intento) {
        for (std::size_t i = 0; i < casos.size(); ++i) {
            const TCoste coste = Mide(casos[i].Trabajo);
            costes[i] = {std::min(costes[i].Segundos, coste.Segundos), coste.Bytes};
        }
        lineal = EsLineal(Puntos(casos, costes, &TCoste::Segundos)) &&
                 EsLineal(Puntos(casos, costes, &TCoste::Bytes));
    }
    EscribeFilas(titulo, casos, costes);
    return lineal;
}

void Analiza(const std::string& texto) {
    TAplicacionMemoria aplicacion(std::make_unique<TDocumentoMemoria>(TContenidoDocumento{texto, {}, {}}));
    TClassAnalizadorAbierto sesion(nullptr, &aplicacion);
    (void)sesion.Analiza(true);
}

struct TManera {
    const char* Nombre;
    std::string (*Crece)(const TEscrituraEjemplo&, int);
};

constexpr std::array<TManera, 5> MANERAS = {{
    {"the deed repeated", EscrituraRepetida},
    {"each paragraph repeated", ParrafosRepetidos},
    {"each paragraph repeated, other parties", OtorgantesDistintos},
    {"one paragraph", UnSoloParrafo},
    {"one paragraph for each section", UnParrafoPorSeccion},
}};

bool CompruebaEscrituras(const std::string& fichero, const std::string& solo, int hasta) {
    const TEscrituraEjemplo ejemplo = Ejemplo(TFicheroDocx(fs::path(EJEMPLOS) / fichero).Contenido().Texto);
    bool lineal = true;
    for (const auto& [nombre, crece] : MANERAS) {
        const std::string titulo = fichero + ": " + nombre;
        if (titulo.find(solo) == std::string::npos) continue;
        std::vector<TCaso> casos;
        for (int veces = 1; veces <= hasta; veces *= 10) {
            const auto texto = std::make_shared<const std::string>(crece(ejemplo, veces));
            casos.push_back({veces, [texto] { Analiza(*texto); }});
        }
        lineal = Comprueba(titulo, casos) && lineal;
    }
    return lineal;
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App orden{"Measures how the analysis grows"};
    std::string solo;
    int hasta = 1000;
    orden.add_option("--solo", solo, "Only the rows whose title has this");
    orden.add_option("--hasta", hasta, "The greatest size");
    CLI11_PARSE(orden, argc, argv);

    const TEntorno entorno(fs::path(CARPETA_BIN) / "CONFIG", fs::path(CARPETA_BIN) / "TABLAS");
    std::printf("| what grows | times | time | growth | memory | growth |\n|---|---|---|---|---|---|\n");
    bool lineal = true;
    for (const char* const fichero : {"compraventa.docx", "compraventa_extranjero.docx", "compravenda.docx",
                                      "prestamo_hipotecario.docx", "testamento.docx"})
        lineal = CompruebaEscrituras(fichero, solo, hasta) && lineal;
    return lineal ? 0 : 1;
}

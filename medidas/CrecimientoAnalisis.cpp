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

#include "adaptadores/dbase/ProveedorDbase.h"
#include "adaptadores/docx/FicheroDocx.h"
#include "adaptadores/memoria/DocumentoMemoria.h"
#include "analizador/ConstAnalizador.h"
#include "medidas/Crecimiento.h"
#include "medidas/EscriturasCrecidas.h"
#include "medidas/MemoriaContada.h"
#include "medidas/OficinaCrecida.h"
#include "plataforma/FicheroIni.h"
#include "plataforma/Rficheros.h"
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
    constexpr double BASTANTE = 0.3;
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
    constexpr int INTENTOS = 15;
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

// What the user asked for.
struct TOrden {
    std::string Solo;
    int Hasta = 1000;

    [[nodiscard]] bool Quiere(const std::string& titulo) const {
        return titulo.find(Solo) != std::string::npos;
    }
};

using TCrece = std::function<std::string(int)>;

bool CompruebaEscritura(const TOrden& orden, const std::string& titulo, const TCrece& crece) {
    if (!orden.Quiere(titulo)) return true;
    std::vector<TCaso> casos;
    for (int veces = 1; veces <= orden.Hasta; veces *= 10) {
        const auto texto = std::make_shared<const std::string>(crece(veces));
        casos.push_back({veces, [texto] { Analiza(*texto); }});
    }
    return Comprueba(titulo, casos);
}

bool CompruebaEscrituras(const TOrden& orden) {
    bool lineal = true;
    for (const char* const fichero : {"compraventa.docx", "compraventa_extranjero.docx", "compravenda.docx",
                                      "prestamo_hipotecario.docx", "testamento.docx"}) {
        const TEscrituraEjemplo ejemplo =
            Ejemplo(TFicheroDocx(fs::path(EJEMPLOS) / fichero).Contenido().Texto);
        for (const auto& [nombre, crece] : MANERAS)
            lineal = CompruebaEscritura(orden, std::string(fichero) + ": " + nombre,
                                        [&, crece = crece](int veces) { return crece(ejemplo, veces); }) &&
                     lineal;
    }
    lineal = CompruebaEscritura(orden, "ten parties, all in the transfer",
                                [](int veces) { return EscrituraDeOtorgantes(10 * veces); }) &&
             lineal;
    return CompruebaEscritura(orden, "one paragraph of all words",
                              [](int veces) { return SoloPalabras(Rutas().CASTELLANO_INI, veces); }) &&
           lineal;
}

// The example in an office whose tables and vocabulary grow: warm, and with all of it read anew.
bool CompruebaOficinas(const TOrden& orden) {
    const std::string texto = TFicheroDocx(fs::path(EJEMPLOS) / "compraventa.docx").Contenido().Texto;
    const fs::path carpeta = CARPETA_BIN;
    const auto comprueba = [&](const std::string& que, int vocabulario, int tablas) {
        std::vector<TCaso> calientes;
        std::vector<TCaso> frios;
        for (const bool crecida : {false, true}) {
            const int veces = crecida ? 10 : 1;
            const TOficinaCrecida oficina(carpeta / "CONFIG", carpeta / "TABLAS", crecida ? vocabulario : 1,
                                          crecida ? tablas : 1);
            const auto proveedor = std::make_shared<TProveedorDbase>(oficina.Tablas());
            calientes.push_back({veces, [=] {
                                     PonCarpetaTokens(oficina.Config());
                                     const InstalaTablas instala(*proveedor);
                                     Analiza(texto);
                                 }});
            frios.push_back({veces, [=] {
                                 PonCarpetaTokens(oficina.Config());
                                 TProveedorDbase nuevo(oficina.Tablas());
                                 const InstalaTablas instala(nuevo);
                                 for (const auto& fichero : {Rutas().CASTELLANO_INI, Rutas().CATALAN_INI})
                                     const TFicheroIni leido(LeeFichero(fichero).Bytes);
                                 Analiza(texto);
                             }});
        }
        const bool caliente = !orden.Quiere(que) || Comprueba(que, calientes);
        const bool frio = !orden.Quiere(que) || Comprueba(que + ", read anew", frios);
        return caliente && frio;
    };
    const bool tablas = comprueba("rows of all tables", 1, 10);
    const bool vocabulario = comprueba("entries of the vocabulary", 10, 1);
    return tablas && vocabulario;
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App orden{"Measures how the analysis grows"};
    TOrden pedido;
    orden.add_option("--solo", pedido.Solo, "Only the rows whose title has this");
    orden.add_option("--hasta", pedido.Hasta, "The greatest size of a deed");
    CLI11_PARSE(orden, argc, argv);

    const TEntorno entorno(fs::path(CARPETA_BIN) / "CONFIG", fs::path(CARPETA_BIN) / "TABLAS");
    std::printf("| what grows | times | time | growth | memory | growth |\n|---|---|---|---|---|---|\n");
    const bool escrituras = CompruebaEscrituras(pedido);
    const bool oficinas = CompruebaOficinas(pedido);
    return escrituras && oficinas ? 0 : 1;
}

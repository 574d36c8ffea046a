// How long the analysis of a deed takes: the whole program from its start, and the analysis alone in a
// process that is warm, on the deed as it is and with its recitals repeated to ten times the length. With the
// environment variable OTRAS_TABLAS also on the tables of that folder, to compare both in one run.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "adaptadores/dbase/ProveedorDbase.h"
#include "adaptadores/docx/FicheroDocx.h"
#include "adaptadores/memoria/DocumentoMemoria.h"
#include "analizador/ClaseAnalizadorAbierto.h"
#include "analizador/ConstAnalizador.h"
#include "programas/analiza/Entorno.h"

namespace {

using namespace analizador;

const TEntorno& Entorno() {
    static const TEntorno entorno(std::filesystem::path(CARPETA_BIN) / "CONFIG",
                                  std::filesystem::path(CARPETA_BIN) / "TABLAS");
    return entorno;
}

// The example with its second half repeated until it has `veces` times its paragraphs.
TContenidoDocumento Escritura(std::int64_t veces) {
    TContenidoDocumento contenido = TFicheroDocx(EJEMPLO).Contenido();
    const std::size_t mitad = contenido.Texto.find('\r', contenido.Texto.size() / 2) + 1;
    const std::string cola = contenido.Texto.substr(mitad);
    const std::size_t largo = contenido.Texto.size() * static_cast<std::size_t>(veces);
    while (contenido.Texto.size() + cola.size() <= largo) contenido.Texto += cola;
    return contenido;
}

void Analiza(benchmark::State& estado, const TContenidoDocumento& contenido) {
    for (auto _ : estado) {
        TAplicacionMemoria aplicacion(std::make_unique<TDocumentoMemoria>(contenido));
        TClassAnalizadorAbierto sesion(nullptr, &aplicacion);
        benchmark::DoNotOptimize(sesion.Analiza(true));
    }
    estado.counters["bytes"] = static_cast<double>(contenido.Texto.size());
}

void EnCaliente(benchmark::State& estado) {
    (void)Entorno();
    Analiza(estado, Escritura(estado.range(0)));
}
BENCHMARK(EnCaliente)->Arg(1)->Arg(10)->Unit(benchmark::kMillisecond);

void EnCalienteConOtrasTablas(benchmark::State& estado, const char* carpeta) {
    (void)Entorno();
    TProveedorDbase proveedor{std::filesystem::path(carpeta)};
    const InstalaTablas instala(proveedor);
    Analiza(estado, Escritura(estado.range(0)));
}

void LecturaDelDocumento(benchmark::State& estado) {
    for (auto _ : estado) benchmark::DoNotOptimize(TFicheroDocx(EJEMPLO).Contenido().Texto.size());
}
BENCHMARK(LecturaDelDocumento)->Unit(benchmark::kMillisecond);

void ProgramaEntero(benchmark::State& estado) {
    const std::string orden = std::string("'") + ANALIZA + "' '" + EJEMPLO + "' >/dev/null";
    for (auto _ : estado)
        if (std::system(orden.c_str()) != 0) estado.SkipWithError("analiza failed");
}
BENCHMARK(ProgramaEntero)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
    if (const char* const carpeta = std::getenv("OTRAS_TABLAS"))
        benchmark::RegisterBenchmark("EnCalienteConOtrasTablas", EnCalienteConOtrasTablas, carpeta)
            ->Arg(1)
            ->Arg(10)
            ->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}

// How long the analysis of a deed takes: the whole program from its start, and the analysis alone in a
// process that is warm, on the deed as it is and with its recitals repeated to ten times the length.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <string>

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

void EnCaliente(benchmark::State& estado) {
    (void)Entorno();
    const TContenidoDocumento contenido = Escritura(estado.range(0));
    for (auto _ : estado) {
        TAplicacionMemoria aplicacion(std::make_unique<TDocumentoMemoria>(contenido));
        TClassAnalizadorAbierto sesion(nullptr, &aplicacion);
        benchmark::DoNotOptimize(sesion.Analiza(true));
    }
    estado.counters["bytes"] = static_cast<double>(contenido.Texto.size());
}
BENCHMARK(EnCaliente)->Arg(1)->Arg(10)->Unit(benchmark::kMillisecond);

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

BENCHMARK_MAIN();

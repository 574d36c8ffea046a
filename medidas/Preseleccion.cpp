// How the preselection dialog bears many rows: opened with 500 parties and 2,000 deed types and with four
// times as many; all of them selected and moved; a title clicked. The dialog alone, and in its window.

#include <benchmark/benchmark.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QHeaderView>
#include <QPushButton>
#include <QTableView>
#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "adaptadores/dbase/EscritorDbf.h"
#include "adaptadores/dbase/ProveedorDbase.h"
#include "adaptadores/qt/VentanaPreseleccion.h"
#include "dialogos/ListaConceptosPreseleccionados.h"

namespace {

using namespace analizador;

constexpr int OTORGANTES = 500;
constexpr int TIPOS = 2000;

// A table of deed types for as long as it lives.
class TTablaTipos {
  public:
    explicit TTablaTipos(int tipos) {
        std::filesystem::create_directories(carpeta_);
        std::vector<TFilaDbf> filas;
        for (int i = 0; i < tipos; ++i) {
            const std::string numero = std::to_string(i * 7919 % tipos + 1);
            const std::string nombre = "TIPO DE ESCRITURA DE NOMBRE LARGO NUMERO " + numero;
            filas.push_back({nombre, numero, "", "F", numero, nombre});
        }
        EscribeDbf(carpeta_ / "TIPOS.DBF",
                   {{"NOMBRE", TTipoColumna::Texto, 80},
                    {"NUMEROTIPO", TTipoColumna::Numero, 6},
                    {"COD_OFICIA", TTipoColumna::Texto, 5},
                    {"PRESTAMO", TTipoColumna::Logico, 1},
                    {"CLAVE_INTI", TTipoColumna::Texto, 6},
                    {"TIPO", TTipoColumna::Texto, 80}},
                   filas, std::chrono::year(2026) / 1 / 1);
    }
    ~TTablaTipos() { std::filesystem::remove_all(carpeta_); }
    TTablaTipos(const TTablaTipos&) = delete;
    TTablaTipos& operator=(const TTablaTipos&) = delete;

  private:
    const std::filesystem::path carpeta_ =
        std::filesystem::temp_directory_path() /
        ("mide_preseleccion" + std::to_string(QCoreApplication::applicationPid()));
    TProveedorDbase proveedor_{carpeta_};
    InstalaTablas guarda_{proveedor_};
};

std::unique_ptr<TFListaConceptosPreseleccionados> Abre(int otorgantes) {
    auto dialogo = std::make_unique<TFListaConceptosPreseleccionados>("", "");
    ListaTextos<TROtorgante> lista;
    for (int i = 0; i < otorgantes; ++i) {
        auto otorgante = std::make_unique<TROtorgante>();
        otorgante->Nombre = "MARIA DEL CARMEN";
        otorgante->Apellidos = "PEREZ DE LA CIERVA Y FERNANDEZ DE CORDOBA";
        otorgante->TipoDocumento = 1;
        otorgante->NumDocumento = std::to_string(10000000 + i);
        otorgante->Domicilio = "MAYOR";
        lista.Anade("", std::move(otorgante));
    }
    dialogo->CargaListaPosiblesOtorgantes(lista);
    return dialogo;
}

int Veces(const benchmark::State& estado) {
    return static_cast<int>(estado.range(0));
}

// The time is given per row too: it must not grow with the rows.
void Cuenta(benchmark::State& estado, int filas) {
    estado.counters["per_row"] =
        benchmark::Counter(static_cast<double>(filas) * static_cast<double>(Veces(estado)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void AbreNucleo(benchmark::State& estado) {
    const TTablaTipos tabla(TIPOS * Veces(estado));
    for (auto _ : estado) benchmark::DoNotOptimize(Abre(OTORGANTES * Veces(estado)));
    Cuenta(estado, OTORGANTES + TIPOS);
}

// All the types into the chosen concepts, and out of them again.
void MueveNucleo(benchmark::State& estado) {
    const TTablaTipos tabla(TIPOS * Veces(estado));
    const auto dialogo = Abre(0);
    std::vector<std::size_t> todas;
    for (std::size_t i = 0; i < dialogo->dbgTipos.Filas().size(); ++i) todas.push_back(i);
    for (auto _ : estado) {
        dialogo->dbgTipos.Selecciona(todas);
        dialogo->Pulsa(TControlPreseleccion::BMasBD);
        dialogo->LBConceptos.SeleccionaTodo();
        dialogo->Suelta(TControlPreseleccion::LBConceptos, TControlPreseleccion::dbgTipos);
    }
    Cuenta(estado, TIPOS);
}

void AbreVentana(benchmark::State& estado) {
    const TTablaTipos tabla(TIPOS * Veces(estado));
    for (auto _ : estado) {
        const auto dialogo = Abre(OTORGANTES * Veces(estado));
        TVentanaPreseleccion ventana(*dialogo, nullptr);
        ventana.show();
        QApplication::processEvents();
    }
    Cuenta(estado, OTORGANTES + TIPOS);
}

// Presses a button once everything in a view is selected.
void EligeTodo(QWidget& ventana, const char* vista, const char* boton) {
    ventana.findChild<QAbstractItemView*>(vista)->selectAll();
    ventana.findChild<QPushButton*>(boton)->click();
    QApplication::processEvents();
}

// All the parties into the chosen ones and back.
void MueveOtorgantesVentana(benchmark::State& estado) {
    const TTablaTipos tabla(1);
    const auto dialogo = Abre(OTORGANTES * Veces(estado));
    TVentanaPreseleccion ventana(*dialogo, nullptr);
    ventana.show();
    for (auto _ : estado) {
        EligeTodo(ventana, "LBPosiblesOtorgantes", "BMasOtor");
        EligeTodo(ventana, "LBOtorgantes", "BMenosOtor");
    }
    Cuenta(estado, OTORGANTES);
}

// All the types into the chosen concepts, from there to those found, where they stay out of the way.
void MueveTiposVentana(benchmark::State& estado) {
    const TTablaTipos tabla(TIPOS * Veces(estado));
    for (auto _ : estado) {
        estado.PauseTiming();
        const auto dialogo = Abre(0);
        auto ventana = std::make_unique<TVentanaPreseleccion>(*dialogo, nullptr);
        ventana->show();
        QApplication::processEvents();
        estado.ResumeTiming();
        EligeTodo(*ventana, "dbgTipos", "BMasBD");
        EligeTodo(*ventana, "LBConceptos", "BMenos");
        estado.PauseTiming();
        ventana.reset();
        estado.ResumeTiming();
    }
    Cuenta(estado, TIPOS);
}

// A title clicked: the table read anew in another order, and shown.
void OrdenaVentana(benchmark::State& estado) {
    const TTablaTipos tabla(TIPOS * Veces(estado));
    const auto dialogo = Abre(0);
    TVentanaPreseleccion ventana(*dialogo, nullptr);
    ventana.show();
    auto* const titulos = ventana.findChild<QTableView*>("dbgTipos")->horizontalHeader();
    for (auto _ : estado)
        for (const auto columna : {TColumnaTipos::NUMEROTIPO, TColumnaTipos::TIPO}) {
            emit titulos->sectionClicked(static_cast<int>(columna));
            QApplication::processEvents();
        }
    Cuenta(estado, TIPOS);
}

BENCHMARK(AbreNucleo)->Arg(1)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(MueveNucleo)->Arg(1)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(AbreVentana)->Arg(1)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(MueveOtorgantesVentana)->Arg(1)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(MueveTiposVentana)->Arg(1)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(OrdenaVentana)->Arg(1)->Arg(4)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication aplicacion(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

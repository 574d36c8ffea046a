#include "programas/analiza/OrdenLote.h"

#include <sched.h>
#include <stdlib.h>  // NOLINT(modernize-deprecated-headers): setenv
#include <time.h>    // NOLINT(modernize-deprecated-headers): tzset
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <string>
#include <system_error>
#include <thread>

#include "plataforma/Rficheros.h"
#include "programas/analiza/FicheroResultados.h"
#include "programas/analiza/Huella.h"
#include "programas/analiza/Lote.h"
#include "programas/analiza/Orden.h"
#include "programas/analiza/ProcesaEscritura.h"
#include "programas/analiza/Progreso.h"
#include "programas/analiza/Senales.h"

namespace analizador {

namespace {

namespace fs = std::filesystem;

constexpr int CODIGO_DE_SENAL = 128;

// The cores that this process may use, which a cluster's scheduler may have limited.
unsigned Nucleos() {
    cpu_set_t permitidos;
    const bool seSabe = sched_getaffinity(0, sizeof permitidos, &permitidos) == 0;
    return std::max(
        1U, seSabe ? static_cast<unsigned>(CPU_COUNT(&permitidos)) : std::thread::hardware_concurrency());
}

// What is saved is saved one by one: a document may have been named twice.
unsigned Hilos(const TOpcionesAnaliza& opciones) {
    return opciones.Guarda ? 1 : opciones.Hilos.value_or(Nucleos());
}

// Ends the batch: nobody would see the rest.
struct TSalidaRota : std::exception {};

class TOrdenLote {
  public:
    // Throws ErrorResultados.
    TOrdenLote(TListaEscrituras& lista, const TOpcionesAnaliza& opciones)
        : FLista(lista), FOpciones(opciones), FProgreso(lista.Cuantas()) {
        if (opciones.Resultados) FResultados.emplace(*opciones.Resultados, opciones.Continua);
    }

    [[nodiscard]] int Ejecuta();

  private:
    [[nodiscard]] std::optional<fs::path> Siguiente();
    [[nodiscard]] TResultado Analiza(const fs::path& escritura) const;
    [[nodiscard]] bool EstaHecha(const fs::path& escritura) const;
    void Entrega(const fs::path& escritura, const TResultado& resultado);
    void EscribeEnLaSalida(const std::string& texto);
    void Avisa(const std::string& texto);
    [[nodiscard]] int Termina();

    TListaEscrituras& FLista;
    const TOpcionesAnaliza& FOpciones;
    const TPeticionDeFin FPeticion{};
    std::optional<TFicheroResultados> FResultados;
    TProgreso FProgreso;
    const bool FSalidaEnTerminal = isatty(STDOUT_FILENO) == 1;
    TCodigoSalida FCodigo = TODO_BIEN;
    int FSenal = 0;  // the one that ended the batch before its time
};

int TOrdenLote::Ejecuta() {
    try {
        EjecutaLote({.Siguiente = [this] { return Siguiente(); },
                     .Analiza = [this](const fs::path& escritura) { return Analiza(escritura); },
                     .Entrega = [this](const fs::path& escritura,
                                       const TResultado& resultado) { Entrega(escritura, resultado); }},
                    Hilos(FOpciones));
        return Termina();
    } catch (const TSalidaRota&) {
        FProgreso.Quita();  // the order itself says that the output cannot be written
    } catch (const ErrorResultados& error) {
        Avisa(error.what());
    } catch (const std::system_error& error) {
        Avisa("no se pueden crear los hilos que analizan (" + error.code().message() + ")");
    }
    return ALGUNO_FALLO;
}

std::optional<fs::path> TOrdenLote::Siguiente() {
    auto siguiente = TPeticionDeFin::Senal() == 0 ? FLista.Siguiente() : std::nullopt;
    if (!siguiente) FSenal = TPeticionDeFin::Senal();
    return siguiente;
}

TResultado TOrdenLote::Analiza(const fs::path& escritura) const {
    if (EstaHecha(escritura)) return {.Conservado = true};
    return ProcesaEscritura(escritura, FOpciones, true);
}

// By an earlier run, with the content that it has now.
bool TOrdenLote::EstaHecha(const fs::path& escritura) const {
    const auto huella = FResultados ? FResultados->HuellaDe(escritura) : std::nullopt;
    return huella && HuellaDeFichero(escritura) == huella;
}

void TOrdenLote::Entrega(const fs::path& escritura, const TResultado& resultado) {
    FCodigo = PeorDe(FCodigo, resultado.Codigo);
    if (!resultado.Aviso.empty()) Avisa(resultado.Aviso);
    if (resultado.Conservado)
        FResultados->Conserva(escritura);
    else if (FResultados)
        FResultados->Anota(escritura, resultado.Salida);
    else
        EscribeEnLaSalida(resultado.Salida);
    FProgreso.Cuenta(resultado.Codigo == ALGUNO_FALLO, resultado.Conservado);
}

// Whoever reads it has it at once.
void TOrdenLote::EscribeEnLaSalida(const std::string& texto) {
    if (FSalidaEnTerminal) FProgreso.Quita();
    Escribe(texto);
    if (std::fflush(stdout) != 0) throw TSalidaRota();
}

void TOrdenLote::Avisa(const std::string& texto) {
    FProgreso.Quita();
    analizador::Avisa(texto);
}

int TOrdenLote::Termina() {
    FProgreso.Termina();
    if (FSenal != 0) {
        Avisa("interrumpido después de " + std::to_string(FProgreso.Avance().Hechas) + " escrituras" +
              (FResultados ? "; con --continua se sigue" : ""));
        return CODIGO_DE_SENAL + FSenal;
    }
    if (!FResultados) return FCodigo;
    if (const auto ajenas = FResultados->Termina(); ajenas > 0)
        Avisa(Utf8DeRuta(*FOpciones.Resultados) + ": conserva al final " + std::to_string(ajenas) +
              " resultados de escrituras que ahora no se han pedido");
    return FCodigo;
}

}  // namespace

int AnalizaLote(TListaEscrituras& lista, const TOpcionesAnaliza& opciones) {
    // The reader of archives asks for the time zone at every entry. Where it has no name the system reads its
    // file again each time, one thread after another.
    ::setenv("TZ", ":/etc/localtime", 0);
    ::tzset();
    std::optional<TOrdenLote> orden;
    try {
        orden.emplace(lista, opciones);
    } catch (const ErrorResultados& error) {
        Avisa(error.what());
        return MAL_USO;
    }
    return orden->Ejecuta();
}

}  // namespace analizador

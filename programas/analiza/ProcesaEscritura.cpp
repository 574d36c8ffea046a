#include "programas/analiza/ProcesaEscritura.h"

#include <new>
#include <string>

#include "plataforma/Ansi.h"
#include "plataforma/Ruttb.h"
#include "programas/analiza/AnalisisFichero.h"
#include "programas/analiza/Huella.h"
#include "programas/analiza/SalidaJson.h"
#include "programas/analiza/SalidaTexto.h"

namespace analizador {

namespace {

namespace fs = std::filesystem;

TOpcionesAnalisis Pedido(const fs::path& escritura, const TOpcionesAnaliza& opciones) {
    TOpcionesAnalisis pedido{opciones.Salida, opciones.Forzar, opciones.Revisa};
    if (opciones.Guarda) pedido.Salida = escritura;
    return pedido;
}

std::string Json(const fs::path& escritura, const TAnalisisFichero& analisis,
                 const TOpcionesAnaliza& opciones) {
    TPedidoJson pedido{.Origen = opciones.Origen, .Revisado = opciones.Revisa};
    if (opciones.Resultados && analisis.Error().empty()) pedido.Huella = Huella(analisis.Bytes());
    return LineaJson(escritura, analisis, pedido) + "\n";
}

// The report of an analysis without an error, into `resultado`.
void PonInforme(const fs::path& escritura, const TAnalisisFichero& analisis, bool titulo, bool revisado,
                TResultado& resultado) {
    if (titulo) resultado.Salida = "==== " + escritura.string() + "\n";
    try {
        resultado.Salida += revisado ? EleccionTexto(analisis.Sesion()) : InformeTexto(analisis.Sesion());
        if (titulo) resultado.Salida += "\n";
    } catch (const ErrorTabla& error) {
        resultado.Aviso = escritura.string() + ": " + Utf8DeAnsi(error.what());
        resultado.Codigo = ALGUNO_FALLO;
    }
}

TResultado Procesa(const fs::path& escritura, const TOpcionesAnaliza& opciones, bool titulo) {
    TResultado resultado;
    const TAnalisisFichero analisis(escritura, Pedido(escritura, opciones));
    if (opciones.Json) resultado.Salida = Json(escritura, analisis, opciones);
    if (!analisis.Error().empty()) {
        resultado.Codigo = ALGUNO_FALLO;
        resultado.Aviso = analisis.Error();
    } else if (opciones.Revisa && !analisis.Sesion().Aceptado) {
        resultado.Codigo = REVISION_CANCELADA;
        resultado.Aviso = escritura.string() + ": revisión cancelada";
    } else if (!opciones.Json) {
        PonInforme(escritura, analisis, titulo, opciones.Revisa, resultado);
    }
    return resultado;
}

// Its results were found and could not be put into words.
TResultado Fallida(const fs::path& escritura, const std::string& causa, const TOpcionesAnaliza& opciones) {
    const std::string error = escritura.string() + ": " + causa;
    return {ALGUNO_FALLO, opciones.Json ? LineaJsonError(escritura, error) + "\n" : "", error};
}

}  // namespace

TResultado ProcesaEscritura(const fs::path& escritura, const TOpcionesAnaliza& opciones, bool titulo) {
    try {
        return Procesa(escritura, opciones, titulo);
    } catch (const ErrorTabla& error) {
        return Fallida(escritura, Utf8DeAnsi(error.what()), opciones);
    } catch (const std::bad_alloc&) {
        return Fallida(escritura, "no hay memoria para analizarlo", opciones);
    } catch (const std::exception& error) {
        return Fallida(escritura, "fallo inesperado (" + std::string(error.what()) + ")", opciones);
    }
}

}  // namespace analizador

#include "programas/analiza/AnalisisFichero.h"

#include <algorithm>
#include <new>
#include <utility>
#include <vector>

#include "adaptadores/memoria/DocumentoMemoria.h"
#include "plataforma/Ansi.h"
#include "plataforma/Ruttb.h"

namespace analizador {

namespace {

// The bookmarks of the sections that this analysis found, which are all that saving adds.
std::vector<TMarcador> MarcadoresDeSecciones(const TClassAnalizadorAbierto& sesion) {
    std::vector<TMarcador> marcadores;
    for (const auto& marcador :
         {sesion.MarcadorCabecera, sesion.MarcadorComparecientes, sesion.MarcadorIntervinientes,
          sesion.MarcadorExponen, sesion.MarcadorTransmision, sesion.MarcadorParteDeudora})
        if (marcador) marcadores.push_back(*marcador);
    return marcadores;
}

// A message is one line, whatever the file is called.
std::string EnUnaLinea(std::string texto) {
    std::ranges::replace_if(
        texto, [](char c) { return static_cast<unsigned char>(c) < ' '; }, '?');
    return texto;
}

constexpr const char* EN_MEMORIA = "texto en memoria";

}  // namespace

template <class TAccion>
void TAnalisisFichero::Intenta(const std::string& deQue, TAccion accion) {
    const auto rechaza = [&](const std::string& causa) { FError = EnUnaLinea(deQue + ": " + causa); };
    try {
        accion();
    } catch (const ErrorDocumento& error) {
        FError = error.what();
    } catch (const ErrorWord& error) {
        rechaza(Utf8DeAnsi(error.what()));
    } catch (const ErrorTabla& error) {
        rechaza(Utf8DeAnsi(error.what()));
    } catch (const std::bad_alloc&) {
        rechaza("no hay memoria para analizarlo");
    } catch (const std::exception& error) {
        rechaza("fallo inesperado (" + std::string(error.what()) + ")");
    }
}

TAnalisisFichero::TAnalisisFichero(const std::filesystem::path& fichero, const TOpcionesAnalisis& opciones) {
    Intenta(fichero.string(), [&] {
        FDocx.emplace(fichero);
        Analiza(FDocx->Contenido(), opciones);
        if (opciones.Salida && (FSesion->Aceptado || !opciones.Revisa))
            Guarda(*opciones.Salida, opciones.Forzar);
    });
}

TAnalisisFichero::TAnalisisFichero(TContenidoDocumento contenido, const TOpcionesAnalisis& opciones) {
    Intenta(EN_MEMORIA, [&] { Analiza(std::move(contenido), opciones); });
}

void TAnalisisFichero::Analiza(TContenidoDocumento contenido, const TOpcionesAnalisis& opciones) {
    FAplicacion =
        std::make_unique<TAplicacionMemoria>(std::make_unique<TDocumentoMemoria>(std::move(contenido)));
    FSesion = std::make_unique<TClassAnalizadorAbierto>(nullptr, FAplicacion.get());
    FSesion->Analiza(!opciones.Revisa);
}

void TAnalisisFichero::Guarda(const std::filesystem::path& destino, bool forzar) {
    if (!FDocx)
        throw ErrorDocumento(std::string(EN_MEMORIA) + ": no hay fichero al que poner los marcadores");
    FDocx->Guarda(MarcadoresDeSecciones(*FSesion), destino, {.Forzar = forzar});
}

}  // namespace analizador

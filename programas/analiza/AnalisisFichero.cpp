#include "programas/analiza/AnalisisFichero.h"

#include <algorithm>
#include <new>
#include <vector>

#include "adaptadores/docx/FicheroDocx.h"
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

}  // namespace

TAnalisisFichero::TAnalisisFichero(const std::filesystem::path& fichero, const TOpcionesAnalisis& opciones) {
    const auto rechaza = [&](const std::string& causa) {
        FError = EnUnaLinea(fichero.string() + ": " + causa);
    };
    try {
        Analiza(fichero, opciones);
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

void TAnalisisFichero::Analiza(const std::filesystem::path& fichero, const TOpcionesAnalisis& opciones) {
    TFicheroDocx docx(fichero);
    FAplicacion = std::make_unique<TAplicacionMemoria>(std::make_unique<TDocumentoMemoria>(docx.Contenido()));
    FSesion = std::make_unique<TClassAnalizadorAbierto>(nullptr, FAplicacion.get());
    const bool aceptado = FSesion->Analiza(!opciones.Revisa);
    if (opciones.Salida && (aceptado || !opciones.Revisa))
        docx.Guarda(MarcadoresDeSecciones(*FSesion), *opciones.Salida, {.Forzar = opciones.Forzar});
}

}  // namespace analizador

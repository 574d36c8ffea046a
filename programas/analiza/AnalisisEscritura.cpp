#include "programas/analiza/AnalisisEscritura.h"

#include <new>
#include <utility>

#include "adaptadores/docx/FicheroDocx.h"
#include "adaptadores/memoria/DocumentoMemoria.h"
#include "plataforma/Ansi.h"
#include "plataforma/Ruttb.h"
#include "plataforma/Utf8.h"

namespace analizador {

void TAnalisisEscritura::Intenta(const std::string& deQue, const std::function<void()>& accion) {
    const auto rechaza = [&](const std::string& causa) {
        FError = EnUnaLinea(deQue.empty() ? causa : deQue + ": " + causa);
    };
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

TAnalisisEscritura::TAnalisisEscritura(TContenidoDocumento contenido, bool revisa) {
    Intenta("texto en memoria", [&] { Analiza(std::move(contenido), revisa); });
}

TAnalisisEscritura::TAnalisisEscritura(std::unique_ptr<TWordApplicationConDocumentos> word, bool revisa) {
    Intenta("", [&] { Analiza(std::move(word), revisa); });
}

void TAnalisisEscritura::Analiza(TContenidoDocumento contenido, bool revisa) {
    Analiza(std::make_unique<TAplicacionMemoria>(std::make_unique<TDocumentoMemoria>(std::move(contenido))),
            revisa);
}

void TAnalisisEscritura::Analiza(std::unique_ptr<TWordApplicationConDocumentos> word, bool revisa) {
    FAplicacion = std::move(word);
    FSesion = std::make_unique<TClassAnalizadorAbierto>(nullptr, FAplicacion.get());
    FSesion->Analiza(!revisa);
}

}  // namespace analizador

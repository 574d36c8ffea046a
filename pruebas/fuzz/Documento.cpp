#include "adaptadores/docx/FalloDocx.h"
#include "adaptadores/docx/LecturaDocx.h"
#include "pruebas/fuzz/Empaqueta.h"
#include "pruebas/fuzz/Fuzzers.h"
#include "pruebas/fuzz/Utf8Valido.h"

namespace analizador {

namespace {

void CompruebaContenido(const TContenidoDocumento& contenido) {
    Exige(contenido.Texto.ends_with('\r'), "the text does not end in CR");
    for (const auto& [nombre, intervalo] : contenido.Marcadores)
        Exige(0 <= intervalo.Inicio && intervalo.Inicio <= intervalo.Fin &&
                  intervalo.Fin <= static_cast<int>(contenido.Texto.size()),
              "a bookmark outside the text");
}

}  // namespace

void FuzzDocumento(std::string_view bytes) {
    const std::string archivo = DocumentoDeTexto(bytes);
    try {
        CompruebaContenido(TLecturaDocx(archivo).Contenido());
    } catch (const FalloDocx& fallo) {
        const std::string causa = fallo.what();
        ExigeUtf8(causa);
        Exige(EsUnaLinea(causa), "the cause is not one line: " + causa);
        Exige(!causa.empty(), "refused without a cause");
        Exige(causa.size() < 400, "a cause that nobody reads: " + causa);
    }
}

}  // namespace analizador

#include "adaptadores/docx/FicheroDocx.h"

#include <new>
#include <string>
#include <utility>

#include "adaptadores/docx/BloqueoAjeno.h"
#include "adaptadores/docx/FalloDocx.h"
#include "adaptadores/docx/InjertoMarcadores.h"
#include "adaptadores/docx/LecturaDocx.h"
#include "adaptadores/docx/LecturaFichero.h"
#include "adaptadores/docx/MarcadoresPedidos.h"
#include "adaptadores/docx/SustitucionSegura.h"
#include "plataforma/Rficheros.h"

namespace analizador {

namespace {

std::string NombreParaMensaje(const std::filesystem::path& fichero) {
    return EnUnaLinea(Utf8DeRuta(fichero));
}

// Does `accion`, and says of which file its failure is.
template <typename TAccion>
void ConNombre(const std::filesystem::path& fichero, TAccion accion) {
    try {
        accion();
    } catch (const FalloDocx& fallo) {
        throw ErrorDocumento(NombreParaMensaje(fichero) + ": " + fallo.what());
    } catch (const std::filesystem::filesystem_error&) {
        throw ErrorDocumento(NombreParaMensaje(fichero) + ": no se puede acceder al fichero");
    } catch (const std::bad_alloc&) {
        throw ErrorDocumento(NombreParaMensaje(fichero) + ": no hay memoria suficiente");
    }
}

void ExigeQueNadieLoTenga(const std::filesystem::path& documento) {
    if (const auto bloqueo = FicheroDeBloqueo(documento))
        throw FalloDocx("otro programa tiene abierto el documento (" +
                        NombreParaMensaje(bloqueo->filename()) + "); ciérrelo antes de guardar");
}

bool SonElMismo(const std::filesystem::path& uno, const std::filesystem::path& otro) {
    std::error_code error;
    return std::filesystem::equivalent(uno, otro, error) && !error;
}

// The document with the bookmarks, read back to make sure that nothing else changed. Empty when there is
// nothing to change. Of the two readings only one is in memory at a time.
std::string ComponeNuevo(std::string_view bytes, const TContenidoDocumento& leido,
                         const std::vector<TMarcador>& marcadores) {
    std::vector<TMarcador> cambios;
    std::string nuevo;
    {
        const TLecturaDocx lectura(bytes);
        cambios = MarcadoresQueCambian(lectura, marcadores);
        if (cambios.empty()) return {};
        auto principal = lectura.Principal;
        principal.Utf8 = InjertaMarcadores(lectura, cambios);
        nuevo = lectura.Paquete.ConParte(lectura.Partes.Principal, CodificaXml(principal));
    }
    if (!EsElMismoConMarcadores(TLecturaDocx(nuevo).Contenido(), leido, cambios))
        throw FalloDocx("no se puede guardar: el documento nuevo no se leería igual");
    return nuevo;
}

}  // namespace

TFicheroDocx::TFicheroDocx(const std::filesystem::path& fichero) : Fichero(fichero) {
    ConNombre(Fichero, [&] {
        Marca = MarcaDeFichero(Fichero);
        Bytes = LeeFicheroEntero(Fichero);
        Leido = TLecturaDocx(Bytes).Contenido();
    });
}

void TFicheroDocx::Guarda(const std::vector<TMarcador>& marcadores, const std::filesystem::path& destino,
                          const TOpcionesGuardado& opciones) {
    ConNombre(destino, [&] {
        const auto real = FicheroReal(destino);
        const bool esElLeido = SonElMismo(real, Fichero);
        const auto comprueba = [&] {
            if (opciones.Forzar) return;
            ExigeQueNadieLoTenga(destino);
            ExigeQueNadieLoTenga(real);
            if (esElLeido) ExigeSinCambios();
        };
        comprueba();
        auto nuevo = ComponeNuevo(Bytes, Leido, marcadores);
        if (!nuevo.empty() && !opciones.Forzar) ExigeSinFirma();
        if (nuevo.empty() && esElLeido && !opciones.Forzar) return;
        if (nuevo.empty()) nuevo = Bytes;
        SustituyeFichero(real, nuevo, comprueba);
        if (esElLeido) Adopta(std::move(nuevo));
    });
}

// The mark tells quickly; where it differs or cannot be trusted, the content decides.
void TFicheroDocx::ExigeSinCambios() const {
    const auto ahora = MarcaDeFichero(Fichero);
    if (MismaMarca(ahora, Marca) && !Marca.Reciente) return;
    if (LeeFicheroEntero(Fichero) != Bytes)
        throw FalloDocx("otro programa ha cambiado el documento desde que se leyó; ábralo de nuevo");
}

void TFicheroDocx::ExigeSinFirma() const {
    if (TPaqueteZip(Bytes).TieneCarpeta("_xmlsignatures/"))
        throw FalloDocx("el documento está firmado y al guardarlo se rompería la firma");
}

void TFicheroDocx::Adopta(std::string nuevo) {
    Bytes = std::move(nuevo);
    Marca = MarcaDeFichero(Fichero);
    Leido = TLecturaDocx(Bytes).Contenido();
}

}  // namespace analizador

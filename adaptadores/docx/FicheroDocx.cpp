#include "adaptadores/docx/FicheroDocx.h"

#include <algorithm>
#include <new>
#include <string>
#include <utility>

#include "adaptadores/docx/FalloDocx.h"
#include "adaptadores/docx/LecturaDocx.h"
#include "adaptadores/docx/LecturaFichero.h"

namespace analizador {

namespace {

std::string NombreParaMensaje(const std::filesystem::path& fichero) {
    const auto utf8 = fichero.u8string();
    std::string nombre(utf8.begin(), utf8.end());
    std::ranges::replace_if(nombre, [](char c) { return static_cast<unsigned char>(c) < ' '; }, '?');
    return nombre;
}

// Does `accion`, and says of which file its failure is.
template <typename TAccion>
void ConNombre(const std::filesystem::path& fichero, TAccion accion) {
    try {
        accion();
    } catch (const FalloDocx& fallo) {
        throw ErrorDocumento(NombreParaMensaje(fichero) + ": " + fallo.what());
    } catch (const std::bad_alloc&) {
        throw ErrorDocumento(NombreParaMensaje(fichero) + ": no hay memoria suficiente");
    }
}

}  // namespace

TFicheroDocx::TFicheroDocx(const std::filesystem::path& fichero) : Fichero(fichero) {
    ConNombre(Fichero, [&] {
        Marca = MarcaDeFichero(Fichero);
        Bytes = LeeFicheroEntero(Fichero);
        Leido = TLecturaDocx(Bytes).Contenido();
    });
}

}  // namespace analizador

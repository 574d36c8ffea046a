#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>
#include <vector>

#include "adaptadores/docx/FicheroDocx.h"
#include "plataforma/Ansi.h"
#include "plataforma/CarpetaPrivada.h"
#include "pruebas/docx/ConstruyeDocx.h"
#include "pruebas/fuzz/Empaqueta.h"
#include "pruebas/fuzz/Fuzzers.h"
#include "pruebas/fuzz/Utf8Valido.h"

namespace analizador {

namespace {

const std::filesystem::path& Carpeta() {
    static const std::filesystem::path carpeta = [] {
        const auto nueva = CarpetaPrivada() / "guardado";
        std::filesystem::create_directory(nueva);
        return nueva;
    }();
    return carpeta;
}

std::optional<TFicheroDocx> Abre(const std::filesystem::path& fichero) {
    try {
        return TFicheroDocx(fichero);
    } catch (const ErrorDocumento& error) {
        Exige(EsUnaLinea(error.what()), "the refusal is not one line: " + std::string(error.what()));
        return std::nullopt;
    }
}

// Two bookmarks over the text: a new one, and one in place of the document's first.
std::vector<TMarcador> Marcadores(const TContenidoDocumento& contenido,
                                  const std::array<unsigned char, 4>& lugares) {
    const auto posicion = [&](std::size_t i) {
        return static_cast<int>(contenido.Texto.size() * lugares.at(i) / 255);
    };
    const auto& presentes = contenido.Marcadores;
    const std::string otro = presentes.empty() || presentes.front().Nombre.size() > 40
                                 ? "Comparecientes"
                                 : presentes.front().Nombre;
    return {{"Cabecera", {std::min(posicion(0), posicion(1)), std::max(posicion(0), posicion(1))}},
            {otro, {std::min(posicion(2), posicion(3)), std::max(posicion(2), posicion(3))}}};
}

const TMarcador* Busca(const TContenidoDocumento& contenido, std::string_view nombre) {
    for (const auto& marcador : contenido.Marcadores)
        if (AnsiUpperCase(marcador.Nombre) == AnsiUpperCase(nombre)) return &marcador;
    return nullptr;
}

bool EsDe(const std::vector<TMarcador>& pedidos, const TMarcador& marcador) {
    return std::ranges::any_of(
        pedidos, [&](const auto& p) { return AnsiUpperCase(p.Nombre) == AnsiUpperCase(marcador.Nombre); });
}

void CompruebaGuardado(const TContenidoDocumento& antes, const TContenidoDocumento& despues,
                       const std::vector<TMarcador>& pedidos) {
    Exige(despues.Texto == antes.Texto, "saving changed the text");
    Exige(despues.Variables == antes.Variables, "saving changed the variables");
    for (const auto& pedido : pedidos)
        Exige(Busca(despues, pedido.Nombre) != nullptr, "a bookmark was not saved");
    for (const auto& marcador : antes.Marcadores) {
        if (EsDe(pedidos, marcador)) continue;
        const auto* const queda = Busca(despues, marcador.Nombre);
        Exige(queda != nullptr && *queda == marcador, "saving moved another bookmark");
    }
}

// Whether the parts given are texts such as XML has them. Where they are not (malformed UTF-8, references to
// no character), a document may be read and still be refused when it is saved.
bool EsTextoDeXml(std::string_view partes) {
    return !partes.starts_with("PK") && partes.find("&#") == std::string_view::npos &&
           EsUtf8(std::string(partes));
}

// False when the document cannot take these bookmarks, which is said and changes nothing.
bool Guarda(TFicheroDocx& documento, const std::vector<TMarcador>& pedidos,
            const std::filesystem::path& destino, bool esTexto) {
    try {
        documento.Guarda(pedidos, destino);
        return true;
    } catch (const ErrorDocumento& error) {
        Exige(EsUnaLinea(error.what()), "the refusal is not one line: " + std::string(error.what()));
        const bool distinto = std::string_view(error.what()).find("no se leer") != std::string_view::npos;
        Exige(!distinto || !esTexto, "what was to be saved does not read as before");
        return false;
    }
}

}  // namespace

void FuzzGuardado(std::string_view bytes) {
    std::array<unsigned char, 4> lugares{};
    for (std::size_t i = 0; i < lugares.size() && i < bytes.size(); ++i)
        lugares.at(i) = static_cast<unsigned char>(bytes[i]);
    bytes.remove_prefix(std::min(bytes.size(), lugares.size()));
    const bool esTexto = EsTextoDeXml(bytes);
    const std::string original = DocumentoDeTexto(bytes);
    const auto fichero = Carpeta() / "original.docx";
    const auto copia = Carpeta() / "copia.docx";
    std::filesystem::remove(copia);
    pruebas::EscribeFichero(fichero, original);
    auto documento = Abre(fichero);
    if (!documento) return;
    const TContenidoDocumento antes = documento->Contenido();
    const auto pedidos = Marcadores(antes, lugares);
    const bool guardado = Guarda(*documento, pedidos, copia, esTexto);
    Exige(pruebas::LeeBytes(fichero) == original, "saving in another file changed the original");
    Exige(std::filesystem::exists(copia) == guardado, "a file after a refusal, or none after success");
    if (guardado) {
        TFicheroDocx leida(copia);
        CompruebaGuardado(antes, leida.Contenido(), pedidos);
        Exige(Guarda(*documento, pedidos, fichero, esTexto), "saved in another file and not over itself");
        CompruebaGuardado(antes, TFicheroDocx(fichero).Contenido(), pedidos);
    }
    const auto ficheros = std::distance(std::filesystem::directory_iterator(Carpeta()), {});
    Exige(ficheros == (guardado ? 2 : 1), "saving left a file behind");
}

}  // namespace analizador

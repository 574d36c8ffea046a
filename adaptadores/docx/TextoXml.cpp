#include "adaptadores/docx/TextoXml.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "adaptadores/docx/FalloDocx.h"
#include "plataforma/Ansi.h"
#include "plataforma/Utf8.h"

namespace analizador {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view MARCA_UTF8 = "\xEF\xBB\xBF"sv;
constexpr std::string_view MARCA_UTF16_LE = "\xFF\xFE"sv;
constexpr std::string_view MARCA_UTF16_BE = "\xFE\xFF"sv;

// Reads UTF-16 units from bytes in either order.
class TLectorUtf16 {
  public:
    TLectorUtf16(std::string_view bytes, bool altoPrimero) : Bytes(bytes), AltoPrimero(altoPrimero) {}

    [[nodiscard]] bool Fin() const { return Posicion + 1 >= Bytes.size(); }

    [[nodiscard]] char32_t Unidad() {
        const auto primero = static_cast<unsigned char>(Bytes[Posicion]);
        const auto segundo = static_cast<unsigned char>(Bytes[Posicion + 1]);
        Posicion += 2;
        const unsigned alto = AltoPrimero ? primero : segundo;
        const unsigned bajo = AltoPrimero ? segundo : primero;
        return static_cast<char32_t>(alto << 8 | bajo);
    }

  private:
    std::string_view Bytes;
    bool AltoPrimero;
    std::size_t Posicion = 0;
};

std::string Utf8DeBytesUtf16(std::string_view bytes, bool altoPrimero, const std::string& parte) {
    const FalloDocx roto("la parte " + NombreCitado(parte) + " no es un texto UTF-16 correcto");
    if (bytes.size() % 2 != 0) throw roto;
    std::string texto;
    TLectorUtf16 lector(bytes, altoPrimero);
    while (!lector.Fin()) {
        char32_t punto = lector.Unidad();
        if (punto >= 0xD800 && punto <= 0xDFFF) {
            const char32_t bajo = punto <= 0xDBFF && !lector.Fin() ? lector.Unidad() : 0;
            if (bajo < 0xDC00 || bajo > 0xDFFF) throw roto;
            punto = 0x10000 + ((punto - 0xD800) << 10) + (bajo - 0xDC00);
        }
        AnadeUtf8(texto, punto);
    }
    return texto;
}

// The encoding that the XML declaration of an 8-bit text names, in lower case; empty when none.
std::string CodificacionDeclarada(std::string_view texto) {
    if (!texto.starts_with("<?xml")) return {};
    const auto declaracion = texto.substr(0, texto.find("?>"));
    const auto clave = declaracion.find("encoding");
    if (clave == std::string_view::npos) return {};
    const auto comilla = declaracion.find_first_of("\"'", clave);
    if (comilla == std::string_view::npos) return {};
    const auto final = declaracion.find(declaracion[comilla], comilla + 1);
    if (final == std::string_view::npos) return {};
    std::string nombre(declaracion.substr(comilla + 1, final - comilla - 1));
    std::ranges::transform(nombre, nombre.begin(),
                           [](char c) { return static_cast<char>(c >= 'A' && c <= 'Z' ? c + 32 : c); });
    return nombre;
}

void ExigeUtf8(std::string_view texto, const std::string& parte) {
    const auto nombre = CodificacionDeclarada(texto);
    if (nombre.empty() || nombre == "utf-8" || nombre == "utf8" || nombre == "us-ascii" || nombre == "utf-16")
        return;
    throw FalloDocx("la parte " + NombreCitado(parte) + " usa una codificación de texto que no se admite");
}

}  // namespace

TTextoXml DecodificaXml(std::string bytes, const std::string& parte) {
    const std::string_view vista = bytes;
    if (vista.starts_with("\xFF\xFE\0\0"sv) || vista.starts_with("\0\0"sv))
        throw FalloDocx("la parte " + NombreCitado(parte) +
                        " usa una codificación de texto que no se admite");
    if (vista.starts_with(MARCA_UTF16_LE))
        return {Utf8DeBytesUtf16(vista.substr(2), false, parte), Codificacion::Utf16Le, true};
    if (vista.starts_with(MARCA_UTF16_BE))
        return {Utf8DeBytesUtf16(vista.substr(2), true, parte), Codificacion::Utf16Be, true};
    if (vista.starts_with("<\0"sv))
        return {Utf8DeBytesUtf16(vista, false, parte), Codificacion::Utf16Le, false};
    if (vista.starts_with("\0<"sv))
        return {Utf8DeBytesUtf16(vista, true, parte), Codificacion::Utf16Be, false};
    const bool conMarca = vista.starts_with(MARCA_UTF8);
    if (conMarca) bytes.erase(0, MARCA_UTF8.size());
    ExigeUtf8(bytes, parte);
    return {std::move(bytes), Codificacion::Utf8, conMarca};
}

std::string CodificaXml(const TTextoXml& xml) {
    if (xml.Original == Codificacion::Utf8)
        return (xml.ConMarca ? std::string(MARCA_UTF8) : std::string()) + xml.Utf8;
    const bool altoPrimero = xml.Original == Codificacion::Utf16Be;
    std::string bytes;
    if (xml.ConMarca) bytes = altoPrimero ? MARCA_UTF16_BE : MARCA_UTF16_LE;
    for (const char16_t unidad : Utf16DeUtf8(xml.Utf8)) {
        const auto alto = static_cast<char>(static_cast<unsigned char>(unidad >> 8));
        const auto bajo = static_cast<char>(static_cast<unsigned char>(unidad & 0xFF));
        bytes += altoPrimero ? alto : bajo;
        bytes += altoPrimero ? bajo : alto;
    }
    return bytes;
}

}  // namespace analizador

#include "dialogos/CodificacionXml.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Utf8.h"

namespace analizador {

namespace {

using namespace std::string_view_literals;

enum class TCodificacion { Utf8, Windows1252, Latin1, Latin9, Ascii, Utf16Le, Utf16Be };

struct TNombreCodificacion {
    std::string_view Nombre;
    TCodificacion Codificacion;
};

constexpr std::array<TNombreCodificacion, 15> NOMBRES = {{
    {"UTF-8", TCodificacion::Utf8},
    {"UTF8", TCodificacion::Utf8},
    {"WINDOWS-1252", TCodificacion::Windows1252},
    {"CP1252", TCodificacion::Windows1252},
    {"ISO-8859-1", TCodificacion::Latin1},
    {"ISO_8859-1", TCodificacion::Latin1},
    {"LATIN1", TCodificacion::Latin1},
    {"ISO-8859-15", TCodificacion::Latin9},
    {"ISO_8859-15", TCodificacion::Latin9},
    {"LATIN-9", TCodificacion::Latin9},
    {"US-ASCII", TCodificacion::Ascii},
    {"ASCII", TCodificacion::Ascii},
    {"UTF-16", TCodificacion::Utf16Le},
    {"UTF-16LE", TCodificacion::Utf16Le},
    {"UTF-16BE", TCodificacion::Utf16Be},
}};

constexpr std::string_view MARCA_UTF8 = "\xEF\xBB\xBF"sv;
constexpr std::string_view MARCA_UTF16_LE = "\xFF\xFE"sv;
constexpr std::string_view MARCA_UTF16_BE = "\xFE\xFF"sv;
constexpr char LUGAR_DE_MARCA = 31;
constexpr char16_t NO_ES_TEXTO = 0xFFFD;

struct TCambio {
    unsigned char Byte;
    char16_t Punto;
};
// Where ISO-8859-15 is not ISO-8859-1.
constexpr std::array<TCambio, 8> CAMBIOS_LATIN9 = {{{0xA4, 0x20AC},
                                                    {0xA6, 0x160},
                                                    {0xA8, 0x161},
                                                    {0xB4, 0x17D},
                                                    {0xB8, 0x17E},
                                                    {0xBC, 0x152},
                                                    {0xBD, 0x153},
                                                    {0xBE, 0x178}}};

constexpr bool EsBlancoXml(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

std::string_view SinBlancos(std::string_view texto) {
    while (!texto.empty() && EsBlancoXml(texto.front())) texto.remove_prefix(1);
    return texto;
}

// The value of the attribute "encoding" of a declaration, without its quotes; empty when there is none.
std::string_view ValorEncoding(std::string_view declaracion) {
    constexpr std::string_view CLAVE = "encoding";
    for (auto donde = declaracion.find(CLAVE); donde != std::string_view::npos;
         donde = declaracion.find(CLAVE, donde + 1)) {
        if (!EsBlancoXml(declaracion[donde - 1])) continue;
        auto resto = SinBlancos(declaracion.substr(donde + CLAVE.size()));
        if (!resto.starts_with('=')) continue;
        resto = SinBlancos(resto.substr(1));
        if (resto.empty() || (resto.front() != '"' && resto.front() != '\'')) continue;
        const auto fin = resto.find(resto.front(), 1);
        if (fin != std::string_view::npos) return resto.substr(1, fin - 1);
    }
    return {};
}

// The encoding that a text in an encoding of one byte for each ASCII character declares.
TCodificacion Declarada(std::string_view xml) {
    if (!xml.starts_with("<?xml")) return TCodificacion::Utf8;
    const std::string nombre = AnsiUpperCase(ValorEncoding(xml.substr(0, xml.find("?>"))));
    const auto* const donde =
        std::find_if(NOMBRES.begin(), NOMBRES.end(), [&](const auto& n) { return n.Nombre == nombre; });
    return donde == NOMBRES.end() ? TCodificacion::Utf8 : donde->Codificacion;
}

// ---- Characters of the encodings of one byte

// One unit for each byte.
std::u16string UnidadesAnsi(std::string_view texto) {
    return Utf16DeUtf8(Utf8DeAnsi(texto));
}

char16_t PuntoLatin9(unsigned char byte) {
    for (const TCambio& cambio : CAMBIOS_LATIN9)
        if (cambio.Byte == byte) return cambio.Punto;
    return byte;
}

std::optional<unsigned char> ByteLatin9(char16_t punto) {
    for (const TCambio& cambio : CAMBIOS_LATIN9) {
        if (cambio.Punto == punto) return cambio.Byte;
        if (cambio.Byte == punto) return std::nullopt;
    }
    if (punto > 0xFF) return std::nullopt;
    return static_cast<unsigned char>(punto);
}

std::optional<unsigned char> ByteEn(TCodificacion codificacion, char16_t punto) {
    if (codificacion == TCodificacion::Latin9) return ByteLatin9(punto);
    const char16_t ultimo = codificacion == TCodificacion::Ascii ? 0x7F : 0xFF;
    if (punto > ultimo) return std::nullopt;
    return static_cast<unsigned char>(punto);
}

char16_t PuntoDe(TCodificacion codificacion, unsigned char byte) {
    if (codificacion == TCodificacion::Latin9) return PuntoLatin9(byte);
    return codificacion == TCodificacion::Ascii && byte >= 0x80 ? NO_ES_TEXTO : byte;
}

std::string BytesUnoAUno(std::string_view xml, TCodificacion codificacion) {
    std::string bytes;
    bytes.reserve(xml.size());
    for (const char16_t punto : UnidadesAnsi(xml)) {
        if (const auto byte = ByteEn(codificacion, punto))
            bytes += static_cast<char>(*byte);
        else
            bytes.append("&#").append(Int_Cad(punto)).append(";");
    }
    return bytes;
}

// ---- UTF-16

std::string BytesUtf16(std::string_view xml, bool altoPrimero) {
    std::string bytes(altoPrimero ? MARCA_UTF16_BE : MARCA_UTF16_LE);
    bytes.reserve(bytes.size() + 2 * xml.size());
    for (const char16_t punto : UnidadesAnsi(xml)) {
        const auto alto = static_cast<char>(punto >> 8);
        const auto bajo = static_cast<char>(punto & 0xFF);
        bytes += altoPrimero ? alto : bajo;
        bytes += altoPrimero ? bajo : alto;
    }
    return bytes;
}

std::u16string UnidadesUtf16(std::string_view bytes, bool altoPrimero) {
    std::u16string unidades;
    unidades.reserve(bytes.size() / 2 + 1);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto primero = static_cast<unsigned char>(bytes[i]);
        const auto segundo = static_cast<unsigned char>(bytes[i + 1]);
        unidades += static_cast<char16_t>(altoPrimero ? primero << 8 | segundo : segundo << 8 | primero);
    }
    if (bytes.size() % 2 != 0) unidades += NO_ES_TEXTO;
    return unidades;
}

std::u16string UnidadesUnoAUno(std::string_view bytes, TCodificacion codificacion) {
    if (codificacion == TCodificacion::Windows1252) return UnidadesAnsi(bytes);
    std::u16string unidades;
    unidades.reserve(bytes.size());
    for (const char c : bytes) unidades += PuntoDe(codificacion, static_cast<unsigned char>(c));
    return unidades;
}

// ---- To UTF-8

constexpr bool EsAlto(char32_t unidad) {
    return unidad >= 0xD800 && unidad <= 0xDBFF;
}

constexpr bool EsBajo(char32_t unidad) {
    return unidad >= 0xDC00 && unidad <= 0xDFFF;
}

std::string Utf8DeUnidades(std::u16string_view unidades) {
    std::string texto;
    texto.reserve(unidades.size() + unidades.size() / 8);
    for (std::size_t i = 0; i < unidades.size(); ++i) {
        const char32_t unidad = unidades[i];
        if (EsAlto(unidad) && i + 1 < unidades.size() && EsBajo(unidades[i + 1]))
            AnadeUtf8(texto, 0x10000 + ((unidad - 0xD800) << 10) + (unidades[++i] - 0xDC00U));
        else
            AnadeUtf8(texto, EsAlto(unidad) || EsBajo(unidad) ? NO_ES_TEXTO : unidad);
    }
    return texto;
}

std::u16string UnidadesDeclaradas(std::string_view bytes) {
    const TCodificacion codificacion = Declarada(bytes);
    const bool unByte = codificacion != TCodificacion::Utf8 && codificacion != TCodificacion::Utf16Le &&
                        codificacion != TCodificacion::Utf16Be;
    return unByte ? UnidadesUnoAUno(bytes, codificacion) : Utf16DeUtf8(bytes);
}

}  // namespace

std::string BytesDeXml(std::string_view xml) {
    if (xml.starts_with(LUGAR_DE_MARCA)) xml.remove_prefix(1);
    const TCodificacion codificacion = Declarada(xml);
    switch (codificacion) {
        case TCodificacion::Utf8:
            return Utf8DeAnsi(xml);
        case TCodificacion::Windows1252:
            return std::string(xml);
        case TCodificacion::Utf16Le:
            return BytesUtf16(xml, false);
        case TCodificacion::Utf16Be:
            return BytesUtf16(xml, true);
        default:
            return BytesUnoAUno(xml, codificacion);
    }
}

std::string Utf8DeXml(std::string_view bytes) {
    if (bytes.starts_with(MARCA_UTF8)) return Utf8DeUnidades(Utf16DeUtf8(bytes.substr(MARCA_UTF8.size())));
    if (bytes.starts_with(MARCA_UTF16_LE)) return Utf8DeUnidades(UnidadesUtf16(bytes.substr(2), false));
    if (bytes.starts_with(MARCA_UTF16_BE)) return Utf8DeUnidades(UnidadesUtf16(bytes.substr(2), true));
    if (bytes.starts_with("<\0"sv)) return Utf8DeUnidades(UnidadesUtf16(bytes, false));
    if (bytes.starts_with("\0<"sv)) return Utf8DeUnidades(UnidadesUtf16(bytes, true));
    return Utf8DeUnidades(UnidadesDeclaradas(bytes));
}

}  // namespace analizador

#include "plataforma/Ansi.h"

#include <algorithm>
#include <array>
#include <optional>

#include "plataforma/AnsiEquivalentes.h"
#include "plataforma/Utf8.h"

namespace analizador {

namespace {

constexpr unsigned char GUION_OPCIONAL = 31;
constexpr char16_t NO_ES_TEXTO = 0xFFFD;

constexpr bool EsByteSinCaracter(char16_t unidad) {
    return unidad >= 0x80 && unidad < 0xA0 && interno::PUNTOS_80_9F[unidad - 0x80U] == 0;
}

constexpr unsigned char MayusculaDe(unsigned char c) {
    const bool corriente = (c >= 'a' && c <= 'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7);
    if (corriente) return static_cast<unsigned char>(c - 0x20);
    if (c == 0x9A || c == 0x9C || c == 0x9E) return static_cast<unsigned char>(c - 0x10);
    return c == 0xFF ? 0x9F : c;
}

constexpr std::array<char, 256> MAYUSCULAS = [] {
    std::array<char, 256> mayusculas{};
    for (std::size_t i = 0; i < mayusculas.size(); ++i)
        mayusculas[i] = static_cast<char>(MayusculaDe(static_cast<unsigned char>(i)));
    return mayusculas;
}();

unsigned char ByteDeUnidad(char16_t unidad) {
    if (EsByteSinCaracter(unidad)) return static_cast<unsigned char>(unidad);
    const int byte = interno::ByteDePunto(unidad);
    return byte >= 0 ? static_cast<unsigned char>(byte) : interno::ByteEquivalente(unidad);
}

// How the sequence that begins with a byte of UTF-8 is made.
struct TComienzoUtf8 {
    std::size_t Longitud;
    char32_t Bits;
    char32_t Minimo;  // less than this should have been written with fewer bytes
};

constexpr std::optional<TComienzoUtf8> ComienzoUtf8(unsigned char byte) {
    if (byte < 0x80) return TComienzoUtf8{1, byte, 0};
    if (byte >= 0xC0 && byte < 0xE0) return TComienzoUtf8{2, byte & 0x1FU, 0x80};
    if (byte >= 0xE0 && byte < 0xF0) return TComienzoUtf8{3, byte & 0x0FU, 0x800};
    if (byte >= 0xF0 && byte < 0xF8) return TComienzoUtf8{4, byte & 0x07U, 0x10000};
    return std::nullopt;
}

// Takes the code point that `resto` begins with off it; nothing when it begins with a malformed byte.
std::optional<char32_t> TomaPuntoUtf8(std::string_view& resto) {
    const auto comienzo = ComienzoUtf8(static_cast<unsigned char>(resto.front()));
    if (!comienzo || comienzo->Longitud > resto.size()) return std::nullopt;
    char32_t punto = comienzo->Bits;
    for (const char c : resto.substr(1, comienzo->Longitud - 1)) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & 0xC0U) != 0x80) return std::nullopt;
        punto = punto << 6 | (byte & 0x3FU);
    }
    const bool sustituto = punto >= 0xD800 && punto <= 0xDFFF;
    if (punto < comienzo->Minimo || punto > 0x10FFFF || sustituto) return std::nullopt;
    resto.remove_prefix(comienzo->Longitud);
    return punto;
}

void AnnadePunto(std::u16string& texto, char32_t punto) {
    if (punto < 0x10000) {
        texto += static_cast<char16_t>(punto);
        return;
    }
    texto += static_cast<char16_t>(0xD800 + ((punto - 0x10000) >> 10));
    texto += static_cast<char16_t>(0xDC00 + ((punto - 0x10000) & 0x3FF));
}

}  // namespace

std::string AnsiUpperCase(std::string_view texto) {
    std::string mayusculas(texto);
    for (char& c : mayusculas) c = MAYUSCULAS[static_cast<unsigned char>(c)];
    return mayusculas;
}

std::string AnsiDeUtf16(std::u16string_view texto) {
    std::string ansi;
    ansi.reserve(texto.size());
    std::optional<std::size_t> letra;  // the last character that takes room: an accent joins it
    for (const char16_t unidad : texto) {
        if (unidad < 0x80) {
            letra = ansi.size();
            ansi += static_cast<char>(unidad);
            continue;
        }
        const bool acento = interno::EsAcentoCombinable(unidad);
        if (acento && letra)
            ansi[*letra] =
                static_cast<char>(interno::UneAcento(static_cast<unsigned char>(ansi[*letra]), unidad));
        if (acento || interno::EsDeAnchuraNula(unidad)) {
            ansi += static_cast<char>(GUION_OPCIONAL);
            continue;
        }
        letra = ansi.size();
        ansi += static_cast<char>(ByteDeUnidad(unidad));
    }
    return ansi;
}

std::u16string Utf16DeUtf8(std::string_view texto) {
    std::u16string unidades;
    unidades.reserve(texto.size());
    while (!texto.empty()) {
        const auto ascii = std::find_if(texto.begin(), texto.end(), [](char c) { return (c & 0x80) != 0; });
        unidades.append(texto.begin(), ascii);
        texto.remove_prefix(static_cast<std::size_t>(ascii - texto.begin()));
        if (texto.empty()) break;
        const auto punto = TomaPuntoUtf8(texto);
        AnnadePunto(unidades, punto.value_or(NO_ES_TEXTO));
        if (!punto) texto.remove_prefix(1);
    }
    return unidades;
}

std::string AnsiDeUtf8(std::string_view texto) {
    return AnsiDeUtf16(Utf16DeUtf8(texto));
}

std::string Utf8DeAnsi(std::string_view texto) {
    std::string utf8;
    utf8.reserve(texto.size() + texto.size() / 8);
    for (const char c : texto) {
        const auto byte = static_cast<unsigned char>(c);
        const char16_t punto = byte >= 0x80 && byte < 0xA0 ? interno::PUNTOS_80_9F[byte - 0x80U] : byte;
        AnadeUtf8(utf8, punto != 0 ? punto : byte);
    }
    return utf8;
}

}  // namespace analizador

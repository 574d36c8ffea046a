#include "plataforma/Utf8.h"

#include <algorithm>
#include <array>
#include <utility>

#include "plataforma/Ansi.h"

namespace analizador {

namespace {

// Controls, the separators of lines and paragraphs, the marks of direction, and what stands for a malformed
// byte.
bool EsDelTexto(char16_t unidad) {
    constexpr std::array<std::pair<char16_t, char16_t>, 7> NO_LO_SON = {{{0, 0x1F},
                                                                         {0x7F, 0x9F},
                                                                         {0x061C, 0x061C},
                                                                         {0x200E, 0x200F},
                                                                         {0x2028, 0x202E},
                                                                         {0x2066, 0x2069},
                                                                         {0xFFFD, 0xFFFD}}};
    return std::ranges::none_of(
        NO_LO_SON, [&](const auto& tramo) { return tramo.first <= unidad && unidad <= tramo.second; });
}

bool EsContinuacion(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

}  // namespace

void AnadeUtf8(std::string& texto, char32_t punto) {
    const auto anade = [&](char32_t byte) { texto += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (punto < 0x80) return anade(punto);
    if (punto < 0x800) {
        anade(0xC0 | punto >> 6);
    } else if (punto < 0x10000) {
        anade(0xE0 | punto >> 12);
        anade(0x80 | (punto >> 6 & 0x3F));
    } else {
        anade(0xF0 | punto >> 18);
        anade(0x80 | (punto >> 12 & 0x3F));
        anade(0x80 | (punto >> 6 & 0x3F));
    }
    anade(0x80 | (punto & 0x3F));
}

std::string EnUnaLinea(std::string_view utf8) {
    std::string linea;
    char32_t alto = 0;
    for (const char16_t unidad : Utf16DeUtf8(utf8)) {
        const bool esBajo = unidad >= 0xDC00 && unidad <= 0xDFFF;
        if (unidad >= 0xD800 && unidad <= 0xDBFF)
            alto = unidad;
        else if (esBajo)
            AnadeUtf8(linea, 0x10000 + ((alto - 0xD800) << 10) + (unidad - 0xDC00U));
        else
            AnadeUtf8(linea, EsDelTexto(unidad) ? unidad : U'?');
    }
    return linea;
}

std::string PrincipioEnUnaLinea(std::string_view utf8) {
    constexpr std::size_t MAXIMO = 160;
    if (utf8.size() <= MAXIMO) return EnUnaLinea(utf8);
    std::size_t fin = MAXIMO;
    while (fin > 0 && EsContinuacion(utf8[fin])) --fin;
    return EnUnaLinea(utf8.substr(0, fin)) + "…";
}

std::string NombreCitado(std::string_view utf8) {
    return "«" + PrincipioEnUnaLinea(utf8) + "»";
}

}  // namespace analizador

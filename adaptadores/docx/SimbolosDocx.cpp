#include "adaptadores/docx/SimbolosDocx.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string>

namespace analizador {

namespace {

constexpr char16_t SIN_CARACTER = u'?';

struct TSigno {
    std::uint8_t Codigo;
    char16_t Caracter;
};

// The symbol font, where it differs from ASCII and is no Greek letter.
constexpr std::array<TSigno, 28> SIGNOS_SYMBOL = {{
    {0x2D, u'\u2212'}, {0x7E, u'~'},         {0xA0, u'\u20AC'}, {0xA2, u'\u2032'}, {0xA4, u'/'},
    {0xB0, u'\u00B0'}, {0xB1, u'\u00B1'},    {0xB2, u'\u2033'}, {0xB4, u'\u00D7'}, {0xB7, u'\u2022'},
    {0xB8, u'\u00F7'}, {0xBC, u'\u2026'},    {0xBD, u'|'},      {0xBE, u'\u2014'}, {0xD2, u'\u00AE'},
    {0xD3, u'\u00A9'}, {0xD4, u'\u2122'},    {0xD7, u'\u00B7'}, {0xD8, u'\u00AC'}, {0xE2, u'\u00AE'},
    {0xE3, u'\u00A9'}, {0xE4, u'\u2122'},    {0x6D, u'\u00B5'}, {0xA6, u'\u0192'}, {0xE1, u'<'},
    {0xF1, u'>'},      {0xA5, SIN_CARACTER}, {0x20, u' '},
}};

// Bullets, quotes and blanks of the picture fonts.
constexpr std::array<TSigno, 8> SIGNOS_WINGDINGS = {{
    {0x20, u' '},
    {0x6C, u'\u2022'},
    {0x6E, u'\u2022'},
    {0x73, u'\u2022'},
    {0x9E, u'\u00B7'},
    {0x9F, u'\u2022'},
    {0xA7, u'\u2022'},
    {0x76, u'\u2022'},
}};

template <std::size_t N>
char16_t Busca(const std::array<TSigno, N>& signos, std::uint8_t codigo) {
    const auto* const it =
        std::ranges::find_if(signos, [&](const TSigno& signo) { return signo.Codigo == codigo; });
    return it != signos.end() ? it->Caracter : u'\0';
}

char16_t DeSymbol(std::uint8_t codigo) {
    if (const auto signo = Busca(SIGNOS_SYMBOL, codigo)) return signo;
    const bool letra = (codigo >= 'A' && codigo <= 'Z') || (codigo >= 'a' && codigo <= 'z');
    return codigo < 0x7F && !letra ? codigo : SIN_CARACTER;
}

char16_t DeDibujos(std::uint8_t codigo) {
    const auto signo = Busca(SIGNOS_WINGDINGS, codigo);
    return signo != 0 ? signo : SIN_CARACTER;
}

bool Empieza(std::string_view fuente, std::string_view enMinusculas) {
    if (fuente.size() < enMinusculas.size()) return false;
    return std::ranges::equal(fuente.substr(0, enMinusculas.size()), enMinusculas, [](char a, char b) {
        return (a >= 'A' && a <= 'Z' ? static_cast<char>(a + 32) : a) == b;
    });
}

}  // namespace

char16_t CaracterDeSimbolo(std::string_view fuente, std::string_view codigo) {
    std::uint16_t valor = 0;
    const auto* const fin = codigo.data() + codigo.size();
    const auto leido = std::from_chars(codigo.data(), fin, valor, 16);
    if (leido.ec != std::errc() || leido.ptr != fin) return SIN_CARACTER;
    const bool privado = valor >= 0xF000 && valor <= 0xF0FF;
    const auto bajo = static_cast<std::uint8_t>(valor & 0xFF);
    const bool unByte = privado || valor <= 0xFF;
    if (unByte && bajo < 0x20) return SIN_CARACTER;
    if (unByte && Empieza(fuente, "symbol")) return DeSymbol(bajo);
    if (unByte && (Empieza(fuente, "wingdings") || Empieza(fuente, "webdings"))) return DeDibujos(bajo);
    if (privado) return bajo < 0x7F || bajo >= 0xA0 ? bajo : SIN_CARACTER;
    return valor < 0x20 || (valor >= 0xD800 && valor <= 0xDFFF) ? SIN_CARACTER : valor;
}

}  // namespace analizador

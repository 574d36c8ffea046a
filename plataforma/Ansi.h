#pragma once

// Windows-1252 text: inside the core a text is a std::string of these bytes, one byte a character.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace analizador {

namespace interno {

// Code points of the bytes 0x80..0x9F of Windows-1252; 0 where the code page has none.
inline constexpr std::array<char16_t, 32> PUNTOS_80_9F = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

// The byte of a code point, or -1 when the code page lacks it.
constexpr int ByteDePunto(char32_t punto) {
    if (punto < 0x80 || (punto >= 0xA0 && punto <= 0xFF)) return static_cast<int>(punto);
    for (std::size_t i = 0; i < PUNTOS_80_9F.size(); ++i)
        if (PUNTOS_80_9F[i] != 0 && PUNTOS_80_9F[i] == punto) return static_cast<int>(0x80 + i);
    return -1;
}

template <std::size_t N>
struct LiteralAnsi {
    std::array<char, N> Bytes{};
    std::size_t Longitud = 0;

    // Not defined on purpose: reached only when a literal cannot be converted, and so refused at compile
    // time.
    static void LaPaginaDeCodigosNoTieneEsteCaracter();

    // NOLINTNEXTLINE(google-explicit-constructor): a literal operator template needs the conversion
    consteval LiteralAnsi(const char (&utf8)[N]) {
        std::size_t i = 0;
        while (i + 1 < N) {
            const auto primero = static_cast<unsigned char>(utf8[i]);
            const std::size_t seguidores = primero < 0x80 ? 0 : primero < 0xE0 ? 1 : primero < 0xF0 ? 2 : 3;
            char32_t punto = seguidores == 0 ? primero : primero & (0x3FU >> seguidores);
            for (std::size_t k = 1; k <= seguidores; ++k)
                punto = punto << 6 | (static_cast<unsigned char>(utf8[i + k]) & 0x3FU);
            const int byte = ByteDePunto(punto);
            if (byte < 0) LaPaginaDeCodigosNoTieneEsteCaracter();
            Bytes[Longitud++] = static_cast<char>(byte);
            i += seguidores + 1;
        }
    }
};

}  // namespace interno

// "INTERVENCIÓN"_ansi: the Windows-1252 bytes of a UTF-8 literal, as a view that lives for ever. Refused by
// the compiler when the code page lacks a character.
template <interno::LiteralAnsi L>
consteval std::string_view operator""_ansi() {
    return std::string_view(L.Bytes.data(), L.Longitud);
}

// The text in capitals (AnsiUpperCase): letters with accents, dieresis, tilde or cedilla too; same length.
[[nodiscard]] std::string AnsiUpperCase(std::string_view texto);

// Border conversions. Each UTF-16 unit becomes exactly one byte, so that positions counted in units hold.
// What the code page lacks becomes its plain equivalent of one character (dashes and the minus sign "-",
// fixed blanks a blank, primes ' and ", a letter with a foreign accent its plain letter), else "?". A
// combining accent joins the letter before it and leaves the byte 31 (the optional hyphen) in its own place;
// so do zero-width characters. A surrogate pair gives "??".
[[nodiscard]] std::string AnsiDeUtf16(std::u16string_view texto);

// UTF-8 to Windows-1252, by way of UTF-16 as above; a malformed byte counts as one character the page lacks.
[[nodiscard]] std::string AnsiDeUtf8(std::string_view texto);

// UTF-8 to UTF-16; each malformed byte gives U+FFFD.
[[nodiscard]] std::u16string Utf16DeUtf8(std::string_view texto);

// Windows-1252 to UTF-8; the five bytes without a character give the control code of the same value.
[[nodiscard]] std::string Utf8DeAnsi(std::string_view texto);

}  // namespace analizador

#pragma once

// Which bytes of Windows-1252 are letters, for words in searches and for bookmark names.

#include <string_view>

#include "plataforma/Ansi.h"

namespace analizador {

// Letters of any case and accent, ª and º too.
[[nodiscard]] constexpr bool EsLetra(char c) {
    constexpr std::string_view SUELTAS = "ƒŠŒŽšœžŸªµº"_ansi;
    if (static_cast<unsigned char>(c) >= 0xC0) return c != '\xD7' && c != '\xF7';
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || SUELTAS.find(c) != std::string_view::npos;
}

[[nodiscard]] constexpr bool EsLetraODigito(char c) {
    return EsLetra(c) || (c >= '0' && c <= '9');
}

}  // namespace analizador

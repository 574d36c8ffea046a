#pragma once

// The code pages of dBASE texts.

#include <array>
#include <optional>

namespace analizador {

using TTraduccion = std::array<char, 256>;

// From the bytes of a language driver's code page to Windows-1252, byte by byte: what the page lacks becomes
// "?", 00 a blank. The driver 00 is taken for Windows-1252. nullopt when the driver's page is none of
// Windows-1252, 850 and 437.
[[nodiscard]] std::optional<TTraduccion> TraduccionDe(unsigned char controlador);

// The bytes below 80 alone, for the tables in any other page: all of them agree there.
[[nodiscard]] TTraduccion TraduccionIdentica();

}  // namespace analizador

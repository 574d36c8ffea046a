#pragma once

// What the bytes of a dBASE field say.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "adaptadores/dbase/FormatoDbf.h"

namespace analizador {

// `bytes`: the whole field. A text without the blanks at its right, a number as its shortest digits or the
// digits it is written in, a logical one T, F or empty (not known); what reads empty gives "".
[[nodiscard]] std::string TextoDeBytes(std::string_view bytes, TClaseCampo clase);

// The number that the field is; of a text, a whole number alone. nullopt when it is empty or none.
[[nodiscard]] std::optional<double> NumeroDeBytes(std::string_view bytes, TClaseCampo clase);

// The number that digits write: sign, decimal point or comma, exponent, blanks around them.
[[nodiscard]] std::optional<double> NumeroDeDigitos(std::string_view texto);

// The whole number that an optional sign and digits write, blanks around them.
[[nodiscard]] std::optional<double> EnteroDeDigitos(std::string_view texto);

// The little-endian number of `cuantos` bytes, 8 at most, at a position; the bytes must be there.
[[nodiscard]] std::uint64_t LeeBajo(std::string_view bytes, std::size_t posicion, std::size_t cuantos);

// The same of the eight bytes at `bytes`.
[[nodiscard]] inline std::uint64_t LeeOcho(const char* bytes) {
    const auto byte = [&](unsigned i) {
        return static_cast<std::uint64_t>(static_cast<unsigned char>(bytes[i])) << 8U * i;
    };
    return byte(0) | byte(1) | byte(2) | byte(3) | byte(4) | byte(5) | byte(6) | byte(7);
}

// Without the blanks at the right, at both ends. Views into `texto`.
[[nodiscard]] std::string_view SinBlancosDerecha(std::string_view texto);
[[nodiscard]] std::string_view SinBlancos(std::string_view texto);

}  // namespace analizador

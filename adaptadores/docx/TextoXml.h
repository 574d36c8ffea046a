#pragma once

#include <string>
#include <string_view>

namespace analizador {

enum class Codificacion { Utf8, Utf16Le, Utf16Be };

// A part's XML turned into UTF-8, and what is needed to write it back as it was.
struct TTextoXml {
    std::string Utf8;  // without byte-order mark
    Codificacion Original = Codificacion::Utf8;
    bool ConMarca = false;  // began with a byte-order mark
};

// Throws FalloDocx, naming `parte`, for other encodings and for broken UTF-16.
[[nodiscard]] TTextoXml DecodificaXml(std::string bytes, const std::string& parte);

// The inverse: for what DecodificaXml gave, exactly its bytes.
[[nodiscard]] std::string CodificaXml(const TTextoXml& xml);

}  // namespace analizador

#pragma once

// XML between the Windows-1252 text that the core holds and the bytes of a file.

#include <string>
#include <string_view>

namespace analizador {

// The bytes of an XML text in the encoding that its declaration names: UTF-8, windows-1252, ISO-8859-1,
// ISO-8859-15, US-ASCII or UTF-16 (little-endian after a byte-order mark). UTF-8 when it names none or
// another. A character that the encoding lacks becomes a numeric character reference. The place of a
// byte-order mark (the character 31) at the beginning is left out. Takes any text, well formed or not.
[[nodiscard]] std::string BytesDeXml(std::string_view xml);

// The text of such bytes in UTF-8, without byte-order mark. A byte-order mark, or a first "<" of two bytes,
// goes before what the declaration names. What is malformed becomes U+FFFD.
[[nodiscard]] std::string Utf8DeXml(std::string_view bytes);

}  // namespace analizador

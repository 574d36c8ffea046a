#pragma once

// What tells one content of a deed from another.

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace analizador {

// Sixteen hexadecimal digits that are another's only by a chance of one in 2^64: FNV-1a over all bytes.
[[nodiscard]] std::string Huella(std::string_view bytes);

// That of a file's content; none when it cannot be read whole.
[[nodiscard]] std::optional<std::string> HuellaDeFichero(const std::filesystem::path& fichero);

}  // namespace analizador

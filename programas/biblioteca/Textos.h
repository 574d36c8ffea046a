#pragma once

// The texts that cross the interface: UTF-8 or UTF-16 that ends in a zero outside, UTF-8 inside.

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "programas/biblioteca/analizador.h"

namespace analizador {

// A copy of the host's text as UTF-8. Throws ErrorInterfaz when it is null or in another encoding.
[[nodiscard]] std::string TextoDe(const char* utf8);
[[nodiscard]] std::string TextoDe(const analizador_utf16* utf16);

// The same of a file's or folder's name, made absolute: the current folder may change later. Throws
// ErrorInterfaz, also when it is empty.
[[nodiscard]] std::filesystem::path RutaDe(const std::string& utf8);

// The same where null means none.
template <class TUnidad>
[[nodiscard]] std::optional<std::filesystem::path> RutaOpcional(const TUnidad* texto) {
    if (texto == nullptr) return std::nullopt;
    return RutaDe(TextoDe(texto));
}

// The units of a UTF-8 text and a zero after them.
[[nodiscard]] std::vector<analizador_utf16> UnidadesDe(std::string_view utf8);

}  // namespace analizador

#pragma once

#include <cstddef>
#include <string_view>

namespace analizador {

// Where `palabra` first stands in `texto` with neither letter nor digit at its sides; npos when nowhere. Both
// Windows-1252; case counts.
[[nodiscard]] std::size_t BuscaPalabra(std::string_view texto, std::string_view palabra);

}  // namespace analizador

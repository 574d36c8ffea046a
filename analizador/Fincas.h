#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace analizador {

// The land parcel that a bookmark of this name marks: what follows the first "FINCA_", underscores included,
// possibly empty. None for other bookmarks; capitals count. Windows-1252.
[[nodiscard]] std::optional<std::string> NombreFinca(std::string_view marcador);

}  // namespace analizador

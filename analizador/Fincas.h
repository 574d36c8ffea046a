#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "plataforma/VrkWord.h"

namespace analizador {

// The land parcel that a bookmark of this name marks: what follows the first "FINCA_", underscores included,
// possibly empty. None for other bookmarks; capitals count. Windows-1252.
[[nodiscard]] std::optional<std::string> NombreFinca(std::string_view marcador);

// The land parcels of a document's bookmarks, each name once, in the order of the bookmarks.
[[nodiscard]] std::vector<std::string> FincasDeMarcadores(const std::vector<TMarcador>& marcadores);

}  // namespace analizador

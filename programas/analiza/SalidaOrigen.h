#pragma once

#include <nlohmann/json.hpp>

#include "programas/analiza/AnalisisEscritura.h"

namespace analizador {

// Where each fact of an analysis was read: for each one the paragraph (its number in the document, from 1),
// the first character (from 0) and how many in the paragraph's plain text, and that text itself. What was not
// read in the deed (deduced, completed from a table) has none: its key is missing, or null in a list.
[[nodiscard]] nlohmann::ordered_json JsonOrigen(const TAnalisisEscritura& analisis);

}  // namespace analizador

#pragma once

#include <nlohmann/json.hpp>

#include "adaptadores/word/Com.h"

namespace analizador {

// What For Each asks for to walk a list: an IEnumVARIANT over a copy of it.
[[nodiscard]] TVariante Enumera(const nlohmann::ordered_json& lista);

}  // namespace analizador

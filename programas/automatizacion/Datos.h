#pragma once

// The results of an analysis as a macro sees them.

#include <nlohmann/json.hpp>
#include <string>

#include "adaptadores/word/Com.h"

namespace analizador {

// A value of the results' JSON: a text, a number, a truth value; null empty; a record an object whose
// properties have the names of its keys; a list an object with Count, Item (from 1) and For Each. Records and
// lists are copies, which stay as they are whatever is analysed later.
[[nodiscard]] TVariante VarianteDe(const nlohmann::ordered_json& valor);

// The same of a key of a record: FechaNacimiento is a date.
[[nodiscard]] TVariante VarianteDe(const std::string& clave, const nlohmann::ordered_json& valor);

}  // namespace analizador

#pragma once

#include <map>
#include <string>

#include "rutinas/Tramo.h"

namespace analizador {

// Where each field of one record was read, by the field's name. A field that the document does not give
// (completed from a table, deduced) has none. Kept beside the records, never in them.
using TOrigenes = std::map<std::string, TOrigen, std::less<>>;

}  // namespace analizador

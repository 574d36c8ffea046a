#pragma once

// The sound documents that attacks begin with.

#include <string>
#include <utility>
#include <vector>

#include "pruebas/ataques/Mutaciones.h"

namespace analizador::pruebas {

// The example deeds, and one of them as a word processor keeps it after years of work: text in pieces,
// revisions, fields, tables, text boxes, notes, and all the parts that come with them.
[[nodiscard]] const std::vector<std::pair<std::string, TPartes>>& Semillas();

}  // namespace analizador::pruebas

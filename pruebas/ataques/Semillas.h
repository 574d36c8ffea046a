#pragma once

// The sound documents that attacks begin with.

#include <string>
#include <utility>
#include <vector>

#include "pruebas/ataques/Mutaciones.h"

namespace analizador::pruebas {

// The example deeds, and each of them as a word processor keeps it after years of work: text in pieces,
// revisions, fields, tables, text boxes, notes, and all the parts that come with them. Instead of them the
// documents of the folder that the environment's ATAQUES_SEMILLAS names.
[[nodiscard]] const std::vector<std::pair<std::string, TPartes>>& Semillas();

}  // namespace analizador::pruebas

#pragma once

#include <pugixml.hpp>
#include <string>

namespace analizador {

// Renames all elements and attributes below and including `raiz` as TArbolXml describes. Names only get
// shorter wherever the prefix is written out, so that they stay in the parsed buffer and their positions
// are still known. Throws FalloDocx when elements are nested, or declarations piled up, beyond reason.
// Returns the namespace of `raiz`.
std::string NormalizaNombres(pugi::xml_node raiz);

}  // namespace analizador

#pragma once

// The names under which a street of the street map is looked for: those that the recogniser of addresses
// takes from a deed.

#include <string>
#include <string_view>
#include <vector>

#include "programas/creatablas/DisenoCallejero.h"

namespace analizador {

struct TNombresVia {
    std::string Tipo;                  // one of CONST_TIPO_VIA, empty for any other kind
    std::vector<std::string> Nombres;  // folded, no two equal; none when nothing of the name is left
};

// `tipo` and `nombre` as the street map gives them (`tipo` may be empty: the name's first word then says it).
// A deed drops one article or preposition behind a street type that it knows, and may write "de" in front of
// the name (calle Los Olivos, calle de los Olivos); in front of a name of another kind its word stays. With
// `catalana` also the names of Catalan deeds (carrer d'Aragó).
[[nodiscard]] TNombresVia NombresDeVia(std::string_view tipo, std::string_view nombre, bool catalana,
                                       const TDisenoCallejero& diseno);

// The forms of a municipality's name, folded: those of a bilingual one (ALACANT/ALICANTE) each by itself.
[[nodiscard]] std::vector<std::string> NombresDeMunicipio(std::string_view nombre);

}  // namespace analizador

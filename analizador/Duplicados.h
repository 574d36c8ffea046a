#pragma once

#include "modelo/ListaOtorgantes.h"

namespace analizador {

// The parties found with every further mention of one merged into the first, in the order of the first
// mentions; the list given is left as it was. A mention is of a party already kept when that one's whole name
// occurs in it, as written; of several such the one kept first takes it. The line keeps the text of the first
// mention. A field's origin is that of the mention whose value was taken. Lines without a record are skipped.
[[nodiscard]] TListaOtorgantes UneOtorgantesDuplicados(const TListaOtorgantes& encontrados);

}  // namespace analizador

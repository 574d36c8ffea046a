#pragma once

#include "modelo/ListaOtorgantes.h"

namespace analizador {

// Adds the parties found to `otorgantes`, every further mention of one merged into the first; the list of the
// found is left as it was. A mention is of a party already kept when that one's whole name occurs in it, as
// written; of several such the one kept first takes it. The line keeps the text of the first mention. A
// field's origin is that of the mention whose value was taken. Lines without a record are skipped.
void EliminaOtorgantesDuplicados(const TListaOtorgantes& encontrados, TListaOtorgantes& otorgantes);

}  // namespace analizador

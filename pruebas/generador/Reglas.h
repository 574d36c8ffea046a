#pragma once

#include "pruebas/generador/Gramatica.h"

namespace analizador::pruebas {

// The rules of each language, for the same symbols: `cabecera`, `titulo_comparecientes`, `comparecientes`,
// `titulo_intervienen`, `intervienen`, `titulo_exponen`, `exponen`, `titulo_otorgan`, `otorgan`, `cierre` and
// what they are made of. A "|" ends a paragraph within them.
[[nodiscard]] const TGramatica& ReglasCastellanas();
[[nodiscard]] const TGramatica& ReglasCatalanas();

}  // namespace analizador::pruebas

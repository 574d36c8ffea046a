#pragma once

// The rows of the table MUNICIPI, completed with the postal codes that the street map gives.

#include <vector>

#include "adaptadores/dbase/EscritorDbf.h"
#include "programas/creatablas/Callejero.h"

namespace analizador {

// `filas`: the table's own rows (NOM_MUNICI, CODPOSTAL, NOMBRE, COD_INE, COD_PROV). Every name of a
// municipality that has stretches gets one row with its postal code when that is the only one, else one
// without a code and behind it one for each; the rows that it had are replaced. Other rows stay. A
// municipality that the table lacks is added under the street map's name. In the order of the names.
[[nodiscard]] std::vector<TFilaDbf> FilasMunicipios(const std::vector<TFilaDbf>& filas,
                                                    const TCallejero& callejero);

// By code, whether a street is looked for to tell the municipality's postal code: true when one of its names
// has several rows.
[[nodiscard]] std::vector<bool> MunicipiosBuscados(const std::vector<TFilaDbf>& filas);

}  // namespace analizador

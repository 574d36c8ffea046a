#pragma once

// The reference tables: which there are and the fields of each.

#include <string>
#include <vector>

#include "adaptadores/dbase/EscritorDbf.h"

namespace analizador {

struct TEsquema {
    std::string Tabla;  // its file's name without extension: TABLA.csv makes TABLA.DBF
    std::vector<TColumnaDbf> Columnas;
    // Those by which the analysis looks up single rows, of a table that may be big.
    std::vector<std::string> Indices = {};
};

[[nodiscard]] const std::vector<TEsquema>& Esquemas();

}  // namespace analizador

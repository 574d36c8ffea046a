#pragma once

// The reference tables: which there are and the fields of each.

#include <string>
#include <vector>

#include "adaptadores/dbase/EscritorDbf.h"

namespace analizador {

struct TEsquema {
    std::string Tabla;  // its file's name without extension: TABLA.csv makes TABLA.DBF
    std::vector<TColumnaDbf> Columnas;
};

[[nodiscard]] const std::vector<TEsquema>& Esquemas();

}  // namespace analizador

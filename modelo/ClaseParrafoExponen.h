#pragma once

#include <string>
#include <vector>

#include "rutinas/Tramo.h"

namespace analizador {

// The loan facts of a deed.
class TClassOperacion {
  public:
    std::vector<std::string> Plazos;  // terms in months, each value once
    int TipoInteres = 0;              // CONST_TIPO_INTERES; 0 none
    std::vector<std::string> TAEs;    // annual rates, each value once

    void Limpia() { *this = {}; }
};

}  // namespace analizador

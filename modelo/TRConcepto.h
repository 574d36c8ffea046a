#pragma once

#include <string>

namespace analizador {

// One deed type found in a deed, as its row of the table TIPOS gives it. Texts are Windows-1252.
struct TRConcepto {
    int NumeroTipo = 0;
    std::string Nombre;
    std::string CodOficial;
    bool Prestamo = false;
    bool operator==(const TRConcepto&) const = default;
};

}  // namespace analizador

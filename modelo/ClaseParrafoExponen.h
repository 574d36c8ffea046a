#pragma once

// What the recitals tell of something found before: a will of its testator, a loan of the deed's operation.

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "modelo/TROtorgante.h"
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

// The recitals of a will, read for its testator.
class TClassIntervaloTestamento {
  public:
    // At once gives the party the single index's intervention 12, whatever it had. The party must outlive
    // the object.
    TClassIntervaloTestamento(std::string_view texto, TROtorgante& otorgante);

    // Writes the party's birth and parents; what the text does not tell becomes empty. Throws ErrorTabla.
    void Desglosa();

    std::string Texto;
    TROtorgante& Otorgante;
    // Where in Texto each field that this object wrote was read, by the field's name; length 0 for one that
    // was not read: what was known of its origin no longer holds.
    std::map<std::string, Tramo, std::less<>> Tramos;
};

// The recitals of a loan. Several add their terms and rates to the same operation; the interest index is that
// of the last one, even when it has none.
class TClassIntervaloPrestamo {
  public:
    // The operation must outlive the object.
    TClassIntervaloPrestamo(std::string_view texto, TClassOperacion& operacion);

    void Desglosa();

    std::string Texto;
    TClassOperacion& Operacion;
    // Where in Texto each term and rate was read that this object added to the operation, in the order of the
    // operation's lists.
    std::vector<Tramo> TramosPlazos;
    std::vector<Tramo> TramosTAEs;
    Tramo TramoTipoInteres;  // length 0 when no index is named
};

}  // namespace analizador

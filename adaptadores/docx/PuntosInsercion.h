#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "adaptadores/docx/LecturaDocx.h"

namespace analizador {

// A change of the XML text: [Desde, Hasta) gives way to Texto.
struct TEdicion {
    std::size_t Desde = 0;
    std::size_t Hasta = 0;
    std::string Texto;
};

// Where in the main part a zero-width element goes, so that it stands at a position of the text.
struct TPuntoInsercion {
    std::size_t Posicion = 0;
    std::string Antes;            // closes what is open there,
    std::string Despues;          // and opens it again
    std::string Prefijo;          // of the format's namespace there, ":" included; empty when there is none
    std::vector<TEdicion> Otras;  // what else has to change
};

// The position brought to one where an element can stand: out of a cell or row mark, of a surrogate pair, and
// of an end that the file does not have (a last CR added by the reader), backwards or forwards.
[[nodiscard]] int PosicionPosible(const TComposicion& composicion, const std::vector<TSuceso>& sucesos,
                                  int posicion, bool haciaDelante);

// Finds the point of a position that PosicionPosible gave. A run is split where need be: both halves keep
// its attributes and properties. Throws FalloDocx when the part writes its names in a way that cannot be
// changed in place.
[[nodiscard]] TPuntoInsercion PuntoDePosicion(const TLecturaDocx& lectura, int posicion);

}  // namespace analizador

#pragma once

// A second, independent knowledge of how Catalan writes its numbers: here they are written, not read.

#include <string>

namespace analizador {

enum class Genero { Masculino, Femenino };

// What stands where the norm puts a hyphen: VINT-I-DOS, VINT I DOS, VINTIDOS.
enum class Guion { Guion, Espacio, Nada };

// `numero` from 0 to 999.999.999.999 in small letters, Windows-1252, with accents.
[[nodiscard]] std::string DeletreaCatalan(long long numero, Genero genero, Guion guion);

}  // namespace analizador

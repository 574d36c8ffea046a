#pragma once

// Counts the memory that the program asks for: linking this in replaces the operators new and delete.

#include <cstddef>

namespace analizador {

// Bytes asked for and not given back yet.
[[nodiscard]] std::size_t MemoriaEnUso();

// The most that MemoriaEnUso has been since the last call of EmpiezaMaximo, at least what it is now.
[[nodiscard]] std::size_t MemoriaMaxima();
void EmpiezaMaximo();

}  // namespace analizador

#pragma once

#include <filesystem>

namespace analizador {

// The full name of the library's own file.
[[nodiscard]] std::filesystem::path RutaModulo();

// Keeps the library loaded until the process ends: its threads' memory is freed by code of its own, and what
// shows its windows leaves in the process a thread and kinds of windows that are its code.
void FijaModulo();

}  // namespace analizador

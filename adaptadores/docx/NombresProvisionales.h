#pragma once

#include <filesystem>
#include <string>

namespace analizador {

// The names of the files that documents are written to before they take their place: unguessable, and told
// from those of all other files.
[[nodiscard]] std::string NombreProvisional();
[[nodiscard]] bool EsNombreProvisional(const std::filesystem::path& fichero);

// Removes what killed processes left of such files in a folder. Those of processes that live are locked and
// stay, as does what cannot be removed.
void LimpiaProvisionales(const std::filesystem::path& carpeta);

// The system's part of it: removes that file when no process has it locked.
void QuitaSiNadieLoEscribe(const std::filesystem::path& fichero);

}  // namespace analizador

#pragma once

// Where files with personal data are kept for as long as they are looked at.

#include <filesystem>

namespace analizador {

// The private folder of this process: made at the first call in the system's folder for temporary files, with
// an unguessable name, for this user alone; removed with all it holds when the process ends. What a process
// that was killed left behind is removed first. Throws std::filesystem::filesystem_error.
[[nodiscard]] const std::filesystem::path& CarpetaPrivada();

// Removes the private folders of this user's processes that ended without doing so. What cannot be removed
// stays. For the start of a program; CarpetaPrivada does it too.
void LimpiaCarpetasAbandonadas();

}  // namespace analizador

#pragma once

#include <filesystem>
#include <optional>

namespace analizador {

// The file by which another word processor says that it has `documento` open, when there is one beside it:
// "~$NAME" (or with "~$" in the place of the name's first two characters, as a long name has it) or
// ".~lock.NAME#".
[[nodiscard]] std::optional<std::filesystem::path> FicheroDeBloqueo(const std::filesystem::path& documento);

}  // namespace analizador

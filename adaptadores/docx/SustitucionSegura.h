#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace analizador {

// Why the system refuses to write a file, in words that a clerk understands. `error`: its number.
[[nodiscard]] std::string CausaDelSistema(int error);

// The file that a path leads to, following symbolic links; it need not exist. Throws FalloDocx for a loop of
// links.
[[nodiscard]] std::filesystem::path FicheroReal(const std::filesystem::path& ruta);

// Puts `bytes` in the place of `fichero` (no symbolic link), or in a new file, in one step: they are first
// written to another file of the same folder and brought to the disk. An old file's mode and, where the
// system allows, owner stay; in Windows its permissions and attributes. What killed processes left of such
// files in the folder is removed. `justoAntes` is called when all is ready and may still throw to call it
// off. After an exception, its own or FalloDocx, the old file is whole and the other one gone.
void SustituyeFichero(const std::filesystem::path& fichero, std::string_view bytes,
                      const std::function<void()>& justoAntes);

}  // namespace analizador

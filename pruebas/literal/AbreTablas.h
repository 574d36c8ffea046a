#pragma once

#include <filesystem>
#include <memory>

#include "plataforma/Ruttb.h"

namespace analizador::pruebas {

// The tables of a folder, read as the program that links this reads them: fast in one, plainly in the other.
[[nodiscard]] std::unique_ptr<TProveedorTablas> AbreTablas(const std::filesystem::path& carpeta);

}  // namespace analizador::pruebas

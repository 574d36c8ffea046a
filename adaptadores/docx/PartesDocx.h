#pragma once

#include <optional>
#include <string>

#include "adaptadores/docx/PaqueteZip.h"

namespace analizador {

// The names in the archive of the parts that are read. A part that is named but not there counts as none,
// but for the main one.
struct TPartesDocx {
    std::string Principal;
    std::optional<std::string> Estilos;
    std::optional<std::string> Ajustes;
    bool Firmado = false;
};

// Follows the package's relationships. Throws FalloDocx when the package is no document of the word
// processor, saying what it is when that is known.
[[nodiscard]] TPartesDocx LocalizaPartes(TPaqueteZip& paquete);

}  // namespace analizador

#include "analizador/Fincas.h"

namespace analizador {

std::optional<std::string> NombreFinca(std::string_view marcador) {
    constexpr std::string_view SENAL = "FINCA_";
    const auto donde = marcador.find(SENAL);
    if (donde == std::string_view::npos) return std::nullopt;
    return std::string(marcador.substr(donde + SENAL.size()));
}

}  // namespace analizador

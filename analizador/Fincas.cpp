#include "analizador/Fincas.h"

#include <algorithm>

namespace analizador {

std::optional<std::string> NombreFinca(std::string_view marcador) {
    constexpr std::string_view SENAL = "FINCA_";
    const auto donde = marcador.find(SENAL);
    if (donde == std::string_view::npos) return std::nullopt;
    return std::string(marcador.substr(donde + SENAL.size()));
}

std::vector<std::string> FincasDeMarcadores(const std::vector<TMarcador>& marcadores) {
    std::vector<std::string> fincas;
    for (const TMarcador& marcador : marcadores)
        if (auto finca = NombreFinca(marcador.Nombre);
            finca && std::find(fincas.begin(), fincas.end(), *finca) == fincas.end())
            fincas.push_back(std::move(*finca));
    return fincas;
}

}  // namespace analizador

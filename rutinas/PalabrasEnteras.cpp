#include "rutinas/PalabrasEnteras.h"

#include <algorithm>

namespace analizador {

namespace {

bool EsLetra(char c) {
    return c >= 'A' && c <= 'Z';
}

}  // namespace

TPalabrasEnteras::TPalabrasEnteras(std::string_view texto) : texto_(texto) {
    for (std::size_t i = 0; i < texto.size(); ++i)
        if (i == 0 || !EsLetra(texto[i - 1])) principios_[static_cast<unsigned char>(texto[i])].push_back(i);
}

std::optional<std::size_t> TPalabrasEnteras::Busca(std::string_view nombre) const {
    if (nombre.empty()) return std::nullopt;
    const auto& principios = principios_[static_cast<unsigned char>(nombre.front())];
    const auto donde = std::find_if(principios.begin(), principios.end(), [&](std::size_t p) {
        const std::string_view resto = texto_.substr(p);
        return resto.starts_with(nombre) && (resto.size() == nombre.size() || !EsLetra(resto[nombre.size()]));
    });
    return donde == principios.end() ? std::nullopt : std::optional(*donde);
}

}  // namespace analizador

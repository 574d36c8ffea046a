#include "programas/analiza/Columnas.h"

#include <algorithm>

namespace analizador {

namespace {

std::vector<std::size_t> Anchos(const std::vector<std::vector<std::string>>& filas) {
    std::vector<std::size_t> anchos;
    for (const auto& fila : filas) {
        anchos.resize(std::max(anchos.size(), fila.size()));
        for (std::size_t i = 0; i < fila.size(); ++i) anchos[i] = std::max(anchos[i], Caracteres(fila[i]));
    }
    return anchos;
}

}  // namespace

std::size_t Caracteres(std::string_view utf8) {
    return static_cast<std::size_t>(
        std::ranges::count_if(utf8, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80; }));
}

std::string EnColumnas(const std::vector<std::vector<std::string>>& filas, std::string_view aLaDerecha) {
    const auto anchos = Anchos(filas);
    std::string texto;
    for (const auto& fila : filas) {
        std::string linea;
        for (std::size_t i = 0; i < fila.size(); ++i) {
            const std::string relleno(anchos[i] - Caracteres(fila[i]), ' ');
            const bool derecha = i < aLaDerecha.size() && aLaDerecha[i] == 'd';
            linea += (i == 0 ? "" : "  ") + (derecha ? relleno + fila[i] : fila[i] + relleno);
        }
        linea.erase(linea.find_last_not_of(' ') + 1);
        texto += linea + "\n";
    }
    return texto;
}

}  // namespace analizador

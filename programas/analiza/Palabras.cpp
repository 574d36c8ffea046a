#include "programas/analiza/Palabras.h"

namespace analizador {

namespace {

bool EsDePalabra(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
           static_cast<unsigned char>(c) >= 0xC0;
}

}  // namespace

std::size_t BuscaPalabra(std::string_view texto, std::string_view palabra) {
    if (palabra.empty()) return std::string_view::npos;
    for (std::size_t p = texto.find(palabra); p != std::string_view::npos; p = texto.find(palabra, p + 1)) {
        const std::size_t fin = p + palabra.size();
        const bool antes = p == 0 || !EsDePalabra(palabra.front()) || !EsDePalabra(texto[p - 1]);
        const bool despues = fin == texto.size() || !EsDePalabra(palabra.back()) || !EsDePalabra(texto[fin]);
        if (antes && despues) return p;
    }
    return std::string_view::npos;
}

}  // namespace analizador

#include "plataforma/Encuentra.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace analizador {

namespace {

// How often each character stands in deeds: the higher, the more often. Lines are filled with hyphens.
constexpr std::array<unsigned char, 256> FRECUENCIAS = [] {
    constexpr std::string_view DE_MENOS_A_MAS = "WKXJZ/()\"';:FHQYVGB0123456789PMUTC.,LDINRSOAE- ";
    std::array<unsigned char, 256> frecuencias{};
    unsigned char frecuencia = 0;
    for (const char letra : DE_MENOS_A_MAS) {
        frecuencias[static_cast<unsigned char>(letra)] = ++frecuencia;
        if (letra >= 'A' && letra <= 'Z')
            frecuencias[static_cast<unsigned char>(letra - 'A' + 'a')] = frecuencia;
    }
    return frecuencias;
}();

std::size_t MasRara(std::string_view buscado) {
    const auto menos = [](char a, char b) {
        return FRECUENCIAS[static_cast<unsigned char>(a)] < FRECUENCIAS[static_cast<unsigned char>(b)];
    };
    return static_cast<std::size_t>(std::min_element(buscado.begin(), buscado.end(), menos) -
                                    buscado.begin());
}

}  // namespace

std::size_t Encuentra(std::string_view texto, std::string_view buscado, std::size_t desde) {
    if (desde > texto.size() || buscado.size() > texto.size() - desde) return std::string_view::npos;
    if (buscado.empty()) return desde;
    const std::size_t rara = MasRara(buscado);
    const char* p = texto.data() + desde + rara;
    const char* const fin = texto.data() + texto.size() - buscado.size() + rara + 1;
    for (; p < fin; ++p) {
        p = static_cast<const char*>(std::memchr(p, buscado[rara], static_cast<std::size_t>(fin - p)));
        if (p == nullptr) break;
        if (*(p - rara) == buscado.front() && std::memcmp(p - rara, buscado.data(), buscado.size()) == 0)
            return static_cast<std::size_t>(p - rara - texto.data());
    }
    return std::string_view::npos;
}

}  // namespace analizador

#include "rutinas/PalabrasEnteras.h"

#include <algorithm>

namespace analizador {

namespace {

bool EsLetra(char c) {
    return c >= 'A' && c <= 'Z';
}

// The sum of a word from that of what follows its first character.
std::uint32_t Suma(char primero, std::uint32_t resto) {
    return resto * 31 + static_cast<unsigned char>(primero);
}

// The word with which a text that is not empty begins: its letters, or one character that is none.
std::string_view PalabraInicial(std::string_view texto) {
    const auto fin = std::find_if_not(texto.begin(), texto.end(), EsLetra);
    return texto.substr(0, std::max<std::size_t>(1, static_cast<std::size_t>(fin - texto.begin())));
}

}  // namespace

TPalabrasEnteras::TPalabrasEnteras(std::string_view texto) : texto_(texto) {
    primeros_.fill(NADA);
    const auto empieza = [&](std::size_t i) { return i == 0 || !EsLetra(texto[i - 1]); };
    std::size_t cuantas = 0;
    for (std::size_t i = 0; i < texto.size(); ++i) cuantas += empieza(i) ? 1 : 0;
    principios_.reserve(cuantas);
    std::uint32_t letras = 0;  // the sum of those that follow
    for (std::size_t i = texto.size(); i-- > 0;) {
        const bool letra = EsLetra(texto[i]);
        const std::uint32_t suma = Suma(texto[i], letra ? letras : 0);
        letras = letra ? suma : 0;
        if (!empieza(i)) continue;
        std::uint32_t& primero = primeros_[suma % SUMAS];
        principios_.push_back({static_cast<std::uint32_t>(i), primero});
        primero = static_cast<std::uint32_t>(principios_.size() - 1);
    }
}

std::optional<std::size_t> TPalabrasEnteras::Busca(std::string_view nombre) const {
    if (nombre.empty()) return std::nullopt;
    const std::string_view palabra = PalabraInicial(nombre);
    std::uint32_t suma = 0;
    for (auto c = palabra.rbegin(); c != palabra.rend(); ++c) suma = Suma(*c, suma);
    for (std::uint32_t p = primeros_[suma % SUMAS]; p != NADA; p = principios_[p].Siguiente) {
        const std::string_view resto = texto_.substr(principios_[p].Posicion);
        if (resto.starts_with(nombre) && (resto.size() == nombre.size() || !EsLetra(resto[nombre.size()])))
            return principios_[p].Posicion;
    }
    return std::nullopt;
}

}  // namespace analizador

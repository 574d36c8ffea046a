#include "programas/analiza/Huella.h"

#include <cstdint>

#include "plataforma/Rficheros.h"

namespace analizador {

std::string Huella(std::string_view bytes) {
    constexpr std::uint64_t BASE = 0xCBF29CE484222325U;
    constexpr std::uint64_t PRIMO = 0x100000001B3U;
    std::uint64_t suma = BASE;
    for (const char byte : bytes) suma = (suma ^ static_cast<unsigned char>(byte)) * PRIMO;
    std::string cifras;
    for (int desplaza = 60; desplaza >= 0; desplaza -= 4)
        cifras += "0123456789abcdef"[(suma >> static_cast<unsigned>(desplaza)) & 0xFU];
    return cifras;
}

std::optional<std::string> HuellaDeFichero(const std::filesystem::path& fichero) {
    const auto lectura = LeeFichero(fichero);
    if (lectura.Estado != TEstadoLectura::Entera) return std::nullopt;
    return Huella(lectura.Bytes);
}

}  // namespace analizador

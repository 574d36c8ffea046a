#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>

namespace analizador::pruebas {

// Chance that is the same on every machine for the same seed: the engine's numbers are fixed by the standard,
// the distributions' are not, so none is used.
class TAzar {
  public:
    explicit TAzar(std::uint64_t semilla) : Motor(semilla) {}

    // From 0 to below `cuantos`; 0 when there are none.
    [[nodiscard]] std::size_t Hasta(std::size_t cuantos) {
        return cuantos == 0 ? 0 : static_cast<std::size_t>(Motor() % cuantos);
    }

    // Of every magnitude alike: from 1 to `maximo`.
    [[nodiscard]] std::size_t Magnitud(std::size_t maximo) {
        std::size_t tope = 1;
        while (tope < maximo && Hasta(8) != 0) tope *= 4;
        return 1 + Hasta(tope < maximo ? tope : maximo);
    }

    [[nodiscard]] char Byte() { return static_cast<char>(static_cast<unsigned char>(Hasta(256))); }

    [[nodiscard]] std::string Bytes(std::size_t cuantos) {
        std::string bytes(cuantos, '\0');
        for (char& byte : bytes) byte = Byte();
        return bytes;
    }

    template <typename TLista>
    [[nodiscard]] const auto& Uno(const TLista& lista) {
        return lista[Hasta(std::size(lista))];
    }

  private:
    std::mt19937_64 Motor;
};

// `texto` so many times.
[[nodiscard]] inline std::string Repite(std::string_view texto, std::size_t veces) {
    std::string todo;
    todo.reserve(texto.size() * veces);
    for (std::size_t i = 0; i < veces; ++i) todo += texto;
    return todo;
}

}  // namespace analizador::pruebas

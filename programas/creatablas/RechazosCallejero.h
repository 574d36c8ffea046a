#pragma once

// The lines of the street map that were not taken, with the reason of each.

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace analizador {

class TRechazos {
  public:
    static constexpr std::size_t PRIMEROS = 10;

    // All of them are listed in `lista`, UTF-8, one a line: file:line: reason. It is written at the first
    // one; a list of an earlier import is removed. An empty path: they are only counted.
    explicit TRechazos(std::filesystem::path lista);

    // `fichero` and `causa` in UTF-8; `linea` from 1.
    void Anota(std::string_view fichero, int linea, std::string_view causa);

    [[nodiscard]] std::size_t Cuantos() const { return cuantos_; }
    // The first ones, as in the list.
    [[nodiscard]] const std::vector<std::string>& Primeros() const { return primeros_; }
    [[nodiscard]] const std::filesystem::path& Lista() const { return lista_; }

  private:
    std::filesystem::path lista_;
    std::ofstream salida_;
    std::size_t cuantos_ = 0;
    std::vector<std::string> primeros_;
};

}  // namespace analizador

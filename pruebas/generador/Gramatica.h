#pragma once

// Texts made by chance from rules: the sentences of the generated deeds.

#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace analizador::pruebas {

// Chance that is the same on every machine: the library's distributions are not, its generator is.
class TAzar {
  public:
    explicit TAzar(std::uint32_t semilla) : motor_(semilla) {}

    // A number in [desde, hasta], both included.
    [[nodiscard]] std::uint32_t Entre(std::uint32_t desde, std::uint32_t hasta) {
        return desde + static_cast<std::uint32_t>(motor_() % (std::uint64_t{hasta} - desde + 1));
    }
    // True once in `veces`, on average.
    [[nodiscard]] bool UnaDe(std::uint32_t veces) { return Entre(1, veces) == 1; }

    template <class Lista>
    [[nodiscard]] const auto& Elige(const Lista& lista) {
        return lista[Entre(0, static_cast<std::uint32_t>(lista.size()) - 1)];
    }

  private:
    std::mt19937 motor_;
};

// Rules, UTF-8. A line ":symbol" opens a symbol, each line after it is one of its alternatives; empty lines
// do not count. In an alternative stand, besides plain text:
//
//   {}          nothing, for an alternative that is empty
//   {symbol}    one of the symbol's alternatives
//   {10-99}     a whole number between the two, both included
//   {nif} {nie} {cif}   an identity number, its control right but once in a while
//   {conocido}  the full name of someone already named, else a new one
//
// The symbols `varon` and `mujer` make full names, which are remembered for {conocido}.
class TGramatica {
  public:
    explicit TGramatica(std::string_view reglas);

    // Throws std::out_of_range when there is no such symbol.
    [[nodiscard]] const std::vector<std::string>& Alternativas(std::string_view simbolo) const;

  private:
    std::map<std::string, std::vector<std::string>, std::less<>> simbolos_;
};

// Expands the symbols of one deed.
class TExpansion {
  public:
    // Both must outlive the object.
    TExpansion(const TGramatica& gramatica, TAzar& azar) : gramatica_(gramatica), azar_(azar) {}

    [[nodiscard]] std::string Expande(std::string_view simbolo);

  private:
    [[nodiscard]] std::string ExpandeTexto(std::string_view texto);
    [[nodiscard]] std::string ExpandeLlave(std::string_view llave);
    [[nodiscard]] std::string Conocido();

    const TGramatica& gramatica_;
    TAzar& azar_;
    std::vector<std::string> conocidos_;
};

}  // namespace analizador::pruebas

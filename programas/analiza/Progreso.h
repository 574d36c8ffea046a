#pragma once

// How a batch goes, for who looks at a terminal.

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>

namespace analizador {

struct TAvance {
    std::size_t Hechas = 0;                // analysed, or kept from an earlier run
    std::size_t Conservadas = 0;           // of those, kept
    std::size_t Fallidas = 0;              // of those, the ones that could not be analysed
    std::optional<std::size_t> Cuantas{};  // of how many; none: not known yet
    std::chrono::milliseconds Tiempo{};    // since the batch began
};

// The progress in one line (UTF-8) of at most `ancho` signs, without line end: the bar when the total is
// known, the counts, and how long the rest will take at the pace so far.
[[nodiscard]] std::string TextoProgreso(const TAvance& avance, std::size_t ancho);

// How it ended, in one line without line end.
[[nodiscard]] std::string TextoFinal(const TAvance& avance);

// The bar on standard error, one line that is written over; nothing where that is no terminal. Not for use
// from several threads at once.
class TProgreso {
  public:
    explicit TProgreso(std::optional<std::size_t> cuantas);

    // Takes the bar away, for something else to be written.
    void Quita();
    // Counts one more deed and shows the bar, ten times a second at most.
    void Cuenta(bool falla, bool conservada);
    // Takes the bar away and says how it ended.
    void Termina();

    // What was counted.
    [[nodiscard]] const TAvance& Avance() const { return FAvance; }

  private:
    using TReloj = std::chrono::steady_clock;

    bool FEsTerminal;
    bool FALaVista = false;
    TReloj::time_point FComienzo = TReloj::now();
    TReloj::time_point FMostrado{};
    TAvance FAvance;
};

}  // namespace analizador

#pragma once

// How well the program reads, over many deeds.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "programas/analiza/ErrorHechos.h"

namespace analizador {

// How a field came out over all deeds.
struct TCuenta {
    std::string Campo;  // "Cabecera.Fecha", "Otorgante.Sexo"
    int Aciertos = 0;   // facts found as they were registered
    int Sobran = 0;     // facts found that were not registered
    int Faltan = 0;     // facts registered that were not found; a wrong one is one too many and one missing
    bool operator==(const TCuenta&) const = default;
};

// Which part of what was found is right, which part of what is right was found, and both in one figure (their
// harmonic mean). 0 to 1; nothing when there is nothing to divide by.
[[nodiscard]] std::optional<double> Precision(const TCuenta& cuenta);
[[nodiscard]] std::optional<double> Cobertura(const TCuenta& cuenta);
[[nodiscard]] std::optional<double> F1(const TCuenta& cuenta);

// Adds up deed after deed. All texts are UTF-8.
class TMedida {
  public:
    TMedida();

    // `hechos`: the facts registered, as LeeHechos wants them; `obtenido`: the program's JSON of the same
    // deed. Throws ErrorHechos, and has then counted nothing.
    void Juzga(const std::string& escritura, std::string_view hechos, std::string_view obtenido);

    // How many deeds were judged.
    [[nodiscard]] int Escrituras() const { return FEscrituras; }
    // The fields of which anything was registered or found, in the order of the program's own keys.
    [[nodiscard]] std::vector<TCuenta> Cuentas() const;
    [[nodiscard]] TCuenta Total() const;
    // What came out wrong, a line each: deed, field, expected, got.
    [[nodiscard]] const std::vector<std::string>& Fallos() const { return FFallos; }

  private:
    TCuenta& Cuenta(const std::string& campo);

    int FEscrituras = 0;
    std::vector<TCuenta> FCuentas;
    std::vector<std::string> FFallos;
};

// The result as aligned text (UTF-8): a line for each field, the total, and the failures.
[[nodiscard]] std::string InformeMedida(const TMedida& medida);

}  // namespace analizador

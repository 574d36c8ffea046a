#pragma once

// The facts of a deed as a clerk registered them: JSON with the keys of the program's own output, as many of
// them as one cares to give.

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "programas/analiza/ErrorHechos.h"

namespace analizador {

// Throws ErrorHechos for what is no JSON object, for a key that the program's output has not, and for a value
// of another shape than there.
[[nodiscard]] nlohmann::ordered_json LeeHechos(std::string_view json);

// One fact, registered or found, and whether both are the same.
struct TComparacion {
    std::string Campo;  // "Cabecera.Fecha", "Otorgante.Sexo"
    std::string De;     // whose, of a party's fields
    std::string Esperado;
    std::string Obtenido;  // both empty: nothing there and nothing found
    bool Acierto = false;
    bool Callado = false;  // follows from another one that tells the whole: a party that was not found
};

// The facts that were registered against those that the program found, both as LeeHechos gives them. Texts
// are equal when they are equal folded; parties are matched by their full name, else by their document; lists
// are sets. Only keys that `hechos` has are judged.
[[nodiscard]] std::vector<TComparacion> ComparaHechos(const nlohmann::ordered_json& hechos,
                                                      const nlohmann::ordered_json& obtenido);

}  // namespace analizador

#pragma once

#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>
#include <vector>

#include "programas/biblioteca/analizador.h"

namespace analizador {

// The facts of one analysis, by their place in its JSON: a JSON pointer in ASCII. What is not there, or is
// not so written, throws ErrorInterfaz (ANALIZADOR_NO_HAY).
class TResultados {
  public:
    explicit TResultados(nlohmann::ordered_json json) : FJson(std::move(json)) {}

    // The fact as text, UTF-8 and UTF-16. The pointers are good for as long as this object, whatever else is
    // asked for.
    [[nodiscard]] const char* Texto(const std::string& donde);
    [[nodiscard]] const analizador_utf16* Texto16(const std::string& donde);

    // How many elements the list has.
    [[nodiscard]] int Cuenta(const std::string& donde) const;

    // The fact as it is.
    [[nodiscard]] const nlohmann::ordered_json& Valor(const std::string& donde) const;

  private:
    nlohmann::ordered_json FJson;
    std::map<std::string, std::string> FTextos;  // those given out: a map never moves its values
    std::map<std::string, std::vector<analizador_utf16>> FTextos16;
};

}  // namespace analizador

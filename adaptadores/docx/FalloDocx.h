#pragma once

#include <stdexcept>
#include <string>

#include "plataforma/Ansi.h"

namespace analizador {

// The cause of a refusal: a Castilian clause in UTF-8 without the file's name, which TFicheroDocx puts
// before it. Names of parts that are no UTF-8 come with "?" for what cannot be told.
class FalloDocx : public std::runtime_error {
  public:
    explicit FalloDocx(const std::string& causa) : std::runtime_error(Legible(causa)) {}

  private:
    static std::string Legible(const std::string& causa) {
        constexpr char16_t NO_ES_TEXTO = 0xFFFD;
        const bool malformada = Utf16DeUtf8(causa).find(NO_ES_TEXTO) != std::u16string::npos;
        return malformada ? Utf8DeAnsi(AnsiDeUtf8(causa)) : causa;
    }
};

}  // namespace analizador

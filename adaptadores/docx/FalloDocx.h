#pragma once

#include <stdexcept>
#include <string>

#include "plataforma/Utf8.h"

namespace analizador {

// The cause of a refusal: a Castilian clause in UTF-8, on one line, without the file's name, which
// TFicheroDocx puts before it. Names of parts, which may be of any length, go in by NombreCitado.
class FalloDocx : public std::runtime_error {
  public:
    explicit FalloDocx(const std::string& causa) : std::runtime_error(EnUnaLinea(causa)) {}
};

}  // namespace analizador

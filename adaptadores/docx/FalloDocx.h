#pragma once

#include <stdexcept>

namespace analizador {

// The cause of a refusal: a Castilian clause in UTF-8 without the file's name, which TFicheroDocx puts
// before it.
class FalloDocx : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace analizador

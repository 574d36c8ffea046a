#pragma once

#include <stdexcept>

namespace analizador {

// Facts of a deed that cannot be judged. One line of Castilian in UTF-8.
class ErrorHechos : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace analizador

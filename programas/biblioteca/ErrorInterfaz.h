#pragma once

#include <stdexcept>
#include <string>

namespace analizador {

// A call that fails. `codigo` is what the C function returns; the text is one line of Castilian in UTF-8.
class ErrorInterfaz : public std::runtime_error {
  public:
    ErrorInterfaz(int codigo, const std::string& causa) : std::runtime_error(causa), FCodigo(codigo) {}

    [[nodiscard]] int Codigo() const { return FCodigo; }

  private:
    int FCodigo;
};

}  // namespace analizador

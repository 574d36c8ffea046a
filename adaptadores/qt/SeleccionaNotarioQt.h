#pragma once

#include <memory>

#include "plataforma/Confnvx.h"

namespace analizador {

// Creates the dialog with the list of the office's notaries (those of Config()). Enter, a double click and
// Escape close it; what is selected then stays selected.
class TSeleccionaNotarioQt : public TCreadorSeleccionaNotario {
  public:
    [[nodiscard]] std::unique_ptr<TFSeleccionaNotario> Crea() override;
};

}  // namespace analizador

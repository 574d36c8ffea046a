#pragma once

#include <optional>

#include "dialogos/Teclas.h"

class QKeyEvent;

namespace analizador {

// The key pressed, when the dialogs answer to it: with Ctrl, Alt or Shift it is another one, on the numeric
// keypad the same.
[[nodiscard]] std::optional<TTecla> TeclaDe(const QKeyEvent& suceso);

}  // namespace analizador

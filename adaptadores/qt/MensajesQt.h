#pragma once

#include <string_view>

#include "plataforma/Mensaje.h"

namespace analizador {

// The message boxes, over the active window. Needs the process's QApplication and its thread; texts are shown
// as they are, whatever they hold.
class TMensajesQt : public TMensajes {
  public:
    void Muestra(std::string_view titulo, std::string_view texto) override;
    [[nodiscard]] bool Pregunta(std::string_view titulo, std::string_view texto) override;
};

}  // namespace analizador

#pragma once

// The suite's message boxes. Texts are Windows-1252; a line end within one is LF.

#include <string_view>

#include "plataforma/Ansi.h"
#include "plataforma/Instalado.h"

namespace analizador {

// The title of every message to the user, its leading blank included.
inline constexpr auto TITULO_ATENCION = " ATENCIÓN:"_ansi;

class TMensajes {
  public:
    virtual ~TMensajes() = default;
    // Shows the text until the user closes the box.
    virtual void Muestra(std::string_view titulo, std::string_view texto) = 0;
    // Asks; true for yes. Closing the box is no, and no is what Enter gives.
    [[nodiscard]] virtual bool Pregunta(std::string_view titulo, std::string_view texto) = 0;
};

using InstalaMensajes = Instalado<TMensajes>;

// Shows a message. Where no boxes are installed: nothing.
void Mensajes(std::string_view titulo, std::string_view texto);

// Asks `pregunta`, in a line of its own after `texto`; true for yes. Where no boxes are installed: false.
[[nodiscard]] bool Mensaje_NoSi(std::string_view titulo, std::string_view texto, std::string_view pregunta);

}  // namespace analizador

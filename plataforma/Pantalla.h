#pragma once

// The progress window: a small window without focus that says what the program is doing.

#include <memory>
#include <string_view>

#include "plataforma/Instalado.h"

namespace analizador {

// A window or other owner of the host program; only handed on to what shows windows.
class TComponente {
  public:
    virtual ~TComponente() = default;
};

// An open progress window; destroying it closes it.
class TVentanaMensaje {
  public:
    virtual ~TVentanaMensaje() = default;
    virtual void Cambia(std::string_view texto) = 0;
};

class TPantalla {
  public:
    virtual ~TPantalla() = default;
    [[nodiscard]] virtual std::unique_ptr<TVentanaMensaje> Abre(std::string_view texto,
                                                                TComponente* propietario) = 0;
};

using InstalaPantalla = Instalado<TPantalla>;

// Opens a window with the text and returns it. Where no screen is installed: nullptr, which the other two
// take.
[[nodiscard]] std::unique_ptr<TVentanaMensaje> MuestraMensaje(std::string_view texto,
                                                              TComponente* propietario);
void CambiaMensaje(std::string_view texto, TVentanaMensaje* ventana);
void CierraMensaje(std::unique_ptr<TVentanaMensaje>& ventana);

}  // namespace analizador

#pragma once

#include <cstdio>
#include <memory>
#include <string_view>

#include "plataforma/Pantalla.h"

namespace analizador {

// The progress window of a terminal: one line of standard error that is written over. Where standard error is
// no terminal nothing is written.
class TPantallaConsola : public TPantalla {
  public:
    TPantallaConsola();
    [[nodiscard]] std::unique_ptr<TVentanaMensaje> Abre(std::string_view texto,
                                                        TComponente* propietario) override;

  private:
    bool FEsTerminal;
};

}  // namespace analizador

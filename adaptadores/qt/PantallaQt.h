#pragma once

#include <memory>
#include <string_view>

#include "plataforma/Pantalla.h"

namespace analizador {

// The progress window. It never takes the focus, is painted at once at each change, and hides while a dialog
// shows over it. Showing it handles the events of the process but those of the user. The windows may outlive
// the Qt window they are shown over.
class TPantallaQt : public TPantalla {
  public:
    [[nodiscard]] std::unique_ptr<TVentanaMensaje> Abre(std::string_view texto,
                                                        TComponente* propietario) override;
};

}  // namespace analizador

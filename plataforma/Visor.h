#pragma once

// What shows files to the user outside the dialogs. Titles are Windows-1252.

#include <filesystem>
#include <string_view>

#include "plataforma/Instalado.h"
#include "plataforma/Pantalla.h"

namespace analizador {

class TVisores {
  public:
    virtual ~TVisores() = default;

    // Opens a plain-text file in the system's viewer (Notepad on Windows) and returns at once. False when
    // none could be started.
    [[nodiscard]] virtual bool AbreTexto(const std::filesystem::path& fichero) = 0;

    // Shows an XML file, read only, in a window of its own over the active one, until the user closes it.
    virtual void CreateVisorEmbeddedWB(TComponente* propietario, const std::filesystem::path& fichero,
                                       std::string_view titulo) = 0;
};

using InstalaVisores = Instalado<TVisores>;

}  // namespace analizador

#pragma once

#include <QString>
#include <filesystem>
#include <string_view>

#include "plataforma/Visor.h"

namespace analizador {

// What shows files: plain text in the system's own viewer, XML in a window of this process.
class TVisoresQt : public TVisores {
  public:
    // `programa`: what opens a plain-text file that is its one argument; a name is searched in the system's
    // path. Without it Notepad on Windows, elsewhere what xdg-open opens texts with.
    explicit TVisoresQt(QString programa = {});

    [[nodiscard]] bool AbreTexto(const std::filesystem::path& fichero) override;
    void CreateVisorEmbeddedWB(TComponente* propietario, const std::filesystem::path& fichero,
                               std::string_view titulo) override;

  private:
    QString programa_;
};

}  // namespace analizador

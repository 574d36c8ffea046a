#pragma once

#include <filesystem>
#include <optional>

#include "adaptadores/consola/PantallaConsola.h"
#include "adaptadores/dbase/ProveedorDbase.h"
#include "adaptadores/ini/ConfigIni.h"

namespace analizador {

// Makes `config` the folder of the token files; by default CONFIG beside the program, else in its installed
// share folder, else in `otra`. Throws ErrorConfiguracion when it is no folder or lacks one of them.
void EligeVocabularios(const std::optional<std::filesystem::path>& config,
                       const std::optional<std::filesystem::path>& otra = std::nullopt);

// The settings and the tables of an office, installed for as long as this object lives. No windows: nobody
// accepts a review.
class TAjustesOficina {
  public:
    // `config`, `otra`: the folder of the token files and OFICINA.INI, as EligeVocabularios has it. `tablas`:
    // the folder of the reference tables; by default the one that OFICINA.INI says. Throws
    // ErrorConfiguracion.
    TAjustesOficina(const std::optional<std::filesystem::path>& config,
                    const std::optional<std::filesystem::path>& tablas,
                    const std::optional<std::filesystem::path>& otra = std::nullopt);

    // The folder of the reference tables in use.
    [[nodiscard]] const std::filesystem::path& CarpetaTablas() const { return FCarpetaTablas; }

  private:
    TConfigIni FConfig;
    std::filesystem::path FCarpetaTablas;
    TProveedorDbase FTablas;
    InstalaConfig FInstalaConfig{FConfig};
    InstalaTablas FInstalaTablas{FTablas};
};

// The suite as a stand-alone office has it at a terminal, installed for as long as this object lives.
class TEntorno {
  public:
    // As TAjustesOficina.
    TEntorno(const std::optional<std::filesystem::path>& config,
             const std::optional<std::filesystem::path>& tablas)
        : FAjustes(config, tablas) {}

  private:
    TAjustesOficina FAjustes;
    TPantallaConsola FPantalla;
    InstalaPantalla FInstalaPantalla{FPantalla};
};

}  // namespace analizador

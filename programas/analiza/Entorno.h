#pragma once

#include <filesystem>
#include <optional>

#include "adaptadores/consola/PantallaConsola.h"
#include "adaptadores/dbase/ProveedorDbase.h"
#include "adaptadores/ini/ConfigIni.h"

namespace analizador {

// Makes `config` the folder of the token files; by default CONFIG beside the program, else in its installed
// share folder. Throws ErrorConfiguracion when it is no folder or lacks one of them.
void EligeVocabularios(const std::optional<std::filesystem::path>& config);

// The suite as a stand-alone office has it, installed for as long as this object lives.
class TEntorno {
  public:
    // `config`: the folder of the token files and OFICINA.INI, as EligeVocabularios has it. `tablas`: the
    // folder of the reference tables; by default the one that OFICINA.INI says. Throws ErrorConfiguracion.
    TEntorno(const std::optional<std::filesystem::path>& config,
             const std::optional<std::filesystem::path>& tablas);

  private:
    TConfigIni FConfig;
    TProveedorDbase FTablas;
    TPantallaConsola FPantalla;
    InstalaConfig FInstalaConfig{FConfig};
    InstalaTablas FInstalaTablas{FTablas};
    InstalaPantalla FInstalaPantalla{FPantalla};
};

}  // namespace analizador

#pragma once

// The configuration of an office that works without the host program: the file OFICINA.INI.

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "plataforma/Confnvx.h"

namespace analizador {

// A configuration that says something impossible. The text, Castilian in UTF-8, names the file and the cause.
class ErrorConfiguracion : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// Reads, once:
//
//   [TABLAS]    Carpeta=      folder of the tables; one that is not absolute counts from the application's
//   folder [NOTARIOS]  NumPalabras=  how many notaries the office has; 0 when it has no list
//               1=, 2=, ...   their names
//               PorDefecto=   number of the one proposed when the deed's is none of them
//               Nombre=       the notary of an office without a list
//   [XML]       Mostrar=      1 (as when missing) or 0: whether the stored XML may be looked at
//
// Everything may be missing, the file too.
class TConfigIni : public TConfig {
  public:
    // `aplicacion`: the folder from which a relative folder of tables counts. Throws ErrorConfiguracion.
    TConfigIni(const std::filesystem::path& fichero, const std::filesystem::path& aplicacion);

    // The alias under which CarpetaTablas() must be opened.
    [[nodiscard]] std::string GetAliasNorvex() const override { return "NORVEX"; }
    [[nodiscard]] int GetnCuantos() const override { return static_cast<int>(FNotarios.size()); }
    [[nodiscard]] std::vector<std::string> GetNotarios() const override { return FNotarios; }
    [[nodiscard]] std::string GetNombre1() const override { return FNombre1; }
    [[nodiscard]] std::string GetNotarioPorDefecto() const override { return FPorDefecto; }
    [[nodiscard]] bool GetbAnalWordSoloAnalizadorSinXML() const override { return FSinXml; }

    // Where the reference tables are; "TABLAS" in the application's folder unless the file says otherwise.
    [[nodiscard]] const std::filesystem::path& CarpetaTablas() const { return FTablas; }

  private:
    std::filesystem::path FTablas;
    std::vector<std::string> FNotarios;
    std::string FNombre1;
    std::string FPorDefecto;
    bool FSinXml = false;
};

}  // namespace analizador

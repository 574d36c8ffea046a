#pragma once

#include <string>
#include <vector>

#include "plataforma/Confnvx.h"

namespace analizador {

// A configuration given by its values; install it with InstalaConfig.
struct TConfigDePrueba : TConfig {
    std::string Alias = "NORVEX";
    std::vector<std::string> Notarios;
    std::string Nombre1;
    std::string NotarioPorDefecto;
    bool SinXML = false;

    [[nodiscard]] std::string GetAliasNorvex() const override { return Alias; }
    [[nodiscard]] int GetnCuantos() const override { return static_cast<int>(Notarios.size()); }
    [[nodiscard]] std::vector<std::string> GetNotarios() const override { return Notarios; }
    [[nodiscard]] std::string GetNombre1() const override { return Nombre1; }
    [[nodiscard]] std::string GetNotarioPorDefecto() const override { return NotarioPorDefecto; }
    [[nodiscard]] bool GetbAnalWordSoloAnalizadorSinXML() const override { return SinXML; }
};

}  // namespace analizador

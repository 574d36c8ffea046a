#include "plataforma/Confnvx.h"

namespace analizador {

namespace {

class TConfigSinNotarios : public TConfig {
  public:
    [[nodiscard]] std::string GetAliasNorvex() const override { return "NORVEX"; }
    [[nodiscard]] int GetnCuantos() const override { return 0; }
    [[nodiscard]] std::vector<std::string> GetNotarios() const override { return {}; }
    [[nodiscard]] std::string GetNombre1() const override { return {}; }
    [[nodiscard]] std::string GetNotarioPorDefecto() const override { return {}; }
    [[nodiscard]] bool GetbAnalWordSoloAnalizadorSinXML() const override { return false; }
};

}  // namespace

const TConfig& Config() {
    static const TConfigSinNotarios sinNotarios;
    const TConfig* instalada = InstalaConfig::Actual();
    return instalada != nullptr ? *instalada : sinNotarios;
}

}  // namespace analizador

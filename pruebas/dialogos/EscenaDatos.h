#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "dialogos/InformacionOtorgante.h"
#include "dialogos/SelectorMunicipios.h"
#include "plataforma/Mensaje.h"
#include "pruebas/comun/ConfigDePrueba.h"
#include "pruebas/comun/TablasDePrueba.h"

namespace analizador {

// Remembers what the user was told.
struct TMensajesOidos : TMensajes {
    std::vector<std::pair<std::string, std::string>> Mostrados;

    void Muestra(std::string_view titulo, std::string_view texto) override {
        Mostrados.emplace_back(titulo, texto);
    }
    bool Pregunta(std::string_view /*titulo*/, std::string_view /*texto*/) override { return false; }
};

// A clerk before the municipality picker: picks the row `Elige`, or closes it.
struct TVistaMunicipiosDePrueba : TVistaMunicipios {
    std::optional<std::size_t> Elige;
    std::optional<TMunicipio> Abierto;  // the row at which it opened

    bool MuestraModal(TSelectorMunicipios& selector) override {
        Abierto = selector.Actual() ? std::optional(selector.Fila(*selector.Actual())) : std::nullopt;
        if (Elige) selector.PonActual(*Elige);
        return Elige.has_value();
    }
};

// An office with small tables, under an alias that is not the usual one.
class TEscenaDatos {
  public:
    static constexpr TFecha HOY{std::chrono::year(2024), std::chrono::month(6), std::chrono::day(15)};

    TEscenaDatos();

    TTablasDePrueba Tablas{"OFICINA"};
    TMensajesOidos Mensajes;

  private:
    TConfigDePrueba config_;
    InstalaConfig instalaConfig_{config_};
    InstalaTablas instalaTablas_{Tablas};
    InstalaMensajes instalaMensajes_{Mensajes};
};

// A party whose 28 fields all differ from an empty party's, with values that the lists have.
[[nodiscard]] TROtorgante OtorganteCompleto();

}  // namespace analizador

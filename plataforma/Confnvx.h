#pragma once

// The suite's configuration and the notary selection dialog, as far as the analysis asks for them.

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "plataforma/Instalado.h"

namespace analizador {

class TConfig {
  public:
    virtual ~TConfig() = default;

    // Under which name the table layer finds the reference tables.
    [[nodiscard]] virtual std::string GetAliasNorvex() const = 0;

    // How many notaries the office lists; 0 when it has no list.
    [[nodiscard]] virtual int GetnCuantos() const = 0;
    // The names of the list, GetnCuantos() of them, in its order.
    [[nodiscard]] virtual std::vector<std::string> GetNotarios() const = 0;
    // The single notary's name when there is no list; may be empty.
    [[nodiscard]] virtual std::string GetNombre1() const = 0;
    // The default notary's number in the list, counted from 1, as text; empty when there is none.
    [[nodiscard]] virtual std::string GetNotarioPorDefecto() const = 0;

    // True when the office does not want the stored XML shown.
    [[nodiscard]] virtual bool GetbAnalWordSoloAnalizadorSinXML() const = 0;
};

using InstalaConfig = Instalado<TConfig>;

// The installed configuration. Where none is installed: one of an office without notaries, alias "NORVEX".
[[nodiscard]] const TConfig& Config();

// The dialog in which the user picks a notary of the office.
class TFSeleccionaNotario {
  public:
    virtual ~TFSeleccionaNotario() = default;
    virtual void PonTitulo(std::string_view titulo) = 0;
    // The entries, in the order of the configuration's list.
    [[nodiscard]] virtual const std::vector<std::string>& Entradas() const = 0;
    // Position of the selected entry, from 0; -1 when none is. Setting one that does not exist selects none.
    [[nodiscard]] virtual int Seleccionada() const = 0;
    virtual void Selecciona(int posicion) = 0;
    // Shows the dialog until the user closes it.
    virtual void MuestraModal() = 0;
};

// Who creates that dialog, with the configuration's notaries in it.
class TCreadorSeleccionaNotario {
  public:
    virtual ~TCreadorSeleccionaNotario() = default;
    [[nodiscard]] virtual std::unique_ptr<TFSeleccionaNotario> Crea() = 0;
};

using InstalaSeleccionaNotario = Instalado<TCreadorSeleccionaNotario>;

}  // namespace analizador

#pragma once

// The controls of the party details dialog as Qt has them, made and laid out; what they do is DialogoDatos's.

#include <QLabel>
#include <QLineEdit>
#include <QString>
#include <QWidget>
#include <array>
#include <cstddef>
#include <optional>

#include "adaptadores/qt/ListaDesplegable.h"
#include "dialogos/InformacionOtorgante.h"

namespace analizador {

class ControlesDatosQt {
  public:
    // Makes every control with its label, the groups in `contenido` and the buttons of the bar in `barra`,
    // which own them. The lists hold the dialog's items; nothing else of what the dialog holds is shown yet.
    ControlesDatosQt(const TFInformacionOtorgante& dialogo, QWidget& contenido, QWidget& barra);

    [[nodiscard]] QWidget& Control(TControlDatos control) const { return *Parte(control).Control; }
    // The box that one types in: of a box, the date and an editable list; of others nullptr.
    [[nodiscard]] QLineEdit* Caja(TControlDatos control) const;
    // nullptr for what is no list.
    [[nodiscard]] ListaDesplegable* Lista(TControlDatos control) const;
    // Which control an object is, or is a part of.
    [[nodiscard]] std::optional<TControlDatos> Cual(const QObject* objeto) const;

    // Shows what the dialog holds for a control. Raises no signal of a user's action.
    void Muestra(TControlDatos control, const TEstadoControl& estado);

  private:
    struct TParte {
        QWidget* Control = nullptr;
        QLabel* Rotulo = nullptr;
        bool Marcado = false;  // shows the mark of the focus
    };
    [[nodiscard]] const TParte& Parte(TControlDatos control) const {
        return partes_[static_cast<std::size_t>(control)];
    }
    void Crea(const TDescripcionControl& descripcion, const TEstadoControl& estado, QWidget& padre);
    void Dispon(QWidget& contenido, QWidget& barra);

    std::array<TParte, CONTROLES_DATOS> partes_;
};

}  // namespace analizador

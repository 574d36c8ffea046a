#pragma once

// What all windows of the suite share.

#include <QColor>
#include <QWidget>

#include "plataforma/Pantalla.h"

namespace analizador {

// An owner that is a Qt window of the host; the window is the host's.
class TVentanaAnfitrion : public TComponente {
  public:
    explicit TVentanaAnfitrion(QWidget& ventana) : ventana_(&ventana) {}
    [[nodiscard]] QWidget* Ventana() const { return ventana_; }

  private:
    QWidget* ventana_;
};

// While it lives, new windows that have no other one to show over show over this one, which must outlive it.
class TVentanaPorDefecto {
  public:
    explicit TVentanaPorDefecto(QWidget& ventana);
    ~TVentanaPorDefecto();
    TVentanaPorDefecto(const TVentanaPorDefecto&) = delete;
    TVentanaPorDefecto& operator=(const TVentanaPorDefecto&) = delete;

  private:
    QWidget* anterior_;
};

// Over which window a new one shows: the active one of this process, else the owner's, else that of
// TVentanaPorDefecto, else none (nullptr).
[[nodiscard]] QWidget* VentanaPadre(const TComponente* propietario = nullptr);

// Marks a control as the one that has the focus, on the suite's yellow with dark letters whatever the palette
// is, or takes the mark away.
void MarcaFoco(QWidget& control, bool conFoco);

// The suite's yellow (clAmarillo).
inline constexpr QColor AMARILLO = QColor(255, 255, 160);

}  // namespace analizador

#pragma once

#include <QWidget>
#include <cstdint>

#include "adaptadores/qt/VentanasQt.h"

namespace analizador {

// Puts the windows of the suite over one that is not Qt's, of this process or of another, for as long as the
// object lives: they stay above it, come to the front with it and open over its middle. One of this process
// takes no input while a dialog is open, as the owner of a dialog. Needs the process's QApplication.
class TVentanaAjena : public QWidget {
  public:
    // `ventana`: the number of its HWND; 0, or one that no longer exists: over no window.
    explicit TVentanaAjena(std::intptr_t ventana);
    ~TVentanaAjena() override;
    TVentanaAjena(const TVentanaAjena&) = delete;
    TVentanaAjena& operator=(const TVentanaAjena&) = delete;

    // Whether the system could make a window at all: not where nobody sees its screen.
    [[nodiscard]] bool SePuedenAbrir() const;

  protected:
    bool event(QEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    void Habilita(bool habilita);

    std::intptr_t FAjena;
    bool FInhabilitada = false;
    TVentanaPorDefecto FPorDefecto{*this};
};

}  // namespace analizador

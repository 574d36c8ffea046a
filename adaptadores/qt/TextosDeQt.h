#pragma once

#include <QTranslator>

namespace analizador {

// The words that Qt itself shows (the menus of boxes and scroll bars) in Castilian, for as long as the object
// lives, for windows made meanwhile. Needs the process's QApplication.
class TTextosDeQt : public QTranslator {
  public:
    TTextosDeQt();

    [[nodiscard]] QString translate(const char* contexto, const char* texto, const char* distincion = nullptr,
                                    int cuantos = -1) const override;
    [[nodiscard]] bool isEmpty() const override { return false; }
};

}  // namespace analizador

#include "adaptadores/qt/TeclasQt.h"

#include <QKeyEvent>

namespace analizador {

std::optional<TTecla> TeclaDe(const QKeyEvent& suceso) {
    if ((suceso.modifiers() & ~Qt::KeypadModifier) != 0) return {};
    switch (suceso.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return TTecla::Intro;
        case Qt::Key_Escape:
            return TTecla::Escape;
        case Qt::Key_Up:
            return TTecla::Arriba;
        case Qt::Key_Down:
            return TTecla::Abajo;
        case Qt::Key_PageUp:
            return TTecla::RePag;
        case Qt::Key_PageDown:
            return TTecla::AvPag;
        case Qt::Key_Insert:
            return TTecla::Insertar;
        case Qt::Key_Delete:
            return TTecla::Suprimir;
        default:
            return {};
    }
}

}  // namespace analizador

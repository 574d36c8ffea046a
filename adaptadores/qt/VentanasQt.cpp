#include "adaptadores/qt/VentanasQt.h"

#include <QApplication>
#include <QPalette>
#include <utility>

namespace analizador {

namespace {

QWidget*& PorDefecto() {
    static QWidget* ventana = nullptr;
    return ventana;
}

}  // namespace

TVentanaPorDefecto::TVentanaPorDefecto(QWidget& ventana) : anterior_(std::exchange(PorDefecto(), &ventana)) {}

TVentanaPorDefecto::~TVentanaPorDefecto() {
    PorDefecto() = anterior_;
}

QWidget* VentanaPadre(const TComponente* propietario) {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    if (QWidget* activa = QApplication::activeWindow()) {
        const bool admiteFoco = !activa->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus);
        return admiteFoco ? activa : activa->parentWidget();
    }
    const auto* anfitrion = dynamic_cast<const TVentanaAnfitrion*>(propietario);
    return anfitrion != nullptr ? anfitrion->Ventana() : PorDefecto();
}

void MarcaFoco(QWidget& control, bool conFoco) {
    if (!conFoco) {
        control.setPalette(QPalette());
        return;
    }
    QPalette colores = control.palette();
    for (const auto grupo : {QPalette::Active, QPalette::Inactive}) {
        for (const auto fondo : {QPalette::Base, QPalette::Button, QPalette::Window})
            colores.setColor(grupo, fondo, AMARILLO);
        for (const auto letra : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText})
            colores.setColor(grupo, letra, Qt::black);
    }
    control.setPalette(colores);
}

}  // namespace analizador

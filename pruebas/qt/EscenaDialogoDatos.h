#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <memory>
#include <string>

#include "adaptadores/qt/DialogoDatos.h"
#include "adaptadores/qt/TextoQt.h"
#include "pruebas/comun/Literales.h"
#include "pruebas/dialogos/EscenaDatos.h"

namespace analizador {

// The window of the details dialog over the party `Otorgante`, open and at the front.
class EscenaDialogoDatos : public testing::Test {
  protected:
    void Abre() {
        Ventana.reset();
        Dialogo.emplace(Otorgante, TEscenaDatos::HOY);
        Ventana = std::make_unique<DialogoDatos>(*Dialogo, nullptr);
        Ventana->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(Ventana.get()));
    }

    template <class T = QWidget>
    [[nodiscard]] T& Control(const char* nombre) const {
        auto* control = Ventana->findChild<T*>(nombre);
        if (control == nullptr) throw std::runtime_error(std::string("no control ") + nombre);
        return *control;
    }
    [[nodiscard]] QLineEdit& Caja(const char* nombre) const {
        if (auto* lista = Ventana->findChild<QComboBox*>(nombre)) return *lista->lineEdit();
        return Control<QLineEdit>(nombre);
    }
    [[nodiscard]] QComboBox& Lista(const char* nombre) const { return Control<QComboBox>(nombre); }
    [[nodiscard]] std::string ConFoco() const { return Ventana->focusWidget()->objectName().toStdString(); }

    // What the clerk does.
    static void Clic(QWidget& control) { QTest::mouseClick(&control, Qt::LeftButton); }
    // The keys go to the open list, if there is one.
    void Pulsa(Qt::Key tecla, Qt::KeyboardModifiers con = Qt::NoModifier) {
        if (QWidget* abierta = QApplication::activePopupWidget()) {
            QTest::keyClick(abierta->focusWidget() != nullptr ? abierta->focusWidget() : abierta, tecla, con);
            return;
        }
        AlFrente();
        QTest::keyClick(Ventana->focusWidget(), tecla, con);
    }
    void Teclea(const QString& texto) {
        for (const QChar letra : texto) {
            QKeyEvent pulsada(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(letra));
            QCoreApplication::sendEvent(Ventana->focusWidget(), &pulsada);
        }
    }
    // The platform of the tests leaves no window active when a list closes.
    void AlFrente() {
        Ventana->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(Ventana.get()));
    }
    // In a closed list that has the focus: opens it and takes the item `cuantas` rows below the selected one.
    void EligeEnLista(int cuantas) {
        Pulsa(Qt::Key_Down);
        for (int i = 0; i < cuantas; ++i) Pulsa(Qt::Key_Down);
        for (int i = 0; i > cuantas; --i) Pulsa(Qt::Key_Up);
        Pulsa(Qt::Key_Return);
    }

    TEscenaDatos Escena;
    TROtorgante Otorgante = OtorganteCompleto();
    std::optional<TFInformacionOtorgante> Dialogo;
    std::unique_ptr<DialogoDatos> Ventana;
};

}  // namespace analizador

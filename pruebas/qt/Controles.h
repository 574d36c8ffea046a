#pragma once

// The controls of an open dialog by their names, as a clerk finds them.

#include <QAbstractItemView>
#include <QDialog>
#include <QPushButton>
#include <QStringList>
#include <QTest>
#include <stdexcept>
#include <string>

namespace analizador {

// Throws std::runtime_error when there is none.
template <class T = QWidget>
T& Control(QDialog& dialogo, const char* nombre) {
    auto* const control = dialogo.findChild<T*>(nombre);
    if (control == nullptr) throw std::runtime_error(std::string("no control ") + nombre);
    return *control;
}

inline QAbstractItemView& Lista(QDialog& dialogo, const char* nombre) {
    return Control<QAbstractItemView>(dialogo, nombre);
}

inline QStringList Filas(QDialog& dialogo, const char* nombre) {
    QStringList filas;
    const auto* const modelo = Lista(dialogo, nombre).model();
    for (int i = 0; i < modelo->rowCount(); ++i) filas << modelo->index(i, 0).data().toString();
    return filas;
}

inline void Pulsa(QDialog& dialogo, const char* boton) {
    QTest::mouseClick(&Control<QPushButton>(dialogo, boton), Qt::LeftButton);
}

}  // namespace analizador

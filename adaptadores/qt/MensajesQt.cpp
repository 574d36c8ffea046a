#include "adaptadores/qt/MensajesQt.h"

#include <QMessageBox>
#include <QPushButton>

#include "adaptadores/qt/TextoQt.h"
#include "adaptadores/qt/VentanasQt.h"

namespace analizador {

namespace {

void Prepara(QMessageBox& caja, QMessageBox::Icon icono, std::string_view titulo, std::string_view texto) {
    caja.setIcon(icono);
    caja.setTextFormat(Qt::PlainText);
    caja.setWindowTitle(QtDeAnsi(titulo));
    caja.setText(QtDeAnsi(texto));
}

}  // namespace

void TMensajesQt::Muestra(std::string_view titulo, std::string_view texto) {
    QMessageBox caja(VentanaPadre());
    Prepara(caja, QMessageBox::Warning, titulo, texto);
    QPushButton* aceptar = caja.addButton(QStringLiteral("&Aceptar"), QMessageBox::AcceptRole);
    caja.setDefaultButton(aceptar);
    caja.setEscapeButton(aceptar);
    caja.exec();
}

bool TMensajesQt::Pregunta(std::string_view titulo, std::string_view texto) {
    QMessageBox caja(VentanaPadre());
    Prepara(caja, QMessageBox::Question, titulo, texto);
    const QPushButton* si = caja.addButton(QStringLiteral("&Sí"), QMessageBox::YesRole);
    QPushButton* no = caja.addButton(QStringLiteral("&No"), QMessageBox::NoRole);
    caja.setDefaultButton(no);
    caja.setEscapeButton(no);
    caja.exec();
    return caja.clickedButton() == si;
}

}  // namespace analizador

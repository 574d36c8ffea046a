#include "pruebas/qt/EscenaVentana.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMimeData>
#include <QTest>

namespace analizador {

void TEscenaVentana::Abre(const std::vector<TROtorgante>& otorgantes, std::string xml, std::string informe) {
    ventana_.reset();
    dialogo_ = Crea({"VENTA", "PRESTAMO"}, otorgantes, std::move(informe), std::move(xml));
    ventana_ = std::make_unique<TVentanaPreseleccion>(*dialogo_, nullptr);
    ventana_->show();
    if (!QTest::qWaitForWindowActive(ventana_.get())) throw std::runtime_error("the window did not open");
    QApplication::processEvents();
}

std::string TEscenaVentana::Foco() {
    const QWidget* const foco = ventana_->focusWidget();
    return foco == nullptr ? "" : foco->objectName().toStdString();
}

QStringList TEscenaVentana::Filas(const char* vista) {
    const auto& modelo = *Vista(vista).model();
    QStringList filas;
    for (int i = 0; i < modelo.rowCount(); ++i) filas << modelo.index(i, 0).data().toString();
    return filas;
}

std::vector<int> TEscenaVentana::Seleccionadas(const char* vista) {
    std::vector<int> filas;
    for (const QModelIndex& indice : Vista(vista).selectionModel()->selectedRows())
        filas.push_back(indice.row());
    return filas;
}

int TEscenaVentana::Actual(const char* vista) {
    return Vista(vista).currentIndex().row();
}

void TEscenaVentana::Clic(const char* control) {
    QTest::mouseClick(&Control(control), Qt::LeftButton);
}

void TEscenaVentana::ClicFilas(const char* nombre, const std::vector<int>& filas) {
    auto& vista = Vista(nombre);
    auto con = Qt::NoModifier;
    for (const int fila : filas) {
        const QModelIndex indice = vista.model()->index(fila, 0);
        vista.scrollTo(indice);
        QTest::mouseClick(vista.viewport(), Qt::LeftButton, con, vista.visualRect(indice).center());
        con = Qt::ControlModifier;
    }
}

void TEscenaVentana::DobleClic(const char* nombre, int fila) {
    auto& vista = Vista(nombre);
    const QPoint donde = vista.visualRect(vista.model()->index(fila, 0)).center();
    QTest::mouseClick(vista.viewport(), Qt::LeftButton, Qt::NoModifier, donde);
    QTest::mouseDClick(vista.viewport(), Qt::LeftButton, Qt::NoModifier, donde);
}

void TEscenaVentana::Tecla(Qt::Key tecla, Qt::KeyboardModifiers con) {
    QTest::keyClick(ventana_->focusWidget(), tecla, con);
}

void TEscenaVentana::Escribe(const QString& texto) {
    for (const QChar letra : texto) {
        QKeyEvent suceso(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(letra));
        QApplication::sendEvent(ventana_->focusWidget(), &suceso);
    }
}

bool TEscenaVentana::Arrastra(const char* origen, const char* destino) {
    auto& vista = Vista(origen);
    const std::unique_ptr<QMimeData> datos(
        vista.model()->mimeData(vista.selectionModel()->selectedIndexes()));
    const auto accion = vista.model()->supportedDragActions();
    auto& sobre = *Vista(destino).viewport();
    const QPoint donde = sobre.rect().center();
    QDragEnterEvent entra(donde, accion, datos.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&sobre, &entra);
    if (!entra.isAccepted()) return false;
    QDropEvent suelta(donde, accion, datos.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&sobre, &suelta);
    QApplication::processEvents();
    return suelta.isAccepted();
}

}  // namespace analizador

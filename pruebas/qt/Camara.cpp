#include "pruebas/qt/Camara.h"

#include <QApplication>
#include <QImage>
#include <QTimer>
#include <cstdio>
#include <utility>

namespace analizador {

namespace {

bool TieneAlgo(const QImage& imagen) {
    if (imagen.isNull()) return false;
    const QRgb primero = imagen.pixel(0, 0);
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            if (imagen.pixel(x, y) != primero) return true;
    return false;
}

}  // namespace

TCamara::TCamara(std::filesystem::path carpeta) : carpeta_(std::move(carpeta)) {
    std::filesystem::create_directories(carpeta_);
}

void TCamara::Falla(const std::string& nombre, const char* causa) {
    std::fprintf(stderr, "%s: %s\n", nombre.c_str(), causa);
    fallo_ = true;
}

void TCamara::Guarda(const std::string& nombre, QWidget& ventana) {
    const QImage imagen = ventana.grab().toImage();
    if (!TieneAlgo(imagen)) Falla(nombre, "the picture is empty");
    const auto fichero = (carpeta_ / (nombre + ".png")).string();
    if (!imagen.save(QString::fromStdString(fichero))) Falla(nombre, "the picture cannot be written");
}

void TCamara::GuardaModal(const std::string& nombre, const std::function<void()>& muestra,
                          const std::function<void(QWidget&)>& prepara) {
    bool tomada = false;
    QTimer reloj;
    QObject::connect(&reloj, &QTimer::timeout, [&] {
        QWidget* const ventana = QApplication::activeModalWidget();
        if (ventana == nullptr || std::exchange(tomada, true)) return;
        prepara(*ventana);
        QApplication::processEvents();
        Guarda(nombre, *ventana);
        ventana->close();
    });
    reloj.start(20);
    muestra();
    if (!tomada) Falla(nombre, "the window did not open");
}

QPalette PaletaOscura() {
    const QColor fondo(45, 45, 48);
    const QColor letra(230, 230, 230);
    QPalette paleta(fondo, fondo);
    paleta.setColor(QPalette::Base, QColor(30, 30, 30));
    paleta.setColor(QPalette::Highlight, QColor(42, 130, 218));
    for (const auto papel : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                             QPalette::HighlightedText, QPalette::ToolTipText})
        paleta.setColor(papel, letra);
    for (const auto papel : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        paleta.setColor(QPalette::Disabled, papel, QColor(127, 127, 127));
    paleta.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
    return paleta;
}

}  // namespace analizador

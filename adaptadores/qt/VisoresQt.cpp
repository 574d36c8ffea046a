#include "adaptadores/qt/VisoresQt.h"

#include <QDialog>
#include <QFontMetrics>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>
#include <utility>

#include "adaptadores/qt/HijoQt.h"
#include "adaptadores/qt/TextoQt.h"
#include "adaptadores/qt/VentanasQt.h"
#include "adaptadores/qt/VisorXml.h"

namespace analizador {

namespace {

#ifdef Q_OS_WIN
constexpr auto VISOR_DEL_SISTEMA = "notepad.exe";
#else
constexpr auto VISOR_DEL_SISTEMA = "xdg-open";
#endif

}  // namespace

TVisoresQt::TVisoresQt(QString programa) : programa_(std::move(programa)) {
    if (programa_.isEmpty()) programa_ = QLatin1String(VISOR_DEL_SISTEMA);
}

bool TVisoresQt::AbreTexto(const std::filesystem::path& fichero) {
    const QString encontrado = QStandardPaths::findExecutable(programa_);
    return !encontrado.isEmpty() &&
           QProcess::startDetached(encontrado, {QString::fromStdU16String(fichero.u16string())});
}

void TVisoresQt::CreateVisorEmbeddedWB(TComponente* propietario, const std::filesystem::path& fichero,
                                       std::string_view titulo) {
    QDialog ventana(VentanaPadre(propietario), Qt::Window);
    ventana.setObjectName(QStringLiteral("VisorEmbeddedWB"));
    ventana.setWindowTitle(QtDeAnsi(titulo));
    auto& visor = HijoDe<VisorXml>(&ventana);
    auto& cerrar = HijoDe<QPushButton>(&ventana, QStringLiteral("&Cerrar"));
    auto& disposicion = HijoDe<QVBoxLayout>(&ventana);
    disposicion.addWidget(&visor);
    disposicion.addWidget(&cerrar, 0, Qt::AlignRight);
    QObject::connect(&cerrar, &QPushButton::clicked, &ventana, &QDialog::accept);
    visor.MuestraFichero(fichero);
    const QFontMetrics letra = ventana.fontMetrics();
    ventana.resize(letra.averageCharWidth() * 100, letra.lineSpacing() * 32);
    visor.setFocus();
    ventana.exec();
}

}  // namespace analizador

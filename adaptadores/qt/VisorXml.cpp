#include "adaptadores/qt/VisorXml.h"

#include <QFile>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "adaptadores/qt/HijoQt.h"
#include "adaptadores/qt/XmlParaVer.h"
#include "dialogos/CodificacionXml.h"

namespace analizador {

VisorXml::VisorXml(QWidget* padre)
    : QWidget(padre),
      aviso_(HijoDe<QLabel>(this)),
      texto_(HijoDe<QPlainTextEdit>(this)),
      coloreado_(*std::make_unique<ColoreadoXml>(texto_.palette(), texto_.document()).release()) {
    aviso_.setObjectName(QStringLiteral("AvisoXML"));
    aviso_.setTextFormat(Qt::PlainText);
    aviso_.setWordWrap(true);
    aviso_.hide();
    texto_.setObjectName(QStringLiteral("TextoXML"));
    texto_.setReadOnly(true);
    texto_.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    texto_.setTabChangesFocus(true);
    texto_.setLineWrapMode(QPlainTextEdit::NoWrap);
    texto_.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    auto& disposicion = HijoDe<QVBoxLayout>(this);
    disposicion.setContentsMargins(0, 0, 0, 0);
    disposicion.addWidget(&aviso_);
    disposicion.addWidget(&texto_);
    setFocusProxy(&texto_);
}

void VisorXml::MuestraTexto(const QString& xml) {
    const TXmlParaVer visto = XmlParaVer(xml);
    Pon(visto.Texto, visto.Aviso);
}

void VisorXml::MuestraFichero(const std::filesystem::path& fichero) {
    QFile abierto(fichero);
    if (abierto.open(QIODevice::ReadOnly))
        MuestraTexto(QString::fromStdString(Utf8DeXml(abierto.readAll().toStdString())));
    else
        Pon({}, QStringLiteral("No se puede leer el fichero %1.").arg(abierto.fileName()));
}

void VisorXml::Pon(const QString& texto, const QString& aviso) {
    aviso_.setText(aviso);
    aviso_.setVisible(!aviso.isEmpty());
    texto_.setPlainText(texto);
}

QString VisorXml::Texto() const {
    return texto_.toPlainText();
}

QString VisorXml::Aviso() const {
    return aviso_.text();
}

void VisorXml::changeEvent(QEvent* evento) {
    if (evento->type() == QEvent::PaletteChange) coloreado_.PonPaleta(palette());
    QWidget::changeEvent(evento);
}

}  // namespace analizador

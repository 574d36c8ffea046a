#include "adaptadores/qt/ColoreadoXml.h"

#include <QRegularExpression>
#include <algorithm>

namespace analizador {

ColoreadoXml::ColoreadoXml(const QPalette& colores, QTextDocument* documento)
    : QSyntaxHighlighter(documento) {
    PonPaleta(colores);
}

void ColoreadoXml::PonPaleta(const QPalette& colores) {
    const bool oscuro = colores.color(QPalette::Base).lightness() < 128;
    if (oscuro)
        colores_ = {QColor(0x7F, 0xB8, 0xFF), QColor(0xE5, 0xC0, 0x7B), QColor(0x98, 0xD8, 0x8A),
                    QColor(0xFF, 0x9E, 0xC8), QColor(0xA8, 0xA8, 0xA8)};
    else
        colores_ = {QColor(0x00, 0x3C, 0x96), QColor(0x8A, 0x4B, 0x00), QColor(0x0B, 0x61, 0x1C),
                    QColor(0x9C, 0x10, 0x5A), QColor(0x5F, 0x5F, 0x5F)};
    rehighlight();
}

void ColoreadoXml::Pinta(qsizetype desde, qsizetype hasta, const QColor& color) {
    setFormat(static_cast<int>(desde), static_cast<int>(hasta - desde), color);
}

// Each of the next three colours from a position up to where its part of the text ends and returns that end;
// the block's state says in which part the next position is.

qsizetype ColoreadoXml::ColoreaHasta(const QString& texto, qsizetype desde, const char* cierre) {
    const qsizetype donde = texto.indexOf(QLatin1String(cierre), desde);
    if (donde < 0) {
        Pinta(desde, texto.size(), colores_.Comentario);
        return texto.size();
    }
    const qsizetype fin = donde + QLatin1String(cierre).size();
    Pinta(desde, fin, colores_.Comentario);
    setCurrentBlockState(FUERA);
    return fin;
}

qsizetype ColoreadoXml::ColoreaEtiqueta(const QString& texto, qsizetype desde) {
    static const QRegularExpression TROZO(
        QStringLiteral("(?<valor>\"[^\"]*\"?|'[^']*'?)|(?<fin>/?>)|(?<nombre>[^\\s\"'=/>]+)"));
    const auto trozo = TROZO.match(texto, desde);
    if (!trozo.hasMatch()) return texto.size();
    if (trozo.hasCaptured(QStringLiteral("fin"))) {
        Pinta(trozo.capturedStart(), trozo.capturedEnd(), colores_.Etiqueta);
        setCurrentBlockState(FUERA);
    } else {
        const bool valor = trozo.hasCaptured(QStringLiteral("valor"));
        Pinta(trozo.capturedStart(), trozo.capturedEnd(), valor ? colores_.Valor : colores_.Atributo);
    }
    return trozo.capturedEnd();
}

qsizetype ColoreadoXml::ColoreaFuera(const QString& texto, qsizetype desde) {
    static const QRegularExpression COMIENZO(
        QStringLiteral("(?<comentario><!--)|(?<cdata><!\\[CDATA\\[)|(?<instruccion><[?!])"
                       "|(?<etiqueta></?[^\\s\"'=/<>]*)|(?<referencia>&[^;\\s<&]*;)"));
    const auto comienzo = COMIENZO.match(texto, desde);
    if (!comienzo.hasMatch()) return texto.size();
    const auto es = [&](const char* parte) { return comienzo.hasCaptured(QLatin1String(parte)); };
    const bool etiqueta = es("etiqueta");
    const bool referencia = es("referencia");
    Pinta(comienzo.capturedStart(), comienzo.capturedEnd(),
          etiqueta     ? colores_.Etiqueta
          : referencia ? colores_.Referencia
                       : colores_.Comentario);
    if (!referencia)
        setCurrentBlockState(es("comentario") ? COMENTARIO
                             : es("cdata")    ? CDATA
                             : etiqueta       ? ETIQUETA
                                              : INSTRUCCION);
    return comienzo.capturedEnd();
}

void ColoreadoXml::highlightBlock(const QString& texto) {
    setCurrentBlockState(previousBlockState());
    qsizetype donde = 0;
    while (donde < texto.size()) {
        switch (currentBlockState()) {
            case ETIQUETA:
                donde = ColoreaEtiqueta(texto, donde);
                break;
            case COMENTARIO:
                donde = ColoreaHasta(texto, donde, "-->");
                break;
            case CDATA:
                donde = ColoreaHasta(texto, donde, "]]>");
                break;
            case INSTRUCCION:
                donde = ColoreaHasta(texto, donde, ">");
                break;
            default:
                donde = ColoreaFuera(texto, donde);
                break;
        }
    }
}

}  // namespace analizador

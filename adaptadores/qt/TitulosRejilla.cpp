#include "adaptadores/qt/TitulosRejilla.h"

#include <QPainter>
#include <QPainterPath>

#include "adaptadores/qt/VentanasQt.h"

namespace analizador {

TTitulosRejilla::TTitulosRejilla() : QHeaderView(Qt::Horizontal) {
    setSectionsClickable(true);
    setSortIndicatorShown(true);
    setHighlightSections(false);
    setFocusPolicy(Qt::NoFocus);
}

void TTitulosRejilla::PonAmarillo(bool amarillo) {
    if (amarillo_ == amarillo) return;
    amarillo_ = amarillo;
    viewport()->update();
}

QString TTitulosRejilla::Titulo(int seccion) const {
    return model()->headerData(seccion, Qt::Horizontal).toString();
}

int TTitulosRejilla::Margen() const {
    return style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
}

QSize TTitulosRejilla::sectionSizeFromContents(int seccion) const {
    const QFontMetrics letra = fontMetrics();
    return {letra.horizontalAdvance(Titulo(seccion)) + letra.height() + 2 * Margen(),
            letra.height() + 2 * Margen()};
}

QColor TTitulosRejilla::Fondo() const {
    return amarillo_ ? AMARILLO : palette().color(QPalette::Button);
}

QColor TTitulosRejilla::Letra() const {
    return amarillo_ ? QColor(Qt::black) : palette().color(QPalette::ButtonText);
}

void TTitulosRejilla::paintSection(QPainter* pintor, const QRect& zona, int seccion) const {
    pintor->fillRect(zona, Fondo());
    pintor->setPen(palette().color(QPalette::Mid));
    pintor->drawLine(zona.topRight(), zona.bottomRight());
    pintor->drawLine(zona.bottomLeft(), zona.bottomRight());
    pintor->setPen(Letra());
    const bool activa = seccion == sortIndicatorSection();
    const int flecha = activa ? fontMetrics().height() : 0;
    const QRect texto = zona.adjusted(Margen(), 0, -Margen() - flecha, 0);
    pintor->drawText(texto, Qt::AlignLeft | Qt::AlignVCenter, Titulo(seccion));
    if (activa) PintaFlecha(*pintor, {texto.right() + 1, zona.top(), flecha, zona.height()});
}

// A triangle that points up, the order of all of them being ascending.
void TTitulosRejilla::PintaFlecha(QPainter& pintor, const QRect& zona) const {
    const qreal lado = fontMetrics().height() / 4.0;
    const QPointF centro = QRectF(zona).center();
    QPainterPath flecha(centro + QPointF(-lado, lado / 2));
    flecha.lineTo(centro + QPointF(lado, lado / 2));
    flecha.lineTo(centro + QPointF(0, -lado / 2));
    flecha.closeSubpath();
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.fillPath(flecha, Letra());
    pintor.setRenderHint(QPainter::Antialiasing, false);
}

}  // namespace analizador

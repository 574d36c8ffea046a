#include "adaptadores/qt/ListaDesplegable.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QScreen>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>

namespace analizador {

ListaDesplegable::ListaDesplegable(bool editable, int filasVisibles, QWidget* padre) : QComboBox(padre) {
    setEditable(editable);
    setInsertPolicy(NoInsert);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setFocusPolicy(Qt::StrongFocus);
    if (filasVisibles > 0) {
        // As a list: the menu that some systems open instead has as many rows as fit.
        setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
        setMaxVisibleItems(filasVisibles);
    }
    if (editable) setCompleter(nullptr);
}

void ListaDesplegable::showPopup() {
    const int barra = view()->verticalScrollBar()->sizeHint().width();
    const int textos = view()->sizeHintForColumn(0) + barra + 2 * view()->frameWidth();
    view()->setMinimumWidth(std::min(textos, screen()->availableGeometry().width()));
    QComboBox::showPopup();
}

QRect ListaDesplegable::SitioDelTexto() const {
    QStyleOptionComboBox opcion;
    initStyleOption(&opcion);
    return style()->subControlRect(QStyle::CC_ComboBox, &opcion, QStyle::SC_ComboBoxEditField, this);
}

void ListaDesplegable::paintEvent(QPaintEvent* evento) {
    if (isEditable()) {
        QComboBox::paintEvent(evento);
        return;
    }
    QStylePainter pintor(this);
    pintor.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox opcion;
    initStyleOption(&opcion);
    pintor.drawComplexControl(QStyle::CC_ComboBox, opcion);
    const int margen = fontMetrics().averageCharWidth();
    opcion.currentText = fontMetrics().elidedText(currentText(), Qt::ElideRight,
                                                  std::max(0, SitioDelTexto().width() - margen));
    pintor.drawControl(QStyle::CE_ComboBoxLabel, opcion);
}

void ListaDesplegable::wheelEvent(QWheelEvent* evento) {
    evento->ignore();
}

bool ListaDesplegable::event(QEvent* evento) {
    if (evento->type() != QEvent::ToolTip || !toolTip().isEmpty()) return QComboBox::event(evento);
    const bool cabe = fontMetrics().horizontalAdvance(currentText()) <= SitioDelTexto().width();
    QToolTip::showText(static_cast<QHelpEvent*>(evento)->globalPos(), cabe ? QString() : currentText(), this);
    return true;
}

}  // namespace analizador

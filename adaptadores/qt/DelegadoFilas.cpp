#include "adaptadores/qt/DelegadoFilas.h"

#include <QItemSelectionModel>

namespace analizador {

namespace {

QColor Mezcla(const QColor& fondo, const QColor& tinte) {
    constexpr float PARTE = 0.2F;
    const auto media = [](float a, float b) { return a + (b - a) * PARTE; };
    return QColor::fromRgbF(media(fondo.redF(), tinte.redF()), media(fondo.greenF(), tinte.greenF()),
                            media(fondo.blueF(), tinte.blueF()));
}

}  // namespace

TDelegadoFilas::TDelegadoFilas(QAbstractItemView& vista) : vista_(&vista) {
    vista.setItemDelegate(this);
    // Qt draws only the current cell anew; the tint is the whole row's.
    connect(vista.selectionModel(), &QItemSelectionModel::currentRowChanged, vista.viewport(),
            [&vista] { vista.viewport()->update(); });
}

QSize TDelegadoFilas::sizeHint(const QStyleOptionViewItem& opcion, const QModelIndex& indice) const {
    return QStyledItemDelegate::sizeHint(opcion, indice) + QSize(0, opcion.fontMetrics.height() / 4);
}

void TDelegadoFilas::initStyleOption(QStyleOptionViewItem* opcion, const QModelIndex& indice) const {
    QStyledItemDelegate::initStyleOption(opcion, indice);
    const bool actual = indice.row() == vista_->currentIndex().row();
    if (actual && !opcion->state.testFlag(QStyle::State_Selected))
        opcion->backgroundBrush =
            Mezcla(opcion->palette.color(QPalette::Base), opcion->palette.color(QPalette::Highlight));
}

}  // namespace analizador

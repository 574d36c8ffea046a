#include "adaptadores/qt/PanelListas.h"

#include <QSpacerItem>
#include <memory>

namespace analizador {

namespace {

void PreparaRotulo(QLabel& rotulo, const char* texto, QWidget& control) {
    rotulo.setText(QString::fromUtf8(texto));
    rotulo.setWordWrap(true);
    rotulo.setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    rotulo.setBuddy(&control);
    control.setAccessibleName(rotulo.text());
}

// Long names go on in a second line: rows are as high as their text needs, and as many as there are.
void PreparaLista(QListView& lista, const char* nombre) {
    lista.setObjectName(nombre);
    lista.setSelectionMode(QAbstractItemView::ExtendedSelection);
    lista.setEditTriggers(QAbstractItemView::NoEditTriggers);
    lista.setDragDropMode(QAbstractItemView::DragDrop);
    lista.setDropIndicatorShown(false);
    lista.setResizeMode(QListView::Adjust);
    lista.setWordWrap(true);
    lista.setTextElideMode(Qt::ElideNone);
    lista.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lista.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    lista.setMinimumHeight(lista.fontMetrics().height() * 2 + 2 * lista.frameWidth());
}

}  // namespace

void PreparaBoton(QPushButton& boton, const QString& nombre, const QString& texto, const QString& pista) {
    boton.setObjectName(nombre);
    boton.setText(texto);
    boton.setAutoDefault(false);
    if (pista.isEmpty()) return;
    boton.setToolTip(pista);
    boton.setAccessibleName(pista);
}

TPanelListas::TPanelListas(const TRotulosPanel& rotulos) {
    PreparaLista(Posibles, rotulos.NombrePosibles);
    PreparaLista(Validos, rotulos.NombreValidos);
    PreparaRotulo(RotuloPosibles, rotulos.RotuloPosibles, Posibles);
    PreparaRotulo(RotuloValidos, rotulos.RotuloValidos, Validos);
    PreparaBoton(Mas, rotulos.NombreMas, QStringLiteral("Añadir \u2192"),
                 QString::fromUtf8(rotulos.PistaMas));
    PreparaBoton(Menos, rotulos.NombreMenos, QStringLiteral("\u2190 Quitar"),
                 QString::fromUtf8(rotulos.PistaMenos));

    rejilla_.setContentsMargins(0, 0, 0, 0);
    rejilla_.addWidget(&RotuloPosibles, 0, 0);
    rejilla_.addWidget(&RotuloValidos, 0, 2);
    rejilla_.addWidget(&Posibles, 1, 0);
    rejilla_.addLayout(&columna_, 0, 1, 2, 1);
    rejilla_.addWidget(&Validos, 1, 2);
    rejilla_.setColumnStretch(0, 1);
    rejilla_.setColumnStretch(2, 1);
    rejilla_.setRowStretch(1, 1);
    // Beside the lists where there is room, beside the labels too where there is little.
    columna_.addItem(
        std::make_unique<QSpacerItem>(0, fontMetrics().height(), QSizePolicy::Minimum, QSizePolicy::Maximum)
            .release());
    columna_.addWidget(&Mas);
    columna_.addWidget(&Menos);
    columna_.addStretch();
}

void TPanelListas::AnadeBoton(QPushButton& boton) {
    columna_.insertWidget(columna_.count() - 1, &boton);
}

void TPanelListas::resizeEvent(QResizeEvent* suceso) {
    QWidget::resizeEvent(suceso);
    setMinimumHeight(rejilla_.minimumHeightForWidth(width()));
}

}  // namespace analizador

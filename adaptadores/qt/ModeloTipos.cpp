#include <array>

#include "adaptadores/qt/ModeloFilas.h"

namespace analizador {

namespace {

// In the order of TColumnaTipos.
constexpr std::array COLUMNAS = {"NOMBRE", "NUMEROTIPO", "CLAVE_INTI", "TIPO"};

QString Valor(const TFilaTipo& fila, TColumnaTipos columna) {
    switch (columna) {
        case TColumnaTipos::NOMBRE:
            return QtDeAnsi(fila.Nombre);
        case TColumnaTipos::NUMEROTIPO:
            return QString::number(fila.NumeroTipo);
        case TColumnaTipos::CLAVE_INTI:
            return QtDeAnsi(fila.ClaveInti);
        case TColumnaTipos::TIPO:
            return QtDeAnsi(fila.Tipo);
    }
    return {};
}

bool EsNumero(int columna) {
    return static_cast<TColumnaTipos>(columna) == TColumnaTipos::NUMEROTIPO;
}

}  // namespace

TModeloTipos::TModeloTipos(const TRejillaTipos& rejilla, QByteArray marca)
    : TModeloFilas(std::move(marca), Qt::CopyAction), rejilla_(&rejilla) {
    Recarga();
}

int TModeloTipos::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : static_cast<int>(COLUMNAS.size());
}

// The hint is the whole text, for the names that their column cuts short.
QVariant TModeloTipos::data(const QModelIndex& indice, int papel) const {
    if (!Existe(indice)) return {};
    if (papel == Qt::TextAlignmentRole && EsNumero(indice.column()))
        return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
    if (papel != Qt::DisplayRole && papel != Qt::ToolTipRole) return {};
    return Valor(rejilla_->Filas()[static_cast<std::size_t>(indice.row())],
                 static_cast<TColumnaTipos>(indice.column()));
}

QVariant TModeloTipos::headerData(int seccion, Qt::Orientation sentido, int papel) const {
    if (sentido != Qt::Horizontal || papel != Qt::DisplayRole) return {};
    return QString(COLUMNAS.at(static_cast<std::size_t>(seccion)));
}

}  // namespace analizador

#include "adaptadores/qt/ModeloMunicipios.h"

#include <array>
#include <cstddef>
#include <string>

#include "adaptadores/qt/TextoQt.h"

namespace analizador {

namespace {

struct TColumna {
    const char16_t* Titulo;
    std::string TMunicipio::*Campo;
};

constexpr std::array<TColumna, 4> COLUMNAS = {{
    {u"Municipio", &TMunicipio::Nombre},
    {u"Provincia", &TMunicipio::Provincia},
    {u"Cod.Postal", &TMunicipio::CodPostal},
    {u"Código I.N.E.", &TMunicipio::CodINE},
}};

}  // namespace

void ModeloMunicipios::Filtra(const QString& texto) {
    beginResetModel();
    selector_->Filtra(AnsiDeQt(texto));
    endResetModel();
}

int ModeloMunicipios::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : static_cast<int>(selector_->Cuenta());
}

int ModeloMunicipios::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : static_cast<int>(COLUMNAS.size());
}

QVariant ModeloMunicipios::data(const QModelIndex& indice, int papel) const {
    if (papel != Qt::DisplayRole || !indice.isValid()) return {};
    const TMunicipio& fila = selector_->Fila(static_cast<std::size_t>(indice.row()));
    return QtDeAnsi(fila.*COLUMNAS[static_cast<std::size_t>(indice.column())].Campo);
}

QVariant ModeloMunicipios::headerData(int seccion, Qt::Orientation orientacion, int papel) const {
    if (papel != Qt::DisplayRole || orientacion != Qt::Horizontal) return {};
    return QString::fromUtf16(COLUMNAS[static_cast<std::size_t>(seccion)].Titulo);
}

}  // namespace analizador

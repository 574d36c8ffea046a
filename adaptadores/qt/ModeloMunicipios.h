#pragma once

#include <QAbstractTableModel>
#include <QModelIndex>
#include <QVariant>

#include "dialogos/SelectorMunicipios.h"

namespace analizador {

// The rows that the picker's filter leaves, as a view of Qt wants them. The picker must outlive it.
class ModeloMunicipios : public QAbstractTableModel {
  public:
    explicit ModeloMunicipios(TSelectorMunicipios& selector) : selector_(&selector) {}

    void Filtra(const QString& texto);

    [[nodiscard]] int rowCount(const QModelIndex& padre = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& padre = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& indice, int papel = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int seccion, Qt::Orientation orientacion,
                                      int papel = Qt::DisplayRole) const override;

  private:
    TSelectorMunicipios* selector_;
};

}  // namespace analizador

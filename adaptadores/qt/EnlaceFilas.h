#pragma once

#include <QAbstractItemView>
#include <QItemSelection>
#include <QItemSelectionModel>
#include <cstddef>
#include <optional>
#include <vector>

namespace analizador {

// A view and the rows that it shows: carries the selection and the current row from one to the other.
class TEnlaceFilas {
  public:
    virtual ~TEnlaceFilas() = default;
    // The rows get what the user has selected in the view.
    virtual void Toma() = 0;
    // The view shows what the rows hold; lines are drawn anew only when they changed.
    virtual void Muestra() = 0;
};

// Of the dialog's lists (TListaSeleccion) and its grid (TRejillaTipos). Keeps references to all three.
template <class Filas, class Modelo>
class TEnlace : public TEnlaceFilas {
  public:
    TEnlace(QAbstractItemView& vista, Filas& filas, Modelo& modelo)
        : vista_(&vista), filas_(&filas), modelo_(&modelo) {}

    void Toma() override {
        std::vector<std::size_t> posiciones;
        const std::vector<bool> marcadas = Marcadas(vista_->selectionModel()->selection());
        for (std::size_t i = 0; i < marcadas.size(); ++i)
            if (marcadas[i]) posiciones.push_back(i);
        filas_->Selecciona(posiciones);
        const QModelIndex actual = vista_->currentIndex();
        filas_->PonActual(actual.isValid() ? std::optional(static_cast<std::size_t>(actual.row()))
                                           : std::nullopt);
    }

    void Muestra() override {
        if (revision_ != filas_->Revision()) {
            revision_ = filas_->Revision();
            modelo_->Recarga();
        }
        MuestraSeleccion();
        MuestraActual();
    }

  private:
    void MuestraSeleccion() {
        const QItemSelection nueva = Seleccion();
        QItemSelectionModel& seleccion = *vista_->selectionModel();
        if (Marcadas(nueva) != Marcadas(seleccion.selection()))
            seleccion.select(nueva, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }

    void MuestraActual() {
        const auto actual = filas_->Actual();
        const int fila = actual ? static_cast<int>(*actual) : -1;
        if (vista_->currentIndex().row() == fila) return;
        const QModelIndex indice = modelo_->index(fila, 0);
        vista_->selectionModel()->setCurrentIndex(indice, QItemSelectionModel::NoUpdate);
        if (indice.isValid()) vista_->scrollTo(indice);
    }

    // One range for each run of selected rows, for thousands of single ones would be slow to select.
    [[nodiscard]] QItemSelection Seleccion() const {
        QItemSelection seleccion;
        const int cuenta = modelo_->rowCount();
        for (int fila = 0; fila < cuenta; ++fila) {
            const int primera = fila;
            while (fila < cuenta && filas_->Seleccionada(static_cast<std::size_t>(fila))) ++fila;
            if (fila > primera) seleccion.append({modelo_->index(primera, 0), modelo_->index(fila - 1, 0)});
        }
        return seleccion;
    }

    // Of each row, whether it is in the selection.
    [[nodiscard]] std::vector<bool> Marcadas(const QItemSelection& seleccion) const {
        std::vector<bool> filas(static_cast<std::size_t>(modelo_->rowCount()));
        for (const QItemSelectionRange& tramo : seleccion)
            for (int fila = tramo.top(); fila <= tramo.bottom(); ++fila)
                filas.at(static_cast<std::size_t>(fila)) = true;
        return filas;
    }

    QAbstractItemView* vista_;
    Filas* filas_;
    Modelo* modelo_;
    unsigned revision_ = 0;
};

}  // namespace analizador

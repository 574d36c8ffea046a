#pragma once

// The rows of the preselection dialog as Qt's views read them: models that keep no rows of their own.

#include <QAbstractListModel>
#include <QAbstractTableModel>
#include <QFont>
#include <QMimeData>
#include <QStringList>
#include <functional>
#include <memory>

#include "adaptadores/qt/TextoQt.h"
#include "dialogos/ListaSeleccion.h"
#include "dialogos/RejillaTipos.h"

namespace analizador {

// What a drag between the lists carries: nothing but that it is one of theirs. Which rows are meant is known
// to the dialog.
inline constexpr auto FORMATO_FILAS = "application/x-analizador-filas";

// A model whose rows are those that the dialog holds. What a drag of its rows does with them is given at
// creation: a list gives its rows away, the table of types keeps them.
template <class Base>
class TModeloFilas : public Base {
  public:
    explicit TModeloFilas(Qt::DropAction alArrastrar) : alArrastrar_(alArrastrar) {}

    // The lines changed: the view draws them anew. How many there are is what the model says until the next
    // call, whatever happens meanwhile to the dialog's lines.
    void Recarga() {
        this->beginResetModel();
        filas_ = static_cast<int>(Cuenta());
        this->endResetModel();
    }

    [[nodiscard]] int rowCount(const QModelIndex& padre = {}) const override {
        return padre.isValid() ? 0 : filas_;
    }
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& indice) const override {
        return indice.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled
                                : Qt::NoItemFlags;
    }
    [[nodiscard]] QStringList mimeTypes() const override { return {FORMATO_FILAS}; }
    [[nodiscard]] QMimeData* mimeData(const QModelIndexList&) const override {
        auto datos = std::make_unique<QMimeData>();
        datos->setData(FORMATO_FILAS, "1");
        return datos.release();  // Qt's drag owns it
    }
    [[nodiscard]] Qt::DropActions supportedDragActions() const override { return alArrastrar_; }

  protected:
    [[nodiscard]] virtual std::size_t Cuenta() const = 0;
    // False for a row that the dialog has taken out before the view was told.
    [[nodiscard]] bool Existe(const QModelIndex& indice) const {
        return indice.isValid() && static_cast<std::size_t>(indice.row()) < Cuenta();
    }

  private:
    Qt::DropAction alArrastrar_;
    int filas_ = 0;
};

// The model of a list; it keeps a reference to the dialog's.
template <class T>
class TModeloLista : public TModeloFilas<QAbstractListModel> {
  public:
    using Linea = typename TListaSeleccion<T>::Linea;

    // `enCursiva`: which lines are drawn in italic; `pistaCursiva`: the hint that those have.
    explicit TModeloLista(
        const TListaSeleccion<T>& lista,
        std::function<bool(const Linea&)> enCursiva = [](const Linea&) { return false; },
        QString pistaCursiva = {})
        : TModeloFilas(Qt::MoveAction),
          lista_(&lista),
          enCursiva_(std::move(enCursiva)),
          pistaCursiva_(std::move(pistaCursiva)) {
        Recarga();
    }

    [[nodiscard]] QVariant data(const QModelIndex& indice, int papel) const override {
        if (!Existe(indice)) return {};
        const Linea& linea = lista_->Lineas()[static_cast<std::size_t>(indice.row())];
        if (papel == Qt::DisplayRole) return QtDeAnsi(linea.Texto);
        const bool deCursiva =
            papel == Qt::FontRole || papel == Qt::ToolTipRole || papel == Qt::AccessibleDescriptionRole;
        if (!deCursiva || !enCursiva_(linea)) return {};
        if (papel != Qt::FontRole) return pistaCursiva_;
        QFont letra;
        letra.setItalic(true);
        return letra;
    }

  protected:
    [[nodiscard]] std::size_t Cuenta() const override { return lista_->Cuenta(); }

  private:
    const TListaSeleccion<T>* lista_;
    std::function<bool(const Linea&)> enCursiva_;
    QString pistaCursiva_;
};

// The model of the grid over the deed types.
class TModeloTipos : public TModeloFilas<QAbstractTableModel> {
  public:
    explicit TModeloTipos(const TRejillaTipos& rejilla);

    [[nodiscard]] int columnCount(const QModelIndex& padre = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& indice, int papel) const override;
    [[nodiscard]] QVariant headerData(int seccion, Qt::Orientation sentido, int papel) const override;

  protected:
    [[nodiscard]] std::size_t Cuenta() const override { return rejilla_->Filas().size(); }

  private:
    const TRejillaTipos* rejilla_;
};

}  // namespace analizador

#pragma once

// The rows of the preselection dialog as Qt's views read them: models that keep no rows of their own.

#include <QAbstractListModel>
#include <QAbstractTableModel>
#include <QByteArray>
#include <QFont>
#include <QMimeData>
#include <QStringList>
#include <functional>
#include <memory>
#include <utility>

#include "adaptadores/qt/TextoQt.h"
#include "dialogos/ListaSeleccion.h"
#include "dialogos/RejillaTipos.h"

namespace analizador {

// What a drag between the lists carries: nothing but that it is one of theirs. Which rows are meant is known
// to the dialog.
inline constexpr auto FORMATO_FILAS = "application/x-analizador-filas";

// A model whose rows are those that the dialog holds. Given at creation: the mark that its drags carry, and
// what they do with the rows, for a list gives them away and the table of types keeps them.
template <class Base>
class TModeloFilas : public Base {
  public:
    TModeloFilas(QByteArray marca, Qt::DropAction alArrastrar)
        : marca_(std::move(marca)), alArrastrar_(alArrastrar) {}

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
        datos->setData(FORMATO_FILAS, marca_);
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
    QByteArray marca_;
    Qt::DropAction alArrastrar_;
    int filas_ = 0;
};

// The model of a list; it keeps a reference to the dialog's.
template <class T>
class TModeloLista : public TModeloFilas<QAbstractListModel> {
  public:
    using Linea = typename TListaSeleccion<T>::Linea;

    // `enCursiva`: which lines are drawn in italic; `pistaCursiva`: the hint that those have.
    TModeloLista(
        const TListaSeleccion<T>& lista, QByteArray marca,
        std::function<bool(const Linea&)> enCursiva = [](const Linea&) { return false; },
        QString pistaCursiva = {})
        : TModeloFilas(std::move(marca), Qt::MoveAction),
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
    TModeloTipos(const TRejillaTipos& rejilla, QByteArray marca);

    [[nodiscard]] int columnCount(const QModelIndex& padre = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& indice, int papel) const override;
    [[nodiscard]] QVariant headerData(int seccion, Qt::Orientation sentido, int papel) const override;

  protected:
    [[nodiscard]] std::size_t Cuenta() const override { return rejilla_->Filas().size(); }

  private:
    const TRejillaTipos* rejilla_;
};

}  // namespace analizador

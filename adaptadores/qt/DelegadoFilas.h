#pragma once

#include <QAbstractItemView>
#include <QStyledItemDelegate>

namespace analizador {

// Draws the rows of a view as Qt does, and tints the current one where it is not selected: the clerk sees
// what a search found, or what follows the row just moved, while the focus is elsewhere.
class TDelegadoFilas : public QStyledItemDelegate {
  public:
    // Becomes the delegate of the view, which must outlive it.
    explicit TDelegadoFilas(QAbstractItemView& vista);

    // A little room between the rows, so that the lines of a long one are seen to be one.
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& opcion,
                                 const QModelIndex& indice) const override;

  protected:
    void initStyleOption(QStyleOptionViewItem* opcion, const QModelIndex& indice) const override;

  private:
    QAbstractItemView* vista_;
};

}  // namespace analizador

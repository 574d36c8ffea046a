#pragma once

#include <QHeaderView>

namespace analizador {

// The column titles of the deed-types grid: in the suite's yellow while the grid has the focus, in the colour
// of the buttons otherwise, with an arrow on the column whose order is the active one.
class TTitulosRejilla : public QHeaderView {
  public:
    TTitulosRejilla();
    void PonAmarillo(bool amarillo);

  protected:
    // Room for the arrow in every column, for any of them may get it.
    [[nodiscard]] QSize sectionSizeFromContents(int seccion) const override;
    void paintSection(QPainter* pintor, const QRect& zona, int seccion) const override;

  private:
    [[nodiscard]] QString Titulo(int seccion) const;
    [[nodiscard]] int Margen() const;
    [[nodiscard]] QColor Fondo() const;
    [[nodiscard]] QColor Letra() const;
    void PintaFlecha(QPainter& pintor, const QRect& zona) const;

    bool amarillo_ = false;
};

}  // namespace analizador

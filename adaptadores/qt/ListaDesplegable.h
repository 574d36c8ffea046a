#pragma once

#include <QComboBox>

namespace analizador {

// A drop-down list that the wheel leaves alone, that completes and inserts nothing, cuts a long text off with
// dots in its box and shows it whole in the open list and in its hint.
class ListaDesplegable : public QComboBox {
  public:
    // `filasVisibles`: rows of the open list; 0 what the system shows.
    ListaDesplegable(bool editable, int filasVisibles, QWidget* padre);

    void showPopup() override;

  protected:
    void paintEvent(QPaintEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;
    bool event(QEvent* evento) override;

  private:
    [[nodiscard]] QRect SitioDelTexto() const;
};

}  // namespace analizador

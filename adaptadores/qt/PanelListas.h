#pragma once

#include <QGridLayout>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QResizeEvent>
#include <QString>
#include <QVBoxLayout>
#include <QWidget>

namespace analizador {

// What tells one pair of lists from another.
struct TRotulosPanel {
    const char* NombrePosibles;  // of the controls
    const char* NombreValidos;
    const char* NombreMas;
    const char* NombreMenos;
    const char* RotuloPosibles;  // of the labels, UTF-8
    const char* RotuloValidos;
    const char* PistaMas;  // of the buttons, UTF-8
    const char* PistaMenos;
};

// Gives a button its control's name, its caption and the hint that says what it does, which is its accessible
// name too. No button of the dialog is a default one.
void PreparaBoton(QPushButton& boton, const QString& nombre, const QString& texto, const QString& pista = {});

// Two lists side by side, each under its label, and the buttons that move rows between them. Members are
// declared from the outside in: what is inside another is destroyed before it.
class TPanelListas : public QWidget {
  public:
    explicit TPanelListas(const TRotulosPanel& rotulos);
    // Puts another button under the two.
    void AnadeBoton(QPushButton& boton);

  protected:
    // The labels take more lines where there is less width.
    void resizeEvent(QResizeEvent* suceso) override;

  private:
    QGridLayout rejilla_{this};
    QVBoxLayout columna_;

  public:
    QLabel RotuloPosibles;
    QLabel RotuloValidos;
    QListView Posibles;
    QListView Validos;
    QPushButton Mas;
    QPushButton Menos;
};

}  // namespace analizador

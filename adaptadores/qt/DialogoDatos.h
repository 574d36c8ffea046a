#pragma once

#include <QDialog>
#include <QEvent>
#include <QScrollArea>

#include "adaptadores/qt/ControlesDatosQt.h"
#include "dialogos/InformacionOtorgante.h"

namespace analizador {

// The window of the party details dialog. It hands over what the user does and then shows what the dialog,
// which must outlive it, holds; no rule of the dialog is here.
class DialogoDatos : public QDialog {
  public:
    DialogoDatos(TFInformacionOtorgante& dialogo, QWidget* padre);

    void reject() override;

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    bool focusNextPrevChild(bool siguiente) override;
    void showEvent(QShowEvent* evento) override;
    void changeEvent(QEvent* evento) override;

  private:
    // Hands something that the user did over and shows what comes of it. Nothing while that is going on: it
    // may show another window, whose loop runs what this one has still pending.
    template <class Accion>
    void Haz(Accion&& accion);
    void Conecta(const TDescripcionControl& descripcion);
    void Tecleado(TControlDatos control, const QString& nuevo);
    bool Tecla(TControlDatos control, const QKeyEvent& tecla);
    bool TecleaEnMayusculas(QObject* objeto, const QKeyEvent& tecla);
    bool PonFoco(TControlDatos control);
    void TomaFocoDeQt();
    // Shows what the dialog holds and where its focus is, and closes when it has a result.
    void Sincroniza();
    void PonTamano();

    TFInformacionOtorgante& dialogo_;
    QScrollArea& zona_;
    QWidget& contenido_;
    QWidget& barra_;
    ControlesDatosQt controles_;
    bool ocupado_ = false;
};

}  // namespace analizador

#pragma once

#include <QDialog>
#include <QEvent>
#include <array>
#include <memory>
#include <optional>

#include "adaptadores/qt/ControlesPreseleccion.h"
#include "adaptadores/qt/DelegadoFilas.h"
#include "adaptadores/qt/EnlaceFilas.h"
#include "adaptadores/qt/ModeloFilas.h"
#include "dialogos/ListaConceptosPreseleccionados.h"

class QDropEvent;
class QKeyEvent;

namespace analizador {

// The window of the preselection dialog. It holds no rules: each thing that the user does is handed to the
// dialog, and then the widgets are made to show what the dialog holds.
class TVentanaPreseleccion : public QDialog {
  public:
    // Keeps a reference to the dialog.
    TVentanaPreseleccion(TFListaConceptosPreseleccionados& dialogo, QWidget* padre);
    ~TVentanaPreseleccion() override;
    TVentanaPreseleccion(const TVentanaPreseleccion&) = delete;
    TVentanaPreseleccion& operator=(const TVentanaPreseleccion&) = delete;

    // Escape where no control takes it, and the window's cross.
    void reject() override;

  protected:
    bool eventFilter(QObject* objeto, QEvent* suceso) override;
    void showEvent(QShowEvent* suceso) override;

  private:
    // Runs what the user did with the dialog, which knows the selections first, and shows the outcome. What
    // Qt tells meanwhile is not of the user, and left out.
    template <class Hecho>
    void Entrega(Hecho hecho);

    void Conecta();
    void ConectaControl(TControlPreseleccion control);
    [[nodiscard]] std::optional<TControlPreseleccion> ControlDe(const QObject* objeto);

    // What marks the drags of this window's control, and the control whose drag it is.
    [[nodiscard]] QByteArray Marca(TControlPreseleccion control) const;
    [[nodiscard]] std::optional<TControlPreseleccion> Origen(const QMimeData& datos) const;

    void Muestra();
    void MuestraTipos();
    void MuestraXml();
    void MuestraFoco();

    bool Tecla(TControlPreseleccion control, const QKeyEvent& tecla);
    void CogeFoco(TControlPreseleccion control, Qt::FocusReason motivo);
    bool Arrastra(TControlPreseleccion destino, QDropEvent& suceso);

    TFListaConceptosPreseleccionados* dialogo_;
    bool ocupada_ = false;
    bool mostrada_ = false;
    bool xmlCargado_ = false;
    TControlesPreseleccion controles_{*this};
    TModeloLista<TRConcepto> posiblesConceptos_;
    TModeloLista<TRConcepto> conceptos_;
    TModeloLista<TROtorgante> posiblesOtorgantes_;
    TModeloLista<TROtorgante> otorgantes_;
    TModeloTipos tipos_;
    std::array<std::unique_ptr<TEnlaceFilas>, 5> enlaces_;
    std::array<std::unique_ptr<TDelegadoFilas>, 5> delegados_;
};

}  // namespace analizador

#include "adaptadores/qt/PantallaQt.h"

#include <QApplication>
#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>
#include <algorithm>

#include "adaptadores/qt/HijoQt.h"
#include "adaptadores/qt/TextoQt.h"
#include "adaptadores/qt/VentanasQt.h"

namespace analizador {

namespace {

class VentanaProgreso : public QFrame {
  public:
    explicit VentanaProgreso(QWidget* padre)
        : QFrame(padre,
                 Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowDoesNotAcceptFocus),
          texto_(HijoDe<QLabel>(this)) {
        setObjectName(QStringLiteral("Progreso"));
        setAttribute(Qt::WA_ShowWithoutActivating);
        setFocusPolicy(Qt::NoFocus);
        texto_.setTextFormat(Qt::PlainText);
        auto& disposicion = HijoDe<QVBoxLayout>(this);
        const int margen = fontMetrics().height();
        disposicion.setContentsMargins(2 * margen, margen, 2 * margen, margen);
        disposicion.addWidget(&texto_);
    }

    void Pon(std::string_view texto) {
        texto_.setText(QtDeAnsi(texto));
        resize(sizeHint().expandedTo(size()));
        Pinta();
    }

    void Pinta() {
        if (isVisible()) repaint();
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }

    void MuestraSobrePadre() {
        resize(sizeHint());
        if (const QWidget* padre = parentWidget())
            move(padre->window()->frameGeometry().center() - rect().center());
        show();
        Pinta();
    }

  protected:
    // A dialog over this window blocks it and, when it closes, frees it again.
    bool event(QEvent* evento) override {
        if (evento->type() == QEvent::WindowBlocked) hide();
        if (evento->type() == QEvent::WindowUnblocked) show();
        return QFrame::event(evento);
    }

  private:
    QLabel& texto_;
};

class TVentanaMensajeQt : public TVentanaMensaje {
  public:
    TVentanaMensajeQt(std::string_view texto, QWidget* padre)
        : ventana_(&*std::make_unique<VentanaProgreso>(padre).release()) {
        ventana_->Pon(texto);
        ventana_->MuestraSobrePadre();
    }
    ~TVentanaMensajeQt() override { const std::unique_ptr<VentanaProgreso> cierra(ventana_.data()); }
    TVentanaMensajeQt(const TVentanaMensajeQt&) = delete;
    TVentanaMensajeQt& operator=(const TVentanaMensajeQt&) = delete;

    void Cambia(std::string_view texto) override {
        if (ventana_ != nullptr) ventana_->Pon(texto);
    }

  private:
    QPointer<VentanaProgreso> ventana_;  // its Qt parent may destroy it first
};

}  // namespace

std::unique_ptr<TVentanaMensaje> TPantallaQt::Abre(std::string_view texto, TComponente* propietario) {
    return std::make_unique<TVentanaMensajeQt>(texto, VentanaPadre(propietario));
}

}  // namespace analizador

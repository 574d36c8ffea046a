#include "adaptadores/qt/DialogoDatos.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "adaptadores/qt/HijoQt.h"
#include "adaptadores/qt/TeclasQt.h"
#include "adaptadores/qt/TextoQt.h"
#include "plataforma/Ansi.h"

namespace analizador {

namespace {

constexpr QSize TAMANO_MINIMO(525, 483);  // of the window's inside

}  // namespace

TDialogoDatos::TDialogoDatos(TFInformacionOtorgante& dialogo, QWidget* padre)
    : QDialog(padre),
      dialogo_(dialogo),
      zona_(HijoDe<QScrollArea>(this)),
      contenido_(HijoDe<QWidget>(&zona_)),
      barra_(HijoDe<QWidget>(this)),
      controles_(dialogo, contenido_, barra_) {
    setObjectName(QStringLiteral("FInformacionOtorgante"));
    setWindowTitle(QtDeAnsi(TITULO_DATOS_LEIDOS));
    zona_.setFrameShape(QFrame::NoFrame);
    zona_.setWidgetResizable(true);
    zona_.setFocusPolicy(Qt::NoFocus);
    zona_.setWidget(&contenido_);
    auto& disposicion = HijoDe<QVBoxLayout>(this);
    disposicion.addWidget(&zona_, 1);
    disposicion.addWidget(&barra_);
    for (const auto& descripcion : ControlesDatos()) Conecta(descripcion);
    Sincroniza();
}

// ---- What the user does

template <class Accion>
void TDialogoDatos::Haz(Accion&& accion) {
    if (ocupado_) return;
    {
        const QScopedValueRollback<bool> guarda(ocupado_, true);
        accion();
    }
    Sincroniza();
}

void TDialogoDatos::Conecta(const TDescripcionControl& descripcion) {
    const TControlDatos control = descripcion.Control;
    controles_.Control(control).installEventFilter(this);
    if (auto* caja = controles_.Caja(control)) {
        if (caja != &controles_.Control(control)) caja->installEventFilter(this);
        connect(caja, &QLineEdit::textEdited, this,
                [this, control](const QString& nuevo) { Tecleado(control, nuevo); });
    }
    if (auto* lista = controles_.Lista(control))
        connect(lista, &QComboBox::activated, this,
                [this, control](int posicion) { Haz([&] { dialogo_.Elige(control, posicion); }); });
    if (auto* marca = qobject_cast<QCheckBox*>(&controles_.Control(control)))
        connect(marca, &QCheckBox::clicked, this,
                [this](bool marcado) { Haz([&] { dialogo_.Marca(marcado); }); });
    if (auto* boton = qobject_cast<QPushButton*>(&controles_.Control(control)))
        connect(boton, &QPushButton::clicked, this,
                [this, control] { Haz([&] { dialogo_.Pulsa(control); }); });
}

void TDialogoDatos::Tecleado(TControlDatos control, const QString& nuevo) {
    QLineEdit& caja = *controles_.Caja(control);
    const std::size_t cursor = AnsiDeQt(nuevo.left(caja.cursorPosition())).size();
    const TTecleado ajustado = TFInformacionOtorgante::AjustaTecleado(
        control, dialogo_.Control(control).Texto, AnsiDeQt(nuevo), cursor);
    const QString texto = QtDeAnsi(ajustado.Texto);
    if (texto != nuevo) {  // not otherwise: the box's own undoing would be lost
        caja.setText(texto);
        caja.setCursorPosition(static_cast<int>(ajustado.Cursor));
    }
    Haz([&] { dialogo_.Escribe(control, ajustado.Texto); });
}

bool TDialogoDatos::Tecla(TControlDatos control, const QKeyEvent& tecla) {
    const auto suya = TeclaDe(tecla);
    if (!suya) return false;
    auto* const lista = controles_.Lista(control);
    const bool abierta = lista != nullptr && lista->view()->isVisible();
    auto respuesta = TFInformacionOtorgante::TRespuesta::Tomada;
    Haz([&] { respuesta = dialogo_.Tecla(control, *suya, abierta); });
    if (respuesta == TFInformacionOtorgante::TRespuesta::AbreLista) lista->showPopup();
    return respuesta != TFInformacionOtorgante::TRespuesta::NoEsMia;
}

// Hands a key over as the capital that the box will hold, so that nothing has to be put right afterwards.
bool TDialogoDatos::TecleaEnMayusculas(QObject* objeto, const QKeyEvent& tecla) {
    const QString mayusculas = QtDeAnsi(AnsiUpperCase(AnsiDeQt(tecla.text())));
    if (tecla.text().isEmpty() || mayusculas == tecla.text() || AnsiDeQt(tecla.text()) == "?") return false;
    QKeyEvent otra(QEvent::KeyPress, tecla.key(), tecla.modifiers(), mayusculas, tecla.isAutoRepeat());
    QCoreApplication::sendEvent(objeto, &otra);
    return true;
}

bool TDialogoDatos::eventFilter(QObject* objeto, QEvent* evento) {
    const auto control = controles_.Cual(objeto);
    if (!control) return QDialog::eventFilter(objeto, evento);
    switch (evento->type()) {
        case QEvent::KeyPress: {
            const auto& tecla = *static_cast<const QKeyEvent*>(evento);
            return Tecla(*control, tecla) ||
                   (controles_.Caja(*control) != nullptr && TecleaEnMayusculas(objeto, tecla));
        }
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            return !PonFoco(*control);
        case QEvent::MouseButtonRelease:
            // A click in the empty date writes from its beginning.
            if (*control == TControlDatos::MEFecha_Naci &&
                dialogo_.Control(*control).Texto == FECHA_EN_BLANCO)
                controles_.Caja(*control)->setCursorPosition(0);
            break;
        case QEvent::FocusIn:
            if (*control != dialogo_.Foco())
                QMetaObject::invokeMethod(this, &TDialogoDatos::TomaFocoDeQt, Qt::QueuedConnection);
            break;
        default:
            break;
    }
    return QDialog::eventFilter(objeto, evento);
}

// ---- Focus

bool TDialogoDatos::PonFoco(TControlDatos control) {
    bool puesto = false;
    Haz([&] { puesto = dialogo_.PonFoco(control); });
    return puesto;
}

bool TDialogoDatos::focusNextPrevChild(bool siguiente) {
    PonFoco(dialogo_.Siguiente(dialogo_.Foco(), !siguiente));
    return true;
}

// The focus went somewhere by itself: to the neighbour of a label's letter, or where an aid for the blind put
// it. Not within its event, for the check may show a message.
void TDialogoDatos::TomaFocoDeQt() {
    if (const auto control = controles_.Cual(focusWidget())) PonFoco(*control);
}

void TDialogoDatos::Sincroniza() {
    for (const auto& descripcion : ControlesDatos())
        controles_.Muestra(descripcion.Control, dialogo_.Control(descripcion.Control));
    QWidget& conFoco = controles_.Control(dialogo_.Foco());
    if (focusWidget() != &conFoco) {
        conFoco.setFocus(Qt::OtherFocusReason);
        zona_.ensureWidgetVisible(&conFoco);
        if (auto* caja = controles_.Caja(dialogo_.Foco())) caja->selectAll();
    }
    if (dialogo_.Resultado()) done(*dialogo_.Resultado() ? Accepted : Rejected);
}

// ---- Window

void TDialogoDatos::reject() {
    Haz([&] { dialogo_.Cierra(); });
}

void TDialogoDatos::PonTamano() {
    const QMargins margenes = layout()->contentsMargins();
    const QSize dentro = contenido_.sizeHint().expandedTo(contenido_.minimumSizeHint());
    const QSize abajo = barra_.sizeHint();
    QSize pedido(std::max(dentro.width(), abajo.width()) + margenes.left() + margenes.right(),
                 dentro.height() + layout()->spacing() + abajo.height() + margenes.top() + margenes.bottom());
    const int titulo = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
    const QSize sitio = screen()->availableGeometry().size() - QSize(0, titulo);
    if (pedido.height() > sitio.height()) pedido.rwidth() += zona_.verticalScrollBar()->sizeHint().width();
    if (pedido.width() > sitio.width()) pedido.rheight() += zona_.horizontalScrollBar()->sizeHint().height();
    setFixedSize(pedido.expandedTo(TAMANO_MINIMO).boundedTo(sitio));
}

void TDialogoDatos::showEvent(QShowEvent* evento) {
    PonTamano();
    QDialog::showEvent(evento);
}

void TDialogoDatos::changeEvent(QEvent* evento) {
    QDialog::changeEvent(evento);
    if (evento->type() == QEvent::FontChange && isVisible()) PonTamano();
}

}  // namespace analizador

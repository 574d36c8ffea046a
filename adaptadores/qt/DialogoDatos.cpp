#include "adaptadores/qt/DialogoDatos.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>
#include <optional>
#include <string>

#include "adaptadores/qt/HijoQt.h"
#include "adaptadores/qt/TextoQt.h"
#include "plataforma/Ansi.h"

namespace analizador {

namespace {

constexpr QSize TAMANO_MINIMO(525, 483);  // of the window's inside

std::optional<TTecla> TeclaDe(const QKeyEvent& tecla) {
    if (tecla.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return std::nullopt;
    switch (tecla.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return TTecla::Intro;
        case Qt::Key_Escape:
            return TTecla::Escape;
        case Qt::Key_Up:
            return TTecla::Arriba;
        case Qt::Key_Down:
            return TTecla::Abajo;
        default:
            return std::nullopt;
    }
}

// Whether the focus moved within the window: not when the window came to the front or a list or menu closed.
bool EsDelUsuario(Qt::FocusReason motivo) {
    return motivo != Qt::ActiveWindowFocusReason && motivo != Qt::PopupFocusReason &&
           motivo != Qt::MenuBarFocusReason;
}

}  // namespace

DialogoDatos::DialogoDatos(TFInformacionOtorgante& dialogo, QWidget* padre)
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
void DialogoDatos::Haz(Accion&& accion) {
    if (ocupado_) return;
    {
        const QScopedValueRollback<bool> guarda(ocupado_, true);
        accion();
    }
    Sincroniza();
}

void DialogoDatos::Conecta(const TDescripcionControl& descripcion) {
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

void DialogoDatos::Tecleado(TControlDatos control, const QString& nuevo) {
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

bool DialogoDatos::Tecla(TControlDatos control, const QKeyEvent& tecla) {
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
bool DialogoDatos::TecleaEnMayusculas(QObject* objeto, const QKeyEvent& tecla) {
    const QString mayusculas = QtDeAnsi(AnsiUpperCase(AnsiDeQt(tecla.text())));
    if (tecla.text().isEmpty() || mayusculas == tecla.text() || AnsiDeQt(tecla.text()) == "?") return false;
    QKeyEvent otra(QEvent::KeyPress, tecla.key(), tecla.modifiers(), mayusculas, tecla.isAutoRepeat());
    QCoreApplication::sendEvent(objeto, &otra);
    return true;
}

bool DialogoDatos::eventFilter(QObject* objeto, QEvent* evento) {
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
            if (EsDelUsuario(static_cast<const QFocusEvent*>(evento)->reason()) &&
                *control != dialogo_.Foco())
                QMetaObject::invokeMethod(this, &DialogoDatos::TomaFocoDeQt, Qt::QueuedConnection);
            break;
        default:
            break;
    }
    return QDialog::eventFilter(objeto, evento);
}

// ---- Focus

bool DialogoDatos::PonFoco(TControlDatos control) {
    bool puesto = false;
    Haz([&] { puesto = dialogo_.PonFoco(control); });
    return puesto;
}

bool DialogoDatos::focusNextPrevChild(bool siguiente) {
    PonFoco(dialogo_.Siguiente(dialogo_.Foco(), !siguiente));
    return true;
}

// The focus went somewhere by itself: to the neighbour of a label's letter, or where an aid for the blind put
// it. Not within its event, for the check may show a message.
void DialogoDatos::TomaFocoDeQt() {
    if (const auto control = controles_.Cual(focusWidget())) PonFoco(*control);
}

void DialogoDatos::Sincroniza() {
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

void DialogoDatos::reject() {
    Haz([&] { dialogo_.Cierra(); });
}

void DialogoDatos::PonTamano() {
    const QMargins margenes = layout()->contentsMargins();
    const QSize dentro = contenido_.sizeHint().expandedTo(contenido_.minimumSizeHint());
    const QSize abajo = barra_.sizeHint();
    QSize pedido(std::max(dentro.width(), abajo.width()) + margenes.left() + margenes.right(),
                 dentro.height() + layout()->spacing() + abajo.height() + margenes.top() + margenes.bottom());
    const QSize sitio = screen()->availableGeometry().size();
    if (pedido.height() > sitio.height()) pedido.rwidth() += zona_.verticalScrollBar()->sizeHint().width();
    if (pedido.width() > sitio.width()) pedido.rheight() += zona_.horizontalScrollBar()->sizeHint().height();
    setFixedSize(pedido.expandedTo(TAMANO_MINIMO).boundedTo(sitio));
}

void DialogoDatos::showEvent(QShowEvent* evento) {
    PonTamano();
    QDialog::showEvent(evento);
}

void DialogoDatos::changeEvent(QEvent* evento) {
    QDialog::changeEvent(evento);
    if (evento->type() == QEvent::FontChange && isVisible()) PonTamano();
}

}  // namespace analizador

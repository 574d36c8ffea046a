// Qt does not take a window of others as the parent of its dialogs: a hidden one of its own stands in for it.
// To the system the other one is their owner all the same, so that they are minimised and come back with it.

#include <windows.h>

#include <QEvent>
#include <QGuiApplication>
#include <QRect>
#include <QScreen>
#include <QWindow>

#include "adaptadores/qt/VentanaAjena.h"

namespace analizador {

namespace {

HWND Asa(std::intptr_t ventana) {
    return reinterpret_cast<HWND>(ventana);
}

bool EsDeEsteProceso(HWND ventana) {
    DWORD proceso = 0;
    GetWindowThreadProcessId(ventana, &proceso);
    return proceso == GetCurrentProcessId();
}

// Where the window is in Qt's coordinates, which the screen it is on scales; none when it is on no screen.
QRect Lugar(HWND ventana) {
    RECT marco{};
    GetWindowRect(ventana, &marco);
    const QRect real(QPoint(marco.left, marco.top), QPoint(marco.right - 1, marco.bottom - 1));
    for (const QScreen* pantalla : QGuiApplication::screens()) {
        const QPoint origen = pantalla->geometry().topLeft();
        const qreal escala = pantalla->devicePixelRatio();
        if (QRect(origen, pantalla->geometry().size() * escala).contains(real.center()))
            return {origen + (real.topLeft() - origen) / escala, real.size() / escala};
    }
    return {};
}

}  // namespace

TVentanaAjena::TVentanaAjena(std::intptr_t ventana)
    : QWidget(nullptr, Qt::Tool), FAjena(IsWindow(Asa(ventana)) ? ventana : 0) {
    setAttribute(Qt::WA_QuitOnClose, false);
    // Before the system makes its window: one that is not shown stays where it was made, and it is that one
    // whose middle a dialog asks for.
    if (const QRect lugar = Lugar(Asa(FAjena)); lugar.isValid()) setGeometry(lugar);
    const HWND propia = Asa(static_cast<std::intptr_t>(winId()));
    if (FAjena == 0) return;
    SetWindowLongPtrW(propia, GWLP_HWNDPARENT, FAjena);
    QCoreApplication::instance()->installEventFilter(this);
}

TVentanaAjena::~TVentanaAjena() {
    Habilita(true);
}

bool TVentanaAjena::SePuedenAbrir() const {
    USEROBJECTFLAGS estacion{};
    const bool seVe = GetUserObjectInformationW(GetProcessWindowStation(), UOI_FLAGS, &estacion,
                                                sizeof estacion, nullptr) == FALSE ||
                      (estacion.dwFlags & WSF_VISIBLE) != 0;
    return seVe && IsWindow(Asa(static_cast<std::intptr_t>(internalWinId())));
}

// Qt tells it before the dialog goes: the system then finds a window to go back to.
bool TVentanaAjena::event(QEvent* evento) {
    if (evento->type() == QEvent::WindowBlocked) Habilita(false);
    if (evento->type() == QEvent::WindowUnblocked) Habilita(true);
    return QWidget::event(evento);
}

// Qt gives a window its owner when it shows it.
bool TVentanaAjena::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::Expose) {
        auto* const ventana = qobject_cast<QWindow*>(objeto);
        if (ventana != nullptr && ventana->transientParent() == windowHandle())
            SetWindowLongPtrW(Asa(static_cast<std::intptr_t>(ventana->winId())), GWLP_HWNDPARENT, FAjena);
    }
    return QWidget::eventFilter(objeto, evento);
}

void TVentanaAjena::Habilita(bool habilita) {
    const HWND ajena = Asa(FAjena);
    if (FAjena == 0 || !EsDeEsteProceso(ajena)) return;
    if (!habilita && IsWindowEnabled(ajena)) {
        FInhabilitada = true;
        EnableWindow(ajena, FALSE);
    } else if (habilita && FInhabilitada) {
        FInhabilitada = false;
        EnableWindow(ajena, TRUE);
    }
}

}  // namespace analizador

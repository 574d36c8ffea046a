#include "adaptadores/qt/VentanaPreseleccion.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMetaObject>
#include <QScopedValueRollback>
#include <QScreen>
#include <QSignalBlocker>
#include <QStyle>

#include "adaptadores/qt/TeclasQt.h"
#include "adaptadores/qt/TextoQt.h"

namespace analizador {

namespace {

constexpr auto PISTA_CURSIVA = "Ya figura en los datos actuales del documento";

template <class Filas, class Modelo>
std::unique_ptr<TEnlaceFilas> Enlaza(QAbstractItemView& vista, Filas& filas, Modelo& modelo) {
    vista.setModel(&modelo);
    return std::make_unique<TEnlace<Filas, Modelo>>(vista, filas, modelo);
}

// Sized by the letter, and never larger than the screen with what the system draws around it.
QSize TamanoInicial(const QWidget& ventana) {
    constexpr int LETRAS_ANCHO = 150;
    constexpr int LINEAS_ALTO = 44;
    const QFontMetrics letra = ventana.fontMetrics();
    const QSize bueno(letra.averageCharWidth() * LETRAS_ANCHO, letra.lineSpacing() * LINEAS_ALTO);
    const QStyle& estilo = *ventana.style();
    const int borde = estilo.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    const QSize marco(2 * borde, estilo.pixelMetric(QStyle::PM_TitleBarHeight) + borde);
    return bueno.boundedTo(ventana.screen()->availableSize() - marco);
}

}  // namespace

TVentanaPreseleccion::TVentanaPreseleccion(TFListaConceptosPreseleccionados& dialogo, QWidget* padre)
    : QDialog(padre),
      dialogo_(&dialogo),
      posiblesConceptos_(dialogo.LBPosiblesConceptos, Marca(TControlPreseleccion::LBPosiblesConceptos)),
      conceptos_(dialogo.LBConceptos, Marca(TControlPreseleccion::LBConceptos)),
      posiblesOtorgantes_(dialogo.LBPosiblesOtorgantes, Marca(TControlPreseleccion::LBPosiblesOtorgantes),
                          TFListaConceptosPreseleccionados::EnCursiva, PISTA_CURSIVA),
      otorgantes_(dialogo.LBOtorgantes, Marca(TControlPreseleccion::LBOtorgantes),
                  TFListaConceptosPreseleccionados::EnCursiva, PISTA_CURSIVA),
      tipos_(dialogo.dbgTipos, Marca(TControlPreseleccion::dbgTipos)) {
    setObjectName("FListaConceptosPreseleccionados");
    setWindowTitle(QStringLiteral("Lista de Conceptos de la Escritura"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setSizeGripEnabled(true);
    auto& c = controles_;
    enlaces_ = {Enlaza(c.Conceptos.Posibles, dialogo.LBPosiblesConceptos, posiblesConceptos_),
                Enlaza(c.Conceptos.Validos, dialogo.LBConceptos, conceptos_),
                Enlaza(c.Otorgantes.Posibles, dialogo.LBPosiblesOtorgantes, posiblesOtorgantes_),
                Enlaza(c.Otorgantes.Validos, dialogo.LBOtorgantes, otorgantes_),
                Enlaza(c.dbgTipos, dialogo.dbgTipos, tipos_)};
    c.RepartoColumnas();
    Conecta();
    resize(TamanoInicial(*this));
    Muestra();
}

// The widgets tell things while they are destroyed, one after another.
TVentanaPreseleccion::~TVentanaPreseleccion() {
    ocupada_ = true;
}

void TVentanaPreseleccion::Conecta() {
    std::size_t vistas = 0;
    for (const TControlPreseleccion control : CONTROLES_PRESELECCION) {
        ConectaControl(control);
        if (QAbstractItemView* vista = controles_.Vista(control); vista != nullptr)
            delegados_.at(vistas++) = std::make_unique<TDelegadoFilas>(*vista);
    }
    connect(&controles_.eBusca, &QLineEdit::textEdited, this, [this](const QString& texto) {
        Entrega([&](auto& dialogo) { dialogo.eBuscaChange(AnsiDeQt(texto)); });
    });
    connect(&controles_.Titulos, &QHeaderView::sectionClicked, this, [this](int columna) {
        Entrega([&](auto& dialogo) { dialogo.ClicTitulo(static_cast<TColumnaTipos>(columna)); });
    });
    connect(&controles_.PCAnalizadorabierto, &QTabWidget::currentChanged, this, [this](int pagina) {
        Entrega([&](auto& dialogo) { dialogo.PonPagina(static_cast<TPaginaPreseleccion>(pagina)); });
    });
    const auto verDetalles = [this](TControlPreseleccion lista, QAction& ver) {
        const auto ve = [this, lista] { Entrega([&](auto& dialogo) { dialogo.VerOtorgante(lista); }); };
        connect(&ver, &QAction::triggered, this, ve);
        connect(controles_.Vista(lista), &QAbstractItemView::doubleClicked, this, ve);
    };
    verDetalles(TControlPreseleccion::LBPosiblesOtorgantes, controles_.VerPosible);
    verDetalles(TControlPreseleccion::LBOtorgantes, controles_.VerValido);
}

void TVentanaPreseleccion::ConectaControl(TControlPreseleccion control) {
    QWidget& widget = controles_.Control(control);
    widget.installEventFilter(this);
    if (QAbstractItemView* vista = controles_.Vista(control); vista != nullptr)
        vista->viewport()->installEventFilter(this);
    if (auto* const boton = dynamic_cast<QAbstractButton*>(&widget); boton != nullptr)
        connect(boton, &QAbstractButton::clicked, this,
                [this, control] { Entrega([&](auto& dialogo) { dialogo.Pulsa(control); }); });
}

std::optional<TControlPreseleccion> TVentanaPreseleccion::ControlDe(const QObject* objeto) {
    for (const TControlPreseleccion control : CONTROLES_PRESELECCION) {
        if (&controles_.Control(control) == objeto) return control;
        QAbstractItemView* const vista = controles_.Vista(control);
        if (vista != nullptr && vista->viewport() == objeto) return control;
    }
    return {};
}

// No other window of any process has the same.
QByteArray TVentanaPreseleccion::Marca(TControlPreseleccion control) const {
    return QByteArray::number(QCoreApplication::applicationPid()) + '/' +
           QByteArray::number(reinterpret_cast<quintptr>(this)) + '/' +
           QByteArray::number(static_cast<int>(control));
}

std::optional<TControlPreseleccion> TVentanaPreseleccion::Origen(const QMimeData& datos) const {
    const QByteArray marca = datos.data(FORMATO_FILAS);
    for (const TControlPreseleccion control : CONTROLES_PRESELECCION)
        if (marca == Marca(control)) return control;
    return {};
}

template <class Hecho>
void TVentanaPreseleccion::Entrega(Hecho hecho) {
    if (ocupada_ || dialogo_->Resultado()) return;
    {
        const QScopedValueRollback ocupada(ocupada_, true);
        for (const auto& enlace : enlaces_) enlace->Toma();
        hecho(*dialogo_);
    }
    Muestra();
}

void TVentanaPreseleccion::Muestra() {
    const QScopedValueRollback ocupada(ocupada_, true);
    for (const auto& enlace : enlaces_) enlace->Muestra();
    MuestraTipos();
    MuestraXml();
    MuestraFoco();
    if (const auto resultado = dialogo_->Resultado()) done(*resultado ? Accepted : Rejected);
}

void TVentanaPreseleccion::MuestraTipos() {
    controles_.Titulos.setSortIndicator(static_cast<int>(dialogo_->dbgTipos.Orden()), Qt::AscendingOrder);
    controles_.Titulos.PonAmarillo(dialogo_->Foco() == TControlPreseleccion::dbgTipos);
    if (AnsiDeQt(controles_.eBusca.text()) != dialogo_->TextoBusca())
        controles_.eBusca.setText(QtDeAnsi(dialogo_->TextoBusca()));
}

void TVentanaPreseleccion::MuestraXml() {
    const bool visible = dialogo_->XMLVisible();
    controles_.SPXML.setEnabled(visible);
    controles_.PCAnalizadorabierto.setTabVisible(static_cast<int>(TPaginaPreseleccion::XML), visible);
    controles_.PCAnalizadorabierto.setCurrentIndex(static_cast<int>(dialogo_->Pagina()));
    if (!visible || xmlCargado_ || dialogo_->FicheroXML().empty()) return;
    xmlCargado_ = true;
    controles_.Visor.MuestraFichero(dialogo_->FicheroXML());
}

// A control of the page that does not show gets the focus when its page comes back.
void TVentanaPreseleccion::MuestraFoco() {
    QWidget& control = controles_.Control(dialogo_->Foco());
    if (control.isVisible() && focusWidget() != &control) control.setFocus(Qt::OtherFocusReason);
}

void TVentanaPreseleccion::reject() {
    Entrega([](auto& dialogo) { dialogo.Pulsa(TControlPreseleccion::BCancelar); });
}

// The first activation may show a message: it waits until the window is there, and so do the views, whose
// current rows may have been out of sight in a window of another size.
void TVentanaPreseleccion::showEvent(QShowEvent* suceso) {
    QDialog::showEvent(suceso);
    if (std::exchange(mostrada_, true)) return;
    const auto activa = [this] {
        for (const TControlPreseleccion control : CONTROLES_PRESELECCION)
            if (QAbstractItemView* vista = controles_.Vista(control); vista != nullptr)
                vista->scrollTo(vista->currentIndex());
        Entrega([](auto& dialogo) { dialogo.FormActivate(); });
    };
    QMetaObject::invokeMethod(this, activa, Qt::QueuedConnection);
}

bool TVentanaPreseleccion::eventFilter(QObject* objeto, QEvent* suceso) {
    if (ocupada_) return false;
    const auto control = ControlDe(objeto);
    if (!control) return false;
    switch (suceso->type()) {
        case QEvent::KeyPress:
            return Tecla(*control, static_cast<QKeyEvent&>(*suceso));
        case QEvent::FocusIn:
            CogeFoco(*control, static_cast<QFocusEvent&>(*suceso).reason());
            return false;
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop:
            return Arrastra(*control, static_cast<QDropEvent&>(*suceso));
        default:
            return false;
    }
}

// Enter presses a button that has the focus, as everywhere in the suite.
bool TVentanaPreseleccion::Tecla(TControlPreseleccion control, const QKeyEvent& suceso) {
    const auto tecla = TeclaDe(suceso);
    if (!tecla) return false;
    bool tomada = false;
    Entrega([&](auto& dialogo) { tomada = dialogo.Tecla(control, *tecla); });
    auto* const boton = dynamic_cast<QAbstractButton*>(&controles_.Control(control));
    if (tomada || boton == nullptr || *tecla != TTecla::Intro) return tomada;
    boton->click();
    return true;
}

// The window that comes to the front again, and a menu that closes, move the focus nowhere.
void TVentanaPreseleccion::CogeFoco(TControlPreseleccion control, Qt::FocusReason motivo) {
    if (motivo == Qt::ActiveWindowFocusReason || motivo == Qt::PopupFocusReason) return;
    Entrega([&](auto& dialogo) { dialogo.PonFoco(control); });
}

// The drop acts once the drag is over, for it may ask a question. The views themselves see none of this.
bool TVentanaPreseleccion::Arrastra(TControlPreseleccion destino, QDropEvent& suceso) {
    const auto origen = Origen(*suceso.mimeData());
    if (!origen || !TFListaConceptosPreseleccionados::AdmiteSoltar(*origen, destino)) {
        suceso.ignore();
        return true;
    }
    suceso.acceptProposedAction();
    if (suceso.type() != QEvent::Drop) return true;
    QMetaObject::invokeMethod(
        this, [this, origen, destino] { Entrega([&](auto& dialogo) { dialogo.Suelta(*origen, destino); }); },
        Qt::QueuedConnection);
    return true;
}

}  // namespace analizador

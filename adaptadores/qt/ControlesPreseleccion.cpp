#include "adaptadores/qt/ControlesPreseleccion.h"

#include <QHeaderView>

namespace analizador {

namespace {

constexpr TRotulosPanel CONCEPTOS = {"LBPosiblesConceptos",
                                     "LBConceptos",
                                     "BMas",
                                     "BMenos",
                                     "Lista de conceptos preseleccionados tras el análisis:",
                                     "Lista de conceptos válidos",
                                     "Añadir los conceptos seleccionados a los válidos",
                                     "Quitar de los válidos los conceptos seleccionados"};
constexpr TRotulosPanel OTORGANTES = {"LBPosiblesOtorgantes",
                                      "LBOtorgantes",
                                      "BMasOtor",
                                      "BMenosOtor",
                                      "Lista de otorgantes preseleccionados tras el análisis:",
                                      "Lista de otorgantes válidos",
                                      "Añadir los otorgantes seleccionados a los válidos",
                                      "Quitar de los válidos los otorgantes seleccionados"};

}  // namespace

TControlesPreseleccion::TControlesPreseleccion(QDialog& ventana)
    : marco_(&ventana), Conceptos(CONCEPTOS), Otorgantes(OTORGANTES) {
    PreparaTipos();
    PreparaBotones();
    PreparaMenus();
    RepartePaginas();
    Reparte();
    OrdenaFoco();
}

QWidget& TControlesPreseleccion::Control(TControlPreseleccion control) {
    using TControl = TControlPreseleccion;
    switch (control) {
        case TControl::LBPosiblesConceptos:
            return Conceptos.Posibles;
        case TControl::BMas:
            return Conceptos.Mas;
        case TControl::BMenos:
            return Conceptos.Menos;
        case TControl::LBConceptos:
            return Conceptos.Validos;
        case TControl::dbgTipos:
            return dbgTipos;
        case TControl::eBusca:
            return eBusca;
        case TControl::BMasBD:
            return BMasBD;
        case TControl::LBPosiblesOtorgantes:
            return Otorgantes.Posibles;
        case TControl::BMasOtor:
            return Otorgantes.Mas;
        case TControl::BMenosOtor:
            return Otorgantes.Menos;
        case TControl::LBOtorgantes:
            return Otorgantes.Validos;
        case TControl::BDetallesOtorgante:
            return BDetallesOtorgante;
        case TControl::SBPizarra:
            return SBPizarra;
        case TControl::SPXML:
            return SPXML;
        case TControl::BContinuar:
            return BContinuar;
        case TControl::BCancelar:
            break;
    }
    return BCancelar;
}

QAbstractItemView* TControlesPreseleccion::Vista(TControlPreseleccion control) {
    return dynamic_cast<QAbstractItemView*>(&Control(control));
}

void TControlesPreseleccion::PreparaTipos() {
    dbgTipos.setObjectName("dbgTipos");
    dbgTipos.setAccessibleName(QStringLiteral("Tipos de escritura"));
    dbgTipos.setHorizontalHeader(&Titulos);
    dbgTipos.setSelectionMode(QAbstractItemView::ExtendedSelection);
    dbgTipos.setSelectionBehavior(QAbstractItemView::SelectRows);
    dbgTipos.setEditTriggers(QAbstractItemView::NoEditTriggers);
    dbgTipos.setDragDropMode(QAbstractItemView::DragDrop);
    dbgTipos.setDropIndicatorShown(false);
    dbgTipos.setTabKeyNavigation(false);
    dbgTipos.setWordWrap(false);
    const int alto = dbgTipos.fontMetrics().height();
    QHeaderView& filas = *dbgTipos.verticalHeader();
    filas.hide();
    filas.setSectionResizeMode(QHeaderView::Fixed);
    filas.setMinimumSectionSize(alto);
    filas.setDefaultSectionSize(alto * 5 / 4);
    dbgTipos.setMinimumHeight(alto * 5);
    eBusca.setObjectName("eBusca");
    eBusca.setToolTip(QStringLiteral("INTRO: Aceptar el tipo ESCAPE: Siguiente dato"));
    eBusca.setPlaceholderText(QStringLiteral("Buscar un tipo por su nombre o su número"));
    eBusca.setAccessibleName(eBusca.placeholderText());
}

void TControlesPreseleccion::RepartoColumnas() {
    Titulos.setResizeContentsPrecision(0);
    for (const auto columna : {TColumnaTipos::NUMEROTIPO, TColumnaTipos::CLAVE_INTI})
        Titulos.setSectionResizeMode(static_cast<int>(columna), QHeaderView::ResizeToContents);
    for (const auto columna : {TColumnaTipos::NOMBRE, TColumnaTipos::TIPO})
        Titulos.setSectionResizeMode(static_cast<int>(columna), QHeaderView::Stretch);
}

void TControlesPreseleccion::PreparaBotones() {
    PreparaBoton(BMasBD, "BMasBD", QStringLiteral("\u2191 Añadir el tipo"),
                 QStringLiteral("Añadir los tipos seleccionados a los conceptos válidos"));
    PreparaBoton(BDetallesOtorgante, "BDetallesOtorgante", QStringLiteral("Detalles…"),
                 QStringLiteral("Ver y corregir los datos del otorgante"));
    PreparaBoton(SBPizarra, "SBPizarra", QStringLiteral("Ver el informe"),
                 QStringLiteral("Ver el informe del análisis"));
    PreparaBoton(SPXML, "SPXML", QStringLiteral("Ver el XML"),
                 QStringLiteral("Ver los datos actuales del documento"));
    PreparaBoton(BContinuar, "BContinuar", QStringLiteral("C&ontinuar"));
    PreparaBoton(BCancelar, "BCancelar", QStringLiteral("&Cancelar"));
}

void TControlesPreseleccion::PreparaMenus() {
    const auto pon = [](QListView& lista, QAction& ver) {
        ver.setText(QStringLiteral("&Ver detalles"));
        lista.addAction(&ver);
        lista.setContextMenuPolicy(Qt::ActionsContextMenu);
    };
    pon(Otorgantes.Posibles, VerPosible);
    pon(Otorgantes.Validos, VerValido);
}

void TControlesPreseleccion::RepartePaginas() {
    Otorgantes.AnadeBoton(BDetallesOtorgante);
    columnaTipos_.setContentsMargins(0, 0, 0, 0);
    columnaTipos_.addWidget(&dbgTipos);
    columnaTipos_.addLayout(&filaBusca_);
    filaBusca_.addWidget(&eBusca);
    filaBusca_.addWidget(&BMasBD);
    mitades_.addWidget(&Conceptos);
    mitades_.addWidget(&tipos_);
    mitades_.addWidget(&Otorgantes);
    mitades_.setChildrenCollapsible(false);
    mitades_.setHandleWidth(mitades_.fontMetrics().height() * 3 / 4);
    paginaInformacion_.addWidget(&mitades_);
    paginaXml_.addWidget(&Visor);
}

void TControlesPreseleccion::Reparte() {
    PCAnalizadorabierto.setObjectName("PCAnalizadorabierto");
    TSInformacion.setObjectName("TSInformacion");
    TSXML.setObjectName("TSXML");
    PCAnalizadorabierto.addTab(&TSInformacion, QStringLiteral("&Información recuperada"));
    PCAnalizadorabierto.addTab(&TSXML, QStringLiteral("&XML"));
    PCAnalizadorabierto.setTabVisible(PCAnalizadorabierto.indexOf(&TSXML), false);
    // The pages are reached with their letters and Ctrl+Tab; Tab goes round the controls alone.
    PCAnalizadorabierto.setFocusPolicy(Qt::NoFocus);
    marco_.addWidget(&PCAnalizadorabierto);
    marco_.addLayout(&barra_);
    barra_.addWidget(&SBPizarra);
    barra_.addWidget(&SPXML);
    barra_.addStretch();
    barra_.addWidget(&BContinuar);
    barra_.addWidget(&BCancelar);
}

// The XML page's text comes between the pages' controls and those outside; while one page shows, the other's
// are passed over.
void TControlesPreseleccion::OrdenaFoco() {
    QWidget* anterior = nullptr;
    const auto sigue = [&anterior](QWidget& control) {
        if (anterior != nullptr) QWidget::setTabOrder(anterior, &control);
        anterior = &control;
    };
    for (const TControlPreseleccion control : CONTROLES_PRESELECCION) {
        if (control == TControlPreseleccion::SBPizarra) sigue(Visor);
        QWidget& widget = Control(control);
        widget.setFocusPolicy(Qt::StrongFocus);
        sigue(widget);
    }
}

}  // namespace analizador

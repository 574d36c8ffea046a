#pragma once

#include <QAction>
#include <QBoxLayout>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QTableView>
#include <QWidget>
#include <array>

#include "adaptadores/qt/PanelListas.h"
#include "adaptadores/qt/TitulosRejilla.h"
#include "adaptadores/qt/VisorXml.h"
#include "dialogos/ListaConceptosPreseleccionados.h"

namespace analizador {

inline constexpr std::array CONTROLES_PRESELECCION = {TControlPreseleccion::LBPosiblesConceptos,
                                                      TControlPreseleccion::BMas,
                                                      TControlPreseleccion::BMenos,
                                                      TControlPreseleccion::LBConceptos,
                                                      TControlPreseleccion::dbgTipos,
                                                      TControlPreseleccion::eBusca,
                                                      TControlPreseleccion::BMasBD,
                                                      TControlPreseleccion::LBPosiblesOtorgantes,
                                                      TControlPreseleccion::BMasOtor,
                                                      TControlPreseleccion::BMenosOtor,
                                                      TControlPreseleccion::LBOtorgantes,
                                                      TControlPreseleccion::BDetallesOtorgante,
                                                      TControlPreseleccion::SBPizarra,
                                                      TControlPreseleccion::SPXML,
                                                      TControlPreseleccion::BContinuar,
                                                      TControlPreseleccion::BCancelar};

// The widgets of the preselection dialog, laid out in its window: names, captions, hints and focus order, and
// nothing of what they do. Members are declared from the outside in: what is inside another is destroyed
// before it. Destroy it before the window.
class TControlesPreseleccion {
  public:
    explicit TControlesPreseleccion(QDialog& ventana);

    [[nodiscard]] QWidget& Control(TControlPreseleccion control);
    // The view of a control with rows; nullptr for the others.
    [[nodiscard]] QAbstractItemView* Vista(TControlPreseleccion control);

    // The names share the width that the numbers and keys leave. Once the grid has its model.
    void RepartoColumnas();

  private:
    void Reparte();
    void RepartePaginas();
    void PreparaTipos();
    void PreparaBotones();
    void PreparaMenus();
    void OrdenaFoco();

    QVBoxLayout marco_;

  public:
    QTabWidget PCAnalizadorabierto;
    QWidget TSInformacion;
    QWidget TSXML;

  private:
    QVBoxLayout paginaInformacion_{&TSInformacion};
    QVBoxLayout paginaXml_{&TSXML};
    QSplitter mitades_{Qt::Vertical};
    QWidget tipos_;
    QVBoxLayout columnaTipos_{&tipos_};
    QHBoxLayout filaBusca_;
    QHBoxLayout barra_;

  public:
    TPanelListas Conceptos;
    TPanelListas Otorgantes;
    QTableView dbgTipos;
    TTitulosRejilla Titulos;
    QLineEdit eBusca;
    QPushButton BMasBD;
    QPushButton BDetallesOtorgante;
    QPushButton SBPizarra;
    QPushButton SPXML;
    QPushButton BContinuar;
    QPushButton BCancelar;
    VisorXml Visor;
    QAction VerPosible;  // the entries of the two party lists' menus
    QAction VerValido;
};

}  // namespace analizador

// The details of a party, opened from the preselection dialog.

#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include "dialogos/InformacionOtorgante.h"
#include "pruebas/qt/EscenaVentana.h"

namespace analizador {
namespace {

// Keeps whose details were shown, and changes the surnames when it has new ones.
struct TDetallesDePrueba : TVistaInformacion {
    std::vector<std::string> Nombres;
    std::string Apellidos;

    void MuestraModal(TFInformacionOtorgante& dialogo, TComponente*) override {
        Nombres.push_back(dialogo.Control(TControlDatos::ENombre).Texto);
        if (Apellidos.empty()) return dialogo.Cierra();
        (void)dialogo.PonFoco(TControlDatos::EApellidos);
        dialogo.Escribe(TControlDatos::EApellidos, Apellidos);
        dialogo.Pulsa(TControlDatos::BBAceptar);
    }
};

class DetallesPreseleccion : public testing::Test {
  protected:
    DetallesPreseleccion() {
        escena_.Tablas.Pon("PROVIN.DBF", {{"PROVINCIA", "CODIGO", "COD_198", "GRUPO"}, {}});
        escena_.Tablas.Pon("TIPO_VIA.DBF", {{"CODIGO", "CODPOSTAL", "NOMBRE"}, {}});
        escena_.Tablas.Pon("TIPO_INT.DBF", {{"CODIGO", "DESCRIPCIO"}, {{"1", "COMPRADOR"}}});
    }

    // ANA and EVA in the found list, LUZ and PAZ in the chosen one.
    void Abre() {
        escena_.Abre({Persona("LUZ", "3"), Persona("PAZ", "4"), Persona("ANA", "1"), Persona("EVA", "2")});
        escena_.ClicFilas("LBPosiblesOtorgantes", {0, 1});
        escena_.Clic("BMasOtor");
        escena_.Control("eBusca").setFocus();
        detalles_.Nombres.clear();
    }

    // The menu of a row, as the mouse's right button or the menu key opens it, and what is done with it.
    void Menu(const char* lista, int fila, Qt::Key tecla) {
        escena_.ClicFilas(lista, {fila});
        auto& vista = escena_.Vista(lista);
        bool abierto = false;
        QTimer::singleShot(0, [&] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            abierto = menu != nullptr;
            if (!abierto) return;
            EXPECT_EQ(menu->actions().size(), 1);
            EXPECT_EQ(menu->actions().at(0)->text(), "&Ver detalles");
            QTest::keyClick(menu, tecla);
        });
        const QPoint donde = vista.visualRect(vista.model()->index(fila, 0)).center();
        QContextMenuEvent suceso(QContextMenuEvent::Mouse, donde, vista.viewport()->mapToGlobal(donde));
        QApplication::sendEvent(vista.viewport(), &suceso);
        EXPECT_TRUE(abierto);
    }

    TDetallesDePrueba detalles_;
    InstalaVistaInformacion guarda_{detalles_};
    TEscenaVentana escena_;
};

using TNombres = std::vector<std::string>;

TEST_F(DetallesPreseleccion, DoubleClickInEitherList) {
    Abre();
    escena_.DobleClic("LBPosiblesOtorgantes", 1);
    escena_.DobleClic("LBOtorgantes", 0);
    EXPECT_EQ(detalles_.Nombres, TNombres({"EVA", "LUZ"}));
}

TEST_F(DetallesPreseleccion, MenuOfEitherList) {
    Abre();
    Menu("LBPosiblesOtorgantes", 0, Qt::Key_V);
    Menu("LBOtorgantes", 1, Qt::Key_V);
    EXPECT_EQ(detalles_.Nombres, TNombres({"ANA", "PAZ"}));
}

TEST_F(DetallesPreseleccion, EscapeClosesTheMenuAlone) {
    Abre();
    Menu("LBOtorgantes", 0, Qt::Key_Escape);
    EXPECT_TRUE(detalles_.Nombres.empty());
    EXPECT_TRUE(escena_.Ventana().isVisible());
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(escena_.Foco(), "LBOtorgantes");
}

TEST_F(DetallesPreseleccion, ButtonMeansTheListThatLastHadTheFocus) {
    escena_.Abre({Persona("ANA", "1")});
    escena_.Clic("BDetallesOtorgante");  // the chosen list, which is empty
    EXPECT_TRUE(detalles_.Nombres.empty());
    Abre();
    escena_.ClicFilas("LBOtorgantes", {1});
    escena_.Clic("BDetallesOtorgante");
    escena_.ClicFilas("LBPosiblesOtorgantes", {1});
    escena_.ClicFilas("LBPosiblesConceptos", {0});
    escena_.Clic("BDetallesOtorgante");
    EXPECT_EQ(detalles_.Nombres, TNombres({"PAZ", "EVA"}));
}

TEST_F(DetallesPreseleccion, AfterUpdatingTheRowIsTheRecordsNewLine) {
    Abre();
    detalles_.Apellidos = "SANZ";
    escena_.DobleClic("LBOtorgantes", 1);
    EXPECT_EQ(escena_.Filas("LBOtorgantes"), QStringList({"GIL, LUZ - 3", "SANZ, PAZ - 4"}));
    EXPECT_EQ(escena_.Actual("LBOtorgantes"), 1);
    EXPECT_EQ(escena_.Filas("LBPosiblesOtorgantes"), QStringList({"GIL, ANA - 1", "GIL, EVA - 2"}));
}

TEST_F(DetallesPreseleccion, CancellingLeavesTheRow) {
    Abre();
    escena_.DobleClic("LBOtorgantes", 1);
    EXPECT_EQ(escena_.Filas("LBOtorgantes"), QStringList({"GIL, LUZ - 3", "GIL, PAZ - 4"}));
}

}  // namespace
}  // namespace analizador

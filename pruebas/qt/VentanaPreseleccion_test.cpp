// The window: its controls, the round of the focus, the page of the XML and the ways to close it.

#include "adaptadores/qt/VentanaPreseleccion.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include "adaptadores/qt/VistaPreseleccionQt.h"
#include "pruebas/qt/EscenaVentana.h"

namespace analizador {
namespace {

constexpr auto XML = "<?xml version=\"1.0\"?><datos><nombre>ANA</nombre></datos>";

const std::vector<const char*> EN_ORDEN = {"LBPosiblesConceptos",
                                           "BMas",
                                           "BMenos",
                                           "LBConceptos",
                                           "dbgTipos",
                                           "eBusca",
                                           "BMasBD",
                                           "LBPosiblesOtorgantes",
                                           "BMasOtor",
                                           "BMenosOtor",
                                           "LBOtorgantes",
                                           "BDetallesOtorgante",
                                           "SBPizarra",
                                           "SPXML",
                                           "BContinuar",
                                           "BCancelar"};

class VentanaPreseleccion : public testing::Test {
  protected:
    TEscenaVentana escena_;
};

TEST_F(VentanaPreseleccion, CaptionsAndHintsAreThoseOfTheLayout) {
    escena_.Abre();
    EXPECT_EQ(escena_.Ventana().windowTitle(), "Lista de Conceptos de la Escritura");
    const auto& paginas = escena_.Control<QTabWidget>("PCAnalizadorabierto");
    EXPECT_EQ(paginas.tabText(0), QStringLiteral("&Información recuperada"));
    EXPECT_EQ(paginas.tabText(1), "&XML");
    EXPECT_EQ(escena_.Control("eBusca").toolTip(), "INTRO: Aceptar el tipo ESCAPE: Siguiente dato");
    EXPECT_EQ(escena_.Control<QPushButton>("BContinuar").text(), "C&ontinuar");
    EXPECT_EQ(escena_.Control<QPushButton>("BCancelar").text(), "&Cancelar");
    QStringList rotulos;
    for (const auto* rotulo : escena_.Ventana().findChildren<QLabel*>()) rotulos << rotulo->text();
    for (const char16_t* rotulo :
         {u"Lista de conceptos preseleccionados tras el análisis:", u"Lista de conceptos válidos",
          u"Lista de otorgantes preseleccionados tras el análisis:", u"Lista de otorgantes válidos"})
        EXPECT_TRUE(rotulos.contains(QString::fromUtf16(rotulo))) << QString::fromUtf16(rotulo).toStdString();
    EXPECT_EQ(escena_.Filas("LBPosiblesConceptos"), QStringList({"VENTA", "PRESTAMO"}));
}

TEST_F(VentanaPreseleccion, EveryControlTellsWhatItIs) {
    escena_.Abre();
    for (const char* nombre : EN_ORDEN) {
        const QWidget& control = escena_.Control(nombre);
        const auto* const boton = dynamic_cast<const QPushButton*>(&control);
        const bool conRotulo = boton != nullptr && boton->text().contains('&');
        EXPECT_TRUE(conRotulo || !control.accessibleName().isEmpty()) << nombre;
        if (boton != nullptr && !conRotulo) {
            EXPECT_EQ(boton->toolTip(), boton->accessibleName()) << nombre;
        }
    }
}

TEST_F(VentanaPreseleccion, TabGoesRoundAllControlsInTheirOrder) {
    escena_.Abre({}, XML);
    std::vector<std::string> recorrido;
    for (std::size_t i = 0; i < EN_ORDEN.size(); ++i) {
        recorrido.push_back(escena_.Foco());
        escena_.Tecla(Qt::Key_Tab);
    }
    EXPECT_EQ(recorrido, std::vector<std::string>(EN_ORDEN.begin(), EN_ORDEN.end()));
    EXPECT_EQ(escena_.Foco(), EN_ORDEN.front());
    escena_.Tecla(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(escena_.Foco(), EN_ORDEN.back());
}

TEST_F(VentanaPreseleccion, TheDialogKnowsWhereTheFocusIs) {
    escena_.Abre({}, XML);
    for (const TControlPreseleccion control : CONTROLES_PRESELECCION) {
        EXPECT_EQ(escena_.Dialogo().Foco(), control) << escena_.Foco();
        escena_.Tecla(Qt::Key_Tab);
    }
}

TEST_F(VentanaPreseleccion, WithoutXmlItsButtonIsPassedOver) {
    escena_.Abre();
    escena_.Control("SBPizarra").setFocus();
    escena_.Tecla(Qt::Key_Tab);
    EXPECT_EQ(escena_.Foco(), "BContinuar");
}

TEST_F(VentanaPreseleccion, XmlPageShowsExactlyWhenItsButtonIsEnabled) {
    const struct {
        const char* Xml;
        bool SinXml, Visible;
    } casos[] = {{"", false, false}, {"", true, false}, {XML, true, false}, {XML, false, true}};
    for (const auto& caso : casos) {
        escena_.Configuracion.SinXML = caso.SinXml;
        escena_.Abre({}, caso.Xml);
        const auto& paginas = escena_.Control<QTabWidget>("PCAnalizadorabierto");
        EXPECT_EQ(paginas.isTabVisible(1), caso.Visible);
        EXPECT_EQ(escena_.Control("SPXML").isEnabled(), caso.Visible);
        EXPECT_EQ(paginas.currentIndex(), 0);
    }
}

TEST_F(VentanaPreseleccion, XmlPageShowsTheStoredData) {
    escena_.Abre({}, XML);
    escena_.Tecla(Qt::Key_X, Qt::AltModifier);
    const auto& texto = escena_.Control<QPlainTextEdit>("TextoXML");
    EXPECT_TRUE(texto.isVisible());
    EXPECT_TRUE(texto.toPlainText().contains("<nombre>ANA</nombre>"));
    EXPECT_EQ(escena_.Dialogo().Pagina(), TPaginaPreseleccion::XML);
    escena_.Control("TextoXML").setFocus();
    escena_.Tecla(Qt::Key_Tab);
    EXPECT_EQ(escena_.Foco(), "SBPizarra");
    escena_.Tecla(Qt::Key_I, Qt::AltModifier);
    EXPECT_TRUE(escena_.Control("LBConceptos").isVisible());
    EXPECT_EQ(escena_.Dialogo().Pagina(), TPaginaPreseleccion::Informacion);
}

TEST_F(VentanaPreseleccion, ReportAndXmlGoToTheViewers) {
    escena_.Abre({}, XML, "INFORME");
    escena_.Clic("SBPizarra");
    EXPECT_EQ(escena_.Visores.Textos.size(), 1U);
    EXPECT_EQ(escena_.Foco(), "SBPizarra");
    escena_.Clic("SPXML");
    ASSERT_EQ(escena_.Visores.Xmls.size(), 1U);
    EXPECT_EQ(escena_.Visores.Xmls[0].Titulo, "Datos actuales del documento");
    EXPECT_EQ(escena_.Foco(), "SPXML");
}

TEST_F(VentanaPreseleccion, ClosesWithEitherButtonPressedInAnyWay) {
    using TPulsa = std::function<void(TEscenaVentana&)>;
    const auto clic = [](const char* boton) {
        return [boton](TEscenaVentana& escena) { escena.Clic(boton); };
    };
    const auto letra = [](Qt::Key tecla) {
        return [tecla](TEscenaVentana& escena) { escena.Tecla(tecla, Qt::AltModifier); };
    };
    const auto tecla = [](const char* boton, Qt::Key cual) {
        return [boton, cual](TEscenaVentana& escena) {
            escena.Control(boton).setFocus();
            escena.Tecla(cual);
        };
    };
    const struct {
        const char* Como;
        TPulsa Pulsa;
        bool Aceptado;
    } casos[] = {{"click on Continuar", clic("BContinuar"), true},
                 {"Alt+O", letra(Qt::Key_O), true},
                 {"Enter on Continuar", tecla("BContinuar", Qt::Key_Return), true},
                 {"Space on Continuar", tecla("BContinuar", Qt::Key_Space), true},
                 {"click on Cancelar", clic("BCancelar"), false},
                 {"Alt+C", letra(Qt::Key_C), false},
                 {"Enter on Cancelar", tecla("BCancelar", Qt::Key_Enter), false},
                 {"the cross", [](TEscenaVentana& escena) { escena.Ventana().close(); }, false}};
    for (const auto& caso : casos) {
        escena_.Abre();
        caso.Pulsa(escena_);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !escena_.Ventana().isVisible(); })) << caso.Como;
        EXPECT_EQ(escena_.Dialogo().Resultado(), caso.Aceptado) << caso.Como;
        EXPECT_EQ(escena_.Ventana().result() == QDialog::Accepted, caso.Aceptado) << caso.Como;
    }
}

TEST_F(VentanaPreseleccion, EscapeCancelsButInTheSearchBox) {
    for (const char* nombre : EN_ORDEN) {
        escena_.Abre({}, XML);
        escena_.Control(nombre).setFocus();
        ASSERT_EQ(escena_.Foco(), nombre);
        escena_.Tecla(Qt::Key_Escape);
        if (nombre == std::string("eBusca")) {
            EXPECT_TRUE(escena_.Ventana().isVisible());
            EXPECT_EQ(escena_.Foco(), "LBConceptos");
        } else {
            EXPECT_EQ(escena_.Dialogo().Resultado(), false) << nombre;
            EXPECT_FALSE(escena_.Ventana().isVisible()) << nombre;
        }
    }
}

TEST_F(VentanaPreseleccion, EscapeCancelsFromTheXml) {
    escena_.Abre({}, XML);
    escena_.Tecla(Qt::Key_X, Qt::AltModifier);
    escena_.Control("TextoXML").setFocus();
    escena_.Tecla(Qt::Key_Escape);
    EXPECT_EQ(escena_.Dialogo().Resultado(), false);
    EXPECT_FALSE(escena_.Ventana().isVisible());
}

TEST_F(VentanaPreseleccion, NoButtonIsTheDefaultOne) {
    escena_.Abre();
    for (const auto* boton : escena_.Ventana().findChildren<QPushButton*>())
        EXPECT_FALSE(boton->isDefault() || boton->autoDefault()) << boton->objectName().toStdString();
    for (const char* nombre : {"LBConceptos", "LBOtorgantes", "eBusca"}) {
        escena_.Control(nombre).setFocus();
        escena_.Tecla(Qt::Key_Return);
        EXPECT_TRUE(escena_.Ventana().isVisible()) << nombre;
    }
}

TEST_F(VentanaPreseleccion, SessionGetsWhetherItWasAccepted) {
    for (const bool acepta : {true, false}) {
        const auto dialogo = TEscenaPreseleccion::Crea({"VENTA"});
        TVistaPreseleccionQt vista;
        const InstalaVistaPreseleccion guarda(vista);
        QTimer::singleShot(0, [acepta] {
            QWidget* const ventana = QApplication::activeModalWidget();
            ASSERT_NE(ventana, nullptr);
            QTest::mouseClick(ventana->findChild<QWidget*>(acepta ? "BContinuar" : "BCancelar"),
                              Qt::LeftButton);
        });
        EXPECT_EQ(dialogo->MuestraModal(nullptr), acepta);
    }
}

}  // namespace
}  // namespace analizador

// What the clerk does in the details window and what comes of it.

#include <QAbstractItemView>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include "adaptadores/qt/MensajesQt.h"
#include "adaptadores/qt/VistaInformacionQt.h"
#include "adaptadores/qt/VistaMunicipiosQt.h"
#include "pruebas/qt/Atiende.h"
#include "pruebas/qt/EscenaDialogoDatos.h"

namespace analizador {
namespace {

class ManejoDatosQt : public EscenaDialogoDatos {
  protected:
    [[nodiscard]] bool Abierta(const char* lista) const { return Lista(lista).view()->isVisible(); }
    void EscribeFechaMala() {
        Clic(Control("MEFecha_Naci"));
        Pulsa(Qt::Key_Home);
        Teclea("31022001");
        ASSERT_EQ(Caja("MEFecha_Naci").text(), QStringLiteral("31/02/2001"));
    }
    [[nodiscard]] std::size_t Avisos() const { return Escena.Mensajes.Mostrados.size(); }
};

TEST_F(ManejoDatosQt, OpensInTheNameBox) {
    Abre();
    EXPECT_EQ(ConFoco(), "ENombre");
    EXPECT_TRUE(Control("ENombre").isEnabled());
}

// ---- Typing

TEST_F(ManejoDatosQt, WhatIsTypedOrPastedBecomesCapitals) {
    Otorgante.Padre = "Luis";
    Abre();
    Clic(Control("EPadre"));
    Pulsa(Qt::Key_End);
    Teclea(QStringLiteral(" ñandú"));
    EXPECT_EQ(Caja("EPadre").text(), QStringLiteral("Luis ÑANDÚ"));
    QApplication::clipboard()->setText(QStringLiteral(" peña\u0303"));
    Caja("EPadre").paste();
    EXPECT_EQ(Caja("EPadre").text(), QStringLiteral("Luis ÑANDÚ PEÑÃ"));
    EXPECT_EQ(Dialogo->Control(TControlDatos::EPadre).Texto, "Luis ÑANDÚ PEÑÃ"_a);
}

TEST_F(ManejoDatosQt, TypingCanBeUndone) {
    Abre();
    Clic(Control("EPadre"));
    Pulsa(Qt::Key_End);
    Teclea("x");
    ASSERT_EQ(Caja("EPadre").text(), QStringLiteral("LUISX"));
    Pulsa(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Caja("EPadre").text(), QStringLiteral("LUIS"));
    EXPECT_EQ(Dialogo->Control(TControlDatos::EPadre).Texto, "LUIS");
}

TEST_F(ManejoDatosQt, LengthsBindWhatIsTypedOnly) {
    Otorgante.Numero = "123456";
    Abre();
    EXPECT_EQ(Caja("ENUMERO").text(), QStringLiteral("123456"));
    Clic(Control("ENUMERO"));
    Pulsa(Qt::Key_End);
    Teclea("7");
    EXPECT_EQ(Caja("ENUMERO").text(), QStringLiteral("123456"));
    Pulsa(Qt::Key_A, Qt::ControlModifier);
    Teclea("98765");
    EXPECT_EQ(Caja("ENUMERO").text(), QStringLiteral("9876"));
}

TEST_F(ManejoDatosQt, NothingIsCompletedOrInsertedInAnEditableList) {
    Abre();
    const int elementos = Lista("CBPais").count();
    Clic(Caja("CBPais"));
    ASSERT_EQ(ConFoco(), "CBPais");
    Pulsa(Qt::Key_A, Qt::ControlModifier);
    Teclea("bol");
    EXPECT_EQ(Caja("CBPais").text(), QStringLiteral("BOL"));
    Pulsa(Qt::Key_Return);
    EXPECT_EQ(ConFoco(), "ECodPais");
    EXPECT_EQ(Caja("CBPais").text(), QStringLiteral("BOL"));
    EXPECT_EQ(Lista("CBPais").count(), elementos);
}

TEST_F(ManejoDatosQt, LeavingAListIsNoChange) {
    Abre();
    Clic(Control("ECodPais"));
    Pulsa(Qt::Key_A, Qt::ControlModifier);
    Teclea("999");
    Clic(Caja("CBPais"));
    Pulsa(Qt::Key_Tab);
    Pulsa(Qt::Key_Tab);
    EXPECT_EQ(Caja("CBPais").text(), QStringLiteral("FRANCIA [250]"));
    EXPECT_EQ(Caja("ECodPais").text(), QStringLiteral("999"));
}

// ---- Focus

TEST_F(ManejoDatosQt, TabEnterAndShiftTabGoTheTablesWay) {
    const std::vector<std::string> orden = {"ENombre",
                                            "EApellidos",
                                            "CBTipoDocumento",
                                            "ENumDocumento",
                                            "CBEstadoCivil",
                                            "CBRegimen",
                                            "EConyuge",
                                            "CBPais_Naci",
                                            "ELugar_Naci",
                                            "CBProv_Naci",
                                            "MEFecha_Naci",
                                            "EPadre",
                                            "EMadre",
                                            "CBTipoVia",
                                            "EDOMICILIO",
                                            "ENUMERO",
                                            "EVECINDAD",
                                            "CBPROVINCIA",
                                            "ECODPOSTAL",
                                            "ECODINE",
                                            "CBPais",
                                            "ECodPais",
                                            "CBNacionalid",
                                            "CBRESIDENTE",
                                            "BLISTA",
                                            "CBIntervencion_VRK",
                                            "CBIntervencion_INTI",
                                            "BBAceptar",
                                            "BBCancelar",
                                            "CBSexo",
                                            "ENombre"};
    Abre();
    for (const Qt::Key tecla : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Enter}) {
        std::vector<std::string> pasos = {ConFoco()};
        for (std::size_t i = 1; i < orden.size(); ++i) {
            Pulsa(tecla);
            pasos.push_back(ConFoco());
        }
        EXPECT_EQ(pasos, orden) << tecla;
    }
    std::vector<std::string> pasos = {ConFoco()};
    for (std::size_t i = 1; i < orden.size(); ++i) {
        Pulsa(Qt::Key_Backtab, Qt::ShiftModifier);
        pasos.push_back(ConFoco());
    }
    EXPECT_EQ(pasos, std::vector(orden.rbegin(), orden.rend()));
    EXPECT_FALSE(Dialogo->Resultado());
}

TEST_F(ManejoDatosQt, FocusPutByAnAidOrALabelCountsAsMoved) {
    Abre();
    Control("EMadre").setFocus(Qt::ShortcutFocusReason);
    QTest::qWait(1);
    EXPECT_EQ(Dialogo->Foco(), TControlDatos::EMadre);
}

TEST_F(ManejoDatosQt, WomanChosenGreysTheNameAndLeavingTheListEmptiesIt) {
    Abre();
    auto& rotulo = *Ventana->findChild<QLabel*>("ROTULO_ENombre");
    Clic(Control("CBSexo"));
    Pulsa(Qt::Key_Escape);  // the click opened the list
    ASSERT_FALSE(Abierta("CBSexo"));
    EligeEnLista(1);
    EXPECT_EQ(Lista("CBSexo").currentText(), QStringLiteral("M.- Mujer"));
    EXPECT_FALSE(Control("ENombre").isEnabled());
    EXPECT_FALSE(rotulo.isEnabled());
    EXPECT_EQ(Caja("ENombre").text(), QStringLiteral("JOSE"));
    Pulsa(Qt::Key_Tab);
    EXPECT_EQ(ConFoco(), "EApellidos");
    EXPECT_EQ(Caja("ENombre").text(), QString());
    Pulsa(Qt::Key_Backtab, Qt::ShiftModifier);
    EligeEnLista(-1);
    EXPECT_TRUE(Control("ENombre").isEnabled());
    EXPECT_TRUE(rotulo.isEnabled());
}

TEST_F(ManejoDatosQt, ChoosingACountryWritesItsCode) {
    Abre();
    Clic(Caja("CBPais"));
    ASSERT_EQ(Lista("CBPais").currentText(), QStringLiteral("FRANCIA [250]"));
    EligeEnLista(-1);
    EXPECT_EQ(Lista("CBPais").currentText(), QStringLiteral("ESPAÑA [724]"));
    EXPECT_EQ(Caja("ECodPais").text(), QStringLiteral("724"));
}

// ---- Lists

TEST_F(ManejoDatosQt, ArrowsOpenTheListsInsteadOfSteppingThroughThem) {
    Abre();
    for (const char* nombre : {"CBSexo", "CBRegimen", "CBPROVINCIA", "CBPais", "CBIntervencion_INTI"}) {
        for (const Qt::Key flecha : {Qt::Key_Up, Qt::Key_Down}) {
            AlFrente();
            Control(nombre).setFocus(Qt::OtherFocusReason);
            QTest::qWait(1);
            const int elegido = Lista(nombre).currentIndex();
            Pulsa(flecha);
            EXPECT_TRUE(Abierta(nombre)) << nombre;
            EXPECT_EQ(Lista(nombre).currentIndex(), elegido) << nombre;
            Pulsa(flecha);
            Pulsa(Qt::Key_Escape);  // closes the list alone
            EXPECT_FALSE(Abierta(nombre)) << nombre;
            EXPECT_EQ(Lista(nombre).currentIndex(), elegido) << nombre;
            EXPECT_FALSE(Dialogo->Resultado()) << nombre;
            EXPECT_EQ(ConFoco(), nombre);
        }
    }
}

TEST_F(ManejoDatosQt, WheelLeavesAClosedListAlone) {
    Abre();
    auto& lista = Lista("CBRegimen");
    Clic(Control("EConyuge"));
    const int elegido = lista.currentIndex();
    for (const int vuelta : {-120, 120}) {
        QWheelEvent rueda(QPointF(5, 5), lista.mapToGlobal(QPointF(5, 5)), {}, {0, vuelta}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&lista, &rueda);
    }
    EXPECT_EQ(lista.currentIndex(), elegido);
    EXPECT_EQ(ConFoco(), "EConyuge");
}

// ---- The date

TEST_F(ManejoDatosQt, ValidDateIsWrittenBackInItsFullForm) {
    const struct {
        QString Tecleado, Escrito;
    } casos[] = {
        {"01021990", "01/02/1990"}, {"1/2/1990", "01/02/1990"}, {"1/2/90", "01/02/1990"}, {"", "  /  /    "}};
    for (const auto& caso : casos) {
        Abre();
        Clic(Control("MEFecha_Naci"));
        Pulsa(Qt::Key_A, Qt::ControlModifier);
        Pulsa(Qt::Key_Delete);
        Pulsa(Qt::Key_Home);
        Teclea(caso.Tecleado);
        Pulsa(Qt::Key_Tab);
        EXPECT_EQ(Caja("MEFecha_Naci").text(), caso.Escrito) << caso.Tecleado.toStdString();
        EXPECT_EQ(ConFoco(), "EPadre");
    }
    EXPECT_EQ(Avisos(), 0U);
}

TEST_F(ManejoDatosQt, InvalidDateKeepsTheFocusHoweverItIsLeft) {
    Abre();
    EscribeFechaMala();
    std::size_t avisos = 0;
    const std::function<void()> maneras[] = {
        [this] { Pulsa(Qt::Key_Tab); },
        [this] { Pulsa(Qt::Key_Backtab, Qt::ShiftModifier); },
        [this] { Pulsa(Qt::Key_Return); },
        [this] { Clic(Control("EPadre")); },
        [this] { Clic(Control("CBSexo")); },
        [this] { Clic(Control("CBRESIDENTE")); },
        [this] { Clic(Control("BBAceptar")); },
        [this] { Control("EPadre").setFocus(Qt::OtherFocusReason); },
        [this] { Pulsa(Qt::Key_A, Qt::AltModifier); },
    };
    for (const auto& manera : maneras) {
        manera();
        ASSERT_TRUE(QTest::qWaitFor([&] { return Avisos() > avisos; })) << avisos;
        EXPECT_EQ(Avisos(), ++avisos);
        EXPECT_EQ(ConFoco(), "MEFecha_Naci");
        EXPECT_FALSE(Dialogo->Resultado());
    }
    EXPECT_FALSE(Control<QCheckBox>("CBRESIDENTE").isChecked());
    EXPECT_EQ(Otorgante, OtorganteCompleto());
    EXPECT_EQ(Escena.Mensajes.Mostrados.front(),
              std::pair(std::string(TITULO_ATENCION), std::string("La fecha introducida no es correcta")));
}

TEST_F(ManejoDatosQt, TheMessageIsABoxOverTheWindowAndTheFocusComesBack) {
    TMensajesQt mensajes;
    const InstalaMensajes guarda(mensajes);
    Abre();
    EscribeFechaMala();
    QString texto;
    const QWidget* padre = nullptr;
    const TAtiende clerk([&](QDialog& caja) {
        texto = dynamic_cast<QMessageBox&>(caja).text();
        padre = caja.parentWidget();
        QTest::keyClick(&caja, Qt::Key_Return);
    });
    Clic(Control("EMadre"));
    EXPECT_EQ(texto, QStringLiteral("La fecha introducida no es correcta"));
    EXPECT_EQ(padre, Ventana.get());
    EXPECT_EQ(Ventana->focusWidget(), &Control("MEFecha_Naci"));
}

TEST_F(ManejoDatosQt, InvalidDateDoesNotHinderClosing) {
    const std::function<void()> maneras[] = {
        [this] { Pulsa(Qt::Key_Escape); },
        [this] { Clic(Control("BBCancelar")); },
        [this] { Ventana->close(); },
        [this] { Pulsa(Qt::Key_C, Qt::AltModifier); },
    };
    for (const auto& manera : maneras) {
        Abre();
        EscribeFechaMala();
        manera();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !Ventana->isVisible(); }));
        EXPECT_EQ(Dialogo->Resultado(), false);
    }
    EXPECT_EQ(Avisos(), 0U);
    EXPECT_EQ(Otorgante, OtorganteCompleto());
}

TEST_F(ManejoDatosQt, AnotherWindowInFrontIsNoLeaving) {
    Abre();
    EscribeFechaMala();
    QWidget otra;
    otra.show();
    otra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&otra));
    Ventana->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Ventana.get()));
    QTest::qWait(1);
    EXPECT_EQ(Avisos(), 0U);
    EXPECT_EQ(ConFoco(), "MEFecha_Naci");
}

TEST_F(ManejoDatosQt, AClickInTheEmptyDateWritesFromItsBeginning) {
    Otorgante.FechaNacimiento.reset();
    Abre();
    auto& fecha = Control("MEFecha_Naci");
    QTest::mouseClick(&fecha, Qt::LeftButton, {}, QPoint(fecha.width() - 5, fecha.height() / 2));
    Teclea("07031965");
    EXPECT_EQ(Caja("MEFecha_Naci").text(), QStringLiteral("07/03/1965"));
}

// ---- Buttons

TEST_F(ManejoDatosQt, UpdateWritesTheRecordAndCloses) {
    Abre();
    Clic(Control("EMadre"));
    Pulsa(Qt::Key_A, Qt::ControlModifier);
    Teclea("eva");
    Clic(Control("CBRESIDENTE"));
    Pulsa(Qt::Key_A, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !Ventana->isVisible(); }));
    EXPECT_EQ(Dialogo->Resultado(), true);
    TROtorgante esperado = OtorganteCompleto();
    esperado.Madre = "EVA";
    esperado.Residente = false;
    EXPECT_EQ(Otorgante, esperado);
}

TEST_F(ManejoDatosQt, CancelLeavesTheRecordAsItWas) {
    Abre();
    Clic(Control("EMadre"));
    Teclea("eva");
    Clic(Control("BBCancelar"));
    EXPECT_EQ(Dialogo->Resultado(), false);
    EXPECT_EQ(Otorgante, OtorganteCompleto());
}

TEST_F(ManejoDatosQt, SpacePressesTheButtonThatHasTheFocus) {
    Abre();
    Pulsa(Qt::Key_Backtab, Qt::ShiftModifier);
    Pulsa(Qt::Key_Backtab, Qt::ShiftModifier);
    ASSERT_EQ(ConFoco(), "BBCancelar");
    Pulsa(Qt::Key_Return);
    EXPECT_FALSE(Dialogo->Resultado());
    Pulsa(Qt::Key_Backtab, Qt::ShiftModifier);
    Pulsa(Qt::Key_Space);
    EXPECT_EQ(Dialogo->Resultado(), false);
}

TEST_F(ManejoDatosQt, ListOfMunicipalitiesFillsTheAddress) {
    TVistaMunicipiosQt vista;
    const InstalaVistaMunicipios guarda(vista);
    Abre();
    const TAtiende clerk([this](QDialog& lista) {
        EXPECT_EQ(lista.parentWidget(), Ventana.get());
        ASSERT_TRUE(QTest::qWaitForWindowActive(&lista));
        QTest::keyClicks(lista.focusWidget(), "pinto");
        QTest::keyClick(lista.focusWidget(), Qt::Key_Return);
    });
    Pulsa(Qt::Key_L, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Caja("EVECINDAD").text() == "PINTO"; }));
    EXPECT_EQ(Caja("ECODPOSTAL").text(), QStringLiteral("28320"));
    EXPECT_EQ(Caja("ECODINE").text(), QStringLiteral("28113"));
    EXPECT_EQ(Caja("CBPROVINCIA").text(), QStringLiteral("MADRID [28]"));
    EXPECT_EQ(Ventana->focusWidget(), &Control("BLISTA"));
}

TEST_F(ManejoDatosQt, InstalledItShowsThePartyModally) {
    TVistaInformacionQt vista;
    const InstalaVistaInformacion guarda(vista);
    QString titulo, nombre;
    {
        const TAtiende clerk([&](QDialog& dialogo) {
            titulo = dialogo.windowTitle();
            nombre = dialogo.findChild<QLineEdit*>("ENombre")->text();
            dialogo.findChild<QPushButton*>("BBAceptar")->click();
        });
        EXPECT_TRUE(MuestraInformacionOtorgante(nullptr, Otorgante));
    }
    EXPECT_EQ(titulo, QStringLiteral("Datos leidos"));
    EXPECT_EQ(nombre, QStringLiteral("JOSE"));
    EXPECT_EQ(Otorgante, OtorganteCompleto());
    const TAtiende clerk([](QDialog& dialogo) { dialogo.close(); });
    EXPECT_FALSE(MuestraInformacionOtorgante(nullptr, Otorgante));
}

}  // namespace
}  // namespace analizador

#include "adaptadores/qt/PantallaQt.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "adaptadores/qt/MensajesQt.h"
#include "plataforma/Ansi.h"
#include "pruebas/qt/Atiende.h"

namespace analizador {
namespace {

class PantallaQt : public testing::Test {
  protected:
    void SetUp() override {
        anfitrion_.resize(300, 200);
        anfitrion_.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&anfitrion_));
    }
    // The progress window; nullptr when there is none.
    static QWidget* Ventana() {
        for (auto* ventana : QApplication::topLevelWidgets())
            if (ventana->objectName() == "Progreso") return ventana;
        return nullptr;
    }

    QWidget anfitrion_;
    TPantallaQt pantalla_;
    InstalaPantalla guarda_{pantalla_};
};

// Counts what is painted.
class TCuentaPintadas : public QObject {
  public:
    explicit TCuentaPintadas(QWidget& control) { control.installEventFilter(this); }
    int Cuantas = 0;

  protected:
    bool eventFilter(QObject* /*objeto*/, QEvent* evento) override {
        if (evento->type() == QEvent::Paint) ++Cuantas;
        return false;
    }
};

TEST_F(PantallaQt, EachTextIsPaintedBeforeTheCallReturns) {
    auto mensaje = MuestraMensaje("Analizando cuantías"_ansi, nullptr);
    ASSERT_NE(Ventana(), nullptr);
    auto& texto = *Ventana()->findChild<QLabel*>();
    EXPECT_TRUE(Ventana()->isVisible());
    EXPECT_EQ(texto.text(), QStringLiteral("Analizando cuantías"));
    TCuentaPintadas pintadas(texto);
    CambiaMensaje("Analizando la parte deudora del documento", mensaje.get());
    EXPECT_GE(pintadas.Cuantas, 1);
    EXPECT_EQ(texto.text(), QStringLiteral("Analizando la parte deudora del documento"));
    EXPECT_GE(texto.width(), texto.sizeHint().width());
    CierraMensaje(mensaje);
    EXPECT_EQ(Ventana(), nullptr);
}

// The platform of the tests brings every window to the front, so that only what is asked of a real one shows.
TEST_F(PantallaQt, AsksForNoFocusAndBlocksNothing) {
    const auto mensaje = MuestraMensaje("Analizando", nullptr);
    EXPECT_TRUE(Ventana()->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
    EXPECT_TRUE(Ventana()->testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_FALSE(Ventana()->isModal());
}

TEST_F(PantallaQt, HidesWhileADialogShows) {
    const auto mensaje = MuestraMensaje("Analizando", nullptr);
    TMensajesQt mensajes;
    bool escondida = false;
    const TAtiende clerk([&](QDialog& caja) {
        CambiaMensaje("Otra fase", mensaje.get());
        escondida = !Ventana()->isVisible();
        caja.accept();
    });
    mensajes.Muestra("", "texto");
    EXPECT_TRUE(escondida);
    EXPECT_TRUE(Ventana()->isVisible());
}

TEST_F(PantallaQt, ShowsOverADialogOfTheHost) {
    QDialog del_anfitrion;
    del_anfitrion.setModal(true);
    del_anfitrion.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&del_anfitrion));
    const auto mensaje = MuestraMensaje("Analizando", nullptr);
    EXPECT_TRUE(Ventana()->isVisible());
    EXPECT_EQ(Ventana()->parentWidget(), &del_anfitrion);
}

TEST_F(PantallaQt, OutlivesTheWindowItIsShownOver) {
    auto otra = std::make_unique<QWidget>();
    otra->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(otra.get()));
    auto mensaje = MuestraMensaje("Analizando", nullptr);
    otra.reset();
    EXPECT_EQ(Ventana(), nullptr);
    CambiaMensaje("Otra fase", mensaje.get());
    CierraMensaje(mensaje);
}

}  // namespace
}  // namespace analizador

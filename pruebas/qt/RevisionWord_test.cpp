// A review of the deed that is open in Word, in a program that has no windows of this toolkit.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <QLineEdit>
#include <QScreen>
#include <QTest>
#include <cstdint>

#include "adaptadores/word/AplicacionWord.h"
#include "analizador/ClaseAnalizadorAbierto.h"
#include "plataforma/Mensaje.h"
#include "programas/analiza/Entorno.h"
#include "programas/biblioteca/Ventanas.h"
#include "pruebas/qt/Atiende.h"
#include "pruebas/qt/Controles.h"
#include "pruebas/word/Compraventa.h"
#include "pruebas/word/WordDePrueba.h"

namespace analizador {
namespace {

HWND Asa(std::intptr_t ventana) {
    return reinterpret_cast<HWND>(ventana);
}

std::intptr_t Propietaria(const QWidget& ventana) {
    return reinterpret_cast<std::intptr_t>(
        GetWindow(Asa(static_cast<std::intptr_t>(ventana.winId())), GW_OWNER));
}

class RevisionWord : public testing::Test {
  protected:
    RevisionWord() {
        Word.Abre({pruebas::COMPRAVENTA, {}, {}});
        VentanaDeWord = Word.Orden().Entero("Prueba_Ventana");
    }
    ~RevisionWord() override { Word.Orden().Haz("Prueba_SinVentana"); }

    pruebas::TWordDePrueba& Word = pruebas::TWordDePrueba::EnMarcha();
    std::intptr_t VentanaDeWord = 0;
    const TAjustesOficina Ajustes{CARPETA_VOCABULARIO, CARPETA_TABLAS};
    TAplicacionWord Aplicacion{*Word.Aplicacion()};
    TClassAnalizadorAbierto Sesion{nullptr, &Aplicacion};
};

TEST_F(RevisionWord, LoAceptadoSeEligeEnVentanasDeLaDeWord) {
    ASSERT_NE(VentanaDeWord, 0);
    const auto ventanas = AbreVentanas(Aplicacion.Ventana());
    std::intptr_t propietaria = 0;
    const TAtiende enLaLista([&](QDialog& lista) {
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&lista));
        propietaria = Propietaria(lista);
        EXPECT_TRUE(lista.screen()->availableGeometry().contains(lista.frameGeometry()));
        Lista(lista, "LBPosiblesConceptos").selectAll();
        Pulsa(lista, "BMas");
        auto& validos = Lista(lista, "LBOtorgantes");
        validos.setCurrentIndex(validos.model()->index(0, 0));
        const TAtiende enLosDatos([](QDialog& datos) {
            auto& nombre = Control<QLineEdit>(datos, "ENombre");
            nombre.selectAll();
            QTest::keyClicks(&nombre, "pablo");
            Pulsa(datos, "BBAceptar");
        });
        Pulsa(lista, "BDetallesOtorgante");
        validos.setCurrentIndex(validos.model()->index(1, 0));
        Pulsa(lista, "BMenosOtor");
        Pulsa(lista, "BContinuar");
    });
    EXPECT_TRUE(Sesion.Analiza(false));
    EXPECT_EQ(propietaria, VentanaDeWord);
    ASSERT_EQ(Sesion.ConceptosValidos.Cuenta(), 1U);
    EXPECT_EQ(Sesion.ConceptosValidos[0].Objeto->NumeroTipo, 1);
    ASSERT_EQ(Sesion.Otorgantes.Lista.Cuenta(), 1U);
    EXPECT_EQ(Sesion.Otorgantes.Lista[0].Texto, "PABLO PEREZ GIL");
    EXPECT_EQ(Word.Objetos(), 0);
}

TEST_F(RevisionWord, LoCanceladoNoEligeNada) {
    const auto ventanas = AbreVentanas(Aplicacion.Ventana());
    const TAtiende enLaLista([](QDialog& lista) {
        Lista(lista, "LBPosiblesConceptos").selectAll();
        Pulsa(lista, "BMas");
        const TAtiende enLosDatos([](QDialog& datos) { QTest::keyClick(&datos, Qt::Key_Escape); });
        auto& validos = Lista(lista, "LBOtorgantes");
        validos.setCurrentIndex(validos.model()->index(0, 0));
        Pulsa(lista, "BDetallesOtorgante");
        QTest::keyClick(&lista, Qt::Key_Escape);
    });
    EXPECT_FALSE(Sesion.Analiza(false));
    EXPECT_TRUE(Sesion.ConceptosValidos.Vacia());
    EXPECT_EQ(Sesion.Otorgantes.Lista.Cuenta(), 2U);
}

// The windows of the program begin and end with each review.
TEST_F(RevisionWord, SeRevisaOtraVezAunqueWordNoDigaSuVentana) {
    Word.Orden().Haz("Prueba_SinVentana");
    ASSERT_EQ(Aplicacion.Ventana(), 0);
    for (int vez = 0; vez < 2; ++vez) {
        const auto ventanas = AbreVentanas(0);
        const TAtiende enLaLista([](QDialog& lista) { Pulsa(lista, "BContinuar"); });
        EXPECT_TRUE(Sesion.Analiza(false));
    }
    EXPECT_EQ(QCoreApplication::instance(), nullptr);
}

TEST_F(RevisionWord, SinDocumentoNoHayVentana) {
    Word.Orden().Haz("Prueba_Cierra");
    EXPECT_EQ(Aplicacion.Ventana(), 0);
}

// Word is the host when a macro asks: its window waits for the dialog, whose middle is its own.
TEST(VentanaDelAnfitrion, NoAtiendeMientrasHayUnDialogo) {
    const HWND anfitriona = CreateWindowExW(0, L"STATIC", L"anfitriona", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                            100, 80, 700, 500, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(anfitriona, nullptr);
    const auto ventanas = AbreVentanas(reinterpret_cast<std::intptr_t>(anfitriona));
    bool atiende = true;
    QPoint centro;
    const TAtiende aLaPregunta([&](QDialog& pregunta) {
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&pregunta));
        atiende = IsWindowEnabled(anfitriona) != FALSE;
        centro = pregunta.geometry().center();
        EXPECT_EQ(Asa(Propietaria(pregunta)), anfitriona);
        QTest::keyClick(&pregunta, Qt::Key_Escape);
    });
    EXPECT_FALSE(Mensaje_NoSi(TITULO_ATENCION, "Una escritura.", "Otra pregunta?"));
    EXPECT_FALSE(atiende);
    EXPECT_TRUE(IsWindowEnabled(anfitriona));
    EXPECT_LT((centro - QPoint(450, 330)).manhattanLength(), 60);
    DestroyWindow(anfitriona);
}

}  // namespace
}  // namespace analizador

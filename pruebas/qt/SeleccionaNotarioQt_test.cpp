#include "adaptadores/qt/SeleccionaNotarioQt.h"

#include <gtest/gtest.h>

#include <QListWidget>
#include <QTest>

#include "adaptadores/qt/TextoQt.h"
#include "pruebas/comun/ConfigDePrueba.h"
#include "pruebas/comun/Literales.h"
#include "pruebas/qt/Atiende.h"

namespace analizador {
namespace {

class SeleccionaNotarioQt : public testing::Test {
  protected:
    SeleccionaNotarioQt() { config_.Notarios = {"LUIS SANZ", std::string("EVA MUÑOZ"_a), "ANA GIL"}; }
    static QListWidget& Lista(QDialog& dialogo) { return *dialogo.findChild<QListWidget*>(); }
    // What is selected at the end, when the clerk finds `antes` selected and does this.
    static int Elige(int antes, const std::function<void(QDialog&)>& que) {
        TSeleccionaNotarioQt creador;
        const auto dialogo = creador.Crea();
        dialogo->PonTitulo("Seleccione el notario: ");
        dialogo->Selecciona(antes);
        const TAtiende clerk(que);
        dialogo->MuestraModal();
        return dialogo->Seleccionada();
    }

  private:
    TConfigDePrueba config_;
    InstalaConfig guarda_{config_};
};

TEST_F(SeleccionaNotarioQt, ListsTheOfficesNotariesUnderTheTitleGiven) {
    QStringList entradas;
    QString titulo;
    EXPECT_EQ(Elige(1,
                    [&](QDialog& dialogo) {
                        titulo = dialogo.windowTitle();
                        for (int i = 0; i < Lista(dialogo).count(); ++i)
                            entradas << Lista(dialogo).item(i)->text();
                        dialogo.close();
                    }),
              1);
    EXPECT_EQ(titulo, QStringLiteral("Seleccione el notario: "));
    EXPECT_EQ(entradas, (QStringList{"LUIS SANZ", QStringLiteral("EVA MUÑOZ"), "ANA GIL"}));
}

TEST_F(SeleccionaNotarioQt, KeysAndDoubleClickCloseItWithWhatIsSelected) {
    const auto pulsa = [](std::initializer_list<Qt::Key> teclas) {
        return [secuencia = std::vector(teclas)](QDialog& dialogo) {
            ASSERT_TRUE(QTest::qWaitForWindowActive(&dialogo));
            for (const auto tecla : secuencia) QTest::keyClick(dialogo.focusWidget(), tecla);
        };
    };
    EXPECT_EQ(Elige(0, pulsa({Qt::Key_Down, Qt::Key_Return})), 1);
    EXPECT_EQ(Elige(0, pulsa({Qt::Key_Down, Qt::Key_Down, Qt::Key_Escape})), 2);
    EXPECT_EQ(Elige(-1, pulsa({Qt::Key_Escape})), -1);
    EXPECT_EQ(Elige(0,
                    [](QDialog& dialogo) {
                        auto& lista = Lista(dialogo);
                        const QPoint sitio = lista.visualItemRect(lista.item(2)).center();
                        QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, sitio);
                        QTest::mouseDClick(lista.viewport(), Qt::LeftButton, {}, sitio);
                    }),
              2);
}

TEST_F(SeleccionaNotarioQt, SelectingWhatDoesNotExistSelectsNone) {
    TSeleccionaNotarioQt creador;
    const auto dialogo = creador.Crea();
    for (const int posicion : {-1, -7, 3}) {
        dialogo->Selecciona(1);
        dialogo->Selecciona(posicion);
        EXPECT_EQ(dialogo->Seleccionada(), -1) << posicion;
    }
}

}  // namespace
}  // namespace analizador

#include "adaptadores/qt/VistaMunicipiosQt.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTableView>
#include <QTest>

#include "adaptadores/qt/TextoQt.h"
#include "pruebas/comun/Literales.h"
#include "pruebas/dialogos/EscenaDatos.h"
#include "pruebas/qt/Atiende.h"

namespace analizador {
namespace {

class VistaMunicipiosQt : public testing::Test {
  protected:
    static QTableView& Tabla(QDialog& dialogo) { return *dialogo.findChild<QTableView*>("TMunicipios"); }
    static QString Celda(QDialog& dialogo, int fila, int columna) {
        return Tabla(dialogo).model()->index(fila, columna).data().toString();
    }
    static QString FilaActual(QDialog& dialogo) {
        return Celda(dialogo, Tabla(dialogo).currentIndex().row(), 0);
    }
    static void Teclea(QDialog& dialogo, Qt::Key tecla) { QTest::keyClick(dialogo.focusWidget(), tecla); }
    // What is picked, as the statistics code, when the clerk does this in the picker; empty when nothing.
    static std::string Elige(const TSemillasMunicipio& semillas, const std::function<void(QDialog&)>& que) {
        TVistaMunicipiosQt vista;
        const InstalaVistaMunicipios guarda(vista);
        const TAtiende clerk([&](QDialog& dialogo) {
            ASSERT_TRUE(QTest::qWaitForWindowActive(&dialogo));
            que(dialogo);
        });
        const auto municipio = IMunicipios(semillas);
        return municipio ? municipio->CodINE : std::string();
    }

  private:
    TEscenaDatos escena_;
};

TEST_F(VistaMunicipiosQt, ShowsNameProvinceAndCodesAndOpensAtTheSeeds) {
    EXPECT_EQ(Elige({"", "47104", ""},
                    [](QDialog& dialogo) {
                        EXPECT_EQ(dialogo.focusWidget()->objectName(), QStringLiteral("EFiltro"));
                        EXPECT_EQ(FilaActual(dialogo), QStringLiteral("OLMEDO"));
                        EXPECT_EQ(Celda(dialogo, 0, 0), QStringLiteral("A CORUÑA"));
                        EXPECT_EQ(Celda(dialogo, 0, 1), QStringLiteral("CORUÑA"));
                        EXPECT_EQ(Celda(dialogo, 0, 2), QStringLiteral("15001"));
                        EXPECT_EQ(Celda(dialogo, 0, 3), QStringLiteral("15030"));
                        Teclea(dialogo, Qt::Key_Return);
                    }),
              "47104");
}

TEST_F(VistaMunicipiosQt, FiltersAsOneTypes) {
    EXPECT_EQ(Elige({},
                    [](QDialog& dialogo) {
                        QTest::keyClicks(dialogo.focusWidget(), "vall");
                        EXPECT_EQ(Tabla(dialogo).model()->rowCount(), 3);  // one in the province alone
                        EXPECT_EQ(FilaActual(dialogo), QStringLiteral("VALLADOLID"));
                        QTest::keyClicks(dialogo.focusWidget(), " olm");
                        EXPECT_EQ(Tabla(dialogo).model()->rowCount(), 1);
                        Teclea(dialogo, Qt::Key_Enter);
                    }),
              "47104");
}

TEST_F(VistaMunicipiosQt, ArrowsAndPagesMoveTheRowWhileTheBoxKeepsTheFocus) {
    EXPECT_EQ(Elige({},
                    [](QDialog& dialogo) {
                        const QString primera = FilaActual(dialogo);
                        Teclea(dialogo, Qt::Key_Up);
                        EXPECT_EQ(FilaActual(dialogo), primera);
                        Teclea(dialogo, Qt::Key_Down);
                        EXPECT_EQ(FilaActual(dialogo), Celda(dialogo, 1, 0));
                        Teclea(dialogo, Qt::Key_PageDown);
                        EXPECT_EQ(FilaActual(dialogo), QStringLiteral("VALLADOLID"));
                        EXPECT_EQ(dialogo.focusWidget()->objectName(), QStringLiteral("EFiltro"));
                        Teclea(dialogo, Qt::Key_PageUp);
                        EXPECT_EQ(FilaActual(dialogo), primera);
                        Teclea(dialogo, Qt::Key_Down);
                        Teclea(dialogo, Qt::Key_Return);
                    }),
              "42004");
}

TEST_F(VistaMunicipiosQt, DoubleClickPicks) {
    EXPECT_EQ(Elige({},
                    [](QDialog& dialogo) {
                        auto& tabla = Tabla(dialogo);
                        const QPoint sitio = tabla.visualRect(tabla.model()->index(2, 1)).center();
                        QTest::mouseClick(tabla.viewport(), Qt::LeftButton, {}, sitio);
                        QTest::mouseDClick(tabla.viewport(), Qt::LeftButton, {}, sitio);
                    }),
              "47104");
}

TEST_F(VistaMunicipiosQt, EscapeLeavesAndWithoutRowsThereIsNothingToPick) {
    EXPECT_EQ(Elige({}, [](QDialog& dialogo) { Teclea(dialogo, Qt::Key_Escape); }), "");
    EXPECT_EQ(Elige({},
                    [](QDialog& dialogo) {
                        QTest::keyClicks(dialogo.focusWidget(), "zzz");
                        Teclea(dialogo, Qt::Key_Down);
                        Teclea(dialogo, Qt::Key_Return);
                        EXPECT_TRUE(dialogo.isVisible());
                        Teclea(dialogo, Qt::Key_Escape);
                    }),
              "");
}

}  // namespace
}  // namespace analizador

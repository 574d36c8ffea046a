// The grid of deed types: its titles and its search box.

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

#include "adaptadores/qt/VentanasQt.h"
#include "pruebas/qt/EscenaVentana.h"

namespace analizador {
namespace {

class RejillaPreseleccion : public testing::Test {
  protected:
    QHeaderView& Titulos() { return *escena_.Control<QTableView>("dbgTipos").horizontalHeader(); }
    void ClicTitulo(TColumnaTipos columna) {
        const int x = Titulos().sectionViewportPosition(static_cast<int>(columna)) + 8;
        QTest::mouseClick(Titulos().viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(x, Titulos().height() / 2));
    }
    QColor FondoTitulos() { return Titulos().grab().toImage().pixelColor(1, 1); }
    QString Columna(int fila, TColumnaTipos columna) {
        return escena_.Vista("dbgTipos").model()->index(fila, static_cast<int>(columna)).data().toString();
    }
    QStringList Columna(TColumnaTipos columna) {
        QStringList textos;
        for (int i = 0; i < escena_.Vista("dbgTipos").model()->rowCount(); ++i) textos << Columna(i, columna);
        return textos;
    }
    QString TipoActual() { return Columna(escena_.Actual("dbgTipos"), TColumnaTipos::TIPO); }
    void Busca(const QString& texto) {
        auto& busca = escena_.Control<QLineEdit>("eBusca");
        busca.setFocus();
        busca.selectAll();
        escena_.Escribe(texto);
    }

    TEscenaVentana escena_;
};

TEST_F(RejillaPreseleccion, OpensInTheOrderOfTypeOnTheFirstConcept) {
    escena_.Abre();
    EXPECT_EQ(Columna(TColumnaTipos::TIPO),
              QStringList({"PODER", "PRESTAMO", "PRESTAMO HIPOTECARIO", "VENTA"}));
    EXPECT_EQ(TipoActual(), "VENTA");
    QStringList titulos;
    for (int i = 0; i < 4; ++i)
        titulos << escena_.Vista("dbgTipos").model()->headerData(i, Qt::Horizontal).toString();
    EXPECT_EQ(titulos, QStringList({"NOMBRE", "NUMEROTIPO", "CLAVE_INTI", "TIPO"}));
    EXPECT_EQ(Columna(3, TColumnaTipos::NOMBRE), "Venta de finca");
    EXPECT_EQ(Columna(3, TColumnaTipos::NUMEROTIPO), "10");
    EXPECT_EQ(Columna(3, TColumnaTipos::CLAVE_INTI), "D");
}

TEST_F(RejillaPreseleccion, ClickOnATitleOrdersAndMovesTheFocus) {
    const struct {
        TColumnaTipos Titulo, Orden;
        const char* Foco;
        QStringList Tipos;
    } casos[] = {
        {TColumnaTipos::NUMEROTIPO,
         TColumnaTipos::NUMEROTIPO,
         "eBusca",
         {"PRESTAMO HIPOTECARIO", "PRESTAMO", "VENTA", "PODER"}},
        {TColumnaTipos::CLAVE_INTI,
         TColumnaTipos::CLAVE_INTI,
         "dbgTipos",
         {"PODER", "PRESTAMO", "PRESTAMO HIPOTECARIO", "VENTA"}},
        {TColumnaTipos::TIPO,
         TColumnaTipos::TIPO,
         "eBusca",
         {"PODER", "PRESTAMO", "PRESTAMO HIPOTECARIO", "VENTA"}},
        {TColumnaTipos::NOMBRE,
         TColumnaTipos::TIPO,
         "dbgTipos",
         {"PODER", "PRESTAMO", "PRESTAMO HIPOTECARIO", "VENTA"}},
    };
    for (const auto& caso : casos) {
        escena_.Abre();
        for (int veces = 0; veces < 2; ++veces) {
            ClicTitulo(caso.Titulo);
            EXPECT_EQ(Columna(TColumnaTipos::TIPO), caso.Tipos);
            EXPECT_EQ(Titulos().sortIndicatorSection(), static_cast<int>(caso.Orden));
            EXPECT_EQ(Titulos().sortIndicatorOrder(), Qt::AscendingOrder);
            EXPECT_EQ(escena_.Foco(), caso.Foco);
        }
    }
}

TEST_F(RejillaPreseleccion, TitlesAreYellowWhileTheGridHasTheFocus) {
    escena_.Abre();
    const QColor boton = Titulos().palette().color(QPalette::Button);
    EXPECT_EQ(FondoTitulos(), boton);
    escena_.ClicFilas("dbgTipos", {0});
    EXPECT_EQ(FondoTitulos(), AMARILLO);
    escena_.Tecla(Qt::Key_Tab);
    EXPECT_EQ(FondoTitulos(), boton);
    escena_.Tecla(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(FondoTitulos(), AMARILLO);
    ClicTitulo(TColumnaTipos::TIPO);
    EXPECT_EQ(FondoTitulos(), boton);
}

TEST_F(RejillaPreseleccion, TitlesAreReadableOnTheYellowInADarkPalette) {
    const QPalette antes = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    escena_.Abre();
    escena_.ClicFilas("dbgTipos", {0});
    const QImage imagen = Titulos().grab().toImage();
    bool oscuro = false;
    for (int x = 0; x < Titulos().sectionSize(0) - 2; ++x)
        for (int y = 1; y < imagen.height() - 2; ++y) oscuro |= imagen.pixelColor(x, y).lightness() < 60;
    EXPECT_TRUE(oscuro);
    QApplication::setPalette(antes);
}

TEST_F(RejillaPreseleccion, TypingGoesToTheType) {
    const struct {
        const char* Texto;
        TColumnaTipos Orden;
        const char* Tipo;
    } casos[] = {{"30", TColumnaTipos::NUMEROTIPO, "PODER"},
                 {"4", TColumnaTipos::NUMEROTIPO, "PRESTAMO"},
                 {"pr\xC3\xA9s", TColumnaTipos::TIPO, "PRESTAMO"},
                 {"prestamo h", TColumnaTipos::TIPO, "PRESTAMO HIPOTECARIO"},
                 {"zzz", TColumnaTipos::TIPO, "VENTA"},  // the row stays where it was
                 {"999", TColumnaTipos::NUMEROTIPO, "VENTA"}};
    for (const auto& caso : casos) {
        escena_.Abre();
        if (caso.Texto == std::string("999")) Busca("v");
        Busca(QString::fromUtf8(caso.Texto));
        EXPECT_EQ(TipoActual(), caso.Tipo) << caso.Texto;
        EXPECT_EQ(Titulos().sortIndicatorSection(), static_cast<int>(caso.Orden)) << caso.Texto;
        EXPECT_EQ(escena_.Foco(), "eBusca") << caso.Texto;
        EXPECT_EQ(escena_.Control<QLineEdit>("eBusca").text(), QString::fromUtf8(caso.Texto));
    }
}

TEST_F(RejillaPreseleccion, LettersThatTheCodePageLacksStayAsTyped) {
    escena_.Abre();
    Busca(QStringLiteral("\u0416a"));
    EXPECT_EQ(escena_.Control<QLineEdit>("eBusca").text(), QStringLiteral("\u0416a"));
    EXPECT_EQ(escena_.Dialogo().TextoBusca(), "?a");
}

TEST_F(RejillaPreseleccion, WhatWasFoundIsAddedWithoutSelectingIt) {
    escena_.Abre();
    escena_.ClicFilas("dbgTipos", {3});
    Busca("po");
    escena_.Tecla(Qt::Key_Return);
    ASSERT_EQ(escena_.Foco(), "dbgTipos");
    escena_.Tecla(Qt::Key_Return);
    EXPECT_EQ(escena_.Filas("LBConceptos"), QStringList({"Poder"}));
}

TEST_F(RejillaPreseleccion, KeysOfTheSearchBox) {
    const struct {
        const char* Texto;
        Qt::Key Tecla;
        const char *Foco, *Tipo;
    } casos[] = {
        {"", Qt::Key_Return, "eBusca", "VENTA"},
        {"venta", Qt::Key_Return, "dbgTipos", "VENTA"},
        {"prestamo", Qt::Key_Return, "LBConceptos", "PRESTAMO"},
        {"prestamo", Qt::Key_Enter, "LBConceptos", "PRESTAMO"},
        {"v", Qt::Key_Escape, "LBConceptos", "VENTA"},
        {"", Qt::Key_Escape, "LBConceptos", "VENTA"},
        {"v", Qt::Key_PageUp, "dbgTipos", "VENTA"},
        {"v", Qt::Key_PageDown, "dbgTipos", "VENTA"},
        {"pr", Qt::Key_Down, "eBusca", "PRESTAMO HIPOTECARIO"},
        {"pr", Qt::Key_Up, "eBusca", "PODER"},
        {"v", Qt::Key_Down, "eBusca", "VENTA"},  // the last row
        {"v", Qt::Key_Insert, "eBusca", "VENTA"},
    };
    for (const auto& caso : casos) {
        escena_.Abre();
        escena_.Vista("LBPosiblesConceptos").selectAll();
        escena_.Clic("BMas");  // VENTA, which is never compared, and PRESTAMO
        Busca(caso.Texto);
        escena_.Tecla(caso.Tecla);
        EXPECT_EQ(escena_.Foco(), caso.Foco) << caso.Texto << ' ' << caso.Tecla;
        EXPECT_EQ(TipoActual(), caso.Tipo) << caso.Texto << ' ' << caso.Tecla;
        EXPECT_EQ(escena_.Filas("LBConceptos").size(), 2);
        EXPECT_TRUE(escena_.Ventana().isVisible());
    }
}

TEST_F(RejillaPreseleccion, OtherKeysAreTheBoxsOwn) {
    escena_.Abre();
    Busca("venta");
    escena_.Tecla(Qt::Key_Home);
    escena_.Tecla(Qt::Key_Delete);
    EXPECT_EQ(escena_.Control<QLineEdit>("eBusca").text(), "enta");
    EXPECT_EQ(escena_.Dialogo().TextoBusca(), "enta");
}

}  // namespace
}  // namespace analizador

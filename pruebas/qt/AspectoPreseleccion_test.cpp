// How the preselection dialog looks: no text cut off whatever the size of the letter, rows as high as their
// text, and as many of them as a deed can have.

#include <gtest/gtest.h>

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTableView>
#include <QTest>

#include "pruebas/qt/EscenaVentana.h"

namespace analizador {
namespace {

constexpr auto XML = "<datos/>";

class AspectoPreseleccion : public testing::TestWithParam<int> {
  protected:
    AspectoPreseleccion() {
        QFont letra = antes_;
        letra.setPointSizeF(antes_.pointSizeF() * GetParam());
        QApplication::setFont(letra);
    }
    ~AspectoPreseleccion() override { QApplication::setFont(antes_); }

    void Mide(QSize tamano) {
        escena_.Ventana().resize(tamano);
        QApplication::processEvents();
        escena_.Ventana().resize(tamano);
        QApplication::processEvents();
    }

    const QFont antes_ = QApplication::font();
    TEscenaVentana escena_;
};

TEST_P(AspectoPreseleccion, FitsASmallScreenWithNoTextCutOff) {
    escena_.Abre({}, XML);
    Mide({1024, 600});
    EXPECT_LE(escena_.Ventana().width(), 1024);
    EXPECT_LE(escena_.Ventana().height(), 600);
    for (const auto* boton : escena_.Ventana().findChildren<QPushButton*>()) {
        EXPECT_GE(boton->width(), boton->sizeHint().width()) << boton->objectName().toStdString();
        EXPECT_GE(boton->height(), boton->sizeHint().height()) << boton->objectName().toStdString();
    }
    for (const auto* rotulo : escena_.Ventana().findChildren<QLabel*>())
        if (rotulo->isVisible()) {
            EXPECT_GE(rotulo->height(), rotulo->heightForWidth(rotulo->width()))
                << rotulo->text().toStdString();
        }
    const auto& pestanas = *escena_.Ventana().findChild<QTabBar*>();
    EXPECT_GE(pestanas.width(), pestanas.sizeHint().width());
    const auto& busca = escena_.Control<QLineEdit>("eBusca");
    EXPECT_GE(busca.width(), busca.fontMetrics().horizontalAdvance(busca.placeholderText()));
    const auto& titulos = *escena_.Control<QTableView>("dbgTipos").horizontalHeader();
    for (int i = 0; i < titulos.count(); ++i)
        EXPECT_GE(titulos.sectionSize(i), titulos.sectionSizeHint(i)) << i;
    for (const char* vista : {"LBPosiblesConceptos", "LBConceptos", "LBPosiblesOtorgantes", "LBOtorgantes"})
        EXPECT_GE(escena_.Vista(vista).viewport()->height(), escena_.Ventana().fontMetrics().height() * 3 / 2)
            << vista;
    EXPECT_GE(escena_.Vista("dbgTipos").viewport()->height(),
              2 * escena_.Control<QTableView>("dbgTipos").rowHeight(0));
}

TEST_P(AspectoPreseleccion, LongNamesGoOnInMoreLines) {
    TROtorgante larga = Persona("", "A1");
    larga.Apellidos =
        "INVERSIONES INMOBILIARIAS Y PROMOCIONES TURISTICAS DEL LITORAL MEDITERRANEO Y DE LAS ISLAS, "
        "SOCIEDAD ANONIMA UNIPERSONAL EN LIQUIDACION";
    larga.EnXML = true;
    escena_.Abre({Persona("ANA", "1"), larga});
    for (const int ancho : {1024, 1600}) {
        Mide({ancho, 600});
        auto& vista = escena_.Vista("LBPosiblesOtorgantes");
        const QRect corta = vista.visualRect(vista.model()->index(0, 0));
        const QRect fila = vista.visualRect(vista.model()->index(1, 0));
        EXPECT_LE(fila.width(), vista.viewport()->width());
        EXPECT_GT(fila.height(), corta.height() + vista.fontMetrics().height() / 2);
        QFont cursiva = vista.font();
        cursiva.setItalic(true);
        const int necesita = QFontMetrics(cursiva)
                                 .boundingRect(fila.adjusted(4, 0, -4, 0), Qt::TextWordWrap,
                                               vista.model()->index(1, 0).data().toString())
                                 .height();
        EXPECT_GE(fila.height(), necesita);
    }
}

TEST_P(AspectoPreseleccion, ThousandsOfRows) {
    constexpr int OTORGANTES = 500;
    constexpr int TIPOS = 2000;
    TDatosDePrueba tipos{{"NOMBRE", "NUMEROTIPO", "COD_OFICIA", "PRESTAMO", "CLAVE_INTI", "TIPO"}, {}};
    for (int i = 0; i < TIPOS; ++i) {
        const std::string nombre = "TIPO " + std::to_string(10000 + i);
        tipos.Filas.push_back({nombre, std::to_string(i + 1), "", "F", "", nombre});
    }
    tipos.Filas.push_back({"Venta de finca", "10", "", "F", "", "VENTA"});  // the last in the order of TIPO
    escena_.Tablas.Pon("TIPOS.DBF", tipos);
    std::vector<TROtorgante> otorgantes;
    for (int i = 0; i < OTORGANTES; ++i) otorgantes.push_back(Persona("ANA", std::to_string(1000 + i)));
    escena_.Abre(otorgantes);
    EXPECT_EQ(escena_.Filas("dbgTipos").size(), TIPOS + 1);
    auto& rejilla = escena_.Vista("dbgTipos");
    EXPECT_EQ(rejilla.currentIndex().row(), TIPOS);
    EXPECT_TRUE(rejilla.viewport()->rect().contains(rejilla.visualRect(rejilla.currentIndex())));

    escena_.Control("LBPosiblesOtorgantes").setFocus();
    escena_.Tecla(Qt::Key_A, Qt::ControlModifier);
    escena_.Tecla(Qt::Key_Insert);
    EXPECT_EQ(escena_.Filas("LBOtorgantes").size(), OTORGANTES);
    EXPECT_EQ(escena_.Filas("LBOtorgantes").last(), "GIL, ANA - 1499");
    EXPECT_TRUE(escena_.Filas("LBPosiblesOtorgantes").isEmpty());

    escena_.Control("dbgTipos").setFocus();
    escena_.Tecla(Qt::Key_A, Qt::ControlModifier);
    escena_.Tecla(Qt::Key_Insert);
    EXPECT_EQ(escena_.Filas("LBConceptos").size(), TIPOS + 1);

    escena_.Control("LBConceptos").setFocus();
    escena_.Tecla(Qt::Key_A, Qt::ControlModifier);
    escena_.Tecla(Qt::Key_Delete);
    EXPECT_EQ(escena_.Filas("LBPosiblesConceptos").size(), TIPOS + 3);  // after the two that were found
    EXPECT_TRUE(escena_.Filas("LBConceptos").isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Letra, AspectoPreseleccion, testing::Values(1, 2),
                         [](const auto& caso) { return caso.param == 1 ? "Normal" : "Double"; });

}  // namespace
}  // namespace analizador

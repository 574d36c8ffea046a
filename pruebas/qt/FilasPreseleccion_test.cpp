// The rows of the four lists and the grid: moved with buttons, keys and drags.

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <functional>

#include "adaptadores/qt/MensajesQt.h"
#include "pruebas/qt/Atiende.h"
#include "pruebas/qt/EscenaVentana.h"

namespace analizador {
namespace {

const std::vector<TROtorgante> TRES = {Persona("ANA", "1"), PersonaEnXml("EVA", "2"), Persona("LUZ", "3")};

class FilasPreseleccion : public testing::Test {
  protected:
    // Puts all that was found into the chosen lists.
    void EligeTodo() {
        escena_.Mensajes.Respuestas.assign(escena_.Mensajes.Preguntas.size() + 1, true);
        for (const auto& [lista, boton] :
             {std::pair{"LBPosiblesConceptos", "BMas"}, {"LBPosiblesOtorgantes", "BMasOtor"}}) {
            escena_.Vista(lista).selectAll();
            escena_.Clic(boton);
        }
    }

    TEscenaVentana escena_;
};

// A way to move the rows selected in a view.
struct TManera {
    const char* Nombre;
    std::function<void(TEscenaVentana&)> Mueve;
};

TManera ConBoton(const char* boton) {
    return {boton, [=](TEscenaVentana& escena) { escena.Clic(boton); }};
}
TManera ConEspacio(const char* boton) {
    return {boton, [=](TEscenaVentana& escena) {
                escena.Control(boton).setFocus();
                escena.Tecla(Qt::Key_Space);
            }};
}
TManera ConTecla(const char* nombre, Qt::Key tecla) {
    return {nombre, [=](TEscenaVentana& escena) { escena.Tecla(tecla); }};
}
TManera ConArrastre(const char* origen, const char* destino) {
    return {"drag", [=](TEscenaVentana& escena) { EXPECT_TRUE(escena.Arrastra(origen, destino)); }};
}

TEST_F(FilasPreseleccion, FoundRowsAreAddedInEveryWay) {
    const struct {
        const char *Origen, *Destino, *Boton;
        std::vector<int> Elegidas;
        QStringList Quedan, Llegan;
    } casos[] = {
        {"LBPosiblesConceptos", "LBConceptos", "BMas", {0}, {"PRESTAMO"}, {"VENTA"}},
        {"LBPosiblesConceptos", "LBConceptos", "BMas", {0, 1}, {}, {"VENTA", "PRESTAMO"}},
        {"LBPosiblesOtorgantes",
         "LBOtorgantes",
         "BMasOtor",
         {0, 2},
         {"GIL, EVA - 2"},
         {"GIL, ANA - 1", "GIL, LUZ - 3"}},
    };
    for (const auto& caso : casos)
        for (const auto& manera :
             {ConBoton(caso.Boton), ConEspacio(caso.Boton), ConTecla("Enter", Qt::Key_Return),
              ConTecla("keypad Enter", Qt::Key_Enter), ConTecla("Insert", Qt::Key_Insert),
              ConArrastre(caso.Origen, caso.Destino)}) {
            escena_.Abre(TRES);
            escena_.ClicFilas(caso.Origen, caso.Elegidas);
            manera.Mueve(escena_);
            EXPECT_EQ(escena_.Filas(caso.Origen), caso.Quedan) << caso.Origen << ' ' << manera.Nombre;
            EXPECT_EQ(escena_.Filas(caso.Destino), caso.Llegan) << caso.Origen << ' ' << manera.Nombre;
        }
}

TEST_F(FilasPreseleccion, ChosenRowsAreRemovedInEveryWayAndGoToTheEnd) {
    const struct {
        const char *Origen, *Destino, *Boton;
        QStringList Quedan, Llegan;
    } casos[] = {
        {"LBConceptos", "LBPosiblesConceptos", "BMenos", {"PRESTAMO"}, {"VENTA"}},
        {"LBOtorgantes",
         "LBPosiblesOtorgantes",
         "BMenosOtor",
         {"GIL, EVA - 2", "GIL, LUZ - 3"},
         {"GIL, ANA - 1"}},
    };
    for (const auto& caso : casos)
        for (const auto& manera :
             {ConBoton(caso.Boton), ConEspacio(caso.Boton), ConTecla("Delete", Qt::Key_Delete),
              ConArrastre(caso.Origen, caso.Destino)}) {
            escena_.Abre(TRES);
            EligeTodo();
            escena_.ClicFilas(caso.Origen, {0});
            manera.Mueve(escena_);
            EXPECT_EQ(escena_.Filas(caso.Origen), caso.Quedan) << caso.Origen << ' ' << manera.Nombre;
            EXPECT_EQ(escena_.Filas(caso.Destino), caso.Llegan) << caso.Origen << ' ' << manera.Nombre;
        }
}

TEST_F(FilasPreseleccion, TypesOfTheGridAreAddedInEveryWayAndStayThere) {
    for (const auto& manera : {ConBoton("BMasBD"), ConEspacio("BMasBD"), ConTecla("Enter", Qt::Key_Return),
                               ConTecla("Insert", Qt::Key_Insert), ConArrastre("dbgTipos", "LBConceptos")}) {
        escena_.Abre();
        escena_.ClicFilas("dbgTipos", {0, 2});
        manera.Mueve(escena_);
        EXPECT_EQ(escena_.Filas("LBConceptos").size(), 2) << manera.Nombre;
        EXPECT_EQ(escena_.Filas("dbgTipos").size(), 4) << manera.Nombre;
    }
}

TEST_F(FilasPreseleccion, DropOnTheGridDeletes) {
    escena_.Abre();
    EligeTodo();
    escena_.ClicFilas("LBConceptos", {1});
    EXPECT_TRUE(escena_.Arrastra("LBConceptos", "dbgTipos"));
    EXPECT_EQ(escena_.Filas("LBConceptos"), QStringList({"VENTA"}));
    EXPECT_EQ(escena_.Filas("LBPosiblesConceptos"), QStringList());
}

TEST_F(FilasPreseleccion, DragsBetweenKindsAndOnTheSameListAreRefused) {
    const std::vector<const char*> vistas = {"LBPosiblesConceptos", "LBConceptos", "dbgTipos",
                                             "LBPosiblesOtorgantes", "LBOtorgantes"};
    for (const char* origen : vistas)
        for (const char* destino : vistas) {
            escena_.Abre(TRES);
            EligeTodo();
            const bool concepto = std::string(origen).find("Otor") == std::string::npos;
            const bool mismaClase = concepto == (std::string(destino).find("Otor") == std::string::npos);
            const bool delARejilla =
                std::string(origen + std::string(destino)).find("dbgTipos") != std::string::npos &&
                std::string(origen + std::string(destino)).find("Posibles") != std::string::npos;
            EXPECT_EQ(escena_.Arrastra(origen, destino), mismaClase && origen != destino && !delARejilla)
                << origen << " -> " << destino;
        }
}

TEST_F(FilasPreseleccion, WhatIsDraggedFromElsewhereIsRefused) {
    escena_.Abre(TRES);
    auto& sobre = *escena_.Vista("LBConceptos").viewport();
    QMimeData texto;
    texto.setText("VENTA");
    QMimeData deOtra;
    deOtra.setData(FORMATO_FILAS, "1/1/0");
    for (const QMimeData* datos : {&texto, &deOtra}) {
        QDropEvent suelta(QPointF(5, 5), Qt::CopyAction, datos, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&sobre, &suelta);
        QApplication::processEvents();
        EXPECT_FALSE(suelta.isAccepted());
    }
    EXPECT_EQ(escena_.Filas("LBConceptos"), QStringList());
}

TEST_F(FilasPreseleccion, OtherKeysStayWithTheirList) {
    escena_.Abre(TRES);
    EligeTodo();
    for (const char* lista : {"LBConceptos", "LBOtorgantes"})
        for (const auto tecla : {Qt::Key_Return, Qt::Key_Insert, Qt::Key_Down, Qt::Key_PageDown}) {
            const QStringList antes = escena_.Filas(lista);
            escena_.ClicFilas(lista, {0});
            escena_.Tecla(tecla);
            EXPECT_EQ(escena_.Filas(lista), antes) << lista;
        }
    EXPECT_EQ(escena_.Actual("LBConceptos"), 1);
    escena_.Abre(TRES);
    escena_.ClicFilas("LBPosiblesConceptos", {0});
    escena_.Tecla(Qt::Key_Delete);
    EXPECT_EQ(escena_.Filas("LBPosiblesConceptos").size(), 2);
    escena_.Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(escena_.Filas("LBPosiblesConceptos").size(), 2);
}

TEST_F(FilasPreseleccion, AfterAMoveNothingIsSelectedAndTheNextRowIsCurrent) {
    escena_.Abre({Persona("ANA", "1"), Persona("EVA", "2"), Persona("LUZ", "3")});
    escena_.ClicFilas("LBPosiblesOtorgantes", {1});
    escena_.Tecla(Qt::Key_Insert);
    EXPECT_EQ(escena_.Filas("LBPosiblesOtorgantes"), QStringList({"GIL, ANA - 1", "GIL, LUZ - 3"}));
    EXPECT_TRUE(escena_.Seleccionadas("LBPosiblesOtorgantes").empty());
    EXPECT_EQ(escena_.Actual("LBPosiblesOtorgantes"), 1);
    EXPECT_EQ(escena_.Foco(), "LBPosiblesOtorgantes");
}

TEST_F(FilasPreseleccion, ATextAlreadyThereIsNotAddedTwice) {
    escena_.Abre();
    EligeTodo();
    escena_.ClicFilas("dbgTipos", {0, 1, 2, 3});
    escena_.Clic("BMasBD");
    QStringList filas = escena_.Filas("LBConceptos");
    EXPECT_EQ(filas.removeDuplicates(), 0);
}

TEST_F(FilasPreseleccion, PartiesInTheXmlAreItalicInBothLists) {
    escena_.Abre(TRES);
    const auto cursivas = [&](const char* lista) {
        QStringList filas;
        const auto& modelo = *escena_.Vista(lista).model();
        for (int i = 0; i < modelo.rowCount(); ++i)
            if (modelo.index(i, 0).data(Qt::FontRole).value<QFont>().italic())
                filas << modelo.index(i, 0).data().toString();
        return filas;
    };
    EXPECT_EQ(cursivas("LBPosiblesOtorgantes"), QStringList({"GIL, EVA - 2"}));
    EXPECT_EQ(cursivas("LBOtorgantes"), QStringList());
    EligeTodo();
    EXPECT_EQ(cursivas("LBPosiblesOtorgantes"), QStringList());
    EXPECT_EQ(cursivas("LBOtorgantes"), QStringList({"GIL, EVA - 2"}));
}

TEST_F(FilasPreseleccion, PartyInTheXmlIsAddedOnlyAfterYes) {
    for (const bool si : {true, false}) {
        escena_.Abre(TRES);
        escena_.Mensajes.Preguntas.clear();
        escena_.Mensajes.Respuestas = {si};
        escena_.ClicFilas("LBPosiblesOtorgantes", {1, 2});
        escena_.Clic("BMasOtor");
        EXPECT_EQ(escena_.Mensajes.Preguntas.size(), 1U);
        EXPECT_EQ(escena_.Filas("LBOtorgantes"),
                  si ? QStringList({"GIL, EVA - 2", "GIL, LUZ - 3"}) : QStringList({"GIL, LUZ - 3"}));
        EXPECT_EQ(escena_.Filas("LBPosiblesOtorgantes"),
                  si ? QStringList({"GIL, ANA - 1"}) : QStringList({"GIL, ANA - 1", "GIL, EVA - 2"}));
    }
}

TEST_F(FilasPreseleccion, TheQuestionIsAskedInARealBox) {
    TMensajesQt cajas;
    const InstalaMensajes guarda(cajas);
    for (const bool arrastra : {false, true})
        for (const bool si : {true, false}) {
            escena_.Abre(TRES);
            escena_.ClicFilas("LBPosiblesOtorgantes", {1});
            QString texto;
            const TAtiende clerk([&](QDialog& dialogo) {
                texto = dynamic_cast<QMessageBox&>(dialogo).text();
                for (auto* boton : dialogo.findChildren<QPushButton*>())
                    if (boton->text() == (si ? QStringLiteral("&Sí") : QStringLiteral("&No"))) boton->click();
            });
            if (arrastra)
                EXPECT_TRUE(escena_.Arrastra("LBPosiblesOtorgantes", "LBOtorgantes"));
            else
                escena_.Clic("BMasOtor");
            EXPECT_EQ(texto, QStringLiteral("EVA GIL se encuentra en el XML, No hace falta añadirlo\n"
                                            "¿Desea de todas formas añadirlo?"));
            EXPECT_EQ(escena_.Filas("LBOtorgantes").size(), si ? 1 : 0);
            EXPECT_EQ(escena_.Foco(), arrastra ? "LBPosiblesOtorgantes" : "BMasOtor");
        }
}

}  // namespace
}  // namespace analizador

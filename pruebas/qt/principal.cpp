#include <gtest/gtest.h>

#include <QApplication>

#include "pruebas/qt/SinPantalla.h"

int main(int argc, char** argv) {
    analizador::pruebas::PintaSinPantalla();
    testing::InitGoogleTest(&argc, argv);
    const QApplication aplicacion(argc, argv);
    return RUN_ALL_TESTS();
}

// The example hosts that are built for Windows: in C++, which sees of the library its headers and its import
// library, and in Free Pascal.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "pruebas/automatizacion/Maquina.h"
#include "pruebas/word/WordDePrueba.h"

namespace analizador {
namespace {

using namespace pruebas;
using testing::AllOf;
using testing::HasSubstr;

struct TAnfitrion {
    std::wstring Orden;
    std::string Escribe;  // a line of what it prints
};

class Anfitriones : public testing::TestWithParam<TAnfitrion> {};

TEST_P(Anfitriones, AnalizanLoAbiertoEnWord) {
    const auto& word = TWordDePrueba::EnMarcha();
    word.Abre(
        {"NUMERO DOS MIL CINCO.\rESCRITURA DE COMPRAVENTA.\rEn Madrid, a dos de marzo de dos mil doce.\r"
         "Ante mi, ALFONSO REQUEJO, Notario de Madrid,\rCOMPARECEN\r"
         "DON JUAN PEREZ GIL, mayor de edad, soltero, vecino de MADRID, con domicilio en la calle Mayor, "
         "5, con D.N.I. numero 12345678-Z.\r",
         {},
         {}});
    const auto anfitrion = Ejecuta(GetParam().Orden);
    EXPECT_EQ(anfitrion.Codigo, 0U);
    EXPECT_THAT(anfitrion.Salida, AllOf(HasSubstr("ALFONSO REQUEJO"), HasSubstr(GetParam().Escribe)));
    EXPECT_EQ(word.Objetos(), 0);
}

TEST_P(Anfitriones, DicenLosErrores) {
    const auto& word = TWordDePrueba::EnMarcha();
    word.Abre({"NUMERO TRES.\r", {}, {}});
    word.Orden().Haz("Prueba_Cierra");
    const auto anfitrion = Ejecuta(GetParam().Orden);
    EXPECT_EQ(anfitrion.Codigo, 1U);
    EXPECT_THAT(anfitrion.Salida, HasSubstr(" documento activo en el procesador de textos\n"));
}

INSTANTIATE_TEST_SUITE_P(Cpp, Anfitriones,
                         testing::Values(TAnfitrion{Entrecomilla(ANFITRION),
                                                    "PEREZ GIL, JUAN - 12345678Z\n"}));

#ifdef ANFITRION_PASCAL
INSTANTIATE_TEST_SUITE_P(Pascal, Anfitriones,
                         testing::Values(TAnfitrion{Entrecomilla(ANFITRION_PASCAL) + L" " +
                                                        Entrecomilla(CARPETA_VOCABULARIO) + L" " +
                                                        Entrecomilla(CARPETA_TABLAS) + L" --word",
                                                    "IDIOMA       : CASTELLANO\n"}));
#endif

}  // namespace
}  // namespace analizador

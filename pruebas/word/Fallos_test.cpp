// A Word that fails in the middle of an analysis: the error is told once, the window closes, nothing of
// Word's stays held, and the next analysis works.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "adaptadores/word/AplicacionWord.h"
#include "plataforma/Ansi.h"
#include "pruebas/analizador/Escena.h"
#include "pruebas/word/WordDePrueba.h"

namespace analizador {
namespace {

using pruebas::TFallo;
using pruebas::TWordDePrueba;
using testing::HasSubstr;

const std::vector<std::string_view> COMPRAVENTA = {
    "NUMERO DOS MIL CINCO.",
    "ESCRITURA DE COMPRAVENTA.",
    "En Madrid, a dos de marzo de dos mil doce.",
    "Ante mi, ALFONSO REQUEJO, Notario de Madrid,",
    "COMPARECEN",
    "DON JUAN PEREZ GIL, mayor de edad, vecino de MADRID, con domicilio en la calle Mayor, 5, con D.N.I. "
    "12345678Z.",
    "INTERVIENEN en su propio nombre.",
    "EXPONEN",
    "DON JUAN PEREZ GIL vende a DON LUIS SANZ RUBIO, por 1.000,50 EUROS y 20 EUROS, la finca.",
};

const std::vector<TMarcador> FINCAS = {{"FINCA_1", {0, 3}}, {"XFINCA_2", {4, 8}}};
const std::vector<TVariable> VARIABLES = {{"EMPLEADO", "MGR"}, {"XML", "<n>12345678Z</n>"}};

class FallosWord : public testing::Test {
  protected:
    FallosWord() { Abre(); }
    void Abre() { TWordDePrueba::EnMarcha().Abre({Parrafos(COMPRAVENTA), FINCAS, VARIABLES}); }

    // What the analysis threw; empty when nothing.
    std::string Analiza() {
        Escena.Diario.clear();
        try {
            (void)Sesion.Analiza(true);
        } catch (const ErrorWord& error) {
            return error.what();
        }
        return {};
    }
    // The window was opened once and closed once, and no dialog was shown.
    void CompruebaVentanaCerrada() {
        const TDiario& diario = Escena.Diario;
        EXPECT_EQ(diario.front().substr(0, 5), "abre ");
        EXPECT_EQ(diario.back(), "cierra");
        EXPECT_EQ(std::count(diario.begin(), diario.end(), "cierra"), 1);
    }
    void CompruebaQueAhoraSiVa() {
        Abre();
        EXPECT_EQ(Analiza(), "");
        EXPECT_EQ(Sesion.Pizarra, Pizarra);
        EXPECT_EQ(TWordDePrueba::EnMarcha().Objetos(), 0);
    }

    TEscena Escena{COMPRAVENTA, VARIABLES, FINCAS};
    TAplicacionWord Aplicacion{std::chrono::milliseconds(500)};
    TClassAnalizadorAbierto Sesion{nullptr, &Aplicacion};
    const std::string Pizarra = [this] { return (void)Escena.Sesion.Analiza(true), Escena.Sesion.Pizarra; }();
};

TEST_F(FallosWord, SinFallosLeeLoMismoQueEnMemoria) {
    EXPECT_EQ(Analiza(), "");
    EXPECT_FALSE(Pizarra.empty());
    EXPECT_EQ(Sesion.Pizarra, Pizarra);
    EXPECT_EQ(Sesion.Fincas, (std::vector<std::string>{"1", "2"}));
    EXPECT_EQ(Sesion.Empleado, "MGR");
    EXPECT_EQ(TWordDePrueba::EnMarcha().Objetos(), 0);
    EXPECT_EQ(TWordDePrueba::EnMarcha().SeleccionDelUsuario(), (TIntervalo{0, 0}));
}

TEST_F(FallosWord, CadaLlamadaQueFallaSeDiceUnaVez) {
    ASSERT_EQ(Analiza(), "");
    const int llamadas = TWordDePrueba::EnMarcha().Llamadas();
    const int hastaElDialogo = llamadas - 3;  // the window is closed when the variable XML is read
    ASSERT_GT(hastaElDialogo, 100);
    for (int n = 1; n <= hastaElDialogo; n += 1 + n / 8) {
        SCOPED_TRACE(n);
        Abre();
        TWordDePrueba::EnMarcha().Falla(TFallo::Error, n);
        EXPECT_THAT(Analiza(), HasSubstr("0x80004005"));
        CompruebaVentanaCerrada();
        EXPECT_EQ(TWordDePrueba::EnMarcha().Objetos(), 0);
    }
    CompruebaQueAhoraSiVa();
}

TEST_F(FallosWord, UnWordOcupadoUnRatoNoSeNota) {
    TWordDePrueba::EnMarcha().Falla(TFallo::Ocupado, 40, 3);
    EXPECT_EQ(Analiza(), "");
    EXPECT_EQ(Sesion.Pizarra, Pizarra);
}

TEST_F(FallosWord, UnWordOcupadoSinFinSeDice) {
    TWordDePrueba::EnMarcha().Falla(TFallo::Ocupado, 40, 1'000'000);
    EXPECT_THAT(Analiza(), HasSubstr(std::string("Word está ocupado"_ansi)));
    CompruebaVentanaCerrada();
    CompruebaQueAhoraSiVa();
}

TEST_F(FallosWord, UnWordQueMuereSeDice) {
    for (const int n : {1, 25, 120}) {
        SCOPED_TRACE(n);
        Abre();
        TWordDePrueba::EnMarcha().Falla(TFallo::Muere, n);
        EXPECT_THAT(Analiza(), HasSubstr("Word se ha cerrado"));
        CompruebaVentanaCerrada();
        EXPECT_FALSE(TWordDePrueba::EnMarcha().Objetos());
        CompruebaQueAhoraSiVa();
    }
}

}  // namespace
}  // namespace analizador

// A Word that fails in the middle of an analysis: the error is told once, the window closes, nothing of
// Word's stays held, and the next analysis works.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <sstream>
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
using testing::AnyOf;
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
    // The adapter is done with Word.
    void CompruebaQueNoTieneNada() {
        EXPECT_EQ(TWordDePrueba::EnMarcha().Objetos(), 0);
        EXPECT_EQ(TWordDePrueba::EnMarcha().Referencias(), Referencias);
    }
    void CompruebaQueAhoraSiVa() {
        Abre();
        EXPECT_EQ(Analiza(), "");
        EXPECT_EQ(Sesion.Pizarra, Pizarra);
        CompruebaQueNoTieneNada();
    }
    // Of each member its name, its first calls and some of the later ones.
    [[nodiscard]] static std::map<int, std::string> LlamadasElegidas() {
        const auto& word = TWordDePrueba::EnMarcha();
        std::map<int, std::string> elegidas;
        std::map<std::string, int> veces;
        for (int n = 1; n <= word.Llamadas(); ++n) {
            const std::string miembro = word.Llamada(n);
            if (veces[miembro]++ < 3 || n % 10 == 0) elegidas[n] = miembro;
        }
        return elegidas;
    }
    static void CompruebaSinPalabrasDeLaEscritura(const std::string& mensaje) {
        constexpr std::size_t CORTA = 4;
        std::istringstream palabras(Parrafos(COMPRAVENTA) + VARIABLES[1].Valor + " " + FINCAS[1].Nombre);
        for (std::string palabra; palabras >> palabra;)
            if (palabra.size() > CORTA) {
                EXPECT_EQ(mensaje.find(palabra), std::string::npos) << mensaje;
            }
    }

    TEscena Escena{COMPRAVENTA, VARIABLES, FINCAS};
    TAplicacionWord Aplicacion{std::chrono::milliseconds(500)};
    TClassAnalizadorAbierto Sesion{nullptr, &Aplicacion};
    const int Referencias = TWordDePrueba::EnMarcha().Referencias();
    const std::string Pizarra = [this] { return (void)Escena.Sesion.Analiza(true), Escena.Sesion.Pizarra; }();
};

TEST_F(FallosWord, SinFallosLeeLoMismoQueEnMemoria) {
    EXPECT_EQ(Analiza(), "");
    EXPECT_FALSE(Pizarra.empty());
    EXPECT_EQ(Sesion.Pizarra, Pizarra);
    EXPECT_EQ(Sesion.Fincas, (std::vector<std::string>{"1", "2"}));
    EXPECT_EQ(Sesion.Empleado, "MGR");
    CompruebaQueNoTieneNada();
    EXPECT_EQ(TWordDePrueba::EnMarcha().SeleccionDelUsuario(), (TIntervalo{0, 0}));
}

TEST_F(FallosWord, CadaLlamadaQueFallaSeDiceUnaVez) {
    ASSERT_EQ(Analiza(), "");
    const auto elegidas = LlamadasElegidas();
    ASSERT_GT(elegidas.size(), 80U);
    for (const auto& [n, miembro] : elegidas) {
        SCOPED_TRACE(n);
        Abre();
        TWordDePrueba::EnMarcha().Falla(TFallo::Error, n);
        const std::string mensaje = Analiza();
        EXPECT_THAT(mensaje, HasSubstr("." + miembro + ", 0x"));
        // Asked for the number of a member, Word has no words of its own.
        EXPECT_THAT(mensaje, AnyOf(HasSubstr("0x800a11fd): This command is not available. [Microsoft Word]"),
                                   HasSubstr("0x80004005)")));
        CompruebaSinPalabrasDeLaEscritura(mensaje);
        CompruebaVentanaCerrada();
        CompruebaQueNoTieneNada();
    }
    CompruebaQueAhoraSiVa();
}

TEST_F(FallosWord, UnWordOcupadoUnRatoNoSeNota) {
    for (const int n : {1, 2, 3, 40, 150}) {
        SCOPED_TRACE(n);
        Abre();
        TWordDePrueba::EnMarcha().Falla(TFallo::Ocupado, n, 3);
        EXPECT_EQ(Analiza(), "");
        EXPECT_EQ(Sesion.Pizarra, Pizarra);
        CompruebaQueNoTieneNada();
    }
}

TEST_F(FallosWord, UnWordOcupadoSinFinSeDice) {
    for (const int n : {1, 40, 150}) {
        SCOPED_TRACE(n);
        Abre();
        TWordDePrueba::EnMarcha().Falla(TFallo::Ocupado, n, 1'000'000);
        EXPECT_THAT(Analiza(), HasSubstr(std::string("Word está ocupado"_ansi)));
        CompruebaVentanaCerrada();
        CompruebaQueNoTieneNada();
    }
    CompruebaQueAhoraSiVa();
}

TEST_F(FallosWord, UnWordQueMuereSeDice) {
    ASSERT_EQ(Analiza(), "");
    const int ultima = TWordDePrueba::EnMarcha().Llamadas();
    for (const int n : {1, 2, 25, 60, 120, 180, ultima}) {
        SCOPED_TRACE(n);
        Abre();
        TWordDePrueba::EnMarcha().Falla(TFallo::Muere, n);
        EXPECT_THAT(Analiza(), HasSubstr("Word se ha cerrado"));
        CompruebaVentanaCerrada();
        CompruebaQueAhoraSiVa();
    }
}

}  // namespace
}  // namespace analizador

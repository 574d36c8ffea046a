// The word processor and its document: which document, which selection, and what of the text is read.

#include "adaptadores/word/AplicacionWord.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "adaptadores/word/DocumentoWord.h"
#include "plataforma/Ansi.h"
#include "pruebas/word/WordDePrueba.h"

namespace analizador {
namespace {

using pruebas::TWordDePrueba;
using testing::HasSubstr;

constexpr TOpcionesBusqueda BUSCA{.Adelante = true, .Continua = true};

// The message of what an operation throws; empty when it throws nothing.
template <class TOperacion>
std::string Mensaje(TOperacion operacion) {
    try {
        operacion();
    } catch (const ErrorWord& error) {
        return error.what();
    }
    return {};
}

class AplicacionWordPrueba : public testing::Test {
  protected:
    explicit AplicacionWordPrueba(std::string_view texto = "Uno\rDos\rTres\r") {
        Word.Abre({std::string(texto), {}, {}});
    }

    TWordDePrueba& Word = TWordDePrueba::EnMarcha();
    TAplicacionWord Aplicacion;
};

TEST_F(AplicacionWordPrueba, DaElDocumentoActivo) {
    auto* const documento = Aplicacion.GetDocumentoActivo();
    ASSERT_NE(documento, nullptr);
    EXPECT_EQ(documento->GetTexto(), "Uno\rDos\rTres\r");
}

TEST_F(AplicacionWordPrueba, SinDocumentoNoDaNinguno) {
    Word.Orden().Haz("Prueba_Cierra");
    EXPECT_EQ(Aplicacion.GetDocumentoActivo(), nullptr);
    const auto enCurso = Aplicacion.EmpiezaAnalisis();
    EXPECT_EQ(Aplicacion.GetDocumentoActivo(), nullptr);
}

TEST_F(AplicacionWordPrueba, TambienLaDeUnObjetoDado) {
    TAplicacionWord dada(*Word.Aplicacion());
    EXPECT_EQ(dada.GetDocumentoActivo()->GetTexto(), "Uno\rDos\rTres\r");
}

TEST_F(AplicacionWordPrueba, LaSeleccionEmpiezaDondeLaDelUsuario) {
    Word.Orden().Haz("Prueba_Selecciona", 4, 7, 1);
    EXPECT_EQ(Aplicacion.GetDocumentoActivo()->GetSeleccion().GetIntervalo(), (TIntervalo{4, 7}));
    // In a header or a note its positions are others.
    Word.Orden().Haz("Prueba_Selecciona", 4, 7, 7);
    EXPECT_EQ(Aplicacion.GetDocumentoActivo()->GetSeleccion().GetIntervalo(), (TIntervalo{0, 0}));
}

TEST_F(AplicacionWordPrueba, LaDelUsuarioSoloSeMueveAlMostrarla) {
    Word.Orden().Haz("Prueba_Selecciona", 4, 7, 1);
    const auto enCurso = Aplicacion.EmpiezaAnalisis();
    ASSERT_TRUE(Aplicacion.GetDocumentoActivo()->Busca("tres", BUSCA));
    EXPECT_EQ(Word.SeleccionDelUsuario(), (TIntervalo{4, 7}));
    enCurso->MuestraSeleccion();
    EXPECT_EQ(Word.SeleccionDelUsuario(), (TIntervalo{8, 12}));
}

TEST_F(AplicacionWordPrueba, ElAnalisisSigueConSuDocumentoAunqueOtroPaseDelante) {
    const auto enCurso = Aplicacion.EmpiezaAnalisis();
    Word.Abre({"Otro\r", {}, {}});
    EXPECT_EQ(Aplicacion.GetDocumentoActivo()->GetTexto(), "Uno\rDos\rTres\r");
}

TEST_F(AplicacionWordPrueba, AcabadoElAnalisisTomaElQueEsteDelante) {
    Aplicacion.EmpiezaAnalisis().reset();
    Word.Abre({"Otro\r", {}, {}});
    EXPECT_EQ(Aplicacion.GetDocumentoActivo()->GetTexto(), "Otro\r");
}

TEST_F(AplicacionWordPrueba, DiceQueElDocumentoSeCerro) {
    const auto enCurso = Aplicacion.EmpiezaAnalisis();
    auto& documento = *Aplicacion.GetDocumentoActivo();
    Word.Orden().Haz("Prueba_Cierra");
    constexpr auto DICE = "El documento ya no está abierto en Word"_ansi;
    EXPECT_THAT(Mensaje([&] { (void)documento.GetTexto(); }), HasSubstr(std::string(DICE)));
    EXPECT_THAT(Mensaje([&] { (void)documento.VariableValor("XML"); }), HasSubstr(std::string(DICE)));
    EXPECT_THAT(Mensaje([&] { enCurso->MuestraSeleccion(); }), HasSubstr(std::string(DICE)));
}

TEST_F(AplicacionWordPrueba, DiceQueElDocumentoCambio) {
    const auto enCurso = Aplicacion.EmpiezaAnalisis();
    auto& documento = *Aplicacion.GetDocumentoActivo();
    Word.Orden().Haz("Prueba_Escribe", std::u16string(u"mas\r"));
    const auto cambio = HasSubstr("El documento ha cambiado mientras se analizaba");
    EXPECT_THAT(Mensaje([&] { (void)documento.GetTexto(); }), cambio);
    EXPECT_THAT(Mensaje([&] { (void)documento.GetParrafos({0, 3}); }), cambio);
    EXPECT_THAT(Mensaje([&] { (void)documento.NuevoMarcador("EXPONEN", true); }), cambio);
    EXPECT_THAT(Mensaje([&] { enCurso->MuestraSeleccion(); }), cambio);
}

TEST_F(AplicacionWordPrueba, ElErrorDiceQueSePidioYNoElTexto) {
    auto& documento = *Aplicacion.GetDocumentoActivo();
    const auto mensaje = Mensaje([&] { (void)documento.NuevoMarcador("PARTE DEUDORA", true); });
    EXPECT_THAT(mensaje, HasSubstr("Bookmarks.Add"));
    EXPECT_THAT(mensaje, HasSubstr("0x800a11fd"));
    EXPECT_THAT(mensaje, HasSubstr("No es un nombre de marcador"));
    EXPECT_THAT(mensaje, HasSubstr("[Microsoft Word]"));
    EXPECT_EQ(mensaje.find("Uno"), std::string::npos);
}

TEST_F(AplicacionWordPrueba, DiceQueMiembroNoTieneWord) {
    EXPECT_THAT(Mensaje([&] { (void)Word.Orden().Entero("NoEsNinguno"); }),
                HasSubstr("(Application.NoEsNinguno, 0x80020006)"));
}

// A cell mark is one position of Word's and two characters of its text.
TEST_F(AplicacionWordPrueba, LaMarcaDeCeldaEsUnaPosicion) {
    Word.Abre({"Uno\r\aDos\r\a\r\aTres\r", {}, {}});
    auto& documento = *Aplicacion.GetDocumentoActivo();
    documento.IrAlFinalDocumento();
    EXPECT_EQ(documento.GetSeleccion().GetIntervalo(), (TIntervalo{13, 13}));
    ASSERT_TRUE(documento.Busca("Tres", BUSCA));
    EXPECT_EQ(documento.GetSeleccion().GetIntervalo(), (TIntervalo{9, 13}));
    EXPECT_EQ(documento.NuevoMarcador("TRES", true).Intervalo, (TIntervalo{9, 13}));
    EXPECT_EQ(documento.GetNumeroParrafo(9), 4);
}

TEST_F(AplicacionWordPrueba, NoLeeLoOcultoNiLosCodigosNiLoBorrado) {
    enum { OCULTA, CODIGO, BORRADA };
    Word.Abre({"Uno oculto y dos CODIGO final BORRADO.\rOtro\rTres\r", {}, {}});
    Word.Mancha(OCULTA, {4, 11});
    Word.Mancha(CODIGO, {17, 24});
    Word.Mancha(BORRADA, {38, 43});  // with the end of the first paragraph
    Word.Mancha(BORRADA, {30, 37});
    auto& documento = *Aplicacion.GetDocumentoActivo();
    EXPECT_EQ(documento.GetTexto(), "Uno y dos final .\rTres\r");
    EXPECT_EQ(documento.GetTexto(TIntervalo{0, 33}), "Uno y dos final ");
    EXPECT_EQ(documento.GetParrafos({0, 48}), (std::vector<std::string>{"Uno y dos final .\r", "Tres\r"}));
}

TEST_F(AplicacionWordPrueba, TraeLosCaracteresAJuegoDeLaBiblioteca) {
    Word.Orden().Haz("Prueba_Abre", std::u16string(u"a\u2014b\u2009c\u201Dd \u20AC \u0144\r"));
    EXPECT_EQ(Aplicacion.GetDocumentoActivo()->GetTexto(), "a—b c”d € n\r"_ansi);
}

}  // namespace
}  // namespace analizador

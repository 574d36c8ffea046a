// The text, the selection and the document variables.

#include "pruebas/documentos/ContratoDocumento.h"

#include <limits>
#include <vector>

#include "plataforma/Ansi.h"

namespace analizador {
namespace {

constexpr int MUY_LEJOS = std::numeric_limits<int>::max();
constexpr int MUY_ATRAS = std::numeric_limits<int>::min();

TEST_P(ContratoDocumento, DaElTextoEntero) {
    constexpr std::string_view TEXTOS[] = {
        "\r"_ansi,
        "NÚMERO MIL DOSCIENTOS.\r"_ansi,
        "Uno\r\rTres\r"_ansi,
        "línea\vsegunda\tcon \"comillas\", “curvas” y ‘otras’; 5 €\r"_ansi,
        "página\fotra columna\x0E fin\r"_ansi,
        "sin\xA0separar, guion\x1E"
        "fijo y opcio\x1Fnal\r",
        "Antes\rUno\r\aDos\rdos\r\a\r\aTres\r\a\r\a\r\aDespués\r"_ansi,
    };
    for (const auto texto : TEXTOS) EXPECT_EQ(Abre(texto)->GetTexto(), texto);
}

TEST_P(ContratoDocumento, VaAlInicioYAlFinal) {
    const auto documento = Abre("Uno\rDos\r");
    documento->IrAlFinalDocumento();
    EXPECT_EQ(Lugar(*documento), (TLugar{"Uno\rDos", ""}));
    documento->IrAlInicioDocumento();
    EXPECT_EQ(documento->GetSeleccion().GetIntervalo(), (TIntervalo{0, 0}));
}

TEST_P(ContratoDocumento, ElFinalDeUnDocumentoVacioEsSuInicio) {
    const auto documento = Abre("\r");
    documento->IrAlFinalDocumento();
    EXPECT_EQ(documento->GetSeleccion().GetIntervalo(), (TIntervalo{0, 0}));
    EXPECT_EQ(documento->GetSeleccion().GetTextoPrimerParrafo(), "\r");
}

TEST_P(ContratoDocumento, LaSeleccionEsLaQueSePone) {
    const auto documento = Abre("En Madrid, a uno de marzo.\rANTE MI\r");
    const auto madrid = Selecciona(*documento, "Madrid");
    const auto marzo = Selecciona(*documento, "marzo");
    auto& seleccion = documento->GetSeleccion();
    seleccion.PonIntervalo({madrid.Inicio, marzo.Fin});
    EXPECT_EQ(seleccion.GetIntervalo(), (TIntervalo{madrid.Inicio, marzo.Fin}));
    EXPECT_EQ(Lugar(*documento), (TLugar{"En ", "Madrid, a uno de marzo"}));
}

TEST_P(ContratoDocumento, LosLimitesSeTraenAlDocumento) {
    const auto documento = Abre("Uno\rDos\r");
    auto& seleccion = documento->GetSeleccion();
    seleccion.PonIntervalo({MUY_ATRAS, MUY_LEJOS});
    EXPECT_EQ(Lugar(*documento), (TLugar{"", "Uno\rDos\r"}));
    seleccion.PonIntervalo({MUY_LEJOS, MUY_LEJOS});
    EXPECT_EQ(Lugar(*documento), (TLugar{"Uno\rDos", ""}));
    seleccion.PonIntervalo({MUY_ATRAS, MUY_ATRAS});
    EXPECT_EQ(Lugar(*documento), (TLugar{"", ""}));
}

TEST_P(ContratoDocumento, LosLimitesAlRevesDejanUnaSeleccionVaciaEnElFin) {
    const auto documento = Abre("EXPONEN\rINTERVIENEN\rFin\r");
    const int intervienen = SituaAnte(*documento, "INTERVIENEN");
    const int final = SituaAnte(*documento, "Fin");
    auto& seleccion = documento->GetSeleccion();
    seleccion.PonIntervalo({final, intervienen});
    EXPECT_EQ(Lugar(*documento), (TLugar{"EXPONEN\r", ""}));
    EXPECT_EQ(documento->GetParrafos({final, intervienen}), std::vector<std::string>{"INTERVIENEN\r"});
    EXPECT_EQ(documento->GetTexto(TIntervalo{final, intervienen}), "");
}

TEST_P(ContratoDocumento, LaSeleccionEsSiempreLaMisma) {
    const auto documento = Abre("Uno Dos\r");
    const auto& seleccion = documento->GetSeleccion();
    Selecciona(*documento, "Dos");
    EXPECT_EQ(seleccion.GetIntervalo(), documento->GetSeleccion().GetIntervalo());
    EXPECT_EQ(documento->GetTexto(seleccion.GetIntervalo()), "Dos");
}

TEST_P(ContratoDocumento, DaLasVariablesSinMirarMayusculas) {
    const auto documento = Abre(
        {"\r",
         {},
         {{"EMPLEADO", std::string("Begoña"_ansi)}, {"Xml", "<a b=\"1\">\r\n\t&amp;</a>"}, {"Nada", ""}}});
    EXPECT_EQ(documento->VariableValor("EMPLEADO"), "Begoña"_ansi);
    EXPECT_EQ(documento->VariableValor("empleado"), "Begoña"_ansi);
    EXPECT_EQ(documento->VariableValor("XML"), "<a b=\"1\">\r\n\t&amp;</a>");
    EXPECT_EQ(documento->VariableValor("NADA"), "");
    EXPECT_EQ(documento->VariableValor("EMPLEAD"), "");
    EXPECT_EQ(documento->VariableValor(""), "");
}

}  // namespace
}  // namespace analizador

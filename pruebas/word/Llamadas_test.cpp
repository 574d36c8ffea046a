// How many calls to Word an analysis costs: a call between processes takes more than a millisecond, so their
// number must not grow with the deed.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "adaptadores/word/AplicacionWord.h"
#include "pruebas/analizador/Escena.h"
#include "pruebas/word/WordDePrueba.h"

namespace analizador {
namespace {

using pruebas::TWordDePrueba;

std::vector<std::string_view> Escritura(int parrafosDeMas) {
    std::vector<std::string_view> parrafos = {
        "NUMERO DOS MIL CINCO.", "ESCRITURA DE COMPRAVENTA.", "Ante mi, ALFONSO REQUEJO, Notario de Madrid,",
        "COMPARECEN",
        "DON JUAN PEREZ GIL, mayor de edad, vecino de MADRID, con domicilio en la calle Mayor, 5, con D.N.I. "
        "12345678Z."};
    parrafos.insert(parrafos.end(), static_cast<std::size_t>(parrafosDeMas), "Otro parrafo sin mas.");
    for (const std::string_view fin : {"INTERVIENEN en su propio nombre.", "EXPONEN",
                                       "DON JUAN PEREZ GIL vende a DON LUIS SANZ RUBIO la finca."})
        parrafos.push_back(fin);
    return parrafos;
}

// A vocabulary for the deed above, with so many entries that are found nowhere.
TSeccionesDePrueba Vocabulario(std::size_t entradasDeMas) {
    std::vector<std::string_view> exponen(entradasDeMas, "NO ESTA");
    exponen.emplace_back("EXPONEN");
    return {{"COMPARECIENTES", {"COMPARECEN"}},
            {"INTERVINIENTES", {"INTERVIENEN"}},
            {"EXPONEN", exponen},
            {"TRANSMISION", {"VENDE"}},
            {"HOMBRE", {"DON"}},
            {"NIF", {"D.N.I."}},
            {"ANTE MI", {"ANTE MI"}}};
}

int LlamadasCon(const std::vector<std::string_view>& escritura, const std::vector<TMarcador>& marcadores = {},
                const TSeccionesDePrueba& vocabulario = Vocabulario(0)) {
    const auto& word = TWordDePrueba::EnMarcha();
    word.Abre({Parrafos(escritura), marcadores, {}});
    TEscena escena(escritura);
    escena.Vocabulario.Pon(TIdioma::Castellano, vocabulario);
    TAplicacionWord aplicacion;
    TClassAnalizadorAbierto sesion(nullptr, &aplicacion);
    (void)sesion.Analiza(true);
    EXPECT_FALSE(sesion.OtorgantesEncontrados.Lista.Vacia());
    return word.Llamadas();
}

int Llamadas(int parrafosDeMas, const std::vector<TMarcador>& marcadores = {},
             std::size_t entradasDeMas = 0) {
    return LlamadasCon(Escritura(parrafosDeMas), marcadores, Vocabulario(entradasDeMas));
}

std::vector<std::string_view> Sin(std::vector<std::string_view> encabezados) {
    auto escritura = Escritura(1);
    for (const auto encabezado : encabezados) std::erase(escritura, encabezado);
    return escritura;
}

TEST(LlamadasAWord, NoCrecenConLosParrafos) {
    const int pocas = Llamadas(1);
    RecordProperty("llamadas", pocas);
    EXPECT_EQ(Llamadas(10), pocas);
    EXPECT_EQ(Llamadas(2'000), pocas);
}

TEST(LlamadasAWord, CadaMarcadorCuestaCinco) {
    const int sinNinguno = Llamadas(1);
    EXPECT_EQ(Llamadas(1, {{"FINCA_1", {0, 3}}}), sinNinguno + 5);
    EXPECT_EQ(Llamadas(1, {{"FINCA_1", {0, 3}}, {"FINCA_2", {0, 3}}, {"OTRO", {4, 7}}}), sinNinguno + 15);
}

TEST(LlamadasAWord, CadaEntradaQueNoEstaCuestaTres) {
    const int sinNinguna = Llamadas(1);
    EXPECT_EQ(Llamadas(1, {}, 1), sinNinguna + 3);
    EXPECT_EQ(Llamadas(1, {}, 20), sinNinguna + 60);
}

// What it costs that one more entry of the headings' section is found: to look for it and where it is; its
// paragraph too, unless that of the entry before is the same.
TEST(LlamadasAWord, CadaEntradaQueEstaCuestaCincoYSuParrafoOnce) {
    auto escritura = Escritura(1);
    std::replace(escritura.begin(), escritura.end(), std::string_view("EXPONEN"),
                 std::string_view("EXPONEN y OTORGAN"));
    const auto llamadasCon = [&](std::string_view otra) {
        auto vocabulario = Vocabulario(0);
        for (auto& [seccion, entradas] : vocabulario)
            if (seccion == "EXPONEN" && !otra.empty()) entradas.emplace_back(otra);
        return LlamadasCon(escritura, {}, vocabulario);
    };
    const int una = llamadasCon("");
    EXPECT_EQ(llamadasCon("OTORGAN"), una + 5);
    EXPECT_EQ(llamadasCon("COMPRAVENTA"), una + 5 + 11);
}

constexpr int CADA_SECCION = 18;
constexpr std::string_view EXPONEN = "EXPONEN";
constexpr std::string_view INTERVIENEN = "INTERVIENEN en su propio nombre.";

// Found by its heading; without it the heading is sought all the same.
TEST(LlamadasAWord, CadaSeccionCuestaComoMuchoDieciocho) {
    const int una = LlamadasCon(Sin({EXPONEN, INTERVIENEN}));
    const int tres = Llamadas(1);
    EXPECT_LT(una, tres);
    EXPECT_LE(tres, una + 2 * CADA_SECCION);
    for (const auto encabezado : {EXPONEN, INTERVIENEN}) {
        const int dos = LlamadasCon(Sin({encabezado}));
        EXPECT_LE(dos, una + CADA_SECCION) << encabezado;
        EXPECT_LE(tres, dos + CADA_SECCION) << encabezado;
    }
}

// The rest does not depend on the deed: the document, the language, what is sought in every deed, the
// transfer, the amounts, two variables that are not there, and the names of the members, asked once.
TEST(LlamadasAWord, ElRestoEsFijo) {
    constexpr int FIJAS = 200;
    EXPECT_LE(LlamadasCon(Sin({EXPONEN, INTERVIENEN})), FIJAS + CADA_SECCION);
}

TEST(LlamadasAWord, UnSegundoAnalisisCuestaLoMismo) {
    const auto escritura = Escritura(1);
    const auto& word = TWordDePrueba::EnMarcha();
    word.Abre({Parrafos(escritura), {}, {}});
    TEscena escena(escritura);
    TAplicacionWord aplicacion;
    TClassAnalizadorAbierto sesion(nullptr, &aplicacion);
    (void)sesion.Analiza(true);
    const int primera = word.Llamadas();
    (void)sesion.Analiza(true);
    EXPECT_EQ(word.Llamadas() - primera, primera);
}

}  // namespace
}  // namespace analizador

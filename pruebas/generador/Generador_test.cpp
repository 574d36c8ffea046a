#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <stdexcept>

#include "adaptadores/docx/FicheroDocx.h"
#include "pruebas/docx/ConstruyeDocx.h"
#include "pruebas/generador/EscrituraEnDocx.h"
#include "pruebas/generador/GeneradorEscrituras.h"
#include "pruebas/generador/Gramatica.h"
#include "pruebas/generador/Reglas.h"

namespace analizador::pruebas {

namespace {

bool Contiene(const std::vector<std::string>& parrafos, std::string_view texto) {
    return std::any_of(parrafos.begin(), parrafos.end(),
                       [&](const auto& p) { return p.find(texto) != std::string::npos; });
}

TEST(Generador, LaMismaSemillaDaLaMismaEscritura) {
    EXPECT_EQ(GeneraEscritura(7), GeneraEscritura(7));
    EXPECT_NE(GeneraEscritura(7), GeneraEscritura(8));
}

TEST(Generador, HayDeLosDosIdiomasYDeVariosActos) {
    std::set<std::string_view> hallados;
    for (std::uint32_t semilla = 1; semilla <= 60; ++semilla) {
        const auto parrafos = GeneraEscritura(semilla);
        for (const std::string_view texto :
             {"COMPARECE", "COMPAREIX", "COMPRAVENTA", "COMPRAVENDA", "HIPOTECARI", "TESTAMENT"})
            if (Contiene(parrafos, texto)) hallados.insert(texto);
    }
    EXPECT_EQ(hallados.size(), 6U);
}

TEST(Generador, TieneLosParrafosPedidosOUnoMas) {
    for (const std::size_t parrafos : {100U, 1000U, 6000U}) {
        const std::size_t hechos = GeneraEscritura(3, parrafos).size();
        EXPECT_GE(hechos, parrafos);
        EXPECT_LE(hechos, parrafos + 1);
    }
}

// Every symbol that a rule names has rules of its own, also those that chance seldom reaches.
TEST(Generador, TodasLasReglasSeCumplen) {
    for (std::uint32_t semilla = 1; semilla <= 500; ++semilla)
        EXPECT_NO_THROW((void)GeneraEscritura(semilla));
    TAzar azar(1);
    EXPECT_THROW((void)TExpansion(ReglasCatalanas(), azar).Expande("no_la_hay"), std::out_of_range);
}

TEST(Generador, ElFicheroSeLeeComoElDocumentoEnMemoria) {
    const TCarpeta carpeta;
    for (std::uint32_t semilla = 1; semilla <= 40; ++semilla) {
        const auto parrafos = GeneraEscritura(semilla);
        EscribeEscritura(carpeta / "escritura.docx", parrafos);
        const TContenidoDocumento leido = TFicheroDocx(carpeta / "escritura.docx").Contenido();
        const TContenidoDocumento esperado = ContenidoDe(parrafos);
        EXPECT_EQ(Visible(leido.Texto), Visible(esperado.Texto)) << "semilla " << semilla;
        EXPECT_EQ(leido.Marcadores, esperado.Marcadores) << "semilla " << semilla;
        EXPECT_EQ(leido.Variables, esperado.Variables);
    }
}

}  // namespace

}  // namespace analizador::pruebas

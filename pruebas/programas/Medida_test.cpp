// analiza medida, run on the examples and on folders that lack something.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "pruebas/programas/ProgramaDePrueba.h"

namespace analizador {
namespace {

using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

TEST(OrdenMedida, LosEjemplosSeLeenYSusFallosSonLosConocidos) {
    const auto medida = Analiza({"medida", CARPETA_EJEMPLOS});
    EXPECT_EQ(medida.Codigo, 0) << medida.Errores;
    EXPECT_EQ(medida.Errores, "");
    EXPECT_EQ(Lineas(medida.Salida).front(), "6 escrituras");
    for (const char* todosBien : {"Cabecera.NumeroProtocolo", "Cabecera.Notario", "Conceptos", "Otorgantes"})
        EXPECT_THAT(medida.Salida, ContainsRegex("\n" + std::string(todosBien) +
                                                 " +[0-9]+ +0 +0 +100,0 % +100,0 % +100,0 %\n"));
    EXPECT_THAT(medida.Salida, ContainsRegex("\nTOTAL +[0-9]+ "));
    // A second given name is taken for a surname.
    EXPECT_THAT(medida.Salida,
                HasSubstr("compraventa_extranjero: Otorgante.Nombre de SÖDERQVIST, LARS HENRIK: "
                          "se esperaba «LARS HENRIK», salió «LARS»"));
}

TEST(OrdenMedida, UnHechoDistintoBajaLaMedidaYSeDice) {
    const TCarpetaTemporal carpeta;
    (void)carpeta.Copia("testamento", "t.docx");
    (void)carpeta.Fichero("t.json", R"({"Cabecera": {"NumeroProtocolo": 470, "Fecha": "07/05/2024"}})");
    const auto medida = Analiza({"medida", carpeta.Ruta()});
    EXPECT_EQ(medida.Codigo, 0);
    EXPECT_THAT(medida.Salida, ContainsRegex("\nCabecera.NumeroProtocolo +1 +0 +0 +100,0 %"));
    EXPECT_THAT(medida.Salida, ContainsRegex("\nCabecera.Fecha +0 +1 +1 +0,0 %"));
    EXPECT_THAT(medida.Salida, ContainsRegex("\nTOTAL +1 +1 +1 +50,0 % +50,0 % +50,0 %\n"));
    EXPECT_THAT(medida.Salida,
                HasSubstr("t: Cabecera.Fecha: se esperaba «07/05/2024», salió «06/05/2024»\n"));
}

// What the program prints measures as perfect: a clerk can start from it.
TEST(OrdenMedida, LoQueElProgramaEscribeMideCien) {
    const TCarpetaTemporal carpeta;
    const auto escritura = carpeta.Copia("prestamo_hipotecario", "p.docm");
    (void)carpeta.Fichero("p.json", Analiza({"--json", "--origen", escritura}).Salida);
    const auto medida = Analiza({"medida", carpeta.Ruta()});
    EXPECT_EQ(medida.Codigo, 0) << medida.Errores;
    EXPECT_THAT(medida.Salida, ContainsRegex("\nTOTAL +[0-9]+ +0 +0 +100,0 % +100,0 % +100,0 %\n"));
    EXPECT_THAT(medida.Salida, HasSubstr("\nNingún fallo.\n"));
}

TEST(OrdenMedida, LoQueNoSePuedeLeerSeDiceYSeSigue) {
    const TCarpetaTemporal carpeta;
    (void)carpeta.Copia("testamento", "bien.docx");
    (void)carpeta.Fichero("bien.json", R"({"idioma": "castellano"})");
    (void)carpeta.Fichero("sola.json", R"({})");
    (void)carpeta.Fichero("rota.json", R"({})");
    (void)carpeta.Fichero("rota.docx", "no es un documento");
    (void)carpeta.Copia("testamento", "mala.docx");
    (void)carpeta.Fichero("mala.json", R"({"Idioma": "castellano"})");
    (void)carpeta.Copia("testamento", "sin_hechos.docx");
    const auto medida = Analiza({"medida", carpeta.Ruta()});
    EXPECT_EQ(medida.Codigo, 1);
    EXPECT_EQ(Lineas(medida.Salida).front(), "1 escritura");
    EXPECT_EQ(Lineas(medida.Errores).size(), 3U) << medida.Errores;
    for (const char* causa : {"sola.json: no tiene al lado su escritura", "rota.docx",
                              "mala.json: no se conoce la clave \"Idioma\""})
        EXPECT_THAT(medida.Errores, HasSubstr(causa));
}

TEST(OrdenMedida, UnaLlamadaEquivocadaSeExplica) {
    const TCarpetaTemporal carpeta;
    const auto vacia = Analiza({"medida", carpeta.Ruta()});
    EXPECT_EQ(vacia.Codigo, 1);
    EXPECT_THAT(vacia.Errores, HasSubstr("no hay hechos"));
    const auto falta = Analiza({"medida", (carpeta.Ruta() / "no").string()});
    EXPECT_EQ(falta.Codigo, 2);
    EXPECT_THAT(falta.Errores, HasSubstr("no: no existe esa carpeta"));
    const auto nada = Analiza({"medida"});
    EXPECT_EQ(nada.Codigo, 2);
    EXPECT_THAT(nada.Errores, HasSubstr("falta la carpeta que se quiere medir"));
}

TEST(OrdenMedida, LaAyudaLaNombraYTieneLaSuya) {
    EXPECT_THAT(Analiza({"--ayuda"}).Salida, HasSubstr("analiza medida"));
    const auto ayuda = Analiza({"medida", "--ayuda"});
    EXPECT_EQ(ayuda.Codigo, 0);
    for (const char* texto : {"Uso: analiza medida", "CARPETA", "--config", "--tablas"})
        EXPECT_THAT(ayuda.Salida, HasSubstr(texto));
    for (const char* ingles : {"Usage", "OPTION", "TEXT", "REQUIRED"})
        EXPECT_THAT(ayuda.Salida, Not(HasSubstr(ingles)));
}

}  // namespace
}  // namespace analizador

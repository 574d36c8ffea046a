// Files that cannot be analysed: each gets its line, and the others of the call are analysed all the same.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <nlohmann/json.hpp>

#include "pruebas/programas/ProgramaDePrueba.h"

namespace analizador {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

// The program's report of a good example, alone.
const std::string& InformeBueno() {
    static const std::string informe = Analiza({Ejemplo("testament")}).Salida;
    return informe;
}

// One line names the file and the cause; the good file of the same call comes out whole, and the code tells.
void EsperaRechazo(const std::filesystem::path& malo, const std::string& causa) {
    SCOPED_TRACE(malo.string());
    const std::string bueno = Ejemplo("testament");
    const auto ejecucion = Analiza({malo, bueno});
    EXPECT_EQ(ejecucion.Codigo, 1);
    ASSERT_EQ(Lineas(ejecucion.Errores).size(), 1U) << ejecucion.Errores;
    EXPECT_THAT(ejecucion.Errores, StartsWith("analiza: " + malo.string() + ": "));
    EXPECT_THAT(ejecucion.Errores, HasSubstr(causa));
    ASSERT_NE(InformeBueno(), "");
    EXPECT_EQ(ejecucion.Salida, "==== " + bueno + "\n" + InformeBueno() + "\n");
}

TEST(FicherosAnaliza, CadaFicheroMaloDiceSuCausa) {
    const TCarpetaTemporal carpeta;
    const std::string docx = Bytes(Ejemplo("compraventa"));
    const std::string firmaOle = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"s;
    const std::string viejo = firmaOle + std::string(1000, '\0') + "W\0o\0r\0d\0D\0o\0c\0u\0m\0e\0n\0t\0"s;
    struct TCaso {
        const char* Nombre;
        std::string Contenido;
        const char* Causa;
    };
    const std::vector<TCaso> casos = {
        {"vacio.docx", "", "vacío"},
        {"texto.docx", "NÚMERO UNO. ESCRITURA DE COMPRAVENTA.\n", "no es un documento de Word"},
        {"viejo.doc", viejo, "(.doc)"},
        {"cortado.docx", docx.substr(0, docx.size() / 2), "truncado o dañado"},
        {"sin final.docx", docx.substr(0, docx.size() - 1), "truncado o dañado"},
        {"sin principio.docx", docx.substr(docx.size() / 2), "no es un documento de Word"},
    };
    for (const auto& caso : casos) EsperaRechazo(carpeta.Fichero(caso.Nombre, caso.Contenido), caso.Causa);
}

TEST(FicherosAnaliza, NiFaltaNiCarpeta) {
    const TCarpetaTemporal carpeta;
    EsperaRechazo(carpeta.Ruta() / "falta.docx", "no existe");
    EsperaRechazo(carpeta.Ruta(), "es una carpeta");
}

TEST(FicherosAnaliza, SinPermisoParaLeer) {
    if (geteuid() == 0) GTEST_SKIP() << "root may read everything";
    const TCarpetaTemporal carpeta;
    const auto cerrado = carpeta.Copia("compraventa", "cerrado.docx");
    std::filesystem::permissions(cerrado, std::filesystem::perms::none);
    EsperaRechazo(cerrado, "no hay permiso");
}

TEST(FicherosAnaliza, UnFalloEnJsonSoloDiceFicheroYCausa) {
    const TCarpetaTemporal carpeta;
    const std::string malo = carpeta.Ruta() / "falta.docx";
    const std::string bueno = Ejemplo("testament");
    const auto ejecucion = Analiza({"--json", malo, bueno});
    EXPECT_EQ(ejecucion.Codigo, 1);
    const auto lineas = Lineas(ejecucion.Salida);
    ASSERT_EQ(lineas.size(), 2U);
    const auto fallo = nlohmann::ordered_json::parse(lineas[0]);
    std::vector<std::string> claves;
    for (const auto& [clave, valor] : fallo.items()) claves.push_back(clave);
    EXPECT_THAT(claves, ElementsAre("archivo", "error"));
    EXPECT_EQ(fallo["archivo"], malo);
    EXPECT_EQ("analiza: " + fallo["error"].get<std::string>() + "\n", ejecucion.Errores);
    EXPECT_EQ(nlohmann::ordered_json::parse(lineas[1])["archivo"], bueno);
}

TEST(FicherosAnaliza, NombresDificiles) {
    const TCarpetaTemporal carpeta;
    for (const char* nombre : {"Escritura nº 7 de la señora Núñez.docx", "l'hipoteca «a».docx", "-guion.docx",
                               "dos\nlineas.docx"}) {
        SCOPED_TRACE(nombre);
        const auto copia = carpeta.Copia("testament", nombre);
        const auto informe = Analiza({copia});
        EXPECT_EQ(informe.Codigo, 0) << informe.Errores;
        EXPECT_EQ(informe.Salida, InformeBueno());
        const auto json = Analiza({"--json", copia});
        EXPECT_EQ(nlohmann::json::parse(json.Salida)["archivo"], copia.string());
    }
}

TEST(FicherosAnaliza, ElErrorOcupaUnaLineaAunqueElNombreTengaDos) {
    const TCarpetaTemporal carpeta;
    const std::string vacio = carpeta.Fichero("dos\nlineas.docx", "");
    const std::string bueno = carpeta.Copia("testament", "tres\nlineas.docx");
    for (const auto& argumentos :
         {std::vector<std::string>{vacio}, std::vector<std::string>{"--tablas", carpeta.Ruta(), bueno}}) {
        const auto ejecucion = Analiza(argumentos);
        EXPECT_EQ(ejecucion.Codigo, 1);
        EXPECT_EQ(Lineas(ejecucion.Errores).size(), 1U) << ejecucion.Errores;
        EXPECT_THAT(ejecucion.Errores, HasSubstr("?lineas.docx: "));
    }
}

TEST(FicherosAnaliza, VariosFicherosVanConSuTituloEnSuOrden) {
    const std::string primero = Ejemplo("testament");
    const std::string segundo = Ejemplo("compraventa");
    const auto ejecucion = Analiza({primero, segundo});
    EXPECT_EQ(ejecucion.Codigo, 0);
    EXPECT_EQ(ejecucion.Errores, "");
    EXPECT_EQ(ejecucion.Salida, "==== " + primero + "\n" + InformeBueno() + "\n==== " + segundo + "\n" +
                                    Analiza({segundo}).Salida + "\n");
}

}  // namespace
}  // namespace analizador

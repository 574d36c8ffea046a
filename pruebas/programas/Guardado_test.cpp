// Saving the section bookmarks: where, and what must stay.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "adaptadores/docx/FicheroDocx.h"
#include "pruebas/programas/ProgramaDePrueba.h"

namespace analizador {
namespace {

using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::StartsWith;

constexpr const char* EJEMPLO = "compraventa";

std::vector<std::string> Marcadores(const std::filesystem::path& docx) {
    const TFicheroDocx fichero(docx);
    std::vector<std::string> nombres;
    for (const auto& marcador : fichero.Contenido().Marcadores) nombres.push_back(marcador.Nombre);
    return nombres;
}

// All of the example is still there, and its sections are marked.
void EsperaMarcado(const std::filesystem::path& docx) {
    EXPECT_THAT(Marcadores(docx), IsSupersetOf({"CABECERA", "COMPARECIENTES", "INTERVINIENTES", "TRANSMISION",
                                                "FINCA_1", "FINCA_2"}));
    const TFicheroDocx nuevo(docx);
    const TFicheroDocx original(Ejemplo(EJEMPLO));
    EXPECT_EQ(nuevo.Contenido().Texto, original.Contenido().Texto);
    EXPECT_EQ(nuevo.Contenido().Variables, original.Contenido().Variables);
}

std::size_t CuantosFicheros(const std::filesystem::path& carpeta) {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(carpeta), {}));
}

TEST(GuardadoAnaliza, SalidaEscribeOtroFicheroYNoTocaElOriginal) {
    const TCarpetaTemporal carpeta;
    const auto original = carpeta.Copia(EJEMPLO, "original.docx");
    const auto salida = carpeta.Ruta() / "con marcadores.docx";
    const auto ejecucion = Analiza({"--salida", salida, original});
    EXPECT_EQ(ejecucion.Codigo, 0);
    EXPECT_EQ(ejecucion.Errores, "");
    EXPECT_EQ(Bytes(original), Bytes(Ejemplo(EJEMPLO)));
    EsperaMarcado(salida);
    EXPECT_EQ(CuantosFicheros(carpeta.Ruta()), 2U);
}

TEST(GuardadoAnaliza, SinPedirloNoSeEscribeNada) {
    const TCarpetaTemporal carpeta;
    const auto original = carpeta.Copia(EJEMPLO, "original.docx");
    EXPECT_EQ(Analiza({original}).Codigo, 0);
    EXPECT_EQ(Analiza({"--json", "--forzar", original}).Codigo, 0);
    EXPECT_EQ(Bytes(original), Bytes(Ejemplo(EJEMPLO)));
    EXPECT_EQ(CuantosFicheros(carpeta.Ruta()), 1U);
}

TEST(GuardadoAnaliza, GuardaPoneLosMarcadoresEnCadaFichero) {
    const TCarpetaTemporal carpeta;
    const auto uno = carpeta.Copia(EJEMPLO, "uno.docx");
    const auto otro = carpeta.Copia(EJEMPLO, "otro.docx");
    EXPECT_EQ(Analiza({"--guarda", uno, otro}).Codigo, 0);
    EsperaMarcado(uno);
    EsperaMarcado(otro);
    EXPECT_EQ(CuantosFicheros(carpeta.Ruta()), 2U);
}

TEST(GuardadoAnaliza, AnalizarloDeNuevoDaLoMismoYNoCambiaNada) {
    const TCarpetaTemporal carpeta;
    const auto docx = carpeta.Copia(EJEMPLO, "escritura.docx");
    const auto primera = Analiza({"--guarda", docx});
    const std::string guardado = Bytes(docx);
    const auto segunda = Analiza({"--guarda", docx});
    EXPECT_EQ(primera.Codigo, 0);
    EXPECT_EQ(segunda.Codigo, 0);
    EXPECT_EQ(primera.Salida, segunda.Salida);
    EXPECT_EQ(Bytes(docx), guardado);
}

TEST(GuardadoAnaliza, UnDocumentoAbiertoPorOtroNoSeToca) {
    const TCarpetaTemporal carpeta;
    const auto docx = carpeta.Copia(EJEMPLO, "escritura.docx");
    const auto bloqueo =
        carpeta.Fichero(".~lock.escritura.docx#", ",ana,despacho,09.10.2023 10:00,file:///tmp;");
    const auto rechazo = Analiza({"--guarda", docx});
    EXPECT_EQ(rechazo.Codigo, 1);
    EXPECT_EQ(rechazo.Salida, "");
    EXPECT_EQ(Lineas(rechazo.Errores).size(), 1U);
    EXPECT_THAT(rechazo.Errores, StartsWith("analiza: " + docx.string() + ": "));
    EXPECT_THAT(rechazo.Errores, HasSubstr("otro programa tiene abierto el documento"));
    EXPECT_EQ(Bytes(docx), Bytes(Ejemplo(EJEMPLO)));

    EXPECT_EQ(Analiza({docx}).Codigo, 0) << "reading it is no harm";

    EXPECT_EQ(Analiza({"--guarda", "--forzar", docx}).Codigo, 0);
    EsperaMarcado(docx);
    EXPECT_TRUE(std::filesystem::exists(bloqueo));
}

TEST(GuardadoAnaliza, LoQueNoSePuedeGuardarSeDice) {
    const TCarpetaTemporal carpeta;
    const auto docx = carpeta.Copia(EJEMPLO, "escritura.docx");
    const auto destino = carpeta.Ruta() / "no hay" / "nuevo.docx";
    const auto ejecucion = Analiza({"--salida", destino, docx});
    EXPECT_EQ(ejecucion.Codigo, 1);
    EXPECT_EQ(Lineas(ejecucion.Errores).size(), 1U);
    EXPECT_THAT(ejecucion.Errores, StartsWith("analiza: " + destino.string() + ": "));
    EXPECT_EQ(Bytes(docx), Bytes(Ejemplo(EJEMPLO)));
    EXPECT_EQ(CuantosFicheros(carpeta.Ruta()), 1U);
}

}  // namespace
}  // namespace analizador

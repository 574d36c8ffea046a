// The example deeds with the shipped vocabularies and tables: open in Word they give the report that they
// give in memory.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "adaptadores/dbase/ProveedorDbase.h"
#include "adaptadores/memoria/DocumentoMemoria.h"
#include "adaptadores/word/AplicacionWord.h"
#include "analizador/ClaseAnalizadorAbierto.h"
#include "analizador/ConstAnalizador.h"
#include "plataforma/Ansi.h"
#include "pruebas/word/WordDePrueba.h"

namespace analizador {
namespace {

namespace fs = std::filesystem;

class EjemplosWord : public testing::TestWithParam<std::string> {
  protected:
    EjemplosWord() { PonCarpetaAplicacion(CARPETA_BIN); }
    ~EjemplosWord() override { PonCarpetaAplicacion(FAnterior); }

    [[nodiscard]] static std::string Escritura() {
        std::ifstream fichero(fs::path(CARPETA_EJEMPLOS) / (GetParam() + ".txt"), std::ios::binary);
        std::string texto = AnsiDeUtf8(std::string(std::istreambuf_iterator<char>(fichero), {}));
        std::replace(texto.begin(), texto.end(), '\n', '\r');
        return texto;
    }
    [[nodiscard]] static std::string Informe(TWordApplicationConDocumentos& word) {
        TClassAnalizadorAbierto sesion(nullptr, &word);
        (void)sesion.Analiza(true);
        EXPECT_FALSE(sesion.Otorgantes.Lista.Vacia());
        return sesion.Pizarra;
    }

  private:
    fs::path FAnterior = Rutas().PATH_APLICACION;
    TProveedorDbase FTablas{fs::path(CARPETA_BIN) / "TABLAS"};
    InstalaTablas FInstala{FTablas};
};

TEST_P(EjemplosWord, DaElInformeQueEnMemoria) {
    const TContenidoDocumento contenido{Escritura(), {}, {{"EMPLEADO", "MGR"}}};
    TAplicacionMemoria memoria(std::make_unique<TDocumentoMemoria>(contenido));
    const auto& servidor = pruebas::TWordDePrueba::EnMarcha();
    servidor.Abre(contenido);
    TAplicacionWord word;
    EXPECT_EQ(Informe(word), Informe(memoria));
    EXPECT_EQ(servidor.Objetos(), 0);
}

INSTANTIATE_TEST_SUITE_P(Todos, EjemplosWord,
                         testing::Values("compravenda", "compraventa", "compraventa_extranjero",
                                         "prestamo_hipotecario", "testament", "testamento"),
                         [](const auto& caso) { return caso.param; });

}  // namespace
}  // namespace analizador

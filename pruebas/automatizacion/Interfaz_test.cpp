// The C interface of the library for Windows: what it has not is told by its codes, and the deed open in
// Word.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <thread>

#include "programas/biblioteca/analizador.h"
#include "pruebas/automatizacion/Teclado.h"
#include "pruebas/automatizacion/WordQueVuelve.h"
#include "pruebas/word/WordDePrueba.h"

namespace analizador {
namespace {

using testing::EndsWith;
using testing::HasSubstr;

struct TCierra {
    void operator()(analizador_sesion* sesion) const { analizador_cierra(sesion); }
};

constexpr const char* ESCRITURA =
    "NUMERO DOS MIL CINCO.\rESCRITURA DE COMPRAVENTA.\rEn Madrid, a dos de marzo de dos mil doce.\r"
    "Ante mi, ALFONSO REQUEJO, Notario de Madrid,\r";

class InterfazWindows : public testing::Test {
  protected:
    InterfazWindows() {
        analizador_sesion* sesion = nullptr;
        EXPECT_EQ(analizador_abre(2, CARPETA_VOCABULARIO, CARPETA_TABLAS, &sesion), ANALIZADOR_BIEN)
            << analizador_error(nullptr);
        Sesion.reset(sesion);
    }
    [[nodiscard]] std::string Error() const { return analizador_error(Sesion.get()); }
    [[nodiscard]] std::string Texto(const char* donde) const {
        const char* texto = analizador_texto(Sesion.get(), donde);
        return texto != nullptr ? texto : "(null)";
    }

    std::unique_ptr<analizador_sesion, TCierra> Sesion;
};

TEST_F(InterfazWindows, AnalizaUnTexto) {
    ASSERT_EQ(analizador_analiza_texto(Sesion.get(), ESCRITURA, ANALIZADOR_CON_ORIGEN), ANALIZADOR_BIEN)
        << Error();
    EXPECT_EQ(Texto("/Cabecera/Notario"), "ALFONSO REQUEJO");
    EXPECT_EQ(Texto("/Origen/Cabecera/NumeroProtocolo/parrafo"), "1");
}

#ifndef CON_DOCX
TEST_F(InterfazWindows, NoLeeFicherosYLoDiceConSuNombre) {
    EXPECT_EQ(analizador_analiza_fichero(Sesion.get(), "C:\\Escrituras\\Peñíscola.docx", 0),
              ANALIZADOR_NO_ANALIZADA);
    EXPECT_EQ(Error(), "C:\\Escrituras\\Peñíscola.docx: esta biblioteca no lee ficheros .docx");
    EXPECT_EQ(analizador_guarda(Sesion.get(), nullptr, 0), ANALIZADOR_SIN_RESULTADOS);
}
#else
TEST_F(InterfazWindows, LeeFicherosYLosQueFaltanLosDiceConSuNombre) {
    ASSERT_EQ(analizador_analiza_fichero(Sesion.get(), CARPETA_EJEMPLOS "/compraventa.docx", 0),
              ANALIZADOR_BIEN)
        << Error();
    EXPECT_NE(Texto("/Pizarra"), "");
    EXPECT_EQ(analizador_analiza_fichero(Sesion.get(), "C:\\Escrituras\\Peñíscola.docx", 0),
              ANALIZADOR_NO_ANALIZADA);
    EXPECT_EQ(Error(), "C:\\Escrituras\\Peñíscola.docx: el fichero no existe");
    EXPECT_EQ(analizador_guarda(Sesion.get(), nullptr, 0), ANALIZADOR_SIN_RESULTADOS);
}
#endif

TEST_F(InterfazWindows, DosSesionesConLasMismasCarpetas) {
    for (const std::string separador : {"", "/", "\\"}) {
        analizador_sesion* otra = nullptr;
        EXPECT_EQ(analizador_abre(2, (CARPETA_VOCABULARIO + separador).c_str(),
                                  (CARPETA_TABLAS + separador).c_str(), &otra),
                  ANALIZADOR_BIEN)
            << analizador_error(nullptr);
        analizador_cierra(otra);
    }
}

TEST_F(InterfazWindows, LasCarpetasSeDicenEnUtf8) {
    Sesion.reset();
    analizador_sesion* sesion = nullptr;
    EXPECT_EQ(analizador_abre(2, "C:\\Peñíscola", nullptr, &sesion), ANALIZADOR_CONFIGURACION);
    EXPECT_EQ(std::string(analizador_error(nullptr)), "C:\\Peñíscola: no existe esa carpeta");
}

TEST_F(InterfazWindows, AnalizaLaEscrituraAbiertaEnWord) {
    auto& word = pruebas::TWordDePrueba::EnMarcha();
    word.Abre({ESCRITURA, {}, {}});
    for (void* const aplicacion : {static_cast<void*>(nullptr), static_cast<void*>(word.Aplicacion())}) {
        ASSERT_EQ(analizador_analiza_word(Sesion.get(), aplicacion, 0), ANALIZADOR_BIEN) << Error();
        EXPECT_EQ(Texto("/Cabecera/NumeroProtocolo"), "2005");
        EXPECT_EQ(Texto("/Cabecera/Notario"), "ALFONSO REQUEJO");
        EXPECT_EQ(analizador_aceptada(Sesion.get()), 0);
        EXPECT_EQ(word.Objetos(), 0);
    }
    EXPECT_EQ(analizador_guarda(Sesion.get(), "C:\\otro.docx", 0), ANALIZADOR_SIN_RESULTADOS);
}

TEST_F(InterfazWindows, LoQueNoVaConWordSeRechaza) {
    EXPECT_EQ(analizador_analiza_word(Sesion.get(), nullptr, ANALIZADOR_CON_ORIGEN), ANALIZADOR_MAL_USO);
    EXPECT_EQ(analizador_analiza_word(nullptr, nullptr, 0), ANALIZADOR_MAL_USO);
}

#ifndef CON_VENTANAS
TEST_F(InterfazWindows, SinVentanasNoHayRevision) {
    EXPECT_EQ(analizador_analiza_texto(Sesion.get(), ESCRITURA, ANALIZADOR_CON_REVISION),
              ANALIZADOR_SIN_VENTANAS);
    EXPECT_EQ(Error(), "no hay ventanas instaladas para la revisión");
}
#else
TEST_F(InterfazWindows, UnTextoSeRevisaEnCualquierHilo) {
    const auto revisa = [this](WORD tecla) {
        const pruebas::TTeclado teclado(L"Lista de Conceptos de la Escritura", {tecla});
        EXPECT_EQ(analizador_analiza_texto(Sesion.get(), ESCRITURA, ANALIZADOR_CON_REVISION), ANALIZADOR_BIEN)
            << Error();
        EXPECT_EQ(analizador_aceptada(Sesion.get()), 0);
    };
    revisa(VK_ESCAPE);
    std::thread(revisa, static_cast<WORD>(VK_ESCAPE)).join();
}
#endif
// While Word answers, an event may make the host call again.
TEST_F(InterfazWindows, MientrasAnalizaRechazaLoDemas) {
    constexpr const char* RECHAZO = "la sesión está ocupada con otra llamada";
    int veces = 0;
    const auto word = pruebas::WordQueVuelve([&] {
        ++veces;
        EXPECT_EQ(Texto("/Pizarra"), "(null)");
        EXPECT_EQ(Error(), RECHAZO);
        EXPECT_EQ(analizador_analiza_texto(Sesion.get(), ESCRITURA, 0), ANALIZADOR_MAL_USO);
        EXPECT_EQ(Error(), RECHAZO);
        analizador_cierra(Sesion.get());
        EXPECT_EQ(Error(), std::string(RECHAZO) + ": no se cierra");
    });
    EXPECT_EQ(analizador_analiza_word(Sesion.get(), static_cast<IDispatch*>(word.get()), 0),
              ANALIZADOR_NO_ANALIZADA);
    EXPECT_EQ(veces, 1);
    ASSERT_EQ(analizador_analiza_texto(Sesion.get(), ESCRITURA, 0), ANALIZADOR_BIEN) << Error();
    EXPECT_EQ(Texto("/Cabecera/NumeroProtocolo"), "2005");
}

TEST_F(InterfazWindows, SinDocumentoSeDice) {
    auto& word = pruebas::TWordDePrueba::EnMarcha();
    word.Abre({ESCRITURA, {}, {}});
    word.Orden().Haz("Prueba_Cierra");
    EXPECT_EQ(analizador_analiza_word(Sesion.get(), word.Aplicacion(), 0), ANALIZADOR_NO_ANALIZADA);
    EXPECT_EQ(Error(), "No hay ningún documento activo en el procesador de textos");
    EXPECT_EQ(Texto("/Pizarra"), "(null)");
}

}  // namespace
}  // namespace analizador

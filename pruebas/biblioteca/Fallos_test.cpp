// What a call that cannot be done returns and says, and what it leaves.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "pruebas/biblioteca/SesionDePrueba.h"

namespace analizador {
namespace {

using testing::HasSubstr;

class FallosBiblioteca : public testing::Test {
  protected:
    void SetUp() override { ASSERT_NE(sesion_, nullptr) << analizador_error(nullptr); }

    TSesion sesion_ = Abierta();
};

TEST_F(FallosBiblioteca, SinSesionTodoEsMalUso) {
    const auto u16 = Unidades(u"x");
    const std::vector<int> codigos = {analizador_analiza_fichero(nullptr, "x", 0),
                                      analizador_analiza_fichero16(nullptr, u16.data(), 0),
                                      analizador_analiza_texto(nullptr, "x", 0),
                                      analizador_analiza_word(nullptr, nullptr, 0),
                                      analizador_analiza_texto16(nullptr, u16.data(), 0),
                                      analizador_pon_variable(nullptr, "x", "x"),
                                      analizador_pon_variable16(nullptr, u16.data(), u16.data()),
                                      analizador_pon_marcador(nullptr, "x"),
                                      analizador_pon_marcador16(nullptr, u16.data()),
                                      analizador_guarda(nullptr, nullptr, 0),
                                      analizador_guarda16(nullptr, nullptr, 0)};
    EXPECT_THAT(codigos, testing::Each(ANALIZADOR_MAL_USO));
    EXPECT_EQ(analizador_texto(nullptr, ""), nullptr);
    EXPECT_EQ(analizador_texto16(nullptr, ""), nullptr);
    EXPECT_EQ(analizador_cuenta(nullptr, "/Otorgantes"), -1);
    EXPECT_EQ(analizador_aceptada(nullptr), -1);
    EXPECT_STREQ(analizador_error(nullptr), "la sesión es nula");
    EXPECT_EQ(Texto16(analizador_error16(nullptr)), u"la sesión es nula");
}

TEST_F(FallosBiblioteca, AntesDeAnalizarNoHayResultados) {
    EXPECT_EQ(analizador_texto(sesion_.get(), ""), nullptr);
    EXPECT_EQ(analizador_texto16(sesion_.get(), ""), nullptr);
    EXPECT_EQ(analizador_cuenta(sesion_.get(), "/Otorgantes"), -1);
    EXPECT_EQ(analizador_aceptada(sesion_.get()), -1);
    EXPECT_EQ(analizador_guarda(sesion_.get(), nullptr, 0), ANALIZADOR_SIN_RESULTADOS);
    EXPECT_EQ(Error(sesion_), "no hay ninguna escritura analizada en la sesión");
}

TEST_F(FallosBiblioteca, AquiNoHayWord) {
    ASSERT_EQ(analizador_analiza_texto(sesion_.get(), "NUMERO DOS.\r", 0), ANALIZADOR_BIEN);
    EXPECT_EQ(analizador_analiza_word(sesion_.get(), nullptr, 0), ANALIZADOR_NO_ANALIZADA);
    EXPECT_THAT(Error(sesion_), HasSubstr("no hay Word"));
    EXPECT_EQ(analizador_texto(sesion_.get(), ""), nullptr);
    EXPECT_EQ(analizador_analiza_word(sesion_.get(), nullptr, ANALIZADOR_CON_ORIGEN), ANALIZADOR_MAL_USO);
}

TEST_F(FallosBiblioteca, UnFicheroQueNoSirveDiceCualYPorQue) {
    const TCarpetaTemporal carpeta;
    std::ofstream(carpeta / "texto.docx") << "esto no es un documento";
    std::ofstream(carpeta / "roto.docx", std::ios::binary)
        << Bytes(Ejemplo("testamento.docx")).substr(0, 3000);
    for (const std::string nombre : {"no está.docx", "texto.docx", "roto.docx", ""}) {
        ASSERT_EQ(analizador_analiza_fichero(sesion_.get(), Ejemplo("testamento.docx").c_str(), 0),
                  ANALIZADOR_BIEN);
        ASSERT_EQ(Error(sesion_), "");
        const std::string fichero = (carpeta / nombre).string();
        EXPECT_EQ(analizador_analiza_fichero(sesion_.get(), fichero.c_str(), 0), ANALIZADOR_NO_ANALIZADA)
            << nombre;
        EXPECT_THAT(Error(sesion_), testing::StartsWith(fichero + ": "));
        EXPECT_THAT(Error(sesion_), testing::Not(HasSubstr("\n")));
        EXPECT_EQ(analizador_texto(sesion_.get(), ""), nullptr) << "results of the deed before: " << nombre;
    }
}

TEST_F(FallosBiblioteca, UnMotivoLargoSeCortaEnUnaLetra) {
    for (const std::string nombre : {"/", "/x"}) {
        std::string fichero = nombre;
        for (int i = 0; i < 3'000; ++i) fichero += "ñ";
        EXPECT_EQ(analizador_analiza_fichero(sesion_.get(), fichero.c_str(), 0), ANALIZADOR_NO_ANALIZADA);
        const std::size_t letras = (4'095 - nombre.size()) / 2;
        EXPECT_EQ(Error(sesion_), fichero.substr(0, nombre.size() + 2 * letras));
        const auto error16 = Texto16(analizador_error16(sesion_.get()));
        EXPECT_EQ(error16.substr(nombre.size()), std::u16string(letras, u'ñ'));
    }
}

TEST_F(FallosBiblioteca, SinSusTablasNoSeAnaliza) {
    const TCarpetaTemporal carpeta;
    sesion_.reset();
    sesion_ = Abierta(CARPETA_VOCABULARIO, (carpeta / "").string().c_str());
    ASSERT_NE(sesion_, nullptr);
    EXPECT_EQ(analizador_analiza_fichero(sesion_.get(), Ejemplo("testamento.docx").c_str(), 0),
              ANALIZADOR_NO_ANALIZADA);
    EXPECT_THAT(Error(sesion_), HasSubstr((carpeta / "").string()));
}

TEST_F(FallosBiblioteca, TextosNulosOEnOtraCodificacion) {
    const std::vector<analizador_utf16> alto = {'a', 0xD800, 'b', 0};
    const std::vector<analizador_utf16> altoAlFinal = {0xDBFF, 0};
    const std::vector<analizador_utf16> bajo = {0xDC00, 0xD800, 0};
    analizador_sesion* const s = sesion_.get();
    EXPECT_EQ(analizador_analiza_texto(s, nullptr, 0), ANALIZADOR_MAL_USO);
    EXPECT_EQ(analizador_analiza_texto16(s, nullptr, 0), ANALIZADOR_MAL_USO);
    EXPECT_EQ(analizador_analiza_fichero(s, nullptr, 0), ANALIZADOR_MAL_USO);
    EXPECT_EQ(analizador_analiza_fichero(s, "", 0), ANALIZADOR_MAL_USO);
    EXPECT_EQ(analizador_pon_variable(s, "XML", nullptr), ANALIZADOR_MAL_USO);
    EXPECT_EQ(Error(sesion_), "falta un texto: es nulo");
    EXPECT_EQ(analizador_texto(s, nullptr), nullptr);
    EXPECT_EQ(analizador_cuenta(s, nullptr), -1);
    for (const char* malo : {"ESCRITURA N\xDAMERO", "\xC3", "\xED\xA0\x80", "\xC0\x80", "\xF5\x80\x80\x80"}) {
        EXPECT_EQ(analizador_analiza_texto(s, malo, 0), ANALIZADOR_MAL_TEXTO);
        EXPECT_EQ(Error(sesion_), "un texto no está en UTF-8");
        EXPECT_EQ(analizador_analiza_fichero(s, malo, 0), ANALIZADOR_MAL_TEXTO);
        EXPECT_EQ(analizador_pon_variable(s, malo, "x"), ANALIZADOR_MAL_TEXTO);
        EXPECT_EQ(analizador_pon_marcador(s, malo), ANALIZADOR_MAL_TEXTO);
    }
    for (const auto* malo : {&alto, &altoAlFinal, &bajo}) {
        EXPECT_EQ(analizador_analiza_texto16(s, malo->data(), 0), ANALIZADOR_MAL_TEXTO);
        EXPECT_EQ(Error(sesion_), "un texto no está en UTF-16");
    }
}

TEST_F(FallosBiblioteca, OpcionesQueNoVanAhi) {
    analizador_sesion* const s = sesion_.get();
    const std::string escritura = Ejemplo("testament.docx");
    EXPECT_EQ(analizador_analiza_fichero(s, escritura.c_str(), ANALIZADOR_FORZAR), ANALIZADOR_MAL_USO);
    EXPECT_EQ(analizador_analiza_texto(s, "x", 128), ANALIZADOR_MAL_USO);
    ASSERT_EQ(analizador_analiza_fichero(s, escritura.c_str(), 0), ANALIZADOR_BIEN);
    EXPECT_EQ(analizador_guarda(s, nullptr, ANALIZADOR_CON_ORIGEN), ANALIZADOR_MAL_USO);
}

// What nobody foresaw is a failure like the others: here, a current folder that is gone.
TEST_F(FallosBiblioteca, LoImprevistoTampocoSaleComoExcepcion) {
    const auto antes = std::filesystem::current_path();
    {
        const TCarpetaTemporal carpeta;
        std::filesystem::current_path(carpeta / "");
    }
    const int codigo = analizador_analiza_fichero(sesion_.get(), "escritura.docx", 0);
    std::filesystem::current_path(antes);
    EXPECT_EQ(codigo, ANALIZADOR_FALLO);
    EXPECT_NE(Error(sesion_), "");
}

TEST_F(FallosBiblioteca, SinVentanasNoHayRevision) {
    const std::string escritura = Ejemplo("testament.docx");
    EXPECT_EQ(analizador_analiza_fichero(sesion_.get(), escritura.c_str(), ANALIZADOR_CON_REVISION),
              ANALIZADOR_SIN_VENTANAS);
    EXPECT_EQ(analizador_texto(sesion_.get(), ""), nullptr);
}

}  // namespace
}  // namespace analizador

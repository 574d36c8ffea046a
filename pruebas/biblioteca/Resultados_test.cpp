// The facts of a deed, by their place in the JSON.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cfenv>
#include <nlohmann/json.hpp>

#include "pruebas/biblioteca/SesionDePrueba.h"

namespace analizador {
namespace {

using testing::HasSubstr;

class ResultadosBiblioteca : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_NE(sesion_, nullptr) << analizador_error(nullptr);
        ASSERT_EQ(analizador_analiza_fichero(sesion_.get(), Ejemplo("compravenda.docx").c_str(), 0),
                  ANALIZADOR_BIEN)
            << Error(sesion_);
    }

    TSesion sesion_ = Abierta();
};

TEST_F(ResultadosBiblioteca, HechosPorSuLugar) {
    struct TCaso {
        const char* Donde;
        const char* Hecho;
    };
    for (const auto& [donde, hecho] : {TCaso{"/idioma", "catalan"},
                                       {"/Cabecera/NumeroProtocolo", "742"},
                                       {"/Cabecera/Notario", "MERITXELL SALELLAS I VILAGRAN"},
                                       {"/Cabecera/NotarioSustituto", ""},
                                       {"/Conceptos/0/Prestamo", "false"},
                                       {"/Cuantias/1", "11780,00"},
                                       {"/Otorgantes/0/Nombre", "NARCIS"},
                                       {"/Otorgantes/0/FechaNacimiento", ""},
                                       {"/Otorgantes/0/Propuesto", "true"},
                                       {"/Operacion/Plazos", "[]"},
                                       {"/Cuantias", R"(["117800,00","11780,00","106020,00"])"}}) {
        EXPECT_EQ(Texto(sesion_, donde), hecho) << donde;
        EXPECT_EQ(Texto16(analizador_texto16(sesion_.get(), donde)), std::filesystem::path(hecho).u16string())
            << donde;
        EXPECT_EQ(Error(sesion_), "") << donde;
    }
    EXPECT_EQ(analizador_aceptada(sesion_.get()), 0);
}

TEST_F(ResultadosBiblioteca, TodoHechoDelJsonSeHallaEnSuLugar) {
    const auto json = nlohmann::json::parse(Texto(sesion_, ""));
    const auto hojas = json.flatten();
    EXPECT_GT(hojas.size(), 50U);
    for (const auto& hoja : hojas.items()) {
        const auto& valor = json.at(nlohmann::json::json_pointer(hoja.key()));
        const std::string hecho = valor.is_string() ? valor.get<std::string>()
                                  : valor.is_null() ? ""
                                                    : valor.dump();
        EXPECT_EQ(Texto(sesion_, hoja.key().c_str()), hecho) << hoja.key();
    }
}

TEST_F(ResultadosBiblioteca, CuantosHay) {
    struct TCaso {
        const char* Donde;
        int Cuantos;
    };
    for (const auto& [donde, cuantos] : {TCaso{"/Otorgantes", 3},
                                         {"/Conceptos", 1},
                                         {"/Cuantias", 3},
                                         {"/Fincas", 1},
                                         {"/Operacion/Plazos", 0},
                                         {"/Cabecera", -1},
                                         {"/Pizarra", -1},
                                         {"/Nada", -1}})
        EXPECT_EQ(analizador_cuenta(sesion_.get(), donde), cuantos) << donde;
}

TEST_F(ResultadosBiblioteca, LoQueNoHayNoEsUnTextoVacio) {
    for (const char* donde :
         {"/Otorgantes/99/Nombre", "/Otorgantes/-1", "/Otorgantes/00", "/Otorgantes/x", "/Otorgantes/0/Apodo",
          "/cabecera", "Cabecera", "/Cabecera/Notario/0", "/", "/~2"}) {
        EXPECT_EQ(analizador_texto(sesion_.get(), donde), nullptr) << donde;
        EXPECT_THAT(Error(sesion_), HasSubstr(std::string("no hay ningún dato en \"") + donde + "\""));
        EXPECT_EQ(analizador_texto16(sesion_.get(), donde), nullptr) << donde;
    }
    EXPECT_THAT(Texto(sesion_, "/Cabecera/Notario"), "MERITXELL SALELLAS I VILAGRAN");
}

// Hosts keep several of them at a time.
TEST_F(ResultadosBiblioteca, UnTextoValeHastaElSiguienteAnalisis) {
    const char* const notario = analizador_texto(sesion_.get(), "/Cabecera/Notario");
    const analizador_utf16* const notario16 = analizador_texto16(sesion_.get(), "/Cabecera/Notario");
    for (int i = 0; i < analizador_cuenta(sesion_.get(), "/Otorgantes"); ++i)
        for (const char* campo : {"Nombre", "Apellidos", "NumDocumento", "Domicilio", "Vecindad"}) {
            const std::string donde = "/Otorgantes/" + std::to_string(i) + "/" + campo;
            EXPECT_NE(analizador_texto(sesion_.get(), donde.c_str()), nullptr);
            EXPECT_NE(analizador_texto16(sesion_.get(), donde.c_str()), nullptr);
        }
    EXPECT_STREQ(notario, "MERITXELL SALELLAS I VILAGRAN");
    EXPECT_EQ(Texto16(notario16), u"MERITXELL SALELLAS I VILAGRAN");
    EXPECT_EQ(analizador_texto(sesion_.get(), "/Cabecera/Notario"), notario);
}

TEST_F(ResultadosBiblioteca, ElOrigenSoloCuandoSePide) {
    EXPECT_EQ(analizador_texto(sesion_.get(), "/Origen"), nullptr);
    ASSERT_EQ(
        analizador_analiza_fichero(sesion_.get(), Ejemplo("compravenda.docx").c_str(), ANALIZADOR_CON_ORIGEN),
        ANALIZADOR_BIEN);
    EXPECT_EQ(analizador_cuenta(sesion_.get(), "/Origen/Otorgantes"), 3);
    EXPECT_EQ(Texto(sesion_, "/Origen/Otorgantes/0/NumDocumento/texto"), "40.291.837-T");
}

// A host may trap what is harmless here, as Delphi does, and must find its settings again.
TEST_F(ResultadosBiblioteca, LosAjustesDeComaFlotanteDelAnfitrionQuedanComoEstaban) {
#ifdef __GLIBC__
    std::fenv_t antes;
    std::fegetenv(&antes);
    feenableexcept(FE_DIVBYZERO | FE_INVALID | FE_INEXACT);
    const int codigo =
        analizador_analiza_fichero(sesion_.get(), Ejemplo("prestamo_hipotecario.docx").c_str(), 0);
    const int despues = fegetexcept();
    std::fesetenv(&antes);
    EXPECT_EQ(codigo, ANALIZADOR_BIEN);
    EXPECT_EQ(despues, FE_DIVBYZERO | FE_INVALID | FE_INEXACT);
#else
    GTEST_SKIP() << "this system cannot tell";
#endif
}

}  // namespace
}  // namespace analizador

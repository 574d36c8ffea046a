// Versions, and opening and closing sessions.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "pruebas/biblioteca/SesionDePrueba.h"

namespace analizador {
namespace {

using testing::HasSubstr;

TEST(VersionBiblioteca, LaDelProyecto) {
    EXPECT_STREQ(analizador_version(), VERSION_PROYECTO);
    EXPECT_EQ(analizador_interfaz(), ANALIZADOR_VERSION_INTERFAZ);
}

TEST(VersionBiblioteca, DiceAlAnfitrionSiEsMasNuevoQueElla) {
    struct TCaso {
        int Interfaz;
        int Codigo;
    };
    for (const auto& [interfaz, codigo] : {TCaso{1, ANALIZADOR_BIEN},
                                           {ANALIZADOR_VERSION_INTERFAZ, ANALIZADOR_BIEN},
                                           {ANALIZADOR_VERSION_INTERFAZ + 1, ANALIZADOR_OTRA_INTERFAZ},
                                           {0, ANALIZADOR_OTRA_INTERFAZ},
                                           {-1, ANALIZADOR_OTRA_INTERFAZ}}) {
        EXPECT_EQ(analizador_comprueba(interfaz), codigo) << interfaz;
        analizador_sesion* sesion = nullptr;
        EXPECT_EQ(analizador_abre(interfaz, CARPETA_VOCABULARIO, CARPETA_TABLAS, &sesion), codigo)
            << interfaz;
        const TSesion suya(sesion);
        EXPECT_EQ(sesion == nullptr, codigo != ANALIZADOR_BIEN) << interfaz;
    }
    analizador_comprueba(7);
    EXPECT_STREQ(analizador_error(nullptr), "la biblioteca tiene la interfaz 2 y el programa pide la 7");
}

TEST(AperturaBiblioteca, DiceQueCarpetaNoSirve) {
    const TCarpetaTemporal carpeta;
    std::ofstream(carpeta / "fichero") << "nada";
    const std::string vacia = (carpeta / "").string();
    const std::string fichero = (carpeta / "fichero").string();
    const std::string falta = (carpeta / "no está").string();
    struct TCaso {
        const char* Vocabularios;
        const char* Tablas;
        int Codigo;
        std::string Motivo;
    };
    const std::vector<TCaso> casos = {
        {falta.c_str(), CARPETA_TABLAS, ANALIZADOR_CONFIGURACION, falta + ": no existe esa carpeta"},
        {fichero.c_str(), CARPETA_TABLAS, ANALIZADOR_CONFIGURACION, fichero + ": no es una carpeta"},
        {vacia.c_str(), CARPETA_TABLAS, ANALIZADOR_CONFIGURACION, "CASTELLANO.INI: falta ese vocabulario"},
        {CARPETA_VOCABULARIO, falta.c_str(), ANALIZADOR_CONFIGURACION, falta + ": no existe esa carpeta"},
        {"", CARPETA_TABLAS, ANALIZADOR_MAL_USO, "está vacío"},
        {CARPETA_VOCABULARIO, "\xE1", ANALIZADOR_MAL_TEXTO, "no está en UTF-8"}};
    for (const auto& caso : casos) {
        int otra = 0;
        // What was there before must not stay.
        auto* sesion = reinterpret_cast<analizador_sesion*>(&otra);
        EXPECT_EQ(analizador_abre(ANALIZADOR_VERSION_INTERFAZ, caso.Vocabularios, caso.Tablas, &sesion),
                  caso.Codigo)
            << caso.Motivo;
        EXPECT_EQ(sesion, nullptr) << caso.Motivo;
        EXPECT_THAT(analizador_error(nullptr), HasSubstr(caso.Motivo));
        EXPECT_NE(Texto16(analizador_error16(nullptr)).find(std::filesystem::path(caso.Motivo).u16string()),
                  std::u16string::npos);
    }
    EXPECT_EQ(analizador_abre(ANALIZADOR_VERSION_INTERFAZ, CARPETA_VOCABULARIO, CARPETA_TABLAS, nullptr),
              ANALIZADOR_MAL_USO);
    EXPECT_NE(Abierta(), nullptr);
    EXPECT_STREQ(analizador_error(nullptr), "");
}

TEST(AperturaBiblioteca, EnUtf16) {
    analizador_sesion* sesion = nullptr;
    ASSERT_EQ(analizador_abre16(ANALIZADOR_VERSION_INTERFAZ,
                                Unidades(std::filesystem::path(CARPETA_VOCABULARIO).u16string()).data(),
                                Unidades(std::filesystem::path(CARPETA_TABLAS).u16string()).data(), &sesion),
              ANALIZADOR_BIEN);
    const TSesion suya(sesion);
    EXPECT_EQ(analizador_analiza_fichero(sesion, Ejemplo("testament.docx").c_str(), 0), ANALIZADOR_BIEN);
}

TEST(AperturaBiblioteca, LasCarpetasSonLasMismasMientrasHayaSesiones) {
    const TCarpetaTemporal carpeta;
    std::filesystem::copy(CARPETA_VOCABULARIO, carpeta / "CONFIG");
    const std::string otra = (carpeta / "CONFIG").string();
    {
        const TSesion primera = Abierta();
        ASSERT_NE(primera, nullptr);
        EXPECT_EQ(Abierta(otra.c_str(), nullptr), nullptr);
        EXPECT_THAT(analizador_error(nullptr), HasSubstr(otra + ": hay sesiones abiertas con otra carpeta"));
        EXPECT_EQ(Abierta(nullptr, otra.c_str()), nullptr);
        EXPECT_NE(Abierta(nullptr, nullptr), nullptr);
        EXPECT_NE(Abierta((std::string(CARPETA_VOCABULARIO) + "/../vocabulario/").c_str(), nullptr), nullptr);
        EXPECT_NE(Abierta(), nullptr);
    }
    const TSesion nueva = Abierta(otra.c_str());
    ASSERT_NE(nueva, nullptr);
    EXPECT_EQ(analizador_analiza_fichero(nueva.get(), Ejemplo("testament.docx").c_str(), 0), ANALIZADOR_BIEN);
    EXPECT_EQ(Texto(nueva, "/idioma"), "catalan");
}

TEST(AperturaBiblioteca, UnaCarpetaRelativaEsLaDeEntonces) {
    const auto antes = std::filesystem::current_path();
    std::filesystem::current_path(CARPETA_VOCABULARIO);
    const TSesion sesion = Abierta(".");
    std::filesystem::current_path(antes);
    ASSERT_NE(sesion, nullptr);
    EXPECT_EQ(analizador_analiza_fichero(sesion.get(), Ejemplo("testamento.docx").c_str(), 0),
              ANALIZADOR_BIEN);
    EXPECT_EQ(Texto(sesion, "/Cabecera/NumeroProtocolo"), "470");
}

TEST(AperturaBiblioteca, SinCarpetasLasDelProgramaAnfitrion) {
    EXPECT_EQ(Abierta(nullptr, nullptr), nullptr);
    const auto propia =
        std::filesystem::canonical("/proc/self/exe").parent_path() / "CONFIG" / "CASTELLANO.INI";
    EXPECT_STREQ(analizador_error(nullptr), (propia.string() + ": falta ese vocabulario").c_str());
}

TEST(AperturaBiblioteca, SinTablasLasQueDiceLaOficina) {
    const TCarpetaTemporal carpeta;
    std::filesystem::copy(CARPETA_VOCABULARIO, carpeta / "CONFIG");
    std::ofstream(carpeta / "CONFIG" / "OFICINA.INI") << "[TABLAS]\nCarpeta=" << CARPETA_TABLAS << "\n";
    const TSesion sesion = Abierta((carpeta / "CONFIG").string().c_str(), nullptr);
    ASSERT_NE(sesion, nullptr) << analizador_error(nullptr);
    ASSERT_EQ(analizador_analiza_fichero(sesion.get(), Ejemplo("compravenda.docx").c_str(), 0),
              ANALIZADOR_BIEN)
        << Error(sesion);
    EXPECT_EQ(Texto(sesion, "/Otorgantes/0/CodINE"), "17066");
}

TEST(AperturaBiblioteca, CerrarNadaNoEsNada) {
    analizador_cierra(nullptr);
    SUCCEED();
}

}  // namespace
}  // namespace analizador

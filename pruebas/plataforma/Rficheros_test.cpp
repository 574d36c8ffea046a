#include "plataforma/Rficheros.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>

#include "plataforma/CarpetaPrivada.h"

namespace analizador {
namespace {

namespace fs = std::filesystem;

// A folder of this test's own, gone with it.
class FicherosPrueba : public testing::Test {
  protected:
    FicherosPrueba() {
        semilla_ = FicheroTemporal_("", "carpeta", "d");
        carpeta_ = semilla_;
        carpeta_ += ".prueba";
        fs::create_directory(carpeta_);
    }
    ~FicherosPrueba() override {
        std::error_code ignorado;
        fs::remove_all(carpeta_, ignorado);
        fs::remove(semilla_, ignorado);
    }
    [[nodiscard]] const fs::path& Carpeta() const { return carpeta_; }
    static void Escribe(const fs::path& fichero, std::string_view texto) { std::ofstream(fichero) << texto; }

  private:
    fs::path semilla_;
    fs::path carpeta_;
};

TEST(SlashSep, DejaUnSoloSeparador) {
    const struct {
        const char *Ruta, *Resto, *Junta;
    } casos[] = {{"/casa", "CONFIG", "/casa/CONFIG"},
                 {"/casa/", "CONFIG", "/casa/CONFIG"},
                 {"/casa", "/CONFIG/", "/casa/CONFIG/"},
                 {"/casa//", "//CONFIG", "/casa/CONFIG"},
                 {"/", "CONFIG", "/CONFIG"},
                 {"", "CONFIG", "CONFIG"},
                 {"casa", "", "casa/"},
                 {"a b", "CASTELLANO.INI", "a b/CASTELLANO.INI"}};
    for (const auto& [ruta, resto, junta] : casos)
        EXPECT_EQ(SlashSep(ruta, resto).make_preferred().native(), fs::path(junta).make_preferred().native());
}

TEST(RutaPrograma, EsElFicheroDeEstePrograma) {
    EXPECT_EQ(RutaPrograma().stem(), "pruebas_plataforma");
    EXPECT_TRUE(fs::is_regular_file(RutaPrograma()));
}

TEST_F(FicherosPrueba, TemporalVacioYSoloDelUsuario) {
    const auto fichero = FicheroTemporal_(Carpeta(), "NUM", "xml");
    EXPECT_EQ(fichero.parent_path(), Carpeta());
    EXPECT_TRUE(fichero.filename().string().starts_with("NUM"));
    EXPECT_EQ(fichero.extension(), ".xml");
    EXPECT_EQ(fs::file_size(fichero), 0U);
#ifndef _WIN32  // there the permissions are a list that the library does not read
    EXPECT_EQ(fs::status(fichero).permissions(), fs::perms::owner_read | fs::perms::owner_write);
#endif
}

TEST_F(FicherosPrueba, TemporalesDistintosYLargosDeAdivinar) {
    std::set<fs::path> nombres;
    for (int i = 0; i < 50; ++i) nombres.insert(FicheroTemporal_(Carpeta(), "", "TXT"));
    EXPECT_EQ(nombres.size(), 50U);
    for (const auto& nombre : nombres) EXPECT_GE(nombre.stem().native().size(), 32U);
}

TEST_F(FicherosPrueba, TemporalEnLaCarpetaPrivada) {
    const auto fichero = FicheroTemporal_("", "NUM", "xml");
    EXPECT_EQ(fichero.parent_path(), CarpetaPrivada());
    fs::remove(fichero);
}

TEST_F(FicherosPrueba, TemporalDondeNoHayCarpeta) {
    EXPECT_THROW((void)FicheroTemporal_(Carpeta() / "no hay", "NUM", "xml"), fs::filesystem_error);
}

TEST_F(FicherosPrueba, LaMarcaCambiaConElContenidoElMomentoYElFichero) {
    const auto fichero = Carpeta() / "a";
    Escribe(fichero, "uno");
    const auto marca = MarcaDeFichero(fichero);
    EXPECT_TRUE(marca.Existe);
    EXPECT_EQ(marca.Longitud, 3U);

    Escribe(fichero, "cuatro");
    EXPECT_NE(MarcaDeFichero(fichero), marca);

    Escribe(fichero, "dos");
    fs::last_write_time(fichero, fs::file_time_type::clock::now() - std::chrono::hours(1));
    const auto otroMomento = MarcaDeFichero(fichero);
    EXPECT_EQ(otroMomento.Longitud, marca.Longitud);
    EXPECT_NE(otroMomento.Modificado, marca.Modificado);

    const auto otro = Carpeta() / "b";
    fs::copy_file(fichero, otro);
    EXPECT_NE(MarcaDeFichero(otro).Identidad, marca.Identidad);
}

TEST_F(FicherosPrueba, LaMarcaDeLoQueNoExiste) {
    EXPECT_EQ(MarcaDeFichero(Carpeta() / "no hay"), TMarcaFichero{});
}

TEST_F(FicherosPrueba, DelFuturoEsReciente) {
    const auto fichero = Carpeta() / "a";
    Escribe(fichero, "uno");
    fs::last_write_time(fichero, fs::file_time_type::clock::now() + std::chrono::hours(1));
    EXPECT_TRUE(MarcaDeFichero(fichero).Reciente);
}

TEST(EsMarcaReciente, TresSegundos) {
    constexpr std::int64_t AHORA = 1'000'000'000'000;
    constexpr std::int64_t SEGUNDO = 1'000'000'000;
    constexpr std::int64_t ANTES = AHORA - 100 * SEGUNDO;
    EXPECT_TRUE(EsMarcaReciente(AHORA, ANTES, AHORA));
    EXPECT_TRUE(EsMarcaReciente(ANTES, AHORA, AHORA));
    EXPECT_TRUE(EsMarcaReciente(AHORA - 3 * SEGUNDO + 1, ANTES, AHORA));
    EXPECT_FALSE(EsMarcaReciente(AHORA - 3 * SEGUNDO, ANTES, AHORA));
    EXPECT_FALSE(EsMarcaReciente(ANTES, ANTES, AHORA));
    EXPECT_TRUE(EsMarcaReciente(AHORA + 100 * SEGUNDO, ANTES, AHORA));
}

}  // namespace
}  // namespace analizador

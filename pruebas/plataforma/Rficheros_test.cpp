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

TEST_F(FicherosPrueba, LeeElContenidoConSuMarca) {
    for (const std::string& texto : {std::string(), std::string("uno"), std::string(200'000, '\0') + "fin"}) {
        const auto fichero = Carpeta() / "a";
        Escribe(fichero, texto);
        const auto lectura = LeeFichero(fichero);
        EXPECT_EQ(lectura.Estado, TEstadoLectura::Entera);
        EXPECT_EQ(lectura.Bytes, texto);
        EXPECT_TRUE(MismaMarca(lectura.Marca, MarcaDeFichero(fichero)));
    }
}

TEST_F(FicherosPrueba, LoQueNoSePuedeLeerDiceLaCausa) {
    EXPECT_EQ(LeeFichero(Carpeta() / "no hay").Estado, TEstadoLectura::NoSeAbre);
    const auto carpeta = LeeFichero(Carpeta());
    EXPECT_EQ(carpeta.Estado, TEstadoLectura::NoSeLee);
    EXPECT_EQ(carpeta.Bytes, "");
}

TEST_F(FicherosPrueba, SinPermisoParaLeer) {
    const auto cerrado = Carpeta() / "cerrado";
    Escribe(cerrado, "uno");
    fs::permissions(cerrado, fs::perms::none);
    if (std::ifstream(cerrado)) GTEST_SKIP() << "this user may read everything";
    EXPECT_EQ(LeeFichero(cerrado).Estado, TEstadoLectura::SinPermiso);
}

// The file gets another sign each time its mark is taken, up to so many.
TTomaMarca CreceAlMirarlo(int veces) {
    return [veces](const fs::path& fichero) mutable {
        const auto marca = MarcaDeFichero(fichero);
        if (veces-- > 0) std::ofstream(fichero, std::ios::app) << '.';
        return marca;
    };
}

TEST_F(FicherosPrueba, LeeOtraVezLoQueCambiaMientras) {
    const auto fichero = Carpeta() / "a";
    for (const int veces : {1, 2, 7, 50}) {
        Escribe(fichero, "uno");
        const auto lectura = LeeFichero(fichero, CreceAlMirarlo(veces));
        EXPECT_EQ(lectura.Estado, TEstadoLectura::Entera) << veces;
        EXPECT_EQ(lectura.Bytes, "uno" + std::string(static_cast<std::size_t>(veces), '.'));
        EXPECT_EQ(lectura.Marca.Longitud, lectura.Bytes.size());
    }
}

TEST_F(FicherosPrueba, LoQueNuncaSeEstaQuietoSeDice) {
    const auto fichero = Carpeta() / "a";
    Escribe(fichero, "uno");
    EXPECT_EQ(LeeFichero(fichero, CreceAlMirarlo(100'000)).Estado, TEstadoLectura::Cambia);

    Escribe(fichero, "uno");
    const auto masCorto = [](const fs::path& ruta) {
        auto marca = MarcaDeFichero(ruta);
        --marca.Longitud;
        return marca;
    };
    EXPECT_EQ(LeeFichero(fichero, masCorto).Estado, TEstadoLectura::Cambia);
}

// As a writer does to a file of its length within one step of the clock: no mark tells.
TEST_F(FicherosPrueba, LoQueCambiaBajoUnaMarcaRecienteSeLeeOtraVez) {
    const auto fichero = Carpeta() / "a";
    Escribe(fichero, "uno");
    const TMarcaFichero marca = MarcaDeFichero(fichero);
    ASSERT_TRUE(marca.Reciente);
    int veces = 0;
    const auto siempreLaMisma = [&](const fs::path& ruta) {
        if (++veces == 2) Escribe(ruta, "dos");
        return marca;
    };
    EXPECT_EQ(LeeFichero(fichero, siempreLaMisma).Bytes, "dos");
}

TEST_F(FicherosPrueba, AlQueSeVaciaSeLeEsperaUnPoco) {
    const auto fichero = Carpeta() / "a";
    Escribe(fichero, "");
    int veces = 0;
    const auto seLlena = [&](const fs::path& ruta) {
        if (++veces == 5) Escribe(ruta, "uno");
        return MarcaDeFichero(ruta);
    };
    EXPECT_EQ(LeeFichero(fichero, seLlena).Bytes, "uno");
}

TEST_F(FicherosPrueba, LoQueDesapareceMientrasNoSeAbre) {
    const auto fichero = Carpeta() / "a";
    Escribe(fichero, "uno");
    const auto desaparece = [](const fs::path& ruta) {
        const auto marca = MarcaDeFichero(ruta);
        fs::remove(ruta);
        return marca;
    };
    const auto lectura = LeeFichero(fichero, desaparece);
    EXPECT_EQ(lectura.Estado, TEstadoLectura::NoSeAbre);
    EXPECT_FALSE(lectura.Marca.Existe);
}

}  // namespace
}  // namespace analizador

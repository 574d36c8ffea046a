#include "plataforma/FicheroIni.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <memory>
#include <utility>

#include "plataforma/Ansi.h"
#include "plataforma/Rficheros.h"

namespace analizador {
namespace {

using TPalabras = std::vector<std::string>;

struct TCasoPalabras {
    const char* Nombre;
    std::string_view Bytes;
    TPalabras Esperadas;  // of the section NIF
};

class Palabras : public testing::TestWithParam<TCasoPalabras> {};

TEST_P(Palabras, SonLasEntradasNumeradas) {
    EXPECT_EQ(TFicheroIni(GetParam().Bytes).Palabras("NIF"), GetParam().Esperadas);
}

INSTANTIATE_TEST_SUITE_P(
    Ficheros, Palabras,
    testing::Values(
        TCasoPalabras{"normal", "[NIF]\r\nNumPalabras=2\r\n1=D.N.I.\r\n2=NIF\r\n", {"D.N.I.", "NIF"}},
        TCasoPalabras{"sin_fin_de_linea", "[NIF]\nNumPalabras=1\n1=NIF", {"NIF"}},
        TCasoPalabras{"falta_una", "[NIF]\nNumPalabras=3\n1=A\n3=C\n", {"A", "", "C"}},
        TCasoPalabras{"sobran_claves", "[NIF]\nNumPalabras=1\n1=A\n2=B\n", {"A"}},
        TCasoPalabras{"faltan_las_ultimas", "[NIF]\nNumPalabras=9\n1=A\n", {"A"}},
        TCasoPalabras{"sin_cuenta", "[NIF]\n1=A\n", {}},
        TCasoPalabras{"cuenta_que_no_es_numero", "[NIF]\nNumPalabras=dos\n1=A\n2=B\n", {}},
        TCasoPalabras{"cuenta_negativa", "[NIF]\nNumPalabras=-1\n1=A\n", {}},
        TCasoPalabras{"cuenta_enorme", "[NIF]\nNumPalabras=2000000000\n1=A\n", {"A"}},
        TCasoPalabras{"clave_enorme", "[NIF]\nNumPalabras=2000000000\n1=A\n1999999999=Z\n", {"A"}},
        TCasoPalabras{"ceros_delante", "[NIF]\nNumPalabras=1\n01=X\n1=A\n", {"A"}},
        TCasoPalabras{"desordenadas", "[NIF]\n2=B\n1=A\nNumPalabras=2\n", {"A", "B"}},
        TCasoPalabras{"blancos", "[NIF]\nNumPalabras = 2 \n 1 = \tA B \n2=\" C \"\n", {"A B", " C "}},
        TCasoPalabras{"una_comilla", "[NIF]\nNumPalabras=2\n1=\"\n2=\"\"\n", {"\"", ""}},
        TCasoPalabras{"igual_en_el_valor", "[NIF]\nNumPalabras=1\n1=A=B\n", {"A=B"}},
        TCasoPalabras{
            "comentarios", "; uno\n[NIF]\n;NumPalabras=9\nNumPalabras=1\n1=A ; parte\n", {"A ; parte"}},
        TCasoPalabras{"minusculas", "[nif]\nnumpalabras=1\n1=a\n", {"a"}},
        TCasoPalabras{
            "dos_secciones_iguales", "[NIF]\nNumPalabras=1\n1=A\n[NIF]\nNumPalabras=1\n1=B\n", {"A"}},
        TCasoPalabras{"dos_claves_iguales", "[NIF]\nNumPalabras=1\nNumPalabras=2\n1=A\n1=B\n2=C\n", {"A"}},
        TCasoPalabras{"otra_seccion", "[NIE]\nNumPalabras=1\n1=A\n", {}},
        TCasoPalabras{"claves_sin_seccion", "NumPalabras=1\n1=A\n", {}},
        TCasoPalabras{"corchete_sin_cerrar", "[NIF\nNumPalabras=1\n1=A\n", {}},
        TCasoPalabras{"utf8_con_marca", "\xEF\xBB\xBF[NIF]\nNumPalabras=1\n1=SE\xC3\x91OR\n", {"SE\xD1OR"}},
        TCasoPalabras{"sin_marca_es_1252", "[NIF]\nNumPalabras=1\n1=SE\xD1OR\n", {"SE\xD1OR"}},
        TCasoPalabras{"vacio", "", {}}),
    [](const auto& caso) { return std::string(caso.param.Nombre); });

TEST(FicheroIni, LeeTextosYEnterosConSuDefecto) {
    const TFicheroIni ini("[Tablas]\nCarpeta= \"DATOS \" \nCuantos= 12 \nNada=\nMal=1x\n");
    EXPECT_EQ(ini.LeeTexto("TABLAS", "carpeta", "x"), "DATOS ");
    EXPECT_EQ(ini.LeeTexto("TABLAS", "Nada", "x"), "");
    EXPECT_EQ(ini.LeeTexto("TABLAS", "Otra", "x"), "x");
    EXPECT_EQ(ini.LeeTexto("OTRA", "Carpeta", "x"), "x");
    EXPECT_EQ(ini.LeeEntero("TABLAS", "Cuantos", 7), 12);
    EXPECT_EQ(ini.LeeEntero("TABLAS", "Mal", 7), 7);
    EXPECT_EQ(ini.LeeEntero("TABLAS", "Otra", 7), 7);
}

TEST(FicheroIni, SusTextosVivenConCualquieraDeSusCopias) {
    auto primero = std::make_unique<TFicheroIni>("[NIF]\nNumPalabras=1\n1=A\n");
    const TFicheroIni copia(*primero);
    const TFicheroIni movido(std::move(*primero));
    primero.reset();
    for (const TFicheroIni* ini : {&copia, &movido}) {
        EXPECT_EQ(ini->Secciones()[0].Claves[1].Nombre, "1");
        EXPECT_EQ(ini->Secciones()[0].Claves[1].Valor, "A");
        EXPECT_EQ(ini->LeeTexto("NIF", "1", ""), "A");
    }
}

TEST(FicheroIni, DiceEnQueLineaEstaCadaCosa) {
    const TFicheroIni ini("; uno\n\n[NIF]\nNumPalabras=1\n\n1=A\n");
    ASSERT_EQ(ini.Secciones().size(), 1U);
    EXPECT_EQ(ini.Secciones()[0].Linea, 3);
    ASSERT_EQ(ini.Secciones()[0].Claves.size(), 2U);
    EXPECT_EQ(ini.Secciones()[0].Claves[1].Linea, 6);
}

std::size_t TodasLasPalabras(const TFicheroIni& ini) {
    std::size_t todas = 0;
    for (const auto& seccion : ini.Secciones()) todas += ini.Palabras(seccion.Nombre).size();
    return todas;
}

// A file of keys as far away as it can be said, in one section and in many.
TEST(FicheroIni, LasClavesSueltasNoCuestanMasMemoriaQueElFichero) {
    std::string juntas = "[NIF]\nNumPalabras=999999999\n";
    std::string repartidas;
    for (int i = 1; i <= 20'000; ++i) {
        juntas += std::to_string(i * 40'000) + "=\n" + std::to_string(i * 60) + "=\n";
        repartidas +=
            "[S" + std::to_string(i) + "]\nNumPalabras=9999\n1=A\n" + std::to_string(i % 9990) + "=Z\n";
    }
    for (const auto& bytes : {juntas, repartidas})
        EXPECT_LE(TodasLasPalabras(TFicheroIni(bytes)), bytes.size() / 4 + 10'000);
}

TEST(FicheroIni, LasClavesSueltasRazonablesSeLeen) {
    std::string bytes =
        "[NIF]\nNumPalabras=8000\n8000=Z\n3=C\n3=D\n1=A\n[CIF]\nNumPalabras=4000\n4000=Z\n2=B\n";
    const TFicheroIni ini(bytes);
    const auto& palabras = ini.Palabras("NIF");
    ASSERT_EQ(palabras.size(), 8000U);
    EXPECT_EQ(palabras[0] + palabras[1] + palabras[2] + palabras[7999], "ACZ");
    EXPECT_EQ(ini.Palabras("CIF"), (std::vector<std::string>{"", "B"})) << "too many would be missing";
}

TEST(FicheroIni, LosBytesCualesquieraNoLaDerriban) {
    constexpr std::string_view LETRAS = "[]=;\"\n\r1N\xEF\xBB\xBF ";
    std::uint32_t semilla = 12345;
    for (int vez = 0; vez < 300; ++vez) {
        std::string bytes = "[NIF]\nNumPalabras=";
        for (int i = 0; i < 200; ++i) {
            semilla = semilla * 1664525U + 1013904223U;
            bytes += LETRAS[(semilla >> 16U) % LETRAS.size()];
        }
        const TFicheroIni ini(bytes);
        EXPECT_LE(ini.Palabras("NIF").size(), bytes.size() * 64 + 64);
    }
}

// ---- What is on disk now

class FicheroEnDisco : public testing::Test {
  protected:
    FicheroEnDisco() : Ruta(FicheroTemporal_({}, "INI", "INI")) {}
    ~FicheroEnDisco() override { std::filesystem::remove(Ruta); }
    void Escribe(std::string_view bytes) const {
        std::ofstream salida(Ruta, std::ios::binary | std::ios::trunc);
        salida << bytes;
    }
    [[nodiscard]] TPalabras Lee() const { return AbreFicheroIni(Ruta)->Palabras("NIF"); }
    const std::filesystem::path Ruta;
};

// Far more often than the clock of any file system ticks, and always of the same length.
TEST_F(FicheroEnDisco, UnCambioDelMismoLargoEnElMismoInstanteSeVe) {
    for (int vez = 0; vez < 500; ++vez) {
        const std::string palabra = vez % 2 == 0 ? "A" : "B";
        Escribe("[NIF]\nNumPalabras=1\n1=" + palabra + "\n");
        ASSERT_EQ(Lee(), TPalabras{palabra});
    }
}

// An old file, which is kept in memory, and then another one put in its place with the same length and the
// same time.
TEST_F(FicheroEnDisco, UnFicheroPuestoEnLugarDeOtroSeVe) {
    const auto antiguo = std::filesystem::file_time_type::clock::now() - std::chrono::hours(24);
    Escribe("[NIF]\nNumPalabras=1\n1=A\n");
    std::filesystem::last_write_time(Ruta, antiguo);
    EXPECT_EQ(Lee(), TPalabras{"A"});
    EXPECT_EQ(Lee(), TPalabras{"A"});
    const auto otro = FicheroTemporal_({}, "INI", "INI");
    std::ofstream(otro, std::ios::binary) << "[NIF]\nNumPalabras=1\n1=B\n";
    std::filesystem::last_write_time(otro, antiguo);
    std::filesystem::rename(otro, Ruta);
    EXPECT_EQ(Lee(), TPalabras{"B"});
}

TEST_F(FicheroEnDisco, SinFicheroNoHayPalabras) {
    Escribe("[NIF]\nNumPalabras=1\n1=A\n");
    EXPECT_EQ(Lee(), TPalabras{"A"});
    std::filesystem::remove(Ruta);
    EXPECT_EQ(Lee(), TPalabras{});
    Escribe("[NIF]\nNumPalabras=1\n1=A\n");
    EXPECT_EQ(Lee(), TPalabras{"A"});
}

TEST_F(FicheroEnDisco, LoLeidoSigueValiendoAunqueElFicheroCambie) {
    Escribe("[NIF]\nNumPalabras=1\n1=A\n");
    const auto leido = AbreFicheroIni(Ruta);
    const auto& palabras = leido->Palabras("NIF");
    Escribe("[NIF]\nNumPalabras=1\n1=B\n");
    EXPECT_EQ(Lee(), TPalabras{"B"});
    EXPECT_EQ(palabras, TPalabras{"A"});
}

TEST(FicheroIni, UnaCarpetaNoEsUnFichero) {
    EXPECT_TRUE(AbreFicheroIni(std::filesystem::temp_directory_path())->Secciones().empty());
}

}  // namespace
}  // namespace analizador

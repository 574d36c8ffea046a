#include "plataforma/CarpetaPrivada.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "plataforma/Rficheros.h"

namespace analizador {
namespace {

namespace fs = std::filesystem;

// A process that has a private folder, run by the shell with one end of a pipe.
class TProceso {
  public:
    TProceso(const std::string& orden, const char* modo) : FTubo(popen(orden.c_str(), modo)) {}
    ~TProceso() {
        if (FTubo != nullptr) pclose(FTubo);
    }
    TProceso(const TProceso&) = delete;
    TProceso& operator=(const TProceso&) = delete;
    [[nodiscard]] FILE* Tubo() const { return FTubo; }

  private:
    FILE* FTubo;
};

// The system's folder for temporary files is one of the test's own.
class CarpetaPrivadaPrueba : public testing::Test {
  protected:
    CarpetaPrivadaPrueba() {
        fs::create_directory(FTemporales);
        setenv("TMPDIR", FTemporales.c_str(), 1);
    }
    ~CarpetaPrivadaPrueba() override {
        if (FAnterior.empty())
            unsetenv("TMPDIR");
        else
            setenv("TMPDIR", FAnterior.c_str(), 1);
        fs::remove_all(FTemporales);
    }

    // The folder of a process that has ended so.
    [[nodiscard]] static fs::path CarpetaDeUnoQue(const std::string& acaba) {
        const TProceso proceso(std::string(PROCESO_CON_CARPETA) + " " + acaba, "r");
        return LeeRuta(proceso.Tubo());
    }

    [[nodiscard]] static fs::path LeeRuta(FILE* de) {
        std::string linea;
        for (int c = std::fgetc(de); c != EOF && c != '\n'; c = std::fgetc(de)) linea += static_cast<char>(c);
        return linea;
    }

    fs::path FTemporales = CarpetaPrivada() / "temporales";

  private:
    std::string FAnterior = std::getenv("TMPDIR") == nullptr ? "" : std::getenv("TMPDIR");
};

TEST_F(CarpetaPrivadaPrueba, EsSoloDelUsuarioYSiempreLaMisma) {
    EXPECT_EQ(fs::status(CarpetaPrivada()).permissions(), fs::perms::owner_all);
    EXPECT_GE(CarpetaPrivada().filename().string().size(), std::string("analizador-").size() + 32);
    EXPECT_EQ(CarpetaPrivada(), CarpetaPrivada());
}

TEST_F(CarpetaPrivadaPrueba, SeVaConElProcesoYConLoQueTiene) {
    const auto carpeta = CarpetaDeUnoQue("acaba");
    EXPECT_EQ(carpeta.parent_path(), FTemporales);
    EXPECT_FALSE(fs::exists(carpeta));
}

TEST_F(CarpetaPrivadaPrueba, LaDeUnProcesoMuertoSeQuitaDespues) {
    const auto carpeta = CarpetaDeUnoQue("muere");
    ASSERT_TRUE(fs::exists(carpeta / "dato"));
    LimpiaCarpetasAbandonadas();
    EXPECT_FALSE(fs::exists(carpeta));
}

TEST_F(CarpetaPrivadaPrueba, ElProcesoSiguienteQuitaLaDelMuerto) {
    const auto carpeta = CarpetaDeUnoQue("muere");
    ASSERT_TRUE(fs::exists(carpeta / "dato"));
    (void)CarpetaDeUnoQue("acaba");
    EXPECT_FALSE(fs::exists(carpeta));
}

TEST_F(CarpetaPrivadaPrueba, LaDeUnProcesoVivoNoSeToca) {
    const auto aviso = FTemporales / "ruta";
    const TProceso vivo(std::string(PROCESO_CON_CARPETA) + " espera > " + aviso.string(), "w");
    fs::path carpeta;
    while (carpeta.empty()) {
        const std::unique_ptr<FILE, int (*)(FILE*)> leido(std::fopen(aviso.c_str(), "r"), std::fclose);
        if (leido) carpeta = LeeRuta(leido.get());
    }
    LimpiaCarpetasAbandonadas();
    EXPECT_TRUE(fs::exists(carpeta));
}

TEST_F(CarpetaPrivadaPrueba, LoQueNoEsUnaCarpetaDeEstasNoSeToca) {
    const auto fuera = FTemporales / "fuera";
    fs::create_directory(fuera);
    const auto enlace = FTemporales / "analizador-enlace";
    fs::create_directory_symlink(fuera, enlace);
    const auto fichero = FicheroTemporal_(FTemporales, "analizador-", "txt");
    LimpiaCarpetasAbandonadas();
    EXPECT_TRUE(fs::exists(fuera));
    EXPECT_TRUE(fs::is_symlink(enlace));
    EXPECT_TRUE(fs::exists(fichero));
}

}  // namespace
}  // namespace analizador

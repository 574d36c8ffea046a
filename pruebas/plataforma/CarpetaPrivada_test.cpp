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

#ifdef _WIN32
constexpr const char* VARIABLE_TEMPORALES = "TMP";
// An empty value removes the variable.
void PonVariable(const char* nombre, const std::string& valor) {
    _putenv_s(nombre, valor.c_str());
}
#else
constexpr const char* VARIABLE_TEMPORALES = "TMPDIR";
void PonVariable(const char* nombre, const std::string& valor) {
    if (valor.empty())
        unsetenv(nombre);
    else
        setenv(nombre, valor.c_str(), 1);
}
#endif

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
        PonVariable(VARIABLE_TEMPORALES, FTemporales.string());
    }
    ~CarpetaPrivadaPrueba() override {
        PonVariable(VARIABLE_TEMPORALES, FAnterior);
        fs::remove_all(FTemporales);
    }

    // The folder of a process that has ended so.
    [[nodiscard]] static fs::path CarpetaDeUnoQue(const std::string& acaba) {
        const TProceso proceso(Programa() + " " + acaba, "r");
        return LeeRuta(proceso.Tubo());
    }

    [[nodiscard]] static std::string Programa() {
        return fs::path(PROCESO_CON_CARPETA).make_preferred().string();
    }

    [[nodiscard]] static fs::path LeeRuta(FILE* de) {
        std::string linea;
        for (int c = std::fgetc(de); c != EOF && c != '\n'; c = std::fgetc(de)) linea += static_cast<char>(c);
        return linea;
    }

    fs::path FTemporales = CarpetaPrivada() / "temporales";

  private:
    std::string FAnterior =
        std::getenv(VARIABLE_TEMPORALES) == nullptr ? "" : std::getenv(VARIABLE_TEMPORALES);
};

TEST_F(CarpetaPrivadaPrueba, EsSoloDelUsuarioYSiempreLaMisma) {
#ifndef _WIN32  // there the permissions are a list that the library does not read
    EXPECT_EQ(fs::status(CarpetaPrivada()).permissions(), fs::perms::owner_all);
#endif
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
    const TProceso vivo(Programa() + " espera > " + aviso.string(), "w");
    fs::path carpeta;
    while (carpeta.empty()) {
        const std::unique_ptr<FILE, int (*)(FILE*)> leido(std::fopen(aviso.string().c_str(), "r"),
                                                          std::fclose);
        if (leido) carpeta = LeeRuta(leido.get());
    }
    LimpiaCarpetasAbandonadas();
    EXPECT_TRUE(fs::exists(carpeta));
}

TEST_F(CarpetaPrivadaPrueba, LoQueNoEsUnaCarpetaDeEstasNoSeToca) {
    const auto fuera = FTemporales / "fuera";
    fs::create_directory(fuera);
#ifndef _WIN32  // there a user makes no links
    const auto enlace = FTemporales / "analizador-enlace";
    fs::create_directory_symlink(fuera, enlace);
#endif
    const auto fichero = FicheroTemporal_(FTemporales, "analizador-", "txt");
    LimpiaCarpetasAbandonadas();
    EXPECT_TRUE(fs::exists(fuera));
#ifndef _WIN32
    EXPECT_TRUE(fs::is_symlink(enlace));
#endif
    EXPECT_TRUE(fs::exists(fichero));
}

}  // namespace
}  // namespace analizador

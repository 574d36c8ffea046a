#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "adaptadores/dbase/OrdenDbf.h"
#include "plataforma/Rficheros.h"

namespace analizador {
namespace {

struct TResultado {
    int Codigo = -1;
    std::string Salida, Errores;
};

// Runs the program in a folder of its own that holds a copy of the shipped sources in `datos`.
class Programa : public testing::Test {
  protected:
    Programa() : carpeta_(FicheroTemporal_({}, "pruebas_creatablas", "d")) {
        std::filesystem::remove(carpeta_);
        std::filesystem::create_directory(carpeta_);
        std::filesystem::copy(CARPETA_DATOS, Ruta("datos"));
    }
    ~Programa() override {
        std::error_code error;
        std::filesystem::remove_all(carpeta_, error);
    }

    [[nodiscard]] std::filesystem::path Ruta(const std::string& nombre) const { return carpeta_ / nombre; }

    static std::string Contenido(const std::filesystem::path& ruta) {
        std::ifstream fichero(ruta, std::ios::binary);
        std::ostringstream texto;
        texto << fichero.rdbuf();
        return texto.str();
    }

    [[nodiscard]] TResultado Ejecuta(const std::string& argumentos) const {
        const std::string orden = "cd '" + carpeta_.string() + "' && '" PROGRAMA_CREATABLAS "' " +
                                  argumentos + " > salida.txt 2> errores.txt";
        const int estado = std::system(orden.c_str());
        return {WEXITSTATUS(estado), Contenido(Ruta("salida.txt")), Contenido(Ruta("errores.txt"))};
    }

    void Pon(const std::string& csv, const std::string& contenido) const {
        std::ofstream(Ruta("datos") / csv, std::ios::binary) << contenido;
    }

  private:
    std::filesystem::path carpeta_;
};

int Lineas(const std::string& texto) {
    return static_cast<int>(std::count(texto.begin(), texto.end(), '\n'));
}

TEST_F(Programa, HaceTodasLasTablas) {
    const TResultado porOmision = Ejecuta("");
    EXPECT_EQ(porOmision.Codigo, 0) << porOmision.Errores;
    EXPECT_EQ(porOmision.Errores + porOmision.Salida, "");
    EXPECT_EQ(Ejecuta("--origen datos --destino otras/nuevas").Codigo, 0);
    for (const char* tabla :
         {"AYUNTAM", "MUNICIPI", "PILA", "POSTAL", "PROVIN", "TIPOS", "TIPO_INT", "TIPO_VIA"}) {
        const std::string nombre = std::string(tabla) + ".DBF";
        const std::string contenido = Contenido(Ruta("TABLAS") / nombre);
        EXPECT_EQ(contenido.substr(0, 1), "\x03") << nombre;
        EXPECT_EQ(contenido, Contenido(Ruta("otras") / "nuevas" / nombre)) << nombre;
    }
}

// An old note is never left beside a new table, and the new one survives a copy that keeps whole seconds.
TEST_F(Programa, AnotaElOrdenDeLasTablasGrandes) {
    const auto ordenes = [&](const char* tabla) {
        const auto ruta = Ruta("TABLAS") / (std::string(tabla) + ".DBF");
        return OrdenAnotado(ruta, MarcaDeFichero(ruta));
    };
    for (int vez = 0; vez < 2; ++vez) {
        EXPECT_EQ(Ejecuta("").Codigo, 0);
        EXPECT_TRUE(ordenes("PILA").contains("NOMBRE"));
        EXPECT_TRUE(ordenes("MUNICIPI").contains("NOM_MUNICI"));
        EXPECT_TRUE(ordenes("MUNICIPI").contains("CODPOSTAL"));
        EXPECT_TRUE(ordenes("POSTAL").contains("NOMBREVIA"));
        EXPECT_TRUE(ordenes("TIPOS").empty());
        EXPECT_FALSE(std::filesystem::exists(Ruta("TABLAS") / "TIPOS.ORD"));
        EXPECT_EQ(MarcaDeFichero(Ruta("TABLAS") / "PILA.DBF").Modificado % 2'000'000'000, 0);
    }
}

TEST_F(Programa, UnFalloNombraFicheroLineaYCausa) {
    Pon("PILA.csv", "NOMBRE\nANA\nUN NOMBRE QUE NO CABE EN LOS CUARENTA CARACTERES DEL CAMPO\n");
    const TResultado resultado = Ejecuta("");
    EXPECT_EQ(resultado.Codigo, 1);
    EXPECT_NE(resultado.Errores.find("datos/PILA.csv:3: campo NOMBRE: no cabe en 40 caracteres"),
              std::string::npos)
        << resultado.Errores;
    EXPECT_EQ(Lineas(resultado.Errores), 1);
    EXPECT_FALSE(std::filesystem::exists(Ruta("TABLAS") / "PILA.DBF"));
    EXPECT_TRUE(std::filesystem::exists(Ruta("TABLAS") / "TIPOS.DBF")) << "the others are made";
}

TEST_F(Programa, LoQueDiceElFicheroNoParteLaLineaDelFalloNiLaAlarga) {
    Pon("PILA.csv", "NOMBRE\n\"Ж\nANA\u2028\x1B[2J" + std::string(5000, 'X') + "\"\n");
    Pon("TIPOS.csv", Contenido(Ruta("datos") / "TIPOS.csv") + "\"1\n2\",\"X\nY\"\n");
    std::filesystem::rename(Ruta("datos"), Ruta("da\ntos"));
    const TResultado resultado = Ejecuta("--origen 'da\ntos'");
    EXPECT_EQ(resultado.Codigo, 1);
    EXPECT_EQ(Lineas(resultado.Errores), 2) << resultado.Errores;
    EXPECT_NE(
        resultado.Errores.find("da?tos/PILA.csv:2: campo NOMBRE: tiene letras que no están en la página "
                               "de códigos 1252: Ж?ANA??[2JXXX"),
        std::string::npos)
        << resultado.Errores;
    EXPECT_NE(resultado.Errores.find("XXX…\n"), std::string::npos) << resultado.Errores;
    EXPECT_LT(resultado.Errores.size(), 700U);
}

TEST_F(Programa, CadaFicheroConFalloSeDiceYLaTablaViejaQueda) {
    ASSERT_EQ(Ejecuta("").Codigo, 0);
    const std::string vieja = Contenido(Ruta("TABLAS") / "PILA.DBF");
    Pon("PILA.csv", "NOMBRE\nЖ\n");
    std::filesystem::remove(Ruta("datos") / "POSTAL.csv");
    const TResultado resultado = Ejecuta("");
    EXPECT_EQ(resultado.Codigo, 1);
    EXPECT_EQ(Lineas(resultado.Errores), 2) << resultado.Errores;
    EXPECT_NE(resultado.Errores.find("PILA.csv:2: campo NOMBRE: tiene letras que no están"),
              std::string::npos);
    EXPECT_NE(resultado.Errores.find("POSTAL.csv: no se puede leer"), std::string::npos);
    EXPECT_EQ(Contenido(Ruta("TABLAS") / "PILA.DBF"), vieja);
}

TEST_F(Programa, UnDestinoImposibleEsUnFallo) {
    const TResultado resultado = Ejecuta("--destino datos/PILA.csv");
    EXPECT_EQ(resultado.Codigo, 1);
    EXPECT_NE(resultado.Errores.find("datos/PILA.csv: no se puede crear la carpeta"), std::string::npos);
}

TEST_F(Programa, UnCallejeroQueFaltaEsUnFallo) {
    for (const std::string carpeta : {"nada", "datos"}) {
        const TResultado resultado = Ejecuta("--callejero " + carpeta);
        EXPECT_EQ(resultado.Codigo, 1);
        EXPECT_EQ(Lineas(resultado.Errores), 1) << resultado.Errores;
        EXPECT_NE(resultado.Errores.find("creatablas: " + carpeta + ": "), std::string::npos)
            << resultado.Errores;
    }
    EXPECT_FALSE(std::filesystem::exists(Ruta("TABLAS") / "POSTAL.DBF"));
}

TEST_F(Programa, MalUsadoSaleConDos) {
    for (const std::string argumentos : {"--nada", "sobra", "--origen", "--origen a --origen"}) {
        const TResultado resultado = Ejecuta(argumentos);
        EXPECT_EQ(resultado.Codigo, 2) << argumentos;
        EXPECT_NE(resultado.Errores.find("--ayuda"), std::string::npos) << resultado.Errores;
        EXPECT_EQ(Lineas(resultado.Errores), 1);
    }
    EXPECT_FALSE(std::filesystem::exists(Ruta("TABLAS")));
}

TEST_F(Programa, AyudaYVersion) {
    for (const std::string argumento : {"--ayuda", "--help"}) {
        const TResultado ayuda = Ejecuta(argumento);
        EXPECT_EQ(ayuda.Codigo, 0);
        EXPECT_NE(ayuda.Salida.find("--destino"), std::string::npos);
        EXPECT_NE(ayuda.Salida.find("Uso:"), std::string::npos);
    }
    const TResultado version = Ejecuta("--version");
    EXPECT_EQ(version.Codigo, 0);
    EXPECT_EQ(version.Salida.substr(0, 11), "creatablas ");
}

}  // namespace
}  // namespace analizador

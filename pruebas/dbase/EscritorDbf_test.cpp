#include "adaptadores/dbase/EscritorDbf.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "adaptadores/dbase/DatosDbf.h"
#include "plataforma/Ansi.h"
#include "plataforma/Ruttb.h"
#include "pruebas/dbase/ConstructorDbf.h"

namespace analizador {
namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::year;
constexpr std::chrono::year_month_day FECHA(year(2024), month(2), day(29));

const std::vector<TColumnaDbf> COLUMNAS = {{"NOMBRE", TTipoColumna::Texto, 12},
                                           {"NUMERO", TTipoColumna::Numero, 4},
                                           {"PRESTAMO", TTipoColumna::Logico, 1}};

std::string Contenido(const std::filesystem::path& ruta) {
    std::ifstream fichero(ruta, std::ios::binary);
    std::ostringstream texto;
    texto << fichero.rdbuf();
    return texto.str();
}

TEST(EscritorDbf, LoEscritoSeLee) {
    const TCarpetaPrueba carpeta;
    const auto ruta = carpeta.Ruta() / "TIPOS.DBF";
    EscribeDbf(ruta, COLUMNAS, {{std::string("DONACIÓN"_ansi), "12", "T"}, {"", "", ""}, {"Z", "-3", "F"}},
               FECHA);
    const std::string bytes = Contenido(ruta);
    EXPECT_EQ(bytes.substr(0, 4), "\x03\x7C\x02\x1D");
    EXPECT_EQ(bytes[29], 0x03);
    EXPECT_EQ(bytes.back(), 0x1A);
    const TDatosDbf datos(bytes, "TIPOS.DBF");
    ASSERT_EQ(datos.Filas(), 3U);
    EXPECT_EQ(datos.Texto(0, datos.Campo("NOMBRE")), "DONACIÓN"_ansi);
    EXPECT_EQ(datos.Numero(0, datos.Campo("NUMERO")), 12);
    EXPECT_EQ(datos.Numero(1, datos.Campo("NUMERO")), std::nullopt);
    EXPECT_EQ(datos.Texto(2, datos.Campo("PRESTAMO")), "F");
}

TEST(EscritorDbf, LoQueNoCabeEsUnErrorYLaTablaViejaQueda) {
    const TCarpetaPrueba carpeta;
    const auto ruta = carpeta.Ruta() / "TIPOS.DBF";
    EscribeDbf(ruta, COLUMNAS, {{"VIEJA", "1", "T"}}, FECHA);
    const std::string vieja = Contenido(ruta);
    const TFilaDbf malas[] = {{"DEMASIADO LARGO", "1", "T"},
                              {"A", "12345", "T"},
                              {"A", "1.5", "T"},
                              {"A", "UNO", "T"},
                              {"A", "1", "S"},
                              {"A", "1"},
                              {"A", "-", "T"},
                              {"A", "1", "T", ""}};
    for (const TFilaDbf& mala : malas)
        EXPECT_THROW(EscribeDbf(ruta, COLUMNAS, {{"BIEN", "1", "T"}, mala}, FECHA), ErrorTabla);
    EXPECT_THROW(EscribeDbf(ruta, {}, {}, FECHA), ErrorTabla);
    EXPECT_THROW(EscribeDbf(ruta, {{"UN_NOMBRE_LARGO"}}, {}, FECHA), ErrorTabla);
    EXPECT_THROW(EscribeDbf(ruta, {{"A", TTipoColumna::Texto, 255}}, {}, FECHA), ErrorTabla);
    EXPECT_EQ(Contenido(ruta), vieja);
    const std::filesystem::directory_iterator queda(carpeta.Ruta());
    EXPECT_EQ(std::distance(begin(queda), end(queda)), 1) << "no temporary file is left";
}

TEST(EscritorDbf, SinCarpetaEsUnErrorQueLaNombra) {
    const TCarpetaPrueba carpeta;
    try {
        EscribeDbf(carpeta.Ruta() / "no_hay" / "X.DBF", COLUMNAS, {}, FECHA);
        FAIL();
    } catch (const ErrorTabla& error) {
        EXPECT_NE(std::string(error.what()).find("no_hay"), std::string::npos);
    }
}

#ifndef _WIN32  // where a file has no such permissions
TEST(EscritorDbf, OtrosPuedenLeerLaTabla) {
    using std::filesystem::perms;
    const TCarpetaPrueba carpeta;
    const auto ruta = carpeta.Ruta() / "X.DBF";
    EscribeDbf(ruta, COLUMNAS, {}, FECHA);
    EXPECT_NE(std::filesystem::status(ruta).permissions() & perms::others_read, perms::none);
    std::filesystem::permissions(ruta, perms::owner_read | perms::owner_write);
    EscribeDbf(ruta, COLUMNAS, {}, FECHA);
    EXPECT_EQ(std::filesystem::status(ruta).permissions(), perms::owner_read | perms::owner_write);
}
#endif

// An independent reader of the format finds in our tables what was written.
TEST(EscritorDbf, LaLeeUnLectorAjeno) {
    const std::string programa = PROGRAMA_DBFDUMP;
    if (programa.empty()) GTEST_SKIP() << "dbfdump is not installed";
    const TCarpetaPrueba carpeta;
    const auto ruta = carpeta.Ruta() / "TIPOS.DBF";
    EscribeDbf(ruta, COLUMNAS, {{std::string("DONACIÓN"_ansi), "12", "T"}, {"Z", "", "F"}}, FECHA);
    const auto salida = carpeta.Ruta() / "salida.txt";
    const std::string orden = programa + " -h " + ruta.string() + " > " + salida.string();
    ASSERT_EQ(std::system(orden.c_str()), 0);
    const std::string texto = Contenido(salida);
    for (const std::string_view esperado : {"Type=C/String, Title=`NOMBRE', Width=12, Decimals=0"_ansi,
                                            "Type=N/Integer, Title=`NUMERO', Width=4, Decimals=0"_ansi,
                                            "DONACIÓN"_ansi, "12 "_ansi, "(NULL)"_ansi})
        EXPECT_NE(texto.find(esperado), std::string::npos) << esperado << "\n" << texto;
}

}  // namespace
}  // namespace analizador

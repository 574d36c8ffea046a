// The shipped tables as others read them: our own reader, LibreOffice and shapelib find every cell of the
// sources.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "adaptadores/dbase/ProveedorDbase.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rficheros.h"
#include "plataforma/Rnumcad.h"
#include "programas/creatablas/Esquema.h"
#include "programas/creatablas/LectorCsv.h"

namespace analizador {
namespace {

namespace fs = std::filesystem;

using TFilas = std::vector<std::vector<std::string>>;  // UTF-8

class TCarpetaTemporal {
  public:
    TCarpetaTemporal() : ruta_(FicheroTemporal_({}, "lectores_ajenos", "d")) {
        fs::remove(ruta_);
        fs::create_directory(ruta_);
    }
    ~TCarpetaTemporal() {
        std::error_code error;
        fs::remove_all(ruta_, error);
    }
    TCarpetaTemporal(const TCarpetaTemporal&) = delete;
    TCarpetaTemporal& operator=(const TCarpetaTemporal&) = delete;

    [[nodiscard]] const fs::path& Ruta() const { return ruta_; }

  private:
    fs::path ruta_;
};

std::string Bytes(const fs::path& ruta) {
    std::ifstream fichero(ruta, std::ios::binary);
    EXPECT_TRUE(fichero) << ruta;
    return {std::istreambuf_iterator<char>(fichero), {}};
}

std::string EntreComillas(const fs::path& ruta) {
    return "'" + ruta.string() + "'";
}

fs::path Tabla(const TEsquema& esquema) {
    return fs::path(CARPETA_TABLAS) / (std::string(esquema.Tabla) + ".DBF");
}

// Header row first.
TFilas FilasCsv(const fs::path& ruta) {
    const std::string texto = Bytes(ruta);
    TLectorCsv lector(texto);
    TFilas filas;
    while (auto registro = lector.Siguiente()) filas.push_back(std::move(registro->Campos));
    return filas;
}

std::vector<std::string> Cabecera(const TEsquema& esquema) {
    std::vector<std::string> nombres;
    for (const TColumnaDbf& columna : esquema.Columnas) nombres.push_back(columna.Nombre);
    return nombres;
}

TFilas Fuente(const TEsquema& esquema) {
    TFilas filas = FilasCsv(fs::path(CARPETA_DATOS) / (std::string(esquema.Tabla) + ".csv"));
    EXPECT_EQ(filas.empty() ? std::vector<std::string>{} : filas.front(), Cabecera(esquema)) << esquema.Tabla;
    if (!filas.empty()) filas.erase(filas.begin());
    EXPECT_FALSE(filas.empty()) << esquema.Tabla;
    return filas;
}

// Tells the first difference alone: a table has thousands of rows.
void EsperaIguales(const TFilas& leidas, const TEsquema& esquema) {
    const TFilas fuente = Fuente(esquema);
    EXPECT_EQ(leidas.size(), fuente.size()) << esquema.Tabla;
    const auto [leida, esperada] = std::mismatch(leidas.begin(), leidas.end(), fuente.begin(), fuente.end());
    if (leida == leidas.end() || esperada == fuente.end()) return;
    EXPECT_EQ(*leida, *esperada) << esquema.Tabla << ", row " << esperada - fuente.begin() + 1;
}

TEST(LectoresAjenos, ElNuestroHallaLasFuentes) {
    TProveedorDbase proveedor(CARPETA_TABLAS);
    for (const TEsquema& esquema : Esquemas()) {
        TFilas filas;
        for (const auto tabla = proveedor.Abre("NORVEX", esquema.Tabla, ""); !tabla->Fin();
             tabla->Siguiente()) {
            filas.emplace_back();
            for (const TColumnaDbf& columna : esquema.Columnas)
                filas.back().push_back(Utf8DeAnsi(tabla->Texto(columna.Nombre)));
        }
        EsperaIguales(filas, esquema);
    }
}

bool HayLibreOffice() {
    const char* ruta = std::getenv("PATH");
    std::istringstream carpetas(ruta != nullptr ? ruta : "");
    for (std::string carpeta; std::getline(carpetas, carpeta, ':');)
        if (fs::exists(fs::path(carpeta) / "soffice")) return true;
    return false;
}

// Its header cells are "NAME,type,width...", its truth values words.
TFilas FilasDeLibreOffice(const fs::path& csv, const TEsquema& esquema) {
    TFilas filas = FilasCsv(csv);
    if (filas.empty()) return filas;
    std::vector<std::string> nombres = filas.front();
    for (std::string& nombre : nombres) nombre.resize(std::min(nombre.find(','), nombre.size()));
    EXPECT_EQ(nombres, Cabecera(esquema)) << esquema.Tabla;
    filas.erase(filas.begin());
    for (auto& fila : filas)
        for (std::size_t i = 0; i < std::min(fila.size(), esquema.Columnas.size()); ++i)
            if (esquema.Columnas[i].Tipo == TTipoColumna::Logico)
                fila[i] = fila[i] == "TRUE" ? "T" : fila[i] == "FALSE" ? "F" : fila[i];
    return filas;
}

// One run for all the tables: to start it takes longer than to read them. It asks the user for the letters of
// a table; here nobody answers, so it is told: 1 is Windows-1252, and 76 the UTF-8 that it writes.
TEST(LectoresAjenos, LibreOfficeHallaLasFuentes) {
    if (!HayLibreOffice()) GTEST_SKIP() << "soffice is not installed";
    const TCarpetaTemporal carpeta;
    std::string orden = "LC_ALL=C timeout 150 soffice '-env:UserInstallation=file://" +
                        (carpeta.Ruta() / "perfil").string() +
                        "' --headless --infilter=dBase:1 --convert-to 'csv:Text - txt - csv "
                        "(StarCalc):44,34,76,1' --outdir " +
                        EntreComillas(carpeta.Ruta());
    for (const TEsquema& esquema : Esquemas()) orden += " " + EntreComillas(Tabla(esquema));
    ASSERT_EQ(std::system((orden + " >/dev/null 2>&1").c_str()), 0);
    for (const TEsquema& esquema : Esquemas()) {
        const fs::path csv = carpeta.Ruta() / (std::string(esquema.Tabla) + ".csv");
        ASSERT_TRUE(fs::exists(csv))
            << esquema.Tabla << ": are libreoffice-calc-nogui and libreoffice-base-drivers installed?";
        EsperaIguales(FilasDeLibreOffice(csv, esquema), esquema);
    }
}

// The fields of its listing of a field a line, with the values as they stand in the file.
TFilas FilasDeShapelib(const std::string& listado, const TEsquema& esquema) {
    TFilas filas;
    std::istringstream lineas(listado);
    for (std::string linea; std::getline(lineas, linea);) {
        if (linea.starts_with("Record: ")) {
            filas.emplace_back();
            continue;
        }
        const std::size_t separador = linea.find(": ");
        if (filas.empty() || separador == std::string::npos) continue;
        EXPECT_LT(filas.back().size(), esquema.Columnas.size());
        if (filas.back().size() == esquema.Columnas.size()) return filas;
        EXPECT_EQ(linea.substr(0, separador), esquema.Columnas[filas.back().size()].Nombre);
        filas.back().push_back(Utf8DeAnsi(Recorta(std::string_view(linea).substr(separador + 2))));
    }
    return filas;
}

TEST(LectoresAjenos, ShapelibHallaLasFuentes) {
    const std::string programa = PROGRAMA_DBFDUMP;
    if (programa.empty()) GTEST_SKIP() << "dbfdump is not installed";
    const TCarpetaTemporal carpeta;
    const fs::path listado = carpeta.Ruta() / "listado.txt";
    for (const TEsquema& esquema : Esquemas()) {
        const std::string orden =
            programa + " -m -r " + EntreComillas(Tabla(esquema)) + " > " + EntreComillas(listado);
        ASSERT_EQ(std::system(orden.c_str()), 0) << esquema.Tabla;
        EsperaIguales(FilasDeShapelib(Bytes(listado), esquema), esquema);
    }
}

}  // namespace
}  // namespace analizador

// Imports made-up street maps in the published format and looks streets up in the tables made.

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "adaptadores/dbase/OrdenDbf.h"
#include "adaptadores/dbase/ProveedorDbase.h"
#include "analizador/ConstAnalizador.h"
#include "modelo/TROtorgante.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rficheros.h"
#include "programas/creatablas/ImportaCallejero.h"
#include "programas/creatablas/NombresDeVia.h"
#include "pruebas/comun/ConfigDePrueba.h"
#include "pruebas/comun/VocabularioDePrueba.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {
namespace {

std::string Ancho(std::string_view utf8, std::size_t ancho) {
    std::string texto = AnsiDeUtf8(utf8).substr(0, ancho);
    return texto + std::string(ancho - texto.size(), ' ');
}

const std::string CONTROL = "   20251231 ";

std::string Up(std::string_view municipio, std::string_view nombre) {
    return std::string(municipio) + "0000000" + CONTROL + Ancho("", 70) + Ancho(nombre, 50) + Ancho("", 460);
}

std::string Via(std::string_view municipio, std::string_view via, std::string_view tipo,
                std::string_view nombre) {
    return std::string(municipio) + std::string(via) + Ancho(nombre, 25) + CONTROL + std::string(via) +
           Ancho(tipo, 5) + Ancho(nombre, 50) + Ancho(nombre, 25);
}

std::string Seudovia(std::string_view municipio, std::string_view via, std::string_view nombre) {
    return std::string(municipio) + std::string(via) + Ancho(nombre, 50) + CONTROL + std::string(via) +
           Ancho(nombre, 50);
}

// `numeros`: kind of numbering, the first with its letter, the last with its: "10001 0009 ".
std::string Tramo(std::string_view municipio, std::string_view via, std::string_view seudovia,
                  std::string_view codPostal, std::string_view numeros) {
    const std::string clave = std::string(codPostal) + std::string(numeros);
    const std::string seccion = "01001   0000101";
    return std::string(municipio) + seccion + std::string(via) + std::string(seudovia) + Ancho("", 12) +
           clave + CONTROL + seccion + Ancho("", 75) + std::string(via) + Ancho("", 25) +
           std::string(seudovia) + Ancho("", 62) + clave;
}

std::string Texto(const std::vector<std::string>& lineas) {
    std::string texto;
    for (const std::string& linea : lineas) texto += linea + "\r\n";
    return texto;
}

std::string Contenido(const std::filesystem::path& ruta) {
    std::ifstream fichero(ruta, std::ios::binary);
    std::ostringstream texto;
    texto << fichero.rdbuf();
    return texto.str();
}

// ALFA has two postal codes and BETA, of the same province, too; GAMMA has one.
class Callejero : public testing::Test {
  protected:
    Callejero() : carpeta_(FicheroTemporal_({}, "pruebas_callejero", "d")) {
        std::filesystem::remove(carpeta_);
        for (const char* carpeta : {"", "datos", "callejero", "tablas"})
            std::filesystem::create_directory(carpeta_ / carpeta);
        std::filesystem::copy(std::filesystem::path(CARPETA_DATOS) / "callejero.ini", carpeta_ / "datos");
        Pon("datos/MUNICIPI.csv",
            "NOM_MUNICI,CODPOSTAL,NOMBRE,COD_INE,COD_PROV\nALFA,,ALFA,28001,28\nALPHA,,ALFA,28001,28\n"
            "LEJOS,99000,LEJOS,51999,51\n");
        Pon("callejero/UP.D251231.G260303",
            Texto({Up("28001", "ALFA"), Up("28002", "BETA (LA)"), Up("28003", "GAMMA/GAMA")}));
        Pon("callejero/VIAS.D251231.G260303",
            Texto({Via("28001", "00001", "CALLE", "MAYOR"), Via("28001", "00002", "CALLE", "Niño Jesús"),
                   Via("28001", "00003", "PLAZA", "OLIVOS (LOS)"),
                   Via("28001", "00004", "CMNO", "MOLINO, EL"), Via("28002", "00001", "CALLE", "MAYOR"),
                   Via("28003", "00001", "CALLE", "ÚNICA")}));
        Pon("callejero/PSEU.D251231.G260303",
            Texto({Seudovia("28001", "00001", "URB. LAS LOMAS"), Seudovia("28001", "00002", "CAMPING SOL")}));
        Pon("callejero/TRAM.D251231.G260303", Texto(TRAMOS));
    }
    ~Callejero() override {
        std::error_code error;
        std::filesystem::remove_all(carpeta_, error);
    }

    void Pon(const std::string& nombre, const std::string& contenido) const {
        std::ofstream(carpeta_ / nombre, std::ios::binary) << contenido;
    }

    bool Importa() {
        std::ostringstream salida, errores;
        const bool bien =
            ImportaCallejero(carpeta_ / "callejero", carpeta_ / "datos", Tablas(), salida, errores, {});
        salida_ = salida.str();
        errores_ = errores.str();
        return bien;
    }

    [[nodiscard]] std::filesystem::path Tablas() const { return carpeta_ / "tablas"; }

    // The table's rows in the stored order, the fields joined by blanks.
    [[nodiscard]] std::vector<std::string> Filas(std::string_view tabla,
                                                 const std::vector<std::string_view>& campos) const {
        TProveedorDbase proveedor(Tablas());
        std::vector<std::string> filas;
        for (const auto abierta = proveedor.Abre("NORVEX", tabla, ""); !abierta->Fin();
             abierta->Siguiente()) {
            std::string fila;
            for (const std::string_view campo : campos)
                fila += (fila.empty() ? "" : "|") + abierta->Texto(campo);
            filas.push_back(fila);
        }
        return filas;
    }
    [[nodiscard]] std::vector<std::string> Postal() const {
        return Filas("POSTAL.DBF", {"PROVINCIA", "VIA", "TIPO_VIA", "IMPAR_INI", "IMPAR_FIN", "PAR_INI",
                                    "PAR_FIN", "CODPOSTAL"});
    }

    const std::vector<std::string> TRAMOS = {
        // Two stretches that touch, and the even side with the same code; then the other code, without end.
        Tramo("28001", "00001", "00000", "28101", "10001 0009 "),
        Tramo("28001", "00001", "00000", "28101", "10011 0021A"),
        Tramo("28001", "00001", "00000", "28101", "20002 0018 "),
        Tramo("28001", "00001", "00000", "28102", "10023 9999 "),
        Tramo("28001", "00002", "00000", "28102", "00000S0000S"),
        Tramo("28001", "00003", "00000", "28101", "20002 0008 "),
        Tramo("28001", "00004", "00000", "28102", "10001 0003 "),
        Tramo("28001", "00000", "00001", "28102", "10001 0005 "),
        Tramo("28001", "00000", "00002", "28102", "00000S0000S"),
        Tramo("28001", "00000", "00000", "28102", "00000S0000S"),
        Tramo("28002", "00001", "00000", "28201", "10001 0051 "),
        Tramo("28002", "00000", "00000", "28202", "00000S0000S"),
        Tramo("28003", "00001", "00000", "28301", "10001 0051 ")};
    std::filesystem::path carpeta_;
    std::string salida_, errores_;
};

TEST_F(Callejero, LasFilasDePostal) {
    ASSERT_TRUE(Importa()) << errores_;
    EXPECT_EQ(errores_, "");
    const std::vector<std::string> esperadas = {
        // The name's own words stay in front of a street of another kind; a house without number is the 0.
        "28|CAMINO DEL MOLINO||1|3|2|1|28102",
        "28|CAMINO EL MOLINO||1|3|2|1|28102",
        "28|CAMPING SOL||2|1|0|1|28102",
        "28|LAS LOMAS|UR|1|5|2|1|28102",
        "28|LOS OLIVOS|PZ|2|1|2|8|28101",
        // Of the two municipalities the larger one first.
        "28|MAYOR|CL|1|21|2|18|28101",
        "28|MAYOR|CL|23|0|2|1|28102",
        "28|MAYOR|CL|1|51|2|1|28201",
        AnsiDeUtf8("28|NIÑO JESUS|CL|2|1|0|1|28102"),
        "28|OLIVOS|PZ|2|1|2|8|28101",
    };
    EXPECT_EQ(Postal(), esperadas);
}

TEST_F(Callejero, LasFilasDeMunicipios) {
    ASSERT_TRUE(Importa()) << errores_;
    const std::vector<std::string> esperadas = {"ALFA||ALFA|28001|28",
                                                "ALFA|28101|ALFA|28001|28",
                                                "ALFA|28102|ALFA|28001|28",
                                                "ALPHA||ALFA|28001|28",
                                                "ALPHA|28101|ALFA|28001|28",
                                                "ALPHA|28102|ALFA|28001|28",
                                                "GAMA|28301|GAMA|28003|28",
                                                "GAMMA|28301|GAMMA|28003|28",
                                                "LA BETA||LA BETA|28002|28",
                                                "LA BETA|28201|LA BETA|28002|28",
                                                "LA BETA|28202|LA BETA|28002|28",
                                                "LEJOS|99000|LEJOS|51999|51"};
    EXPECT_EQ(Filas("MUNICIPI.DBF", {"NOM_MUNICI", "CODPOSTAL", "NOMBRE", "COD_INE", "COD_PROV"}), esperadas);
    EXPECT_NE(salida_.find("3 municipios, 6 vías, 2 seudovías y 13 tramos (2 sin vía"), std::string::npos)
        << salida_;
    EXPECT_NE(salida_.find("POSTAL.DBF con 10 filas y MUNICIPI.DBF con 12"), std::string::npos) << salida_;
}

TEST_F(Callejero, LasLineasMalasSeListanConSuMotivo) {
    std::vector<std::string> tramos = TRAMOS;
    const std::vector<std::pair<std::string, std::string>> malas = {
        {"28001", "la línea tiene 5 caracteres y tendría que tener 273"},
        {Tramo("28001", "0X001", "00000", "28101", "10001 0009 "), "VIA no es un número: 0X001"},
        {Tramo("28001", "00001", "00000", "28 01", "10001 0009 "), "CODPOSTAL no es un número: 28 01"},
        {Tramo("53001", "00001", "00000", "28101", "10001 0009 "), "no existe la provincia 53"},
        {Tramo("00001", "00001", "00000", "28101", "10001 0009 "), "no existe la provincia 00"},
        {Tramo("28099", "00001", "00000", "28101", "10001 0009 "),
         "el municipio 28099 no está en el fichero UP"},
        {Tramo("28001", "00099", "00000", "28101", "10001 0009 "),
         "la vía 99 del municipio no está en el fichero VIAS"},
        {Tramo("28001", "00000", "00099", "28101", "10001 0009 "),
         "la seudovía 99 del municipio no está en el fichero PSEU"},
        {Tramo("28001", "00001", "00000", "91349", "10001 0009 "),
         "el código postal 91349 no es de ninguna provincia"},
        {Tramo("28001", "00001", "00000", "28101", "10009 0001 "),
         "el tramo empieza en el 9 y acaba en el 1"},
        {Tramo("28001", "00001", "00000", "28101", "10002 0009 "), "el número 2 no es impar"},
        {Tramo("28001", "00001", "00000", "28101", "20002 0009 "), "el número 9 no es par"},
        {Tramo("28001", "00001", "00000", "28101", "30002 0009 "), "NUMERACION no es 0, 1 ni 2: 3"},
    };
    for (const auto& [linea, motivo] : malas) tramos.push_back(linea);
    Pon("callejero/TRAM.D251231.G260303", Texto(tramos));
    ASSERT_TRUE(Importa()) << errores_;
    std::string esperada;
    for (std::size_t i = 0; i < malas.size(); ++i)
        esperada +=
            "TRAM.D251231.G260303:" + std::to_string(TRAMOS.size() + 1 + i) + ": " + malas[i].second + "\n";
    EXPECT_EQ(Contenido(Tablas() / "RECHAZOS.TXT"), esperada);
    EXPECT_NE(salida_.find("Líneas rechazadas: 13."), std::string::npos) << salida_;
    EXPECT_NE(errores_.find("y 3 líneas rechazadas más"), std::string::npos) << errores_;
    EXPECT_EQ(Postal().size(), 10U);

    Pon("callejero/TRAM.D251231.G260303", Texto(TRAMOS));
    ASSERT_TRUE(Importa());
    EXPECT_FALSE(std::filesystem::exists(Tablas() / "RECHAZOS.TXT")) << "the list is of the last import";
}

TEST_F(Callejero, UnaViaSinNombreOConBasuraSeRechaza) {
    Pon("callejero/VIAS.D251231.G260303",
        Contenido(carpeta_ / "callejero/VIAS.D251231.G260303") +
            Texto({Via("28001", "00010", "CALLE", ""), Via("28001", "00011", "CALLE", "MA\tYOR"),
                   Via("28001", "00012", "CMNO", std::string(50, 'X')),
                   Via("28001", "00013", "RARO", "DEL SOL")}));
    ASSERT_TRUE(Importa());
    const std::string lista = Contenido(Tablas() / "RECHAZOS.TXT");
    EXPECT_EQ(lista,
              "VIAS.D251231.G260303:7: NOMBRE está vacío\n"
              "VIAS.D251231.G260303:8: NOMBRE tiene caracteres que no son letras\n"
              "VIAS.D251231.G260303:9: el nombre de la vía no cabe en 50 caracteres\n");
    EXPECT_NE(salida_.find("no están en callejero.ini: RARO (1)"), std::string::npos) << salida_;
}

TEST_F(Callejero, UnFicheroQueFaltaSeNombraYLasTablasNoSeTocan) {
    for (const char* nombre : {"UP", "VIAS", "PSEU", "TRAM"}) {
        const auto ruta = carpeta_ / "callejero" / (std::string(nombre) + ".D251231.G260303");
        std::filesystem::rename(ruta, carpeta_ / "guardado");
        EXPECT_FALSE(Importa());
        EXPECT_NE(errores_.find("falta el fichero " + std::string(nombre) + " del callejero"),
                  std::string::npos)
            << errores_;
        EXPECT_EQ(std::count(errores_.begin(), errores_.end(), '\n'), 1);
        std::filesystem::rename(carpeta_ / "guardado", ruta);
    }
    EXPECT_FALSE(std::filesystem::exists(Tablas() / "POSTAL.DBF"));
}

TEST_F(Callejero, UnFicheroDeOtroFormatoNoSeImporta) {
    Pon("callejero/VIAS.D251231.G260303", "28001;1;CALLE;MAYOR\n");
    EXPECT_FALSE(Importa());
    EXPECT_NE(errores_.find("sus líneas no miden 132 o 108 caracteres (la primera, 19)"), std::string::npos)
        << errores_;
    Pon("callejero/VIAS.D251231.G260303", std::string(300000, '\0'));
    EXPECT_FALSE(Importa());
    Pon("callejero/VIAS.D251231.G260303", "");
    EXPECT_TRUE(Importa()) << "its stretches are rejected, those without a street remain";
}

TEST_F(Callejero, ElDisenoSeCorrigeEnElFichero) {
    std::string ini = Contenido(carpeta_ / "datos/callejero.ini");
    ini.replace(ini.find("Longitud=132"), 12, "Longitud=133");
    ini.replace(ini.find("NOMBRE=58,50"), 12, "NOMBRE=59,50");
    Pon("datos/callejero.ini", ini);
    std::istringstream vias(Contenido(carpeta_ / "callejero/VIAS.D251231.G260303"));
    std::string nuevas, linea;
    while (std::getline(vias, linea)) nuevas += linea.insert(57, "*") + "\n";
    Pon("callejero/VIAS.D251231.G260303", nuevas);
    ASSERT_TRUE(Importa()) << errores_;
    EXPECT_EQ(Postal().size(), 10U);

    ini.replace(ini.find("NOMBRE=59,50"), 12, "NOMBRE=99,50");
    Pon("datos/callejero.ini", ini);
    EXPECT_FALSE(Importa());
    EXPECT_NE(errores_.find("sección [VIAS]: NOMBRE no cabe en la Longitud del registro"), std::string::npos)
        << errores_;
    std::filesystem::remove(carpeta_ / "datos/callejero.ini");
    EXPECT_FALSE(Importa());
    EXPECT_NE(errores_.find("callejero.ini: falta la sección [VIAS] o el fichero"), std::string::npos)
        << errores_;
}

TEST_F(Callejero, ConMarcaElFicheroEsUtf8) {
    for (const char* nombre : {"UP", "VIAS", "PSEU", "TRAM"}) {
        const std::string fichero = "callejero/" + std::string(nombre) + ".D251231.G260303";
        Pon(fichero, "\xEF\xBB\xBF" + Utf8DeAnsi(Contenido(carpeta_ / fichero)));
    }
    ASSERT_TRUE(Importa()) << errores_;
    EXPECT_EQ(errores_, "");
    const std::vector<std::string> filas = Postal();
    EXPECT_NE(std::find(filas.begin(), filas.end(), AnsiDeUtf8("28|NIÑO JESUS|CL|2|1|0|1|28102")),
              filas.end());
}

TEST_F(Callejero, LoQueNoEsSeguroNoSeDa) {
    std::vector<std::string> tramos = TRAMOS;
    // Without number in two codes, and a name that is both a street and a place without type.
    tramos.push_back(Tramo("28001", "00002", "00000", "28101", "00000S0000S"));
    Pon("callejero/PSEU.D251231.G260303",
        Texto({Seudovia("28001", "00001", "MAYOR"), Seudovia("28001", "00002", "CAMPING SOL")}));
    Pon("callejero/TRAM.D251231.G260303", Texto(tramos));
    ASSERT_TRUE(Importa()) << errores_;
    for (const std::string& fila : Postal()) {
        EXPECT_EQ(fila.find("NI\xD1O"), std::string::npos) << fila;
        EXPECT_EQ(fila.find("MAYOR||"), std::string::npos) << fila;
    }
}

TEST_F(Callejero, SinLeerLaTablaSeHallaLoMismo) {
    ASSERT_TRUE(Importa()) << errores_;
    ASSERT_TRUE(std::filesystem::exists(Tablas() / "POSTAL.ORD"));
    TProveedorDbase ordenada(Tablas());
    const std::filesystem::path copia = carpeta_ / "copia";
    std::filesystem::create_directory(copia);
    std::filesystem::copy(Tablas() / "POSTAL.DBF", copia);
    TProveedorDbase entera(copia);
    for (const std::string_view via :
         {"MAYOR", "Mayor", "NI\xD1O JES\xDAS", "OLIVOS", "A", "ZZZ", "", "CAMPING SOL"}) {
        const auto una = ordenada.Abre("NORVEX", "POSTAL.DBF", "NOMBREVIA");
        const auto otra = entera.Abre("NORVEX", "POSTAL.DBF", "NOMBREVIA");
        for (const auto& tabla : {una.get(), otra.get()})
            ASSERT_TRUE(
                tabla->Rango({{"PROVINCIA", "28"}, {"VIA", via}}, {{"PROVINCIA", "28"}, {"VIA", via}}));
        EXPECT_EQ(una->CuentaFilas(), otra->CuentaFilas()) << via;
        for (; !otra->Fin(); una->Siguiente(), otra->Siguiente())
            EXPECT_EQ(una->Texto("CODPOSTAL"), otra->Texto("CODPOSTAL")) << via;
        EXPECT_TRUE(una->Fin());
        una->CancelaRango();
        EXPECT_EQ(una->CuentaFilas(), 10);
    }
}

TEST_F(Callejero, LosOrdenesDeLosMunicipiosSeAnotanDeNuevo) {
    for (int vez = 0; vez < 2; ++vez) {
        ASSERT_TRUE(Importa()) << errores_;
        const auto ruta = Tablas() / "MUNICIPI.DBF";
        const TOrdenesDbf ordenes = OrdenAnotado(ruta, MarcaDeFichero(ruta));
        EXPECT_TRUE(ordenes.contains("NOM_MUNICI"));
        EXPECT_TRUE(ordenes.contains("CODPOSTAL"));
    }
}

TEST_F(Callejero, ElFiltroValeTambienSinLeerLaTabla) {
    ASSERT_TRUE(Importa()) << errores_;
    TProveedorDbase proveedor(Tablas());
    const auto tabla = proveedor.Abre("NORVEX", "POSTAL.DBF", "NOMBREVIA");
    const auto mayor = [&] {
        return tabla->Rango({{"PROVINCIA", "28"}, {"VIA", "MAYOR"}}, {{"PROVINCIA", "28"}, {"VIA", "MAYOR"}});
    };
    ASSERT_TRUE(mayor());
    EXPECT_EQ(tabla->CuentaFilas(), 3);
    tabla->Filtra("IMPAR_INI=1");
    EXPECT_EQ(tabla->CuentaFilas(), 2);
    ASSERT_TRUE(mayor());
    EXPECT_EQ(tabla->CuentaFilas(), 2) << "the filter stays";
    tabla->CancelaRango();
    EXPECT_EQ(tabla->CuentaFilas(), 5) << "of all rows";
    tabla->Indexa("CODPOSTAL");
    EXPECT_EQ(tabla->Texto("CODPOSTAL"), "28101");
}

TEST_F(Callejero, UnaTablaCambiadaNoSeCreeOrdenada) {
    ASSERT_TRUE(Importa()) << errores_;
    // The last row becomes another street: no longer in order.
    std::string tabla = Contenido(Tablas() / "POSTAL.DBF");
    const std::size_t olivos = tabla.rfind("28OLIVOS ");
    ASSERT_NE(olivos, std::string::npos);
    tabla.replace(olivos, 9, "28ABAJO  ");
    Pon("tablas/POSTAL.DBF", tabla);
    std::filesystem::last_write_time(
        Tablas() / "POSTAL.DBF",
        std::filesystem::last_write_time(Tablas() / "POSTAL.DBF") + std::chrono::seconds(1));
    TProveedorDbase proveedor(Tablas());
    const auto abierta = proveedor.Abre("NORVEX", "POSTAL.DBF", "NOMBREVIA");
    ASSERT_TRUE(
        abierta->Rango({{"PROVINCIA", "28"}, {"VIA", "ABAJO"}}, {{"PROVINCIA", "28"}, {"VIA", "ABAJO"}}));
    EXPECT_EQ(abierta->CuentaFilas(), 1);
}

TEST_F(Callejero, UnaTablaSustituidaConSuFechaNoSeCreeOrdenada) {
    ASSERT_TRUE(Importa()) << errores_;
    const auto momento = std::filesystem::last_write_time(Tablas() / "POSTAL.DBF");
    std::string tabla = Contenido(Tablas() / "POSTAL.DBF");
    const std::size_t olivos = tabla.rfind("28OLIVOS ");
    ASSERT_NE(olivos, std::string::npos);
    tabla.replace(olivos, 9, "28ABAJO  ");
    Pon("tablas/POSTAL.DBF", tabla);
    std::filesystem::last_write_time(Tablas() / "POSTAL.DBF", momento);
    TProveedorDbase proveedor(Tablas());
    for (const auto& [via, filas] : {std::pair("ABAJO", 1), std::pair("MAYOR", 3)}) {
        const auto abierta = proveedor.Abre("NORVEX", "POSTAL.DBF", "NOMBREVIA");
        ASSERT_TRUE(abierta->Rango({{"PROVINCIA", "28"}, {"VIA", via}}, {{"PROVINCIA", "28"}, {"VIA", via}}));
        EXPECT_EQ(abierta->CuentaFilas(), filas) << via;
    }
}

struct TCompletado {
    std::string_view Vecindad, TipoVia, Via, Numero, CodPostal, CodINE;
};

TEST_F(Callejero, LaParteRecibeSuCodigoPostal) {
    ASSERT_TRUE(Importa()) << errores_;
    for (const char* tabla : {"AYUNTAM.DBF", "PROVIN.DBF"})
        std::filesystem::copy(std::filesystem::path(CARPETA_TABLAS) / tabla, Tablas());
    TProveedorDbase proveedor(Tablas());
    TConfigDePrueba config;
    const InstalaTablas tablas(proveedor);
    const InstalaConfig configuracion(config);
    static constexpr TCompletado CASOS[] = {
        {"ALFA", "CL", "MAYOR", "15", "28101", "28001"},
        {"ALFA", "CL", "MAYOR", "23", "28102", "28001"},
        {"ALFA", "CL", "MAYOR", "18", "28101", "28001"},
        {"ALFA", "CL", "MAYOR", "20", "", "28001"},
        {"Alpha", "PZ", "LOS OLIVOS", "4", "28101", "28001"},
        {"ALFA", "PZ", "OLIVOS", "4", "28101", "28001"},
        {"ALFA", "PZ", "OLIVOS", "3", "", "28001"},
        {"ALFA", "CL", "NI\xD1O JES\xDAS", "", "28102", "28001"},
        {"ALFA", "", "CAMINO DEL MOLINO", "3", "28102", "28001"},
        {"ALFA", "UR", "LAS LOMAS", "5", "28102", "28001"},
        {"ALFA", "CL", "INEXISTENTE", "5", "", "28001"},
        {"GAMMA", "CL", "INEXISTENTE", "5", "28301", "28003"},
        // The street of a town with one code misleads nobody.
        {"ALFA", "CL", "UNICA", "5", "", "28001"},
    };
    for (const TCompletado& caso : CASOS) {
        TROtorgante otorgante;
        otorgante.Vecindad = caso.Vecindad;
        otorgante.TipoVia = caso.TipoVia;
        otorgante.Domicilio = caso.Via;
        otorgante.Numero = caso.Numero;
        otorgante.CompletaPostal();
        EXPECT_EQ(otorgante.CodPostal, caso.CodPostal)
            << caso.Vecindad << ' ' << caso.Via << ' ' << caso.Numero;
        EXPECT_EQ(otorgante.CodINE, caso.CodINE) << caso.Vecindad << ' ' << caso.Via;
    }
}

struct TNombrado {
    std::string_view Tipo, Nombre;  // of the street map
    std::string_view Escritura;     // what a deed writes
    TIdioma Idioma = TIdioma::Castellano;
};

// Whatever the recogniser takes from the deed is one of the names under which the street is stored.
TEST(NombresDeVia, SonLosQueElReconocedorDa) {
    TSeccionesDePrueba secciones = {{"DOMICILIO", {"CON DOMICILIO EN"}}, {"NUMERO", {"NUMERO"}}};
    for (const std::string_view seccion : CONST_SECCION_TIPO_VIA) secciones.push_back({seccion, {seccion}});
    const TVocabularioDePrueba vocabulario(secciones, secciones);
    const TDisenoCallejero diseno(std::filesystem::path(CARPETA_DATOS) / "callejero.ini");
    using enum TIdioma;
    static constexpr TNombrado CASOS[] = {
        {"CALLE", "PRADO", "CALLE DEL PRADO"},
        {"CALLE", "DEL PRADO", "CALLE DEL PRADO"},
        {"CALLE", "PRADO (EL)", "CALLE EL PRADO"},
        {"CALLE", "EL PRADO", "CALLE DEL PRADO"},
        {"CALLE", "PRADO", "CALLE PRADO"},
        {"CALLE", "PRADO, DEL", "CALLE DEL PRADO"},
        {"CALLE", "LA PAZ", "CALLE DE LA PAZ"},
        {"CALLE", "LA PAZ", "CALLE LA PAZ"},
        {"CALLE", "DE LA PAZ", "CALLE DE LA PAZ"},
        {"CALLE", "DE LA PAZ", "CALLE LA PAZ"},
        {"PLAZA", "OLIVOS (LOS)", "PLAZA DE LOS OLIVOS"},
        {"PLAZA", "OLIVOS (LOS)", "PLAZA LOS OLIVOS"},
        {"PLAZA", "ACACIAS, LAS", "PLAZA DE LAS ACACIAS"},
        {"PLAZA", "ACACIAS, LAS", "PLAZA LAS ACACIAS"},
        {"CMNO", "MOLINO (EL)", "CAMINO DEL MOLINO"},
        {"CMNO", "MOLINO (EL)", "CAMINO EL MOLINO"},
        {"CMNO", "LOS MOLINOS", "CAMINO DE LOS MOLINOS"},
        {"", "URB. LAS LOMAS", "URBANIZACION LAS LOMAS"},
        {"", "CAMPING SOL", "CAMPING SOL"},
        {"CARRE", "ARAGO", "CALLE D'ARAGO", Catalan},
        {"CARRE", "HORTS (ELS)", "CALLE DELS HORTS", Catalan},
        {"CARRE", "HORTS (ELS)", "CALLE ELS HORTS", Catalan},
        {"CARRE", "HOSPITAL (L')", "CALLE DE L'HOSPITAL", Catalan},
    };
    for (const TNombrado& caso : CASOS) {
        vocabulario.Elige(caso.Idioma);
        const TDomicilio leido =
            BuscaDomicilio("con domicilio en " + std::string(caso.Escritura) + ", numero 5");
        const TNombresVia via = NombresDeVia(caso.Tipo, caso.Nombre, caso.Idioma == Catalan, diseno);
        EXPECT_EQ(via.Tipo, leido.TipoVia.Valor) << caso.Escritura;
        EXPECT_NE(std::find(via.Nombres.begin(), via.Nombres.end(), leido.Via.Valor), via.Nombres.end())
            << caso.Nombre << ": " << leido.Via.Valor;
    }
}

struct TPatron {
    std::string_view Patron, Nombre;
    bool Encaja;
};

TEST(DisenoCallejero, ElPatronDeUnNombre) {
    static constexpr TPatron CASOS[] = {{"TRAM*", "TRAM.D251231.G260303", true},
                                        {"TRAM*", "tramos.txt", true},
                                        {"TRAM*", "XTRAM", false},
                                        {"UP*", "UP", true},
                                        {"P??VIAS*", "P28VIAS.F091231", true},
                                        {"P??VIAS*", "P2VIAS", false},
                                        {"*.zip", "TRAM.ZIP", true},
                                        {"", "", true},
                                        {"", "X", false}};
    for (const TPatron& caso : CASOS)
        EXPECT_EQ(EncajaPatron(caso.Patron, caso.Nombre), caso.Encaja) << caso.Patron << ' ' << caso.Nombre;
}

}  // namespace
}  // namespace analizador

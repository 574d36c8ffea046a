// The shipped tables keep to the rules by which they are searched.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "adaptadores/dbase/ProveedorDbase.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rut.h"
#include "programas/creatablas/Esquema.h"

namespace analizador {
namespace {

std::unique_ptr<TTabla> Abre(std::string_view tabla, std::string_view indice) {
    TProveedorDbase proveedor(CARPETA_TABLAS);
    return proveedor.Abre("NORVEX", tabla, indice);
}

// The field of every row, in the order of the index.
std::vector<std::string> Columna(std::string_view tabla, std::string_view indice, std::string_view campo) {
    std::vector<std::string> valores;
    for (const auto abierta = Abre(tabla, indice); !abierta->Fin(); abierta->Siguiente())
        valores.push_back(abierta->Texto(campo));
    return valores;
}

bool SonCifras(std::string_view texto, std::size_t cuantas) {
    return texto.size() == cuantas && texto.find_first_not_of("0123456789") == std::string_view::npos;
}

bool EsCodigoDe(std::string_view codigo, std::string_view provincia) {
    return SonCifras(codigo, 5) && codigo.starts_with(provincia);
}

TEST(TablasDeSerie, EstanTodasConSusCamposYConFilas) {
    for (const TEsquema& esquema : Esquemas()) {
        const auto tabla = Abre(esquema.Tabla, "");
        EXPECT_GT(tabla->CuentaFilas(), 0) << esquema.Tabla;
        for (const TColumnaDbf& columna : esquema.Columnas)
            EXPECT_NO_THROW(static_cast<void>(tabla->Texto(columna.Nombre))) << columna.Nombre;
    }
}

TEST(TablasDeSerie, SusIndicesSeAbren) {
    static constexpr std::pair<std::string_view, std::string_view> INDICES[] = {
        {"PILA.DBF", "NOMBRE"},        {"TIPOS.DBF", "NUMERO"},     {"TIPOS.DBF", "TIPO"},
        {"TIPOS.DBF", "CLAVE_INTI"},   {"TIPOS.DBF", "NOMBRE"},     {"AYUNTAM.DBF", "LUGAR"},
        {"PROVIN.DBF", "ALFABETICO"},  {"PROVIN.DBF", "CODIGO"},    {"MUNICIPI.DBF", "NOM_MUNICI"},
        {"MUNICIPI.DBF", "CODPOSTAL"}, {"POSTAL.DBF", "NOMBREVIA"}, {"TIPO_VIA.DBF", "CODIGO"},
        {"TIPO_INT.DBF", "CODIGO"}};
    for (const auto& [tabla, indice] : INDICES) EXPECT_NO_THROW(Abre(tabla, indice)) << tabla << indice;
}

// A table in its file does not say what its rows are, one read whole does.
TEST(TablasDeSerie, UnaFilaSeHallaSinLeerLasGrandes) {
    static constexpr std::pair<std::string_view, std::string_view> INDICES[] = {
        {"PILA", "NOMBRE"}, {"MUNICIPI", "NOM_MUNICI"}, {"MUNICIPI", "CODPOSTAL"}};
    constexpr int PROBADAS = 40;
    TProveedorDbase proveedor(CARPETA_TABLAS, [](const std::filesystem::path& fichero) {
        TMarcaFichero marca = MarcaDeFichero(fichero);
        marca.Reciente = false;
        return marca;
    });
    for (const auto& [tabla, indice] : INDICES) {
        const std::vector<std::string> claves = Columna(tabla, indice, indice);
        const auto entera = Abre(tabla, indice);
        const auto& esquema = *std::ranges::find(Esquemas(), tabla, &TEsquema::Tabla);
        for (std::size_t i = 0; i < claves.size(); i += claves.size() / PROBADAS) {
            const auto enFichero = proveedor.Abre("NORVEX", tabla, indice);
            ASSERT_EQ(enFichero->Contenido(), nullptr) << tabla << ' ' << indice << ' ' << i;
            EXPECT_TRUE(enFichero->Busca({{indice, claves[i]}})) << claves[i];
            EXPECT_TRUE(entera->Busca({{indice, claves[i]}})) << claves[i];
            for (const TColumnaDbf& columna : esquema.Columnas)
                EXPECT_EQ(enFichero->Texto(columna.Nombre), entera->Texto(columna.Nombre)) << claves[i];
        }
    }
}

TEST(TablasDeSerie, LosTiposTienenNumeroYNombrePropios) {
    std::set<int> numeros;
    std::set<std::string> nombres;
    int testamentos = 0;
    int prestamos = 0;
    for (const auto tipos = Abre("TIPOS", ""); !tipos->Fin(); tipos->Siguiente()) {
        const std::string nombre = tipos->Texto("NOMBRE");
        EXPECT_GT(tipos->Entero("NUMEROTIPO"), 0);
        EXPECT_TRUE(numeros.insert(tipos->Entero("NUMEROTIPO")).second) << nombre;
        EXPECT_TRUE(nombres.insert(nombre).second) << nombre;
        EXPECT_EQ(tipos->Texto("TIPO"), nombre);
        EXPECT_EQ(nombre, Pliega(nombre));
        const bool testamento = nombre.starts_with("TESTAMENTO") || nombre.starts_with("CODICILO");
        EXPECT_EQ(tipos->Texto("COD_OFICIA").starts_with("02001"), testamento) << nombre;
        testamentos += testamento ? 1 : 0;
        prestamos += tipos->Logico("PRESTAMO") ? 1 : 0;
        EXPECT_EQ(tipos->Logico("PRESTAMO"), nombre.starts_with("PRESTAMO") ||
                                                 nombre.starts_with("NOVACION") ||
                                                 nombre.starts_with("SUBROGACION"))
            << nombre;
    }
    EXPECT_GT(testamentos, 1);
    EXPECT_EQ(prestamos, 3);
}

TEST(TablasDeSerie, LosLugaresVanDeUnoEnUnoYElPrimeroEsElDelDespacho) {
    const std::vector<std::string> nombres = Columna("AYUNTAM", "LUGAR", "NOMBRE");
    ASSERT_LE(nombres.size(), 99U);
    EXPECT_EQ(nombres.front(), "MADRID");
    int esperado = 0;
    std::set<std::string> abreviaturas;
    for (const auto lugares = Abre("AYUNTAM", "LUGAR"); !lugares->Fin(); lugares->Siguiente()) {
        const std::string nombre = lugares->Texto("NOMBRE");
        EXPECT_EQ(lugares->Entero("LUGAR"), ++esperado);
        EXPECT_FALSE(lugares->Texto("ABREVIATUR").empty()) << nombre;
        EXPECT_TRUE(abreviaturas.insert(lugares->Texto("ABREVIATUR")).second) << nombre;
        EXPECT_TRUE(SonCifras(lugares->Texto("COD_INE"), 5)) << nombre;
        const std::string postal = lugares->Texto("CODPOSTAL");
        EXPECT_TRUE(postal.empty() || EsCodigoDe(postal, lugares->Texto("COD_INE").substr(0, 2))) << nombre;
    }
}

TEST(TablasDeSerie, NingunLugarTapaAOtroQueVaDetras) {
    const std::vector<std::string> nombres = Columna("AYUNTAM", "LUGAR", "NOMBRE");
    for (std::size_t detras = 0; detras < nombres.size(); ++detras)
        for (std::size_t delante = 0; delante < detras; ++delante)
            EXPECT_EQ(Pliega(nombres[detras]).find(Pliega(nombres[delante])), std::string::npos)
                << nombres[delante] << " hides " << nombres[detras];
}

TEST(TablasDeSerie, ElLugarSeEncuentraEnLasCabeceras) {
    const struct {
        std::string_view Parrafo, Lugar;
    } casos[] = {
        {"EN MADRID, mi residencia, a doce de marzo de dos mil veintiuno."_ansi, "MADRID"},
        {"En Torrevieja, a treinta de septiembre de dos mil diecinueve."_ansi, "TORREVIEJA"},
        {"A la ciutat de VIC, la meva residència, a dia trenta de juny de dos mil quinze."_ansi, "VIC"},
        {"EN ILLESCAS (TOLEDO), MI RESIDENCIA, A DIECIOCHO DE ENERO DE DOS MIL CINCO"_ansi, "ILLESCAS"},
        {"En la villa de Getxo, provincia de Bizkaia, a tres de mayo de dos mil."_ansi, "GETXO"},
        {"En León, mi residencia, a siete de julio de dos mil doce."_ansi, "LEON"},
        {"En Las Palmas de Gran Canaria, a dos de abril de dos mil diez."_ansi, "LAS PALMAS DE GRAN CANARIA"},
        {"En Palma, mi residencia, a dos de abril de dos mil diez."_ansi, "PALMA"},
        {"En San Sebastián de los Reyes, a uno de junio de dos mil tres."_ansi, "SAN SEBASTIAN DE LOS REYES"},
        {"En A Coruña, mi residencia, a uno de junio de dos mil tres."_ansi, "A CORUÑA"_ansi},
        {"L'Hospitalet de Llobregat, la meva residència, u de maig de dos mil tres."_ansi,
         "L'HOSPITALET DE LLOBREGAT"},
        {"En mi despacho, a uno de junio de dos mil tres, sin más."_ansi, ""},
    };
    const std::vector<std::string> nombres = Columna("AYUNTAM", "LUGAR", "NOMBRE");
    for (const auto& caso : casos) {
        const std::string plegado = Pliega(caso.Parrafo);
        std::string_view hallado;
        for (const std::string& nombre : nombres)
            if (hallado.empty() && plegado.find(Pliega(nombre)) != std::string::npos) hallado = nombre;
        EXPECT_EQ(hallado, caso.Lugar) << caso.Parrafo;
    }
}

TEST(TablasDeSerie, LasProvinciasTienenDosCifrasYLosPaisesTres) {
    std::set<std::string> provincias;
    for (const auto tabla = Abre("PROVIN", "ALFABETICO"); !tabla->Fin(); tabla->Siguiente()) {
        const std::string nombre = tabla->Texto("PROVINCIA");
        const int grupo = tabla->Entero("GRUPO");
        ASSERT_TRUE(grupo == 1 || grupo == 2) << nombre;
        EXPECT_TRUE(SonCifras(tabla->Texto("CODIGO"), grupo == 1 ? 2 : 3)) << nombre;
        EXPECT_TRUE(grupo == 2 || provincias.insert(tabla->Texto("CODIGO")).second) << nombre;
    }
    EXPECT_EQ(provincias.size(), 52U);
    EXPECT_EQ(*provincias.begin(), "01");
    EXPECT_EQ(*provincias.rbegin(), "52");
    const auto porCodigo = Abre("PROVIN", "CODIGO");
    static constexpr std::pair<std::string_view, std::string_view> ALGUNAS[] = {
        {"28", "MADRID"},   {"08", "BARCELONA"}, {"03", "ALICANTE"}, {"48", "VIZCAYA"}, {"45", "TOLEDO"},
        {"50", "ZARAGOZA"}, {"29", "MALAGA"},    {"30", "MURCIA"},   {"25", "LERIDA"},  {"38", "TENERIFE"}};
    for (const auto& [codigo, nombre] : ALGUNAS) {
        ASSERT_TRUE(TBBusca(*porCodigo, {{"CODIGO", codigo}}, true)) << codigo;
        EXPECT_EQ(porCodigo->Texto("PROVINCIA"), nombre);
    }
}

TEST(TablasDeSerie, LasIntervencionesVanDeUnoEnUnoYAlFinal99) {
    std::vector<int> codigos;
    std::set<std::string> textos;
    for (const auto tabla = Abre("TIPO_INT", "CODIGO"); !tabla->Fin(); tabla->Siguiente()) {
        codigos.push_back(tabla->Entero("CODIGO"));
        EXPECT_FALSE(tabla->Texto("DESCRIPCIO").empty());
        EXPECT_TRUE(textos.insert(tabla->Texto("DESCRIPCIO")).second);
    }
    ASSERT_GE(codigos.size(), 17U);
    EXPECT_EQ(codigos.back(), 99);
    for (std::size_t i = 0; i + 1 < codigos.size(); ++i) EXPECT_EQ(codigos[i], static_cast<int>(i) + 1);
}

TEST(TablasDeSerie, LosTiposDeViaTienenLosDoceCodigos) {
    const std::vector<std::string> codigos = Columna("TIPO_VIA", "CODIGO", "CODIGO");
    EXPECT_EQ(std::set(codigos.begin(), codigos.end()).size(), codigos.size());
    const auto tabla = Abre("TIPO_VIA", "CODIGO");
    static constexpr std::pair<std::string_view, std::string_view> DOCE[] = {
        {"CL", "CALLE"},        {"PZ", "PLAZA"},     {"AV", "AVENIDA"}, {"TR", "TRAVESIA"},
        {"UR", "URBANIZACION"}, {"RD", "RONDA"},     {"PS", "PASEO"},   {"GL", "GLORIETA"},
        {"FN", "FINCA"},        {"CR", "CARRETERA"}, {"CN", "COLONIA"}, {"RB", "RAMBLA"}};
    for (const auto& [codigo, nombre] : DOCE) {
        EXPECT_TRUE(TBBusca(*tabla, {{"CODIGO", codigo}}, true)) << codigo;
        EXPECT_EQ(tabla->Texto("NOMBRE"), nombre);
    }
}

TEST(TablasDeSerie, LasViasDelCallejeroSonDeSuProvinciaYDeUnTipoConocido) {
    const auto tipos = Abre("TIPO_VIA", "CODIGO");
    for (const auto tabla = Abre("POSTAL", "NOMBREVIA"); !tabla->Fin(); tabla->Siguiente()) {
        const std::string via = tabla->Texto("VIA");
        const std::string tipo = tabla->Texto("TIPO_VIA");
        EXPECT_FALSE(via.empty());
        EXPECT_TRUE(SonCifras(tabla->Texto("PROVINCIA"), 2)) << via;
        EXPECT_TRUE(EsCodigoDe(tabla->Texto("CODPOSTAL"), tabla->Texto("PROVINCIA"))) << via;
        EXPECT_TRUE(tipo.empty() || TBBusca(*tipos, {{"CODIGO", tipo}}, true)) << via;
    }
}

TEST(TablasDeSerie, LosMunicipiosTienenCodigosDeSuProvincia) {
    for (const auto tabla = Abre("MUNICIPI", "NOM_MUNICI"); !tabla->Fin(); tabla->Siguiente()) {
        const std::string nombre = tabla->Texto("NOM_MUNICI");
        const std::string postal = tabla->Texto("CODPOSTAL");
        EXPECT_EQ(nombre, Pliega(nombre));
        EXPECT_FALSE(tabla->Texto("NOMBRE").empty()) << nombre;
        EXPECT_TRUE(SonCifras(tabla->Texto("COD_PROV"), 2)) << nombre;
        EXPECT_TRUE(EsCodigoDe(tabla->Texto("COD_INE"), tabla->Texto("COD_PROV"))) << nombre;
        EXPECT_TRUE(postal.empty() || EsCodigoDe(postal, tabla->Texto("COD_PROV"))) << nombre;
    }
}

// Else a wrong code is given whenever the street does not decide.
TEST(TablasDeSerie, UnMunicipioConVariosCodigosEmpiezaPorUnaFilaSinCodigo) {
    std::map<std::string, std::vector<std::string>> codigos;
    for (const auto tabla = Abre("MUNICIPI", "NOM_MUNICI"); !tabla->Fin(); tabla->Siguiente())
        codigos[tabla->Texto("NOM_MUNICI")].push_back(tabla->Texto("CODPOSTAL"));
    int varios = 0;
    for (const auto& [nombre, suyos] : codigos) {
        if (suyos.size() == 1) continue;
        EXPECT_EQ(suyos.front(), "") << nombre;
        ++varios;
    }
    EXPECT_GT(varios, 5);
    EXPECT_EQ(codigos["VIC"], std::vector<std::string>{"08500"});
}

TEST(TablasDeSerie, UnCodigoPostalDaSuMunicipio) {
    const auto tabla = Abre("MUNICIPI", "CODPOSTAL");
    static constexpr std::pair<std::string_view, std::string_view> CASOS[] = {
        {"28001", "MADRID"},   {"28911", "LEGANES"},          {"03189", "ORIHUELA"}, {"48970", "BASAURI"},
        {"29660", "MARBELLA"}, {"30507", "MOLINA DE SEGURA"}, {"45210", "YUNCOS"},   {"25180", "ALCARRAS"}};
    for (const auto& [codigo, municipio] : CASOS) {
        EXPECT_TRUE(TBBusca(*tabla, {{"CODPOSTAL", codigo}}, true)) << codigo;
        EXPECT_EQ(tabla->Texto("NOMBRE"), municipio);
    }
}

}  // namespace
}  // namespace analizador

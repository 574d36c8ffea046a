// The shipped table of municipalities: the whole country, under the names that deeds use.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "adaptadores/dbase/ProveedorDbase.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "programas/creatablas/LectorCsv.h"

namespace analizador {
namespace {

constexpr std::size_t MUNICIPIOS_DE_ESPANA = 8132;

struct TFilaMunicipio {
    std::string Nombre, Postal, Registro, CodINE, Provincia;
};

// In the order of the index by name, in which a party's municipality is searched.
const std::vector<TFilaMunicipio>& Filas() {
    static const std::vector<TFilaMunicipio> filas = [] {
        std::vector<TFilaMunicipio> leidas;
        TProveedorDbase proveedor(CARPETA_TABLAS);
        for (const auto tabla = proveedor.Abre("NORVEX", "MUNICIPI", "NOM_MUNICI"); !tabla->Fin();
             tabla->Siguiente())
            leidas.push_back({tabla->Texto("NOM_MUNICI"), tabla->Texto("CODPOSTAL"), tabla->Texto("NOMBRE"),
                              tabla->Texto("COD_INE"), tabla->Texto("COD_PROV")});
        return leidas;
    }();
    return filas;
}

// The municipalities of each name, in the order of their rows.
const std::map<std::string, std::vector<std::string>, std::less<>>& CodigosPorNombre() {
    static const auto codigos = [] {
        std::map<std::string, std::vector<std::string>, std::less<>> suyos;
        for (const TFilaMunicipio& fila : Filas()) suyos[fila.Nombre].push_back(fila.CodINE);
        return suyos;
    }();
    return codigos;
}

bool SeLlama(std::string_view nombre, std::string_view codINE) {
    const auto hallado = CodigosPorNombre().find(nombre);
    return hallado != CodigosPorNombre().end() &&
           std::find(hallado->second.begin(), hallado->second.end(), codINE) != hallado->second.end();
}

std::vector<std::vector<std::string>> FilasDeFuente(std::string_view fichero) {
    std::ostringstream texto;
    texto << std::ifstream(std::filesystem::path(CARPETA_DATOS) / fichero, std::ios::binary).rdbuf();
    const std::string leido = texto.str();
    TLectorCsv lector(leido);
    std::vector<std::vector<std::string>> filas;
    static_cast<void>(lector.Siguiente());
    while (const auto registro = lector.Siguiente()) filas.push_back(registro->Campos);
    return filas;
}

TEST(Municipios, EstanTodosLosDelPaisYEnTodasLasProvincias) {
    std::set<std::string> codigos;
    std::set<std::string> provincias;
    for (const TFilaMunicipio& fila : Filas()) {
        codigos.insert(fila.CodINE);
        provincias.insert(fila.Provincia);
    }
    EXPECT_EQ(codigos.size(), MUNICIPIOS_DE_ESPANA);
    EXPECT_EQ(provincias.size(), 52U);
    EXPECT_EQ(*provincias.begin(), "01");
    EXPECT_EQ(*provincias.rbegin(), "52");
}

TEST(Municipios, TodosLosNombresEstanPlegadosConElArticuloDelante) {
    for (const TFilaMunicipio& fila : Filas()) {
        for (const std::string& nombre : {fila.Nombre, fila.Registro}) {
            EXPECT_EQ(nombre, Pliega(nombre));
            EXPECT_EQ(nombre, Recorta(nombre));
            EXPECT_EQ(nombre.find_first_of("/()?"), std::string::npos) << nombre;
            EXPECT_EQ(nombre.find("  "), std::string::npos) << nombre;
            for (const std::string_view detras :
                 {", EL", ", LA", ", LOS", ", LAS", ", L'", ", A", ", O", ", ES"})
                EXPECT_FALSE(nombre.ends_with(detras)) << nombre;
        }
        EXPECT_EQ(fila.Provincia, fila.CodINE.substr(0, 2)) << fila.Nombre;
    }
}

TEST(Municipios, CadaUnoSeRegistraConUnSoloNombreQueTambienSeBusca) {
    std::map<std::string, std::string> registro;
    for (const TFilaMunicipio& fila : Filas()) {
        EXPECT_EQ(registro.try_emplace(fila.CodINE, fila.Registro).first->second, fila.Registro)
            << fila.CodINE;
        EXPECT_TRUE(SeLlama(fila.Registro, fila.CodINE)) << fila.Registro;
    }
}

TEST(Municipios, UnCodigoPostalEsDeUnSoloMunicipioDeSuProvincia) {
    std::map<std::string, std::string> municipios;
    for (const TFilaMunicipio& fila : Filas()) {
        if (fila.Postal.empty()) continue;
        EXPECT_TRUE(fila.Postal.size() == 5 && fila.Postal.starts_with(fila.Provincia)) << fila.Nombre;
        EXPECT_EQ(municipios.try_emplace(fila.Postal, fila.CodINE).first->second, fila.CodINE) << fila.Postal;
    }
    EXPECT_GT(municipios.size(), 300U);
}

TEST(Municipios, SeEncuentranConLosNombresQueLesDanLasEscrituras) {
    static const struct {
        std::string_view Nombre, CodINE, Registro;
    } casos[] = {
        {"EL BALLESTERO", "02014", "EL BALLESTERO"},
        {"USANSOLO", "48916", "USANSOLO"},
        // both official names, and either alone of a joined one
        {"ALICANTE", "03014", "ALICANTE"},
        {"ALACANT", "03014", "ALICANTE"},
        {"DONOSTIA", "20069", "SAN SEBASTIAN"},
        {"SAN SEBASTIAN", "20069", "SAN SEBASTIAN"},
        {"PAMPLONA", "31201", "PAMPLONA"},
        {"IRUÑA"_ansi, "31201", "PAMPLONA"},
        {"VITORIA-GASTEIZ", "01059", "VITORIA"},
        {"VITORIA", "01059", "VITORIA"},
        {"GASTEIZ", "01059", "VITORIA"},
        {"LA VILA JOIOSA", "03139", "VILLAJOYOSA"},
        {"NOAIN", "31088", "NOAIN"},
        // the Castilian name beside the official one
        {"LLEIDA", "25120", "LLEIDA"},
        {"LERIDA", "25120", "LLEIDA"},
        {"GERONA", "17079", "GIRONA"},
        {"SAN BAUDILIO DE LLOBREGAT", "08200", "SANT BOI DE LLOBREGAT"},
        {"SAN CUGAT DEL VALLES", "08205", "SANT CUGAT DEL VALLES"},
        {"VILLANUEVA Y GELTRU", "08307", "VILANOVA I LA GELTRU"},
        {"SEO DE URGEL", "25203", "LA SEU D'URGELL"},
        {"VILLARREAL", "12135", "VILA-REAL"},
        {"JATIVA", "46145", "XATIVA"},
        {"IBIZA", "07026", "EIVISSA"},
        {"MAHON", "07032", "MAHON"},
        {"LA CORUÑA"_ansi, "15030", "A CORUÑA"_ansi},
        {"ORENSE", "32054", "OURENSE"},
        {"SANGENJO", "36051", "SANXENXO"},
        {"FUENTERRABIA", "20036", "HONDARRIBIA"},
        {"BARACALDO", "48013", "BARAKALDO"},
        // with the article, without it, with a blank for the hyphen, without dieresis
        {"L'HOSPITALET DE LLOBREGAT", "08101", "L'HOSPITALET DE LLOBREGAT"},
        {"HOSPITALET DE LLOBREGAT", "08101", "L'HOSPITALET DE LLOBREGAT"},
        {"LES FRANQUESES DEL VALLES", "08086", "LES FRANQUESES DEL VALLES"},
        {"ES CASTELL", "07064", "ES CASTELL"},
        {"PUERTO DE SANTA MARIA", "11027", "EL PUERTO DE SANTA MARIA"},
        {"RIVAS VACIAMADRID", "28123", "RIVAS-VACIAMADRID"},
        {"SIGÜENZA"_ansi, "19257", "SIGÜENZA"_ansi},
        {"SIGUENZA", "19257", "SIGÜENZA"_ansi},
        // what a deed's comma leaves of it
        {"CRUÏLLES"_ansi, "17901", "CRUÏLLES, MONELLS I SANT SADURNI DE L'HEURA"_ansi},
    };
    for (const auto& caso : casos) {
        EXPECT_TRUE(SeLlama(caso.Nombre, caso.CodINE)) << caso.Nombre;
        const auto fila = std::find_if(Filas().begin(), Filas().end(), [&](const TFilaMunicipio& una) {
            return una.CodINE == caso.CodINE && una.Nombre == caso.Nombre;
        });
        ASSERT_NE(fila, Filas().end()) << caso.Nombre;
        EXPECT_EQ(fila->Registro, caso.Registro);
    }
    for (const std::string_view nadie : {"BALLESTERO, EL", "BALLESTERO", "SPRINGFIELD", "LEEDS"})
        EXPECT_FALSE(CodigosPorNombre().contains(nadie)) << nadie;
}

// The code of the first row is the one given when neither postal code nor street decides.
TEST(Municipios, DeLosQueSeLlamanIgualVaDelanteElMayor) {
    static constexpr std::pair<std::string_view, std::string_view> MAYORES[] = {
        {"ARROYOMOLINOS", "28015"},   {"CASTELLO", "12040"}, {"LA GUARDIA", "36023"},
        {"MIERES", "33037"},          {"MOYA", "35013"},     {"TORRENT", "46244"},
        {"SANCTI SPIRITUS", "37279"}, {"CABANES", "12033"}};
    for (const auto& [nombre, codINE] : MAYORES) {
        const auto codigos = CodigosPorNombre().find(nombre);
        ASSERT_NE(codigos, CodigosPorNombre().end()) << nombre;
        EXPECT_EQ(codigos->second.front(), codINE) << nombre;
        EXPECT_GT(std::set(codigos->second.begin(), codigos->second.end()).size(), 1U) << nombre;
    }
}

TEST(Municipios, LlevanTodoLoQueDicenSusFuentes) {
    const auto formas = FilasDeFuente("municipios_otras_formas.csv");
    EXPECT_GT(formas.size(), 1000U);
    for (const auto& fila : formas) EXPECT_TRUE(SeLlama(AnsiDeUtf8(fila.at(2)), fila.at(0))) << fila.at(2);
    std::set<std::string> postales;
    for (const TFilaMunicipio& fila : Filas()) postales.insert(fila.CodINE + fila.Postal);
    for (const auto& fila : FilasDeFuente("municipios_codigos_postales.csv"))
        EXPECT_EQ(postales.count(fila.at(0) + fila.at(2)), 1U) << fila.at(1);
}

TEST(Municipios, EstanLosLugaresDelDespacho) {
    TProveedorDbase proveedor(CARPETA_TABLAS);
    for (const auto tabla = proveedor.Abre("NORVEX", "AYUNTAM", "LUGAR"); !tabla->Fin(); tabla->Siguiente())
        EXPECT_TRUE(SeLlama(tabla->Texto("NOMBRE"), tabla->Texto("COD_INE"))) << tabla->Texto("NOMBRE");
}

}  // namespace
}  // namespace analizador

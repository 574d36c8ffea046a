// The countries as deeds write them, read with the shipped table.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "adaptadores/dbase/ProveedorDbase.h"
#include "plataforma/Ansi.h"
#include "pruebas/comun/VocabularioDePrueba.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {
namespace {

const TSeccionesDePrueba VOCABULARIO = {{"EXTRANJEROS", {"RESIDEN"}}};

class PaisesEscritos : public testing::Test {
  protected:
    TVocabularioDePrueba Vocabulario{VOCABULARIO, VOCABULARIO};
    TProveedorDbase Tablas{CARPETA_TABLAS};
    InstalaTablas Instaladas{Tablas};
};

struct TNombre {
    std::string_view Escrito, Pais;
    int Codigo;
};

constexpr TNombre NOMBRES[] = {
    // the words of several countries
    {"Guinea Ecuatorial", "GUINEA ECUATORIAL", 226},
    {"la República de Guinea Ecuatorial"_ansi, "GUINEA ECUATORIAL", 226},
    {"Guinea-Bissau", "GUINEA-BISSAU", 624},
    {"Guinea Bissau", "GUINEA BISSAU", 624},
    {"Guinea-Bisáu"_ansi, "GUINEA-BISAU", 624},
    {"la República de Guinea-Bissau"_ansi, "GUINEA-BISSAU", 624},
    {"la República de Guinea"_ansi, "REPUBLICA DE GUINEA", 324},
    {"Guinea Conakry", "GUINEA CONAKRY", 324},
    {"Guinea-Conakry", "GUINEA-CONAKRY", 324},
    {"Papúa Nueva Guinea"_ansi, "PAPUA NUEVA GUINEA", 598},
    {"Sudán"_ansi, "SUDAN", 729},
    {"la República Democrática del Congo"_ansi, "DEMOCRATICA DEL CONGO", 180},
    {"la R.D. del Congo", "R.D. DEL CONGO", 180},
    {"RD Congo", "RD CONGO", 180},
    {"la República del Congo"_ansi, "REPUBLICA DEL CONGO", 178},
    {"Congo-Brazzaville", "CONGO-BRAZZAVILLE", 178},
    {"la República Popular del Congo"_ansi, "POPULAR DEL CONGO", 178},
    {"Corea del Norte", "COREA DEL NORTE", 408},
    {"la República Popular Democrática de Corea"_ansi, "DEMOCRATICA DE COREA", 408},
    {"Corea del Sur", "COREA DEL SUR", 410},
    {"la República de Corea"_ansi, "REPUBLICA DE COREA", 410},
    {"Níger"_ansi, "NIGER", 562},
    {"Nigeria", "NIGERIA", 566},
    {"la isla de Dominica", "ISLA DE DOMINICA", 212},
    {"la República Dominicana"_ansi, "REPUBLICA DOMINICANA", 214},
    {"India", "INDIA", 356},
    {"Bloomington, Indiana (Estados Unidos)", "ESTADOS UNIDOS", 840},
    {"Irlanda", "IRLANDA", 372},
    {"Samoa Occidental", "SAMOA OCCIDENTAL", 882},
    {"Samoa Americana", "SAMOA AMERICANA", 16},
    {"China", "CHINA", 156},
    {"Indochina, hoy Vietnam", "VIETNAM", 704},
    {"Guayana Francesa", "GUAYANA FRANCESA", 254},
    {"Guyana", "GUYANA", 328},
    {"Mauritania", "MAURITANIA", 478},
    {"la isla Mauricio", "ISLA MAURICIO", 480},
    {"la República de Mauricio"_ansi, "REPUBLICA DE MAURICIO", 480},
    {"Nueva Zelanda", "NUEVA ZELANDA", 554},
    {"Libia", "LIBIA", 434},
    {"Liberia", "LIBERIA", 430},
    {"Siria", "SIRIA", 760},
    {"Argelia", "ARGELIA", 12},
    {"Suecia", "SUECIA", 752},
    {"Suiza", "SUIZA", 756},
    {"Rusia", "RUSIA", 643},
    // other names of a country
    {"Inglaterra", "INGLATERRA", 826},
    {"Gran Bretaña"_ansi, "GRAN BRETAÑA"_ansi, 826},
    {"el Reino Unido de Gran Bretaña e Irlanda del Norte"_ansi, "GRAN BRETAÑA"_ansi, 826},
    {"Reino Unido", "REINO UNIDO", 826},
    {"Edimburgo, Escocia", "ESCOCIA", 826},
    {"Cardiff (Gales)", "GALES", 826},
    {"Londres (U.K.)", "U.K.", 826},
    {"los Países Bajos"_ansi, "PAISES BAJOS", 528},
    {"Holanda", "HOLANDA", 528},
    {"los Estados Unidos de América"_ansi, "ESTADOS UNIDOS", 840},
    {"EE.UU.", "EE.UU.", 840},
    {"Miami, Florida (USA)", "USA", 840},
    {"Chequia", "CHEQUIA", 203},
    {"la República Checa"_ansi, "REPUBLICA CHECA", 203},
    {"Myanmar", "MYANMAR", 104},
    {"Eswatini", "ESWATINI", 748},
    {"Belarús"_ansi, "BELARUS", 112},
    {"la República de Moldova"_ansi, "MOLDOVA", 498},
    {"Macedonia del Norte", "MACEDONIA", 807},
    {"Emiratos Árabes Unidos"_ansi, "EMIRATOS ARABES", 784},
    {"las Islas Seychelles", "ISLAS SEYCHELLES", 690},
    {"Kenya", "KENYA", 404},
    {"Qatar", "QATAR", 634},
    {"Catar", "CATAR", 634},
    // Catalan ones
    {"França"_ansi, "FRANÇA"_ansi, 250},
    {"Alemanya", "ALEMANYA", 276},
    {"el Regne Unit", "REGNE UNIT", 826},
    {"els Països Baixos"_ansi, "PAÏSOS BAIXOS"_ansi, 528},
    {"els Estats Units d'Amèrica"_ansi, "ESTATS UNITS", 840},
    {"Suïssa"_ansi, "SUÏSSA"_ansi, 756},
    {"Suissa", "SUISSA", 756},
    {"Itàlia"_ansi, "ITALIA", 380},
    {"el Marroc", "MARROC", 504},
    {"Romania", "ROMANIA", 642},
    {"Ucraïna"_ansi, "UCRAÏNA"_ansi, 804},
    {"la República Txeca"_ansi, "REPUBLICA TXECA", 203},
    {"Corea del Nord", "COREA DEL NORD", 408},
    {"Guinea Equatorial", "GUINEA EQUATORIAL", 226},
};

TEST_F(PaisesEscritos, ElNombreDaElPaisYSuCodigo) {
    for (const TIdioma idioma : {TIdioma::Castellano, TIdioma::Catalan}) {
        Vocabulario.Elige(idioma);
        for (const TNombre& nombre : NOMBRES) {
            const auto leido =
                CompruebaExtranjeros("residen en " + std::string(nombre.Escrito) + ", solteros.");
            EXPECT_EQ(leido.Pais.Valor, nombre.Pais) << nombre.Escrito;
            EXPECT_EQ(leido.CodPais, nombre.Codigo) << nombre.Escrito;
        }
    }
}

// What the alphabetical search cannot tell apart: the guide says so to the clerk.
TEST_F(PaisesEscritos, LoQueElOrdenAlfabeticoNoDistingue) {
    static constexpr TNombre LIMITES[] = {
        {"Sudán del Sur"_ansi, "SUDAN", 729},
        {"Irlanda del Norte", "IRLANDA", 372},
        {"los Estados Unidos Mexicanos", "ESTADOS UNIDOS", 840},
        {"la República de China (Taiwán)"_ansi, "CHINA", 156},
        {"el Congo", "DESCONOCIDO", 999},
        {"Corea", "DESCONOCIDO", 999},
        {"Samoa", "DESCONOCIDO", 999},
        {"Guinea", "DESCONOCIDO", 999},
        {"París (Francia), no en España"_ansi, "ESPAÑA"_ansi, 724},
    };
    for (const TNombre& limite : LIMITES) {
        const auto leido = CompruebaExtranjeros("residen en " + std::string(limite.Escrito) + ".");
        EXPECT_EQ(leido.Pais.Valor, limite.Pais) << limite.Escrito;
        EXPECT_EQ(leido.CodPais, limite.Codigo) << limite.Escrito;
    }
}

struct TNacionalidad {
    TIdioma Idioma;
    std::string_view Escrita;
    std::vector<std::string_view> Paises;
};

std::vector<std::string_view> Nombres(const TExtranjeria& leida) {
    std::vector<std::string_view> nombres;
    for (const auto& pais : leida.Paises) nombres.push_back(pais.Valor.Nombre);
    return nombres;
}

TEST_F(PaisesEscritos, ElGentilicioDaSuPaisYNingunOtro) {
    constexpr auto CAS = TIdioma::Castellano;
    constexpr auto CAT = TIdioma::Catalan;
    static const TNacionalidad NACIONALIDADES[] = {
        {CAS, "sudanesa", {"SUDAN"}},
        {CAS, "sursudanesa", {"SUDAN DEL SUR"}},
        {CAS, "nigeriana", {"NIGERIA"}},
        {CAS, "nigerina", {"NIGER"}},
        {CAS, "dominicana", {"REPUBLICA DOMINICANA"}},
        {CAS, "dominiquesa", {"ISLA DE DOMINICA"}},
        {CAS, "guineana", {"GUINEA CONAKRY"}},
        {CAS, "ecuatoguineana", {"GUINEA ECUATORIAL"}},
        {CAS, "ecuatoriana", {"ECUADOR"}},
        {CAS, "surcoreana", {"COREA DEL SUR"}},
        {CAS, "norcoreana", {"COREA NORTE"}},
        {CAS, "india", {"INDIA"}},
        {CAS, "indonesia", {"INDONESIA"}},
        {CAS, "china", {"CHINA"}},
        {CAS, "irlandesa", {"IRLANDA"}},
        {CAS, "inglesa", {"REINO UNIDO"}},
        {CAS, "británica"_ansi, {"REINO UNIDO"}},
        {CAS, "neerlandesa", {"HOLANDA"}},
        {CAS, "holandesa", {"HOLANDA"}},
        {CAS, "rusa", {"RUSIA"}},
        {CAS, "bielorrusa", {"BELARUS"}},
        {CAS, "checa", {"REPUBLICA CHECA"}},
        {CAS, "sueca", {"SUECIA"}},
        {CAS, "marroquí"_ansi, {"MARRUECOS"}},
        {CAS, "estadounidense", {"ESTADOS UNIDOS"}},
        {CAS, "congoleña"_ansi, {"DEMOCRATICA DEL CONGO"}},
        {CAS, "samoana", {"SAMOA OCCIDENTAL"}},
        {CAS, "polinesia", {"POLINESIA FRANCESA"}},
        {CAS, "paraguaya, y él de nacionalidad uruguaya"_ansi, {"PARAGUAY", "URUGUAY"}},
        {CAT, "sud-sudanesa", {"SUDAN DEL SUR"}},
        {CAT, "sudanesa", {"SUDAN"}},
        {CAT, "nigeriana", {"NIGERIA"}},
        {CAT, "coreana", {"COREA DEL SUR"}},
        {CAT, "nord-coreana", {"COREA NORTE"}},
        {CAT, "equatoguineana", {"GUINEA ECUATORIAL"}},
        {CAT, "ucraïnesa"_ansi, {"UCRANIA"}},
        {CAT, "suïssa"_ansi, {"SUIZA"}},
        {CAT, "anglesa", {"REINO UNIDO"}},
        {CAT, "romanesa", {"RUMANIA"}},
    };
    for (const auto& [idioma, escrita, paises] : NACIONALIDADES) {
        Vocabulario.Elige(idioma);
        const std::string nacionalidad = idioma == CAS ? "de nacionalidad " : "de nacionalitat ";
        EXPECT_EQ(Nombres(CompruebaExtranjeros(nacionalidad + std::string(escrita) + ", soltera.")), paises)
            << escrita;
    }
}

}  // namespace
}  // namespace analizador

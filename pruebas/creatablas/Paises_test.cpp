// The shipped countries and the words by which a party's nationality is found.

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "adaptadores/dbase/ProveedorDbase.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rut.h"

namespace analizador {
namespace {

constexpr std::string_view CASTELLANOS[] = {"NACIONALID", "GENTIL1_MA", "GENTIL1_FE", "GENTIL2_MA",
                                            "GENTIL2_FE"};
constexpr std::string_view CATALANES[] = {"NACIONA_CA", "GEN1_MA_CA", "GEN1_FE_CA", "GEN2_MA_CA",
                                          "GEN2_FE_CA"};

std::unique_ptr<TTabla> Abre(std::string_view tabla) {
    TProveedorDbase proveedor(CARPETA_TABLAS);
    return proveedor.Abre("NORVEX", tabla, tabla == "PROVIN" ? "ALFABETICO" : "");
}

std::unique_ptr<TTabla> AbrePaises() {
    auto paises = Abre("PROVIN");
    TBFiltra(*paises, "GRUPO=2");
    return paises;
}

bool EsLetra(char c) {
    return c >= 'A' && c <= 'Z';
}

bool OcurreComoPalabra(std::string_view nombre, std::string_view texto) {
    for (auto p = texto.find(nombre); p != std::string_view::npos; p = texto.find(nombre, p + 1)) {
        const std::size_t fin = p + nombre.size();
        if ((p == 0 || !EsLetra(texto[p - 1])) && (fin == texto.size() || !EsLetra(texto[fin]))) return true;
    }
    return false;
}

bool SonCifras(std::string_view texto, std::size_t cuantas) {
    return texto.size() == cuantas && texto.find_first_not_of("0123456789") == std::string_view::npos;
}

// A country's own row has its nationality; the rows of its other names have its codes and no words of their
// own.
bool EsSuFila(const TTabla& paises) {
    return !paises.Texto("NACIONALID").empty();
}

TEST(PaisesDeSerie, CadaUnoUnaFilaConSuCodigo) {
    std::set<std::string> nombres;
    std::set<std::string> codigos;
    std::set<std::string> letras;
    const auto paises = AbrePaises();
    for (paises->Primero(); !paises->Fin(); paises->Siguiente()) {
        if (!EsSuFila(*paises)) continue;
        const std::string nombre = paises->Texto("PROVINCIA");
        nombres.insert(nombre);
        EXPECT_TRUE(SonCifras(paises->Texto("CODIGO"), 3)) << nombre;
        EXPECT_TRUE(codigos.insert(paises->Texto("CODIGO")).second) << nombre;
        EXPECT_EQ(paises->Texto("COD_198").size(), 2U) << nombre;
        EXPECT_TRUE(letras.insert(paises->Texto("COD_198")).second) << nombre;
    }
    EXPECT_EQ(nombres.size(), 242U);  // of the 249 with a code, those where somebody lives
    for (const char* preferido : {"REINO UNIDO", "HOLANDA", "BENIN", "BURUNDI", "COREA NORTE", "BURKINA FASO",
                                  "LESOTHO", "ISLAS SEYCHELLES", "SRI LANKA", "GUINEA BISSAU", "MALASIA",
                                  "ISLAS MALDIVAS", "MADAGASCAR", "RUANDA"})
        EXPECT_EQ(nombres.count(preferido), 1U) << preferido;
}

TEST(PaisesDeSerie, LosOtrosNombresSonDeUnPaisYNoTienenGentilicio) {
    std::map<std::string, std::string> letrasDe;
    std::set<std::string> nombres;
    const auto paises = AbrePaises();
    for (paises->Primero(); !paises->Fin(); paises->Siguiente()) {
        if (EsSuFila(*paises)) letrasDe[paises->Texto("CODIGO")] = paises->Texto("COD_198");
        EXPECT_TRUE(nombres.insert(paises->Texto("PROVINCIA")).second) << paises->Texto("PROVINCIA");
    }
    int otros = 0;
    for (paises->Primero(); !paises->Fin(); paises->Siguiente()) {
        if (EsSuFila(*paises)) continue;
        ++otros;
        const std::string nombre = paises->Texto("PROVINCIA");
        EXPECT_EQ(letrasDe[paises->Texto("CODIGO")], paises->Texto("COD_198")) << nombre;
        for (const auto& campos : {CASTELLANOS, CATALANES})
            for (std::size_t i = 0; i < std::size(CASTELLANOS); ++i)
                EXPECT_EQ(paises->Texto(campos[i]), "") << nombre;
    }
    EXPECT_GT(otros, 100);
}

TEST(PaisesDeSerie, TienenLaNacionalidadEnLasDosLenguas) {
    const auto paises = AbrePaises();
    for (paises->Primero(); !paises->Fin(); paises->Siguiente())
        for (const std::string_view campo :
             {"NACIONALID", "GENTIL1_MA", "GENTIL1_FE", "NACIONA_CA", "GEN1_MA_CA", "GEN1_FE_CA"})
            EXPECT_EQ(paises->Texto(campo).empty(), !EsSuFila(*paises))
                << paises->Texto("PROVINCIA") << campo;
}

TEST(PaisesDeSerie, SusPalabrasEstanPlegadas) {
    const auto tabla = Abre("PROVIN");
    for (; !tabla->Fin(); tabla->Siguiente()) {
        EXPECT_EQ(tabla->Texto("PROVINCIA"), Pliega(tabla->Texto("PROVINCIA")));
        for (const std::string_view campo : CASTELLANOS) {
            const std::string valor = tabla->Texto(campo);
            EXPECT_EQ(valor, Pliega(valor));
            EXPECT_EQ(valor.find('#'), std::string::npos) << valor;
        }
        for (const std::string_view campo : CATALANES) {
            const std::string valor = tabla->Texto(campo);
            EXPECT_EQ(valor, Pliega(valor));
            EXPECT_EQ(valor.find_first_of("ÄËÏÖÜ"_ansi), std::string::npos) << valor;
            for (auto p = valor.find('#'); p != std::string::npos; p = valor.find('#', p + 1))
                EXPECT_NE(std::string_view("AEIOU").find(valor.at(p + 1)), std::string_view::npos) << valor;
        }
    }
}

TEST(PaisesDeSerie, LaNacionalidadEscritaDaSuPais) {
    static constexpr struct {
        std::string_view Campo, Palabra, Pais;
    } CASOS[] = {
        {"NACIONALID", "ESPAÑOLA"_ansi, "ESPAÑA"_ansi},
        {"NACIONA_CA", "ESPANYOLA", "ESPAÑA"_ansi},
        {"NACIONALID", "BRITANICA", "REINO UNIDO"},
        {"GENTIL2_FE", "INGLESA", "REINO UNIDO"},
        {"GEN2_FE_CA", "ANGLESA", "REINO UNIDO"},
        {"NACIONALID", "ESTADOUNIDENSE", "ESTADOS UNIDOS"},
        {"GENTIL2_FE", "NORTEAMERICANA", "ESTADOS UNIDOS"},
        {"GENTIL2_MA", "NEERLANDES", "HOLANDA"},
        {"NACIONA_CA", "UCRA#INESA", "UCRANIA"},
        {"NACIONALID", "NACIONALIDAD SUECA", "SUECIA"},
        {"NACIONA_CA", "SU#ISSA", "SUIZA"},
        {"NACIONA_CA", "VENEÇOLANA"_ansi, "VENEZUELA"},
        {"NACIONALID", "CONGOLEÑA"_ansi, "DEMOCRATICA DEL CONGO"},
    };
    for (const auto& caso : CASOS) {
        std::set<std::string> hallados;
        const auto paises = AbrePaises();
        for (paises->Primero(); !paises->Fin(); paises->Siguiente())
            if (paises->Texto(caso.Campo) == caso.Palabra) hallados.insert(paises->Texto("PROVINCIA"));
        EXPECT_EQ(hallados, std::set<std::string>{std::string(caso.Pais)}) << caso.Palabra;
    }
}

// Else a deed that names one nationality gives its party two.
TEST(PaisesDeSerie, NingunaPalabraEsDeDosPaises) {
    const std::set<std::string> compartidas = {"CONGOLES", "CONGOLESA", "VIRGENENSE", "DE LES ILLES VERGES"};
    for (const auto& campos : {CASTELLANOS, CATALANES}) {
        std::map<std::string, std::set<std::string>> paisesDe;
        const auto paises = AbrePaises();
        for (paises->Primero(); !paises->Fin(); paises->Siguiente())
            for (std::size_t i = 0; i < std::size(CASTELLANOS); ++i)
                if (const std::string palabra = paises->Texto(campos[i]); !palabra.empty())
                    paisesDe[palabra].insert(paises->Texto("PROVINCIA"));
        for (const auto& [palabra, suyos] : paisesDe) {
            EXPECT_TRUE(suyos.size() == 1 || compartidas.count(palabra) == 1) << palabra;
            if (palabra == "GUINEANA") continue;  // in GUINEANA DE BISSAU, which is seldom written
            for (const auto& [otra, otros] : paisesDe)
                EXPECT_TRUE(suyos == otros || !OcurreComoPalabra(palabra, otra)) << palabra << " in " << otra;
        }
    }
}

struct TPar {
    std::string Nombre, Codigo;
};

std::vector<TPar> PorOrdenAlfabetico() {
    std::vector<TPar> pares;
    const auto paises = AbrePaises();
    for (paises->Primero(); !paises->Fin(); paises->Siguiente())
        pares.push_back({paises->Texto("PROVINCIA"), paises->Texto("CODIGO")});
    return pares;
}

// The first in alphabetical order is taken, so a name inside another country's has to come after it.
TEST(PaisesDeSerie, NingunNombreTapaElDeOtroPais) {
    const auto pares = PorOrdenAlfabetico();
    for (auto uno = pares.begin(); uno != pares.end(); ++uno)
        for (auto otro = uno + 1; otro != pares.end(); ++otro) {
            // The older country's own name; the younger one's nationality tells them apart.
            if (uno->Nombre == "SUDAN" && otro->Nombre == "SUDAN DEL SUR") continue;
            EXPECT_TRUE(uno->Codigo == otro->Codigo || !OcurreComoPalabra(uno->Nombre, otro->Nombre))
                << uno->Nombre << " in " << otro->Nombre;
        }
}

// A list that is searched for a name and its closing bracket stops at the first that ends in it.
TEST(PaisesDeSerie, NingunNombreAcabaEnElDeOtroPaisPosterior) {
    const auto pares = PorOrdenAlfabetico();
    for (auto uno = pares.begin(); uno != pares.end(); ++uno)
        for (auto otro = uno + 1; otro != pares.end(); ++otro)
            EXPECT_TRUE(uno->Codigo == otro->Codigo || !uno->Nombre.ends_with(otro->Nombre))
                << uno->Nombre << " ends in " << otro->Nombre;
}

// The words of deeds that a country's name or demonym must not be: they would make a nationality where there
// is none. Beside them, every first name, town and province of the shipped tables counts.
constexpr std::string_view CORRIENTES[] = {
    "FINES",      "IRAN",          "CUBA",         "MALTA",     "CATAR",       "CHINA",       "CHECA",
    "SUECA",      "RUS",           "ANGLES",       "FRANCES",   "INGLES",      "ALEMAN",      "ALEMANY",
    "PORTUGUES",  "PORTUGAL",      "ESPAÑOL"_ansi, "TURCO",     "POLO",        "REUNION",     "LA REUNION",
    "NORTE",      "GUINEA",        "COREA",        "ANTIGUA",   "GRANADA",     "SANTA LUCIA", "SANTA ELENA",
    "SAN MARTIN", "SAN BARTOLOME", "BONAIRE",      "ANDORRA",   "EL SALVADOR", "PUERTO RICO", "JAPON",
    "PALESTINA",  "LIBANO",        "AMERICANA",    "AMERICANO", "TRINITARIO",  "TRINITARIA",  "DOMINICO",
    "BONAERENSE", "GRECO",         "GREC",         "JORDANO",   "FRANCIA",     "ITALIA",      "ROMANA",
    "GALES",      "CATALAN",       "ROMANES",      "ANGUILA",   "LLANITO",     "GALO"};

struct TExcepcion {
    std::string_view Palabra, Motivo;
};

constexpr TExcepcion EXCEPCIONES[] = {
    {"ANDORRA", "the state's only name; the town in Teruel"},
    {"ANGLES", "English in Catalan; the town in Girona is written D'ANGLES"},
    {"ARGELIA", "the country's only name; a rare first name"},
    {"ARGELINA", "Algerian; a rare first name"},
    {"ARGENTINA", "the country's only name; a rare first name"},
    {"CATAR", "the country's other name; a verb, looked at for foreigners alone"},
    {"CHINA", "the country's only name and its demonym"},
    {"CUBA", "the country's only name; a cask in few deeds"},
    {"DOMINICA", "Dominican in Catalan; a rare first name"},
    {"EL SALVADOR", "the country's only name; a parish too, looked at for foreigners alone"},
    {"ESPAÑOL"_ansi, "Spanish; a rare surname, and the right nationality mostly"},
    {"FRANCIA", "the country's only name; a rare surname"},
    {"GALES", "Wales; a rare surname, looked at for foreigners alone"},
    {"GEORGIA", "the country's only name; a foreign first name"},
    {"GEORGIANA", "Georgian; a Romanian first name"},
    {"GREC", "Greek in Catalan; a rare surname"},
    {"GRECIA", "the country's only name; a Peruvian first name"},
    {"INDIA", "the country's only name and its demonym; a rare first name"},
    {"INGLES", "English; a rare surname"},
    {"IRAN", "the country's only name; the verb too, looked at for foreigners alone"},
    {"ISRAEL", "the country's only name; a first name, looked at for foreigners alone"},
    {"ITALIA", "the country's only name"},
    {"JAPON", "the country's only name; a rare surname"},
    {"JORDANO", "Jordanian; a rare surname"},
    {"KENIA", "the country's only name; a rare first name"},
    {"KENYA", "Kenyan in Catalan; a rare first name"},
    {"LIBANO", "the country's only name"},
    {"LIBIA", "the country's only name and its demonym; a rare first name"},
    {"MALTA", "the country's only name"},
    {"MAURICIA", "Mauritian in Catalan; a rare first name"},
    {"PALESTINA", "the country's only name and its demonym"},
    {"PERU", "the country's only name; a Basque first name, looked at for foreigners alone"},
    {"POLONIA", "the country's only name; an old first name"},
    {"PORTUGAL", "the country's only name; a surname too, looked at for foreigners alone"},
    {"PORTUGUES", "Portuguese; a rare surname"},
    {"PUERTO RICO", "the country's only name; a resort in Gran Canaria, looked at for foreigners alone"},
    {"ROMANES", "Romanian in Catalan"},
    {"RUS", "Russian in Catalan; a small town in Jaén"},
    {"SIRIA", "the country's only name; a rare first name"},
    {"TURCO", "Turkish; a rare surname"},
    {"XINES", "Chinese in Catalan; a Galician first name"},
};

std::set<std::string> PalabrasDeLosPaises() {
    std::set<std::string> palabras;
    const auto paises = AbrePaises();
    for (paises->Primero(); !paises->Fin(); paises->Siguiente()) {
        palabras.insert(paises->Texto("PROVINCIA"));
        for (const std::string_view campo : CASTELLANOS) palabras.insert(paises->Texto(campo));
        for (const std::string_view campo : CATALANES) palabras.insert(paises->Texto(campo));
    }
    palabras.erase("");
    return palabras;
}

std::set<std::string> PalabrasDeLasEscrituras() {
    std::set<std::string> palabras(std::begin(CORRIENTES), std::end(CORRIENTES));
    for (const auto pila = Abre("PILA"); !pila->Fin(); pila->Siguiente())
        palabras.insert(pila->Texto("NOMBRE"));
    for (const auto t = Abre("MUNICIPI"); !t->Fin(); t->Siguiente()) palabras.insert(t->Texto("NOM_MUNICI"));
    for (const auto t = Abre("AYUNTAM"); !t->Fin(); t->Siguiente()) palabras.insert(t->Texto("NOMBRE"));
    for (const auto t = Abre("PROVIN"); !t->Fin(); t->Siguiente())
        if (t->Entero("GRUPO") == 1) palabras.insert(t->Texto("PROVINCIA"));
    return palabras;
}

TEST(PaisesDeSerie, NingunaPalabraEsCorrienteSinEstarEntreLasExcepciones) {
    std::set<std::string> sabidas;
    for (const TExcepcion& excepcion : EXCEPCIONES) {
        EXPECT_FALSE(excepcion.Motivo.empty());
        sabidas.insert(std::string(excepcion.Palabra));
    }
    const std::set<std::string> corrientes = PalabrasDeLasEscrituras();
    std::set<std::string> ambiguas;
    for (const std::string& palabra : PalabrasDeLosPaises())
        if (corrientes.count(palabra) == 1) ambiguas.insert(palabra);
    EXPECT_EQ(ambiguas, sabidas);
}

}  // namespace
}  // namespace analizador

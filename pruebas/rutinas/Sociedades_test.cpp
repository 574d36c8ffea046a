#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>

#include "plataforma/Rnumcad.h"
#include "pruebas/comun/Literales.h"
#include "pruebas/comun/Tramos.h"
#include "pruebas/comun/VocabularioDePrueba.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

const TSeccionesDePrueba CASTELLANO = {
    {"HOMBRE", {"DON"}},
    {"MUJER", {"DOÑA"_a}},
    {"REPRESENTACION", {"EN REPRESENTACION DE", "", "EN NOMBRE"}},
};
const TSeccionesDePrueba CATALAN = {{"REPRESENTACION", {"EN NOM"}}};

class Sociedades : public testing::Test {
  protected:
    TVocabularioDePrueba vocabulario_{CASTELLANO, CATALAN};
};

struct TLeida {
    std::string_view Nombre;
    std::string_view Cif;
};

struct TCaso {
    TIdioma Idioma;
    std::string_view Texto;
    std::vector<TLeida> Sociedades;
};

constexpr TIdioma CAS = TIdioma::Castellano;
constexpr TIdioma CAT = TIdioma::Catalan;

TEST_F(Sociedades, BuscaSociedades) {
    const std::vector<TCaso> casos = {
        // Without a word of representation the first quoted text, whatever else is said.
        {CAS, "", {}},
        {CAS, "La sociedad Uno, B12345674", {}},
        {CAS,
         "La mercantil \"Uno, S.L.\", CIF B12345674, y \"Dos\", A58818501",
         {{"Uno, S.L.", "B12345674"}}},
        {CAS, "don Luis Sanz y \"Uno\"", {{"Uno", ""}}},
        {CAS, "B12345674, \"Uno\"", {{"Uno", ""}}},
        {CAS, "la sociedad \"\"", {{"", ""}}},
        // The name as the deed writes it.
        {CAS, "en representación de \"Peñas y Más\"\r"_a, {{"Peñas y Más"_a, ""}}},
        {CAS,
         "en representación de \"Uno\", B12345674, y en nombre de \"Dos\", A58818501"_a,
         {{"Uno", "B12345674"}, {"Dos", "A58818501"}}},
        // The code is looked for in all that follows.
        {CAS,
         "en nombre de \"Uno\" y en nombre de \"Dos\", A58818501",
         {{"Uno", "A58818501"}, {"Dos", "A58818501"}}},
        {CAS, "en nombre de \"Uno\", X1234567", {{"Uno", "X1234567"}}},
        {CAS, "A58818501, en nombre de \"Uno\"", {{"Uno", ""}}},
        // One for each word of representation; those within the quotes count for nothing.
        {CAS, "en nombre de \"Uno\" y de \"Dos\"", {{"Uno", ""}}},
        {CAS, "en nombre de \"Uno en nombre de\" y \"Dos\"", {{"Uno en nombre de", ""}}},
        {CAS, "\"Uno\" en nombre propio", {}},
        // A person is represented.
        {CAS, "en nombre de don Luis Sanz y de \"Uno\"", {}},
        {CAS, "en nombre de don Luis, y en representación de \"Uno\""_a, {{"Uno", ""}}},
        {CAS, "en nombre de \"Uno\" por don Luis", {{"Uno", ""}}},
        // Neither: the text is used up.
        {CAS, "en nombre propio, y en nombre de nadie", {}},
        // The position of a form of address behind a false one comes out before the quote.
        {CAS, "en nombre CORDON \"Uno\" DON LUIS", {}},
        {CAS, "en nombre CORTES \"Uno\" DON LUIS", {{"Uno", ""}}},
        // A quote never closed: a company without name, and the end.
        {CAS, "la sociedad \"Uno, B12345674", {{"", ""}}},
        {CAS, "en nombre de \"Uno, B12345674, en nombre de Dos", {{"", ""}}},
        {CAS, "en nombre de \"Uno\", B12345674, en nombre de \"Dos", {{"Uno", "B12345674"}, {"", ""}}},
        // The Catalan article.
        {CAT, "en nom de \"L'Estel, S.L.\"", {{"Estel, S.L.", ""}}},
        {CAT, "en nom de \"l'estel\"", {{"estel", ""}}},
        {CAT, "en nom de \"L'\"", {{"", ""}}},
        {CAT, "en nom de \"L\"", {{"L", ""}}},
        {CAT, "en nom de \"EL'S\"", {{"EL'S", ""}}},
        {CAS, "en nombre de \"L'Estel, S.L.\"", {{"L'Estel, S.L.", ""}}},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Texto);
        vocabulario_.Elige(caso.Idioma);
        const auto halladas = BuscaSociedades(caso.Texto);
        ASSERT_EQ(halladas.size(), caso.Sociedades.size());
        for (std::size_t i = 0; i < halladas.size(); ++i) {
            const TRSociedad& sociedad = halladas[i].Sociedad;
            EXPECT_EQ(sociedad.TipoDocumento, 2);
            EXPECT_EQ(sociedad.Sexo, "S");
            EXPECT_EQ(sociedad.Nombre, "");
            EXPECT_EQ(sociedad.Apellidos, caso.Sociedades[i].Nombre);
            EXPECT_EQ(sociedad.NumDocumento, caso.Sociedades[i].Cif);
            EXPECT_EQ(EnTramo(caso.Texto, halladas[i].Nombre), caso.Sociedades[i].Nombre);
            EXPECT_EQ(EnTramo(caso.Texto, halladas[i].Documento), caso.Sociedades[i].Cif);
        }
    }
}

TEST_F(Sociedades, DondeSeLeyoElCodigo) {
    const std::string_view texto = "\ten nombre\tde \"U\tno\", C.I.F.\tn.\t B-12.345.674.\r";
    const auto halladas = BuscaSociedades(texto);
    ASSERT_EQ(halladas.size(), 1U);
    EXPECT_EQ(EnTramo(texto, halladas[0].Nombre), "U\tno");
    EXPECT_EQ(halladas[0].Sociedad.NumDocumento, "B12345674");
    EXPECT_EQ(EnTramo(texto, halladas[0].Documento), "B-12.345.674");
}

using TLeidaConCopias = std::pair<std::string, std::string>;  // name and tax code

// The same rules over copies of what is left of the text, slow and plain.
std::vector<TLeidaConCopias> BuscaSociedadesConCopias(std::string texto) {
    std::vector<TLeidaConCopias> sociedades;
    const auto lee = [&](int comilla) {
        texto = texto.substr(static_cast<std::size_t>(comilla));
        const auto cierre = static_cast<std::size_t>(Pos("\"", texto));
        std::string nombre(cierre == 0 ? "" : texto.substr(0, cierre - 1));
        texto = cierre == 0 ? "" : texto.substr(cierre);
        sociedades.emplace_back(std::move(nombre), BuscaCif(texto).Valor);
    };
    TToken palabra = ContieneToken("REPRESENTACION", texto);
    if (palabra.Posicion == 0 && Pos("\"", texto) != 0) lee(Pos("\"", texto));
    for (; palabra.Posicion != 0; palabra = ContieneToken("REPRESENTACION", texto)) {
        texto = texto.substr(static_cast<std::size_t>(palabra.Posicion) - 1 + palabra.Entrada.size());
        const TTratamiento t = BuscaTratamiento(texto);
        const int comilla = Pos("\"", texto);
        if (comilla != 0 && (t.Posicion == 0 || t.Posicion >= comilla))
            lee(comilla);
        else if (t.Posicion != 0)
            texto = texto.substr(static_cast<std::size_t>(t.Posicion) - 1 + t.Tratamiento.size());
        else
            texto.clear();
    }
    return sociedades;
}

TEST_F(Sociedades, LoMismoQueConCopias) {
    const std::vector<std::string_view> trozos = {"\"",      "\"",   "EN NOMBRE ", "EN NOMBRE",  "DON ",
                                                  "CORDON ", "UNO",  ", ",         "B12345674 ", "X1234567 ",
                                                  " Y ",     "123 ", "\t",         "A1\n",       "A58818501"};
    std::uint32_t semilla = 1;
    for (int vez = 0; vez < 400; ++vez) {
        std::string texto;
        for (int i = 0; i < 14; ++i) {
            semilla = semilla * 1664525U + 1013904223U;
            texto += trozos[(semilla >> 16U) % trozos.size()];
        }
        std::vector<TLeidaConCopias> sociedades;
        for (const auto& hallada : BuscaSociedades(texto))
            sociedades.emplace_back(hallada.Sociedad.Apellidos, hallada.Sociedad.NumDocumento);
        ASSERT_EQ(sociedades, BuscaSociedadesConCopias(texto)) << texto;
    }
}

}  // namespace

}  // namespace analizador

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>

#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "pruebas/comun/Literales.h"
#include "pruebas/comun/TablasDePrueba.h"
#include "pruebas/comun/Tramos.h"
#include "pruebas/comun/VocabularioDePrueba.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

const TSeccionesDePrueba CASTELLANO = {
    {"HOMBRE", {"DON"}},
    {"MUJER", {"DOÑA"_a}},
    {"NOTARIO DE", {"", "NOTARIO DE DON", "NOTARIO DE", "NOTARIO DON"}},
};
const TSeccionesDePrueba CATALAN = {{"HOMBRE", {"EL SENYOR"}}, {"MUJER", {"LA SENYORA"}}};

class Personas : public testing::Test {
  protected:
    void SetUp() override {
        tablas_.Pon(
            "PILA.DBF",
            {{"NOMBRE"},
             {{"JUAN"}, {"LUIS"}, {"MARIA"}, {"MARIA DEL MAR"}, {"MARIA JOSE"}, {std::string("ÑO"_a)}}});
    }

    TVocabularioDePrueba vocabulario_{CASTELLANO, CATALAN};
    TTablasDePrueba tablas_;
    InstalaTablas instala_{tablas_};
};

TEST_F(Personas, SeparaNombreApellidos) {
    struct TCaso {
        std::string_view Completo;
        std::string_view Nombre;
        std::string_view Apellidos;
    };
    const std::vector<TCaso> casos = {
        {"", "", ""},
        {" \t\r\n ", "", ""},
        {"JUAN", "", "JUAN"},
        {"  Pérez \r"_a, "", "PEREZ"},
        {"juan pérez ñoño"_a, "JUAN", "PEREZ ÑOÑO"_a},
        // The longest run of words that is a first name.
        {"MARIA JOSE LOPEZ RUIZ", "MARIA JOSE", "LOPEZ RUIZ"},
        {"MARIA JOSEFA LOPEZ", "MARIA", "JOSEFA LOPEZ"},
        {"María del Mar Gil"_a, "MARIA DEL MAR", "GIL"},
        {"MARIA DEL GIL", "MARIA", "DEL GIL"},
        {"MARIA JOSE", "MARIA JOSE", ""},
        {"ño Gil"_a, "ÑO"_a, "GIL"},
        // No first name known: the first word.
        {"XOAN PEREZ GIL", "XOAN", "PEREZ GIL"},
        {"NO GIL", "NO", "GIL"},
        {"PEREZ JUAN", "PEREZ", "JUAN"},
        // Blanks on the right of a key do not matter, so the longest run takes one along.
        {"MARIA  LOPEZ", "MARIA ", "LOPEZ"},
        {"XOAN  LOPEZ", "XOAN", " LOPEZ"},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Completo);
        const TNombreSeparado separado = SeparaNombreApellidos(caso.Completo);
        EXPECT_EQ(separado.Nombre, caso.Nombre);
        EXPECT_EQ(separado.Apellidos, caso.Apellidos);
    }
}

TEST_F(Personas, UnNombreMasLargoQueCualquierCampo) {
    std::string cola;
    for (int i = 0; i < 300; ++i) cola += " GIL";
    EXPECT_EQ(SeparaNombreApellidos("MARIA JOSE" + cola), (TNombreSeparado{"MARIA JOSE", cola.substr(1)}));
    EXPECT_EQ(SeparaNombreApellidos("XOAN" + cola), (TNombreSeparado{"XOAN", cola.substr(1)}));
    const std::string larga(300, 'X');
    EXPECT_EQ(SeparaNombreApellidos(larga + " GIL"), (TNombreSeparado{larga, "GIL"}));
}

TEST_F(Personas, LaTablaQueFaltaSoloImportaConVariasPalabras) {
    tablas_.Quita("PILA.DBF");
    EXPECT_EQ(SeparaNombreApellidos("JUAN").Apellidos, "JUAN");
    EXPECT_THROW((void)SeparaNombreApellidos("JUAN GIL"), ErrorTabla);
}

struct TLeida {
    std::string_view Sexo;
    std::string_view Nombre;
    std::string_view Apellidos;
    std::string_view Leido;
};

struct TCaso {
    TIdioma Idioma;
    std::string_view Texto;
    std::vector<TLeida> Personas;
};

constexpr TIdioma CAS = TIdioma::Castellano;
constexpr TIdioma CAT = TIdioma::Catalan;

TEST_F(Personas, BuscaPersonas) {
    const std::vector<TCaso> casos = {
        {CAS, "", {}},
        {CAS, "LA SOCIEDAD", {}},
        {CAS,
         "DON JUAN PEREZ GARCIA Y DOÑA MARIA JOSE LOPEZ RUIZ, mayores de edad"_a,
         {{"H", "JUAN", "PEREZ GARCIA", "JUAN PEREZ GARCIA"},
          {"M", "MARIA JOSE", "LOPEZ RUIZ", "MARIA JOSE LOPEZ RUIZ"}}},
        {CAS,
         "Comparecen: don Juan Pérez, casado, y doña María Gil, soltera\r"_a,
         {{"H", "JUAN", "PEREZ", "Juan Pérez"_a}, {"M", "MARIA", "GIL", "María Gil"_a}}},
        // Without a comma the name runs to the paragraph's end but for its last character.
        {CAS, "DON JUAN PEREZ\r", {{"H", "JUAN", "PEREZ", "JUAN PEREZ"}}},
        {CAS, "DON JUAN PEREZ", {{"H", "JUAN", "PERE", "JUAN PERE"}}},
        {CAS, "DON J", {{"H", "", "", ""}}},
        {CAS, "DON ", {{"H", "", "", ""}}},
        // The conjunction goes at the end of any name, before a comma too, and it is the language's own.
        {CAS, "DON JUAN GIL Y , MAYOR", {{"H", "JUAN", "GIL", "JUAN GIL"}}},
        {CAS,
         "DON JUAN GIL I DON LUIS ROS, X",
         {{"H", "JUAN", "GIL I", "JUAN GIL I"}, {"H", "LUIS", "ROS", "LUIS ROS"}}},
        {CAT,
         "EL SENYOR JUAN GIL I LA SENYORA MARIA ROS, X",
         {{"H", "JUAN", "GIL", "JUAN GIL"}, {"M", "MARIA", "ROS", "MARIA ROS"}}},
        {CAT,
         "EL SENYOR JUAN GIL Y EL SENYOR LUIS ROS, X",
         {{"H", "JUAN", "GIL Y", "JUAN GIL Y"}, {"H", "LUIS", "ROS", "LUIS ROS"}}},
        // A name of one word is all surnames; a form of address with no name makes a person all the same.
        {CAS, "DON JUAN, MAYOR", {{"H", "", "JUAN", "JUAN"}}},
        {CAS, "DON , MAYOR", {{"H", "", "", ""}}},
        {CAS, "DON DON JUAN GIL, X", {{"H", "", "", ""}, {"H", "JUAN", "GIL", "JUAN GIL"}}},
        // The notary is no party; the next one is.
        {CAS,
         "ANTE EL NOTARIO DE MADRID, DON LUIS SANZ, DON JUAN GIL, X",
         {{"H", "JUAN", "GIL", "JUAN GIL"}}},
        {CAS,
         "DON JUAN GIL, ANTE EL NOTARIO DE LUGO DON LUIS SANZ Y DOÑA MARIA ROS, X"_a,
         {{"H", "JUAN", "GIL", "JUAN GIL"}, {"M", "MARIA", "ROS", "MARIA ROS"}}},
        // The words must stand wholly before the form of address: the longer entry does not, the other does.
        {CAS, "EL NOTARIO DON JUAN GIL, X", {{"H", "JUAN", "GIL", "JUAN GIL"}}},
        {CAS, "EL NOTARIO DE DON JUAN GIL, X", {}},
        {CAS, "DON JUAN GIL, NOTARIO DE LUGO", {{"H", "JUAN", "GIL", "JUAN GIL"}}},
        // A false form of address: its position comes out too small, the cut falls within CORDON.
        {CAS, "CORDON DON LUIS SANZ, X", {{"H", "", "N", "N"}, {"H", "LUIS", "SANZ", "LUIS SANZ"}}},
        {CAS,
         "LA CALLE CORDON Y DON LUIS SANZ, X",
         {{"H", "E", "C", "E C"}, {"H", "", "", ""}, {"H", "LUIS", "SANZ", "LUIS SANZ"}}},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Texto);
        vocabulario_.Elige(caso.Idioma);
        const auto halladas = BuscaPersonas(caso.Texto);
        EXPECT_EQ(halladas.size(), caso.Personas.size());
        for (std::size_t i = 0; i < std::min(halladas.size(), caso.Personas.size()); ++i) {
            EXPECT_EQ(halladas[i].Valor.Sexo, caso.Personas[i].Sexo);
            EXPECT_EQ(halladas[i].Valor.Nombre, caso.Personas[i].Nombre);
            EXPECT_EQ(halladas[i].Valor.Apellidos, caso.Personas[i].Apellidos);
            EXPECT_EQ(EnTramo(caso.Texto, halladas[i].Donde), caso.Personas[i].Leido);
        }
    }
}

// The same rules over copies of what is left of the text, slow and plain.
std::vector<TRPersona> BuscaPersonasConCopias(std::string_view parrafo) {
    std::vector<TRPersona> personas;
    std::string texto = Pliega(parrafo);
    for (TTratamiento t = BuscaTratamiento(texto); t.Posicion != 0; t = BuscaTratamiento(texto)) {
        const TToken notario = ContieneToken("NOTARIO DE", StrLeft(texto, t.Posicion - 1),
                                             {.Plegado = false, .PrimeraEntrada = true});
        texto =
            texto.substr(std::min(texto.size(), static_cast<std::size_t>(t.Posicion) + t.Tratamiento.size()));
        const int coma = Pos(",", texto);
        const int siguiente = BuscaTratamiento(texto).Posicion;
        int fin = coma != 0 && (siguiente == 0 || coma < siguiente) ? coma : siguiente;
        if (fin == 0) fin = static_cast<int>(texto.size());
        std::string nombre(StrLeft(texto, fin - 1));
        if (StrRight(nombre, 3) == " Y ") nombre.resize(nombre.size() - 3);
        if (notario.Posicion == 0) {
            const TNombreSeparado separado = SeparaNombreApellidos(nombre);
            personas.push_back({std::string(1, t.Sexo), separado.Nombre, separado.Apellidos});
        }
        texto = texto.substr(nombre.size());
    }
    return personas;
}

TEST_F(Personas, LoMismoQueConCopias) {
    const std::vector<std::string_view> trozos = {"DON ",   "CORDON ", "JUAN ", "GIL",         ", ",
                                                  " Y ",    "DOÑA "_a, "A",     "NOTARIO DE ", "\r",
                                                  "MARIA ", "DONDON ", " "};
    std::uint32_t semilla = 1;
    for (int vez = 0; vez < 400; ++vez) {
        std::string texto;
        for (int i = 0; i < 12; ++i) {
            semilla = semilla * 1664525U + 1013904223U;
            texto += trozos[(semilla >> 16U) % trozos.size()];
        }
        std::vector<TRPersona> personas;
        for (const auto& hallada : BuscaPersonas(texto)) personas.push_back(hallada.Valor);
        ASSERT_EQ(personas, BuscaPersonasConCopias(texto)) << texto;
    }
}

}  // namespace

}  // namespace analizador

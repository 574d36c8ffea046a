// Single words: those a deed cannot do without, and those that look harmless and are not.

#include <algorithm>
#include <array>
#include <string>

#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "pruebas/vocabulario/Vocabularios.h"

namespace analizador::vocabulario {
namespace {

struct Caso {
    bool Catalan;
    std::string_view Seccion;
    std::string_view Entrada;
};

const Vocabulario& Del(const Caso& caso) {
    return caso.Catalan ? Catalan() : Castellano();
}

TEST(Palabras, Estan) {
    const Caso casos[] = {
        {false, "COMPARECIENTES", "COMPARECEN"},
        {false, "COMPARECIENTES", "C O M P A R E C E"},
        {false, "COMPARECIENTES", "--------- C O M P A R E C E N"},
        {false, "INTERVINIENTES", "INTERVIENEN"},
        {false, "EXPONEN", "E X P O N E N"},
        {false, "HOMBRE", "DON"},
        {false, "HOMBRE", "D."},
        {false, "MUJER", "DOÑA"_ansi},
        {false, "MUJER", "Dª"_ansi},
        {false, "MUJER", "SU ESPOSA DOÑA"_ansi},
        {false, "REPRESENTACION", "EN REPRESENTACION"},
        {false, "REPRESENTACION", "Y REPRESENTACION"},
        {false, "DOMICILIO", "DOMICILIO EN LA "},
        {false, "NUMERO", "Nº"_ansi},
        {false, "VECINDAD", "VECINA DE"},
        {false, "VECINDAD", "CON DOMICILIO EN"},
        {false, "EURO", "€"_ansi},
        {false, "ANTE MI", "ANTE MI"},
        {false, "IRPH", "PRESTAMOS HIPOTECARIOS A MAS DE TRES AÑOS"_ansi},
        {true, "COMPARECIENTES", "COMPAREIXEN"},
        {true, "COMPARECIENTES", "--------- C O M P A R E I X E N"},
        {true, "EXPONEN", "EXPOSA"},
        {true, "MUJER", "I LA SENYORA"},
        {true, "VECINDAD", "VEÏNA DE"_ansi},
        {true, "VECINDAD", "VEINA D"},
        {true, "PLAZA", "PLAÇA"_ansi},
        {true, "ANTE MI", "DAVANT MEU"},
        {true, "NUMEROS", "VINT-I-DOS"},
        {true, "NUMEROS", "VINTIDOS"},
        {true, "NUMEROS", "DOSCENTS"},
        {true, "NUMEROS", "TRENTAU"},
    };
    for (const auto& caso : casos)
        EXPECT_GE(Posicion(Del(caso), caso.Seccion, caso.Entrada), 0)
            << Sitio(Del(caso), caso.Seccion, caso.Entrada);
}

TEST(Palabras, NoEstanLasTrampas) {
    const Caso casos[] = {
        // "resulta su representación de poder otorgado ante el Notario..."
        {false, "REPRESENTACION", "REPRESENTACION"},
        {true, "REPRESENTACION", "REPRESENTACIO"},
        // "con domicilio en Madrid, calle...": the address would begin before the town
        {false, "DOMICILIO", "CON DOMICILIO EN"},
        {false, "DOMICILIO", "DOMICILIO EN"},
        {true, "DOMICILIO", "AMB DOMICILI A"},
        {true, "DOMICILIO", "DOMICILI A"},
        // without its tilde it finds no doña, and in Catalan it is a woman or a gift
        {false, "MUJER", "DONA"},
        {true, "MUJER", "DONA"},
        // preposition and pronoun of every line
        {true, "HOMBRE", "EN"},
        {true, "MUJER", "NA"},
        // inside MANIFIESTA, NIETO, TRIMESTRE
        {false, "NIF", "NIF"},
        {true, "NIF", "NIF"},
        {false, "NIE", "NIE"},
        {true, "NIE", "NIE"},
        {false, "MES", "MES"},
        {true, "MES", "MES"},
        // "yo, el Notario, ..." between two parties
        {false, "NOTARIO DE", "NOTARIO"},
        {true, "NOTARIO DE", "NOTARI"},
        // surnames and phrases about something else
        {false, "CASADO", "CASADO"},
        {false, "SEPARADO", "SEPARADO"},
        {false, "PARTICIPACION", "PARTICIPACION"},
        {true, "PARTICIPACION", "PARTICIPACIO"},
        // VENDEDOR, VENDER
        {false, "TRANSMISION", "VENDE"},
        {true, "TRANSMISION", "VEN"},
        // "hipotecantes no deudores"
        {false, "PARTE DEUDORA", "DEUDORES"},
        // foreigners live here too
        {false, "EXTRANJEROS", "NACIONALIDAD"},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(Posicion(Del(caso), caso.Seccion, caso.Entrada), -1)
            << Sitio(Del(caso), caso.Seccion, caso.Entrada);
}

constexpr std::string_view MARZO = "MARÇ"_ansi;

TEST(Palabras, LosMesesSonTrecePorSuOrden) {
    const std::vector<std::string> castellano = {
        "ENERO",  "FEBRERO",    "MARZO",   "ABRIL",     "MAYO",      "JUNIO",    "JULIO",
        "AGOSTO", "SEPTIEMBRE", "OCTUBRE", "NOVIEMBRE", "DICIEMBRE", "SETIEMBRE"};
    const std::vector<std::string> catalan = {
        "GENER", "FEBRER",   std::string(MARZO), "ABRIL",    "MAIG",     "JUNY",     "JULIOL",
        "AGOST", "SETEMBRE", "OCTUBRE",          "NOVEMBRE", "DESEMBRE", "SEPTEMBRE"};
    EXPECT_EQ(Castellano().Ini.Palabras("MESES"), castellano);
    EXPECT_EQ(Catalan().Ini.Palabras("MESES"), catalan);
}

// A heading is met bare or filled out: "COMPARECEN", "---- COMPARECEN", "----COMPARECEN", "==== COMPARECEN".
class TitulosRellenos : public testing::TestWithParam<Caso> {};
INSTANTIATE_TEST_SUITE_P(Palabras, TitulosRellenos,
                         testing::Values(Caso{false, "COMPARECIENTES", "COMPARECEN"},
                                         Caso{false, "COMPARECIENTES", "C O M P A R E C E"},
                                         Caso{false, "INTERVINIENTES", "INTERVIENE"},
                                         Caso{false, "EXPONEN", "E X P O N E N"},
                                         Caso{true, "COMPARECIENTES", "COMPAREIX"},
                                         Caso{true, "INTERVINIENTES", "I N T E R V E N E N"},
                                         Caso{true, "EXPONEN", "EXPOSEN"}));

// A heading counts when some entry begins within the first five characters of its paragraph.
void EsperaReconocido(const std::string& relleno) {
    const auto& caso = TitulosRellenos::GetParam();
    const auto& lista = Del(caso).Ini.Palabras(caso.Seccion);
    const std::string parrafo = relleno + std::string(caso.Entrada);
    const auto hallada = std::any_of(lista.begin(), lista.end(), [&](const std::string& entrada) {
        return parrafo.ends_with(entrada) && parrafo.size() - entrada.size() < 5;
    });
    EXPECT_TRUE(hallada) << Sitio(Del(caso), caso.Seccion, parrafo);
}

TEST_P(TitulosRellenos, SeReconoceConHastaTreintaYTresGuiones) {
    for (std::size_t n = 0; n <= 33; ++n) {
        EsperaReconocido(std::string(n, '-'));
        EsperaReconocido(std::string(n, '-') + " ");
    }
}

TEST_P(TitulosRellenos, SeReconoceConHastaVeintitresSignosDeOtraClase) {
    for (const char signo : {'=', '*'})
        for (std::size_t n = 0; n <= 23; ++n) EsperaReconocido(std::string(n, signo) + " ");
}

// The transfer is searched in the whole document, without whole words: V E N E N is in I N T E R V E N E N.
TEST(Palabras, NingunaDeTransmisionEstaEnUnTitulo) {
    for (const auto& vocabulario : Vocabularios())
        for (const auto titulos : {"COMPARECIENTES", "INTERVINIENTES", "EXPONEN"})
            for (const auto& titulo : vocabulario.Ini.Palabras(titulos))
                for (const auto& entrada : vocabulario.Ini.Palabras("TRANSMISION"))
                    EXPECT_EQ((" " + titulo + " ").find(entrada), std::string::npos)
                        << Sitio(vocabulario, "TRANSMISION", entrada) << " está en " << Utf8DeAnsi(titulo);
}

using PalabrasNumero = EnCadaVocabulario;
INSTANTIATE_TEST_SUITE_P(Vocabulario, PalabrasNumero, testing::Values(0, 1), NombreDeCaso);

// By itself, or, the plurals (MILLONES, CENTS, CENTES), after a two.
bool EsNumero(const std::string& entrada, bool catalan) {
    return std::ranges::any_of(std::array{"", "DOS ", "DUES "}, [&](const std::string& dos) {
        return ConvierteNumeroDeCadenaAEnteroNvx(dos + entrada, catalan) > 0;
    });
}

TEST_P(PalabrasNumero, CadaUnaEsUnNumero) {
    for (const auto& entrada : Actual().Ini.Palabras("NUMEROS"))
        if (entrada != "CERO" && entrada != "ZERO") {
            EXPECT_TRUE(EsNumero(entrada, Actual().Catalan)) << Sitio(Actual(), "NUMEROS", entrada);
        }
}

// Words reach the list without the signs that stand inside them.
TEST_P(PalabrasNumero, LaQueLlevaGuionEstaTambienSinEl) {
    for (const auto& entrada : Actual().Ini.Palabras("NUMEROS"))
        EXPECT_GE(Posicion(Actual(), "NUMEROS", QuitaCaracter(entrada, '-')), 0)
            << Sitio(Actual(), "NUMEROS", entrada);
}

TEST_P(PalabrasNumero, LaConjuncionNoEsNumero) {
    EXPECT_EQ(Posicion(Actual(), "NUMEROS", Actual().Catalan ? "I" : "Y"), -1);
}

}  // namespace
}  // namespace analizador::vocabulario

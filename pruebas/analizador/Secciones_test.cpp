// The choice of the token file, the sections' bounds, headings and paragraphs found.

#include <gtest/gtest.h>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Ansi.h"
#include "pruebas/analizador/Escena.h"

namespace analizador {
namespace {

// ---- Language

struct TCasoIdioma {
    const char* Nombre;
    std::vector<std::string_view> Parrafos;
    int Seleccion;  // where the selection stands when the analysis begins
    bool Catalan;
};

class Idioma : public testing::TestWithParam<TCasoIdioma> {};

TEST_P(Idioma, SeEligePorLaFormulaDelNotario) {
    const auto& caso = GetParam();
    TEscena escena(caso.Parrafos);
    escena.Documento().GetSeleccion().PonIntervalo({caso.Seleccion, caso.Seleccion});
    EXPECT_EQ(escena.Sesion.SeleccionaArchivoTokens(),
              caso.Catalan ? Rutas().CATALAN_INI : Rutas().CASTELLANO_INI);
}

INSTANTIATE_TEST_SUITE_P(
    Escrituras, Idioma,
    testing::Values(TCasoIdioma{"ninguna", {"Yo, el notario"}, 0, false},
                    TCasoIdioma{"catalana", {"Davant meu, JOAN SERRA"}, 0, true},
                    TCasoIdioma{"castellana", {"Ante mi, JUAN SERRA"}, 0, false},
                    TCasoIdioma{"las_dos", {"Davant meu, JOAN", "y despues ANTE MI"}, 0, false},
                    // The search goes on from the start, so what stands before counts as well.
                    TCasoIdioma{"la_castellana_antes", {"ante mi", "DAVANT MEU"}, 0, false},
                    TCasoIdioma{"desde_el_final", {"davant meu", "y mas texto"}, 20, true},
                    TCasoIdioma{"dentro_de_otra_palabra", {"davant meua"}, 0, true}),
    [](const auto& caso) { return std::string(caso.param.Nombre); });

TEST(Idioma, LasBusquedasPasanSusOpciones) {
    TEscena escena({"davant meu"});
    (void)escena.Sesion.SeleccionaArchivoTokens();
    const TOpcionesBusqueda opciones{.Adelante = true, .Continua = true};
    ASSERT_EQ(escena.Documento().Busquedas.size(), 2U);
    const std::vector<std::string> buscados = {"DAVANT MEU", "ANTE MI"};
    for (std::size_t i = 0; i < buscados.size(); ++i) {
        EXPECT_EQ(escena.Documento().Busquedas[i].first, buscados[i]);
        const auto& o = escena.Documento().Busquedas[i].second;
        EXPECT_EQ(std::tie(o.DistingueMayusculas, o.PalabrasCompletas, o.Comodines, o.SuenaComo,
                           o.TodasLasFormas, o.Adelante, o.Continua, o.Formato),
                  std::tie(opciones.DistingueMayusculas, opciones.PalabrasCompletas, opciones.Comodines,
                           opciones.SuenaComo, opciones.TodasLasFormas, opciones.Adelante, opciones.Continua,
                           opciones.Formato));
    }
}

// ---- Bounds. Each paragraph of these deeds has nine letters and its line end, so that paragraph n begins at
// 10n.

struct TCasoLimites {
    const char* Nombre;
    std::vector<std::string_view> Parrafos;
    int FinCabecera, InicioComparecientes, FinComparecientes, InicioIntervinientes, FinIntervinientes,
        InicioExponen;
};

class Limites : public testing::TestWithParam<TCasoLimites> {};

TEST_P(Limites, CadaSeccionAcabaDondeEmpiezaLaSiguienteHallada) {
    const auto& caso = GetParam();
    TEscena escena(caso.Parrafos);
    escena.Vocabulario.Pon(
        TIdioma::Castellano,
        {{"COMPARECIENTES", {"COMPARECE"}}, {"INTERVINIENTES", {"INTERVENI"}}, {"EXPONEN", {"EXPONENNN"}}});
    (void)escena.Sesion.Analiza(true);
    const auto& sesion = escena.Sesion;
    EXPECT_EQ(sesion.FinDocumento, static_cast<int>(caso.Parrafos.size()) * 10 - 1);
    EXPECT_EQ(sesion.FinCabecera, caso.FinCabecera);
    EXPECT_EQ(sesion.InicioComparecientes, caso.InicioComparecientes);
    EXPECT_EQ(sesion.FinComparecientes, caso.FinComparecientes);
    EXPECT_EQ(sesion.InicioIntervinientes, caso.InicioIntervinientes);
    EXPECT_EQ(sesion.FinIntervinientes, caso.FinIntervinientes);
    EXPECT_EQ(sesion.InicioExponen, caso.InicioExponen);
    EXPECT_EQ(sesion.FinExponen, sesion.FinDocumento);
    ASSERT_TRUE(sesion.MarcadorCabecera && sesion.MarcadorComparecientes);
    EXPECT_EQ(sesion.MarcadorCabecera->Intervalo, (TIntervalo{0, caso.FinCabecera}));
    EXPECT_EQ(sesion.MarcadorComparecientes->Intervalo,
              (TIntervalo{caso.InicioComparecientes, caso.FinComparecientes}));
}

INSTANTIATE_TEST_SUITE_P(
    Escrituras, Limites,
    testing::Values(
        TCasoLimites{"todas",
                     {"cabecera1", "COMPARECE", "INTERVENI", "EXPONENNN", "final1234"},
                     10,
                     10,
                     20,
                     20,
                     30,
                     30},
        TCasoLimites{"ninguna", {"cabecera1", "cabecera2", "final1234"}, 29, 0, 29, 0, 29, 0},
        TCasoLimites{"sin_comparecientes",
                     {"cabecera1", "INTERVENI", "EXPONENNN", "final1234"},
                     10,
                     0,
                     10,
                     10,
                     20,
                     20},
        TCasoLimites{"sin_intervinientes",
                     {"cabecera1", "COMPARECE", "EXPONENNN", "final1234"},
                     10,
                     10,
                     20,
                     0,
                     20,
                     20},
        TCasoLimites{"solo_expositivos", {"cabecera1", "EXPONENNN", "final1234"}, 10, 0, 10, 0, 10, 10},
        TCasoLimites{"solo_intervinientes", {"cabecera1", "INTERVENI", "final1234"}, 10, 0, 10, 10, 29, 0},
        // The first mention of the appearing parties is the heading, wherever the others stand.
        TCasoLimites{
            "repetida", {"cabecera1", "COMPARECE", "EXPONENNN", "COMPARECE"}, 10, 10, 20, 0, 20, 20}),
    [](const auto& caso) { return std::string(caso.param.Nombre); });

// Bounds out of order leave a section of one paragraph.
TEST(Limites, UnaSeccionQueAcabaAntesDeEmpezarTieneUnParrafo) {
    TEscena escena({"cabecera1", "EXPONENNN", "INTERVENI", "DON LUIS ", "final1234"});
    escena.Vocabulario.Pon(TIdioma::Castellano,
                           {{"INTERVINIENTES", {"INTERVENI"}}, {"EXPONEN", {"EXPONENNN"}}});
    (void)escena.Sesion.Analiza(true);
    escena.Sesion.SeleccionaIntervinientes();
    EXPECT_EQ(escena.Sesion.MarcadorIntervinientes->Intervalo, (TIntervalo{10, 10}));
}

// ---- Headings

struct TCasoTitulo {
    const char* Nombre;
    std::vector<std::string_view> Entradas;
    std::vector<std::string_view> Parrafos;
    bool Encontrado;
    int Inicio;
};

class Titulo : public testing::TestWithParam<TCasoTitulo> {};

TEST_P(Titulo, SeReconoceAlPrincipioDeSuParrafo) {
    const auto& caso = GetParam();
    TEscena escena(caso.Parrafos);
    escena.Vocabulario.Pon(TIdioma::Castellano,
                           {{"COMPARECIENTES", {caso.Entradas.begin(), caso.Entradas.end()}},
                            {"INTERVINIENTES", {caso.Entradas.begin(), caso.Entradas.end()}},
                            {"EXPONEN", {caso.Entradas.begin(), caso.Entradas.end()}}});
    auto& sesion = escena.Sesion;
    EXPECT_EQ(sesion.BuscarTokenComparecientes(), caso.Encontrado);
    EXPECT_EQ(sesion.BuscarTokenIntervinientes(), caso.Encontrado);
    EXPECT_EQ(sesion.BuscarTokenExponen(), caso.Encontrado);
    EXPECT_EQ(sesion.InicioComparecientes, caso.Inicio);
    EXPECT_EQ(sesion.InicioIntervinientes, caso.Inicio);
    EXPECT_EQ(sesion.InicioExponen, caso.Inicio);
}

INSTANTIATE_TEST_SUITE_P(
    Escrituras, Titulo,
    testing::Values(
        TCasoTitulo{"al_principio", {"COMPARECEN"}, {"uno", "COMPARECEN:"}, true, 4},
        TCasoTitulo{"tras_cuatro_signos", {"COMPARECEN"}, {"uno", "=== COMPARECEN"}, true, 8},
        TCasoTitulo{"tras_cinco_signos", {"COMPARECEN"}, {"uno", "==== COMPARECEN"}, false, 0},
        TCasoTitulo{"los_blancos_no_cuentan", {"COMPARECEN"}, {"uno", "      \tCOMPARECEN"}, true, 11},
        TCasoTitulo{"en_medio", {"COMPARECEN"}, {"uno", "los que COMPARECEN"}, false, 0},
        TCasoTitulo{"minusculas", {"COMPARECEN"}, {"uno", "comparecen"}, false, 0},
        TCasoTitulo{"dentro_de_palabra", {"COMPARECE"}, {"uno", "COMPARECEN"}, false, 0},
        // Only the first mention of an entry is looked at, even where a later one would do.
        TCasoTitulo{
            "la_primera_mencion_decide", {"COMPARECEN"}, {"los que COMPARECEN", "COMPARECEN"}, false, 0},
        TCasoTitulo{"gana_el_anterior_en_la_escritura",
                    {"SEGUNDO", "PRIMERO"},
                    {"uno", "PRIMERO", "SEGUNDO"},
                    true,
                    4},
        TCasoTitulo{"entradas_vacias", {"", "COMPARECEN"}, {"uno", "COMPARECEN"}, true, 4},
        // A heading at the very start counts as not set yet.
        TCasoTitulo{"al_comienzo_del_documento", {"PRIMERO"}, {"PRIMERO", "dos"}, true, 0},
        TCasoTitulo{
            "al_comienzo_cede_ante_otro", {"PRIMERO", "SEGUNDO"}, {"PRIMERO", "dos", "SEGUNDO"}, true, 12},
        TCasoTitulo{
            "al_comienzo_buscado_despues", {"SEGUNDO", "PRIMERO"}, {"PRIMERO", "dos", "SEGUNDO"}, true, 0},
        // Found by the word processor, which takes a fixed blank for a blank, and plain in the paragraph's
        // text too.
        TCasoTitulo{"blanco_fijo",
                    {"COMPARECE ANTE"},
                    {"uno",
                     "COMPARECE\xA0"
                     "ANTE MI"},
                    true,
                    4},
        // An optional hyphen is passed over by the search and gone from the plain text.
        TCasoTitulo{"guion_opcional", {"COMPARECEN"}, {"uno", "COMPA\x1FRECEN"}, true, 4}),
    [](const auto& caso) { return std::string(caso.param.Nombre); });

TEST(Titulo, UnaEntradaQueNoEstaEnElTextoLlanoCuentaComoTitulo) {
    // The search takes curly quotes for straight ones and the other way round; the plain text has straight
    // ones only.
    TEscena escena({"uno", "y ademas el \"ACTO\""});
    escena.Vocabulario.Pon(TIdioma::Castellano, {{"EXPONEN",
                                                  {"\x93"
                                                   "ACTO\x94"}}});
    EXPECT_TRUE(escena.Sesion.BuscarTokenExponen());
    EXPECT_EQ(escena.Sesion.InicioExponen, 16);
}

TEST(Titulo, LasBusquedasDistinguenMayusculasYPalabras) {
    TEscena escena({"uno"});
    (void)escena.Sesion.BuscarTokenComparecientes();
    ASSERT_EQ(escena.Documento().Busquedas.size(), 3U);
    for (const auto& [texto, o] : escena.Documento().Busquedas) {
        EXPECT_TRUE(o.DistingueMayusculas && o.PalabrasCompletas && o.Adelante && o.Continua) << texto;
        EXPECT_FALSE(o.Comodines || o.SuenaComo || o.TodasLasFormas || o.Formato) << texto;
    }
}

// ---- Paragraphs

TEST(Parrafo, LaTransmisionEsElDeLaPrimeraEntradaDelVocabulario) {
    TEscena escena({"uno", "aqui VENDEDORES y", "aqui revenden todo"});
    escena.Vocabulario.Pon(TIdioma::Castellano, {{"TRANSMISION", {"", "REGALAN", "VENDEN", "VENDE"}}});
    EXPECT_TRUE(escena.Sesion.SeleccionaTransmision());
    // VENDEN comes first in the file, in any case and inside a word, though VENDE stands earlier in the deed.
    EXPECT_EQ(escena.Sesion.MarcadorTransmision, (TMarcador{"TRANSMISION", {22, 41}}));
}

TEST(Parrafo, LaTransmisionQueEmpiezaSuParrafoEsEseParrafo) {
    TEscena escena({"uno", "VENDEN algo", "tres"});
    EXPECT_TRUE(escena.Sesion.SeleccionaTransmision());
    EXPECT_EQ(escena.Sesion.MarcadorTransmision->Intervalo, (TIntervalo{4, 16}));
}

TEST(Parrafo, SinTransmisionNoQuedaMarcadorEnLaSesion) {
    TEscena escena({"VENDEN algo"});
    EXPECT_TRUE(escena.Sesion.SeleccionaTransmision());
    escena.Vocabulario.Pon(TIdioma::Castellano, {{"TRANSMISION", {"REGALAN"}}});
    EXPECT_FALSE(escena.Sesion.SeleccionaTransmision());
    EXPECT_FALSE(escena.Sesion.MarcadorTransmision);
}

TEST(Parrafo, LaParteDeudoraPideLaPalabraEntera) {
    TEscena escena({"los prestatarios", "el Prestatario debe", "tres"});
    EXPECT_TRUE(escena.Sesion.SeleccionaParteDeudora());
    EXPECT_EQ(escena.Sesion.MarcadorParteDeudora, (TMarcador{"PARTEDEUDORA", {17, 37}}));
    const auto& opciones = escena.Documento().Busquedas.back().second;
    EXPECT_FALSE(opciones.DistingueMayusculas);
    EXPECT_TRUE(opciones.PalabrasCompletas);
}

TEST(Parrafo, SoloElParrafoDeLosDeudoresSeLee) {
    TEscena escena(
        {"COMPARECEN",
         "DON JUAN PEREZ GIL, vecino de MADRID, con domicilio en la calle Mayor, 5, con D.N.I. 12345678Z.",
         "EXPONEN", "La parte prestataria, DON LUIS SANZ RUBIO, con D.N.I. 87654321X, debe.",
         "DON ANA GIL RUIZ, con D.N.I. 11111111H."});
    (void)escena.Sesion.Analiza(true);
    ASSERT_EQ(escena.Sesion.Otorgantes.Lista.Cuenta(), 2U);
    EXPECT_EQ(escena.Sesion.Otorgantes.Lista[1].Texto, "LUIS SANZ RUBIO");
    EXPECT_EQ(escena.Sesion.Otorgantes.Lista[1].Objeto->IntervencionINTI, 4);
}

// ---- Walks

TEST(Recorrido, SoloLosParrafosDePersonasDanComparecientes) {
    TEscena escena({"COMPARECEN", "Con D.N.I. 12345678Z, sin nombre.", "CORDON ROJO, con D.N.I. 12345678Z."});
    (void)escena.Sesion.Analiza(true);
    // The second paragraph holds "DON " inside a word, which is enough to be looked at; nobody is named
    // there, though.
    EXPECT_TRUE(escena.Sesion.OtorgantesEncontrados.Lista.Vacia());
}

TEST(Recorrido, UnaIntervencionYaConocidaNoCambiaEnLaTransmision) {
    TEscena escena(
        {"COMPARECEN",
         "DON JUAN PEREZ GIL, vecino de MADRID, con domicilio en la calle Mayor, 5, con D.N.I. 12345678Z.",
         "INTERVIENEN",
         "a) DON JUAN PEREZ GIL, en representacion de \"BODEGAS RIO, S.L.\", con CIF B12345674.", "EXPONEN",
         "BODEGAS RIO, S.L., por JUAN PEREZ GIL, vende."});
    (void)escena.Sesion.Analiza(true);
    EXPECT_EQ(escena.Sesion.Otorgantes.Lista[0].Objeto->IntervencionINTI, 16);
    EXPECT_EQ(escena.Sesion.Otorgantes.Lista[1].Objeto->IntervencionINTI, 2);
}

TEST(Recorrido, LosParrafosLleganLlanosALosReconocedores) {
    TEscena escena(
        {"N\x1FUMERO\tDOS\xA0MIL\x0B"
         "CINCO\x97"});
    (void)escena.Sesion.Analiza(true);
    EXPECT_EQ(escena.Sesion.Cabecera.NumeroProtocolo, 2005);
}

}  // namespace
}  // namespace analizador

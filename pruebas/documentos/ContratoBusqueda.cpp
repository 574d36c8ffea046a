// The find operation.

#include <optional>
#include <string>
#include <vector>

#include "plataforma/Ansi.h"
#include "pruebas/documentos/ContratoDocumento.h"

namespace analizador {
namespace {

struct TCasoBusqueda {
    std::string_view Texto;
    std::string_view Buscado;
    TOpcionesBusqueda Opciones;
    std::optional<TLugar> Lugar;  // none: not found
};

constexpr auto NO_HALLADO = std::nullopt;

TLugar Hallado(std::string_view antes, std::string_view hallado) {
    return {std::string(antes), std::string(hallado)};
}

TEST(OpcionesBusqueda, VanEnSuOrden) {
    const TOpcionesBusqueda una{true, true, false, false, false, true, true, false};
    EXPECT_TRUE(una.DistingueMayusculas && una.PalabrasCompletas && una.Adelante && una.Continua);
    const TOpcionesBusqueda otra{false, false, true, true, true, false, false, true};
    EXPECT_TRUE(otra.Comodines && otra.SuenaComo && otra.TodasLasFormas && otra.Formato);
}

TEST_P(ContratoDocumento, BuscaDesdeElInicio) {
    const std::vector<TCasoBusqueda> casos = {
        // Capitals and words.
        {"Uno\rCOMPARECEN\r", "COMPARECEN", BUSCA_TITULO, Hallado("Uno\r", "COMPARECEN")},
        {"Uno\rComparecen\r", "COMPARECEN", BUSCA_TITULO, NO_HALLADO},
        {"Uno\rComparecen\r", "COMPARECEN", BUSCA_PALABRA, Hallado("Uno\r", "Comparecen")},
        {"COMPARECENCIA\r", "COMPARECEN", BUSCA_TITULO, NO_HALLADO},
        {"COMPARECENCIA\r", "COMPARECEN", BUSCA_PALABRA, NO_HALLADO},
        {"comparecencia\r", "COMPARECEN", BUSCA_PARRAFO, Hallado("", "comparecen")},
        {"REVENDE y VENDE\r", "VENDE", BUSCA_TITULO, Hallado("REVENDE y ", "VENDE")},
        {"revende y vende\r", "VENDE", BUSCA_PARRAFO, Hallado("re", "vende")},
        {"VENDEN, VENDE2, 3VENDE, VENDE.\r", "VENDE", BUSCA_TITULO,
         Hallado("VENDEN, VENDE2, 3VENDE, ", "VENDE")},
        {"la parte deudora\r", "DEUDORA", BUSCA_PALABRA, Hallado("la parte ", "deudora")},
        {"las partes deudoras\r", "DEUDORA", BUSCA_PALABRA, NO_HALLADO},
        // Letters with accents are letters; edges of other signs touch no word.
        {"AÑO NUEVO\r"_ansi, "O", BUSCA_TITULO, NO_HALLADO},
        {"VENDEá VENDEÑ ªVENDE\r"_ansi, "VENDE", BUSCA_TITULO, NO_HALLADO},
        {"«VENDE»\r"_ansi, "VENDE", BUSCA_TITULO, Hallado("«"_ansi, "VENDE")},
        {"×VENDE÷\r"_ansi, "VENDE", BUSCA_TITULO, Hallado("×"_ansi, "VENDE")},
        {"_VENDE_\r", "VENDE", BUSCA_TITULO, Hallado("_", "VENDE")},
        {"COMPARECEN:Don Juan\r", "COMPARECEN:", BUSCA_TITULO, Hallado("", "COMPARECEN:")},
        {"\tEXPONEN\r", "EXPONEN", BUSCA_TITULO, Hallado("\t", "EXPONEN")},
        {"--EXPONEN--\r", "EXPONEN", BUSCA_TITULO, Hallado("--", "EXPONEN")},
        {"Uno\r\rEXPONEN\r", "EXPONEN", BUSCA_TITULO, Hallado("Uno\r\r", "EXPONEN")},
        {"Uno\r\aEXPONEN\r\a\r\aDos\r", "EXPONEN", BUSCA_TITULO, Hallado("Uno\r\a", "EXPONEN")},
        // Accents count, in capitals too.
        {"ante mí, ante mi\r"_ansi, "ANTE MI", BUSCA_PARRAFO, Hallado("ante mí, "_ansi, "ante mi")},
        {"TRANSMISIÓN\r"_ansi, "TRANSMISION", BUSCA_PARRAFO, NO_HALLADO},
        {"señora, transmisión\r"_ansi, "SEÑORA, TRANSMISIÓN"_ansi, BUSCA_PARRAFO,
         Hallado("", "señora, transmisión"_ansi)},
        {"señora\r"_ansi, "SEÑORA"_ansi, BUSCA_TITULO, NO_HALLADO},
        // Quotes, apostrophes and blanks.
        {"la “CASA” y d’ella\r"_ansi, "\"CASA\" y d'ella", BUSCA_TITULO,
         Hallado("la ", "“CASA” y d’ella"_ansi)},
        {"la \"CASA\" y d'ella\r", "“CASA” y d‘ella"_ansi, BUSCA_TITULO, Hallado("la ", "\"CASA\" y d'ella")},
        {"ANTE\xA0MI\r", "ANTE MI", BUSCA_TITULO, Hallado("", "ANTE\xA0MI")},
        {"ANTE  MI\r", "ANTE MI", BUSCA_TITULO, NO_HALLADO},
        {"ANTE\rMI\r", "ANTE MI", BUSCA_PARRAFO, NO_HALLADO},
        {"ANTE\vMI\r", "ANTE MI", BUSCA_PARRAFO, NO_HALLADO},
        // Optional hyphens.
        {"Uno COMPARE\x1F"
         "CEN\r",
         "COMPARECEN", BUSCA_TITULO,
         Hallado("Uno ",
                 "COMPARE\x1F"
                 "CEN")},
        {"Uno compare\xAD"
         "cen\r",
         "COMPARECEN", BUSCA_PARRAFO,
         Hallado("Uno ",
                 "compare\xAD"
                 "cen")},
        {"COMPARE\x1F"
         "CEN\r",
         "COMPARE", BUSCA_TITULO, NO_HALLADO},
        {"\x1FVENDE\x1F y\r", "VENDE", BUSCA_TITULO, Hallado("\x1F", "VENDE")},
        // Signs that mean something to other kinds of search mean themselves.
        {"uno a 5*(2) ^p\r", "5*(2) ^p", BUSCA_PARRAFO, Hallado("uno a ", "5*(2) ^p")},
        {"un?\rUno\r", "un?", BUSCA_PARRAFO, Hallado("", "un?")},
        {"Uno\r", "un?", BUSCA_PARRAFO, NO_HALLADO},
        // Bounds.
        {"ababac\r", "abac", BUSCA_PARRAFO, Hallado("ab", "abac")},
        {"Uno\rfin\r", "fin", BUSCA_TITULO, Hallado("Uno\r", "fin")},
        {"Uno\r", "Uno mas largo que el texto", BUSCA_PARRAFO, NO_HALLADO},
        {"\r", "a", BUSCA_PARRAFO, NO_HALLADO},
        {"Uno\r", "", BUSCA_PARRAFO, NO_HALLADO},
    };
    for (const auto& [texto, buscado, opciones, lugar] : casos) {
        SCOPED_TRACE(testing::PrintToString(texto) + " / " + testing::PrintToString(buscado));
        const auto documento = Abre(texto);
        documento->IrAlInicioDocumento();
        ASSERT_EQ(documento->Busca(buscado, opciones), lugar.has_value());
        EXPECT_EQ(Lugar(*documento), lugar.value_or(TLugar{}));
    }
}

struct TCasoDesde {
    std::string_view Seleccion;  // selected before
    bool Vacia;                  // only where it begins
    bool Adelante;
    bool Continua;
    std::optional<std::string_view> Antes;  // of the "uno" found
};

TEST_P(ContratoDocumento, BuscaDesdeLaSeleccion) {
    constexpr std::string_view TEXTO = "1 uno, 2 uno, 3 uno.\r";
    const std::vector<TCasoDesde> casos = {
        // Forward, from the start of an empty selection and from the end of any other.
        {"1", true, true, false, "1 "},
        {"1 uno", false, true, false, "1 uno, 2 "},
        {"uno", true, true, false, "1 "},
        {"uno", false, true, false, "1 uno, 2 "},
        {"2 u", false, true, false, "1 uno, 2 uno, 3 "},
        {"no, 3", true, true, false, "1 uno, 2 uno, 3 "},
        {"3 uno", false, true, false, NO_HALLADO},
        {"no.", true, true, false, NO_HALLADO},
        {"3 uno", false, true, true, "1 "},
        {"no.", true, true, true, "1 "},
        // Backward, from the start.
        {"3 uno", false, false, false, "1 uno, 2 "},
        {"3 uno", true, false, false, "1 uno, 2 "},
        {"no, 3", false, false, false, "1 "},
        {", 2", true, false, false, "1 "},
        {"1 uno", false, false, false, NO_HALLADO},
        {"no, 2", true, false, false, NO_HALLADO},
        {"1 uno", false, false, true, "1 uno, 2 uno, 3 "},
    };
    const auto documento = Abre(TEXTO);
    for (const auto& [parte, vacia, adelante, continua, antes] : casos) {
        SCOPED_TRACE(testing::PrintToString(parte) + (vacia ? " vacia" : "") +
                     (adelante ? " adelante" : " atras") + (continua ? " continua" : ""));
        Situa(*documento, parte, vacia);
        const auto antesDeBuscar = Lugar(*documento);
        ASSERT_EQ(documento->Busca("UNO", {false, true, false, false, false, adelante, continua, false}),
                  antes.has_value());
        EXPECT_EQ(Lugar(*documento), antes ? Hallado(*antes, "uno") : antesDeBuscar);
    }
}

TEST_P(ContratoDocumento, ContinuarHallaLoQueCaeSobreElPuntoDePartida) {
    const auto documento = Abre("la parte deudora paga\r");
    SituaAnte(*documento, "dora");
    EXPECT_FALSE(documento->Busca("deudora", BUSCA_EXACTO));
    EXPECT_TRUE(documento->Busca("DEUDORA", BUSCA_PALABRA));
    EXPECT_EQ(Lugar(*documento), Hallado("la parte ", "deudora"));
}

TEST_P(ContratoDocumento, ContinuarVuelveALoSeleccionadoCuandoNoHayMas) {
    const auto documento = Abre("la parte deudora paga\r");
    const auto deudora = Selecciona(*documento, "deudora");
    EXPECT_FALSE(documento->Busca("deudora", BUSCA_EXACTO));
    EXPECT_TRUE(documento->Busca("deudora", BUSCA_PALABRA));
    EXPECT_EQ(documento->GetSeleccion().GetIntervalo(), deudora);
}

// The language of a deed: one formula, and from there the other wherever it is.
TEST_P(ContratoDocumento, BuscaUnaFormulaDesdeLaOtra) {
    const std::vector<std::pair<std::string_view, bool>> casos = {
        {"Davant meu, notari.\rAnte mi, notario.\r", true},
        {"Ante mi, notario.\rDavant meu, notari.\r", true},
        {"Uno\rDavant meu, notari.\rDos\r", false},
    };
    for (const auto& [texto, hay] : casos) {
        const auto documento = Abre(texto);
        documento->IrAlFinalDocumento();
        ASSERT_TRUE(documento->Busca("DAVANT MEU", BUSCA_PARRAFO));
        EXPECT_EQ(documento->Busca("ANTE MI", BUSCA_PARRAFO), hay);
        EXPECT_EQ(Lugar(*documento).Seleccionado, hay ? "Ante mi" : "Davant meu");
    }
}

TEST_P(ContratoDocumento, CadaBusquedaPoneTodasSusOpciones) {
    const auto documento = Abre("vende y VENDE\r");
    documento->IrAlInicioDocumento();
    ASSERT_TRUE(documento->Busca("VENDE", BUSCA_TITULO));
    EXPECT_EQ(Lugar(*documento), Hallado("vende y ", "VENDE"));
    documento->IrAlInicioDocumento();
    ASSERT_TRUE(documento->Busca("VEND", BUSCA_PARRAFO));
    EXPECT_EQ(Lugar(*documento), Hallado("", "vend"));
}

TEST_P(ContratoDocumento, RechazaLoQueNoEsUnTextoLiteral) {
    const auto documento = Abre("Uno\r");
    for (const TOpcionesBusqueda& opciones :
         std::vector<TOpcionesBusqueda>{{false, false, true, false, false, true, true, false},
                                        {false, false, false, true, false, true, true, false},
                                        {false, false, false, false, true, true, true, false},
                                        {false, false, false, false, false, true, true, true}}) {
        EXPECT_THROW(documento->Busca("Uno", opciones), ErrorWord);
    }
    EXPECT_TRUE(documento->Busca("Uno", BUSCA_PARRAFO));
}

TEST_P(ContratoDocumento, BuscaTextosDeHasta255Caracteres) {
    const auto documento = Abre(std::string(300, 'x') + "\r");
    documento->IrAlInicioDocumento();
    EXPECT_TRUE(documento->Busca(std::string(255, 'x'), BUSCA_PARRAFO));
    EXPECT_EQ(Lugar(*documento).Seleccionado.size(), 255U);
    EXPECT_THROW(documento->Busca(std::string(256, 'x'), BUSCA_PARRAFO), ErrorWord);
}

}  // namespace
}  // namespace analizador

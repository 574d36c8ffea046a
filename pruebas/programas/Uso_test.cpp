// How the program is called: its options, its help, and what it says of a wrong call.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "pruebas/programas/ProgramaDePrueba.h"

namespace analizador {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;
using testing::StartsWith;

// A wrong call: nothing printed, one line that says why, exit code 2.
void EsperaMalUso(const TEjecucion& ejecucion, const std::string& causa) {
    EXPECT_EQ(ejecucion.Codigo, 2);
    EXPECT_EQ(ejecucion.Salida, "");
    ASSERT_EQ(Lineas(ejecucion.Errores).size(), 1U) << ejecucion.Errores;
    EXPECT_THAT(ejecucion.Errores, StartsWith("analiza: "));
    EXPECT_THAT(ejecucion.Errores, HasSubstr(causa));
    EXPECT_THAT(ejecucion.Errores, EndsWith("\n"));
}

TEST(UsoAnaliza, UnaLlamadaEquivocadaSeExplicaEnUnaLinea) {
    struct TCaso {
        std::vector<std::string> Argumentos;
        std::string Causa;
    };
    const std::vector<TCaso> casos = {
        {{}, "falta el fichero que se quiere analizar"},
        {{"--json"}, "falta el fichero que se quiere analizar"},
        {{"--jsom", "a.docx"}, "no se conoce la opción --jsom"},
        {{"-x", "a.docx"}, "no se conoce la opción -x"},
        {{"a.docx", "--config"}, "a --config le falta su valor"},
        {{"a.docx", "--tablas"}, "a --tablas le falta su valor"},
        {{"a.docx", "--salida"}, "a --salida le falta su valor"},
        {{"--guarda", "--salida", "b.docx", "a.docx"}, "--guarda y --salida no van juntas"},
        {{"--salida", "b.docx", "--guarda", "a.docx"}, "--guarda y --salida no van juntas"},
        {{"--salida", "c.docx", "a.docx", "b.docx"}, "con --salida se analiza un solo fichero"},
        {{"--salida", "c.docx", "-"}, "con --salida se analiza un solo fichero"},
        {{"--salida", "c.docx", CARPETA_EJEMPLOS}, "con --salida se analiza un solo fichero"},
        {{"--resultados", "r", "a.docx"}, "--resultados solo va con --json"},
        {{"--json", "--continua", "a.docx"}, "--continua solo va con --resultados"},
        {{"--json", "-0", "a.docx"}, "-0 solo va con -"},
        {{"--json", "--revisa", "--resultados", "r", "a.docx"}, "--revisa y --resultados no van juntas"},
        {{"--revisa", "--hilos", "2", "a.docx"}, "--revisa va de una en una: sobra --hilos"},
        {{"--guarda", "--hilos", "2", "a.docx"}, "--guarda va de una en una: sobra --hilos"},
        {{"--hilos", "0", "a.docx"}, "una opción tiene un valor que no se entiende"},
        {{"--hilos", "muchos", "a.docx"}, "una opción tiene un valor que no se entiende"},
        {{"a.docx", "--hilos"}, "a --hilos le falta su valor"},
        {{"a.docx", "--resultados"}, "a --resultados le falta su valor"},
        {{"--json=quizá", "a.docx"}, "una opción tiene un valor que no se entiende"},
        {{"--des\nconocida\u2028", "a.docx"}, "no se conoce la opción --des?conocida?"},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(testing::PrintToString(caso.Argumentos));
        EsperaMalUso(Analiza(caso.Argumentos), caso.Causa);
    }
}

TEST(UsoAnaliza, LaAyudaEstaTodaEnCastellano) {
    const auto ayuda = Analiza({"--ayuda"});
    EXPECT_EQ(ayuda.Codigo, 0);
    EXPECT_EQ(ayuda.Errores, "");
    for (const char* opcion :
         {"--ayuda", "--version", "--json", "--config", "--tablas", "--guarda", "--salida", "--forzar",
          "--revisa", "FICHERO", "Uso: analiza", "(obligatorio)"})
        EXPECT_THAT(ayuda.Salida, HasSubstr(opcion));
    for (const char* ingles :
         {"Usage", "OPTION", "Options", "REQUIRED", "Positionals", "TEXT", "Excludes", "help message"})
        EXPECT_THAT(ayuda.Salida, Not(HasSubstr(ingles)));
    for (const char* igual : {"--help", "-h"}) EXPECT_EQ(Analiza({igual}).Salida, ayuda.Salida) << igual;
}

TEST(UsoAnaliza, DiceSuVersion) {
    const auto version = Analiza({"--version"});
    EXPECT_EQ(version.Codigo, 0);
    EXPECT_EQ(version.Errores, "");
    EXPECT_THAT(version.Salida, MatchesRegex("analiza [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST(UsoAnaliza, DeUnaOpcionRepetidaCuentaLaUltima) {
    const TCarpetaTemporal carpeta;
    EsperaMalUso(Analiza({"--tablas", carpeta.Ruta(), "--tablas", "/no/existe", Ejemplo("compraventa")}),
                 "/no/existe");
}

TEST(UsoAnaliza, LasCarpetasPedidasDebenExistir) {
    const TCarpetaTemporal carpeta;
    const std::string falta = carpeta.Ruta() / "no hay";
    const std::string fichero = carpeta.Fichero("fichero", "");
    const std::string larga(5000, 'x');
    for (const char* opcion : {"--config", "--tablas"}) {
        SCOPED_TRACE(opcion);
        EsperaMalUso(Analiza({opcion, falta, Ejemplo("compraventa")}), falta + ": no existe esa carpeta");
        EsperaMalUso(Analiza({opcion, fichero, Ejemplo("compraventa")}), fichero + ": no es una carpeta");
        EsperaMalUso(Analiza({opcion, larga, Ejemplo("compraventa")}), ": no existe esa carpeta");
    }
}

TEST(UsoAnaliza, SinVocabulariosNoSeAnalizaNada) {
    const TCarpetaTemporal carpeta;
    EsperaMalUso(Analiza({"--config", carpeta.Ruta(), Ejemplo("compraventa")}),
                 (carpeta.Ruta() / "CASTELLANO.INI").string() + ": falta ese vocabulario");
}

TEST(UsoAnaliza, UnaConfiguracionImposibleNombraSuFichero) {
    const TCarpetaTemporal carpeta;
    for (const char* vocabulario : {"CASTELLANO.INI", "CATALAN.INI"})
        std::filesystem::copy_file(std::filesystem::path(CARPETA_VOCABULARIO) / vocabulario,
                                   carpeta.Ruta() / vocabulario);
    const auto oficina = carpeta.Fichero("OFICINA.INI", "[NOTARIOS]\nNumPalabras=2\n1=UNO SOLO\n");
    EsperaMalUso(Analiza({"--config", carpeta.Ruta(), Ejemplo("compraventa")}), oficina.string());
}

TEST(UsoAnaliza, UnaTablaQueFaltaSeNombraConSuCarpeta) {
    const TCarpetaTemporal carpeta;
    for (const auto& tabla : std::filesystem::directory_iterator(CARPETA_TABLAS))
        if (tabla.path().filename() != "AYUNTAM.DBF")
            std::filesystem::copy_file(tabla, carpeta.Ruta() / tabla.path().filename());
    const auto ejecucion = Analiza({"--tablas", carpeta.Ruta(), Ejemplo("compraventa")});
    EXPECT_EQ(ejecucion.Codigo, 1);
    EXPECT_EQ(ejecucion.Salida, "");
    EXPECT_EQ(Lineas(ejecucion.Errores).size(), 1U);
    for (const std::string& nombre :
         {Ejemplo("compraventa").string(), std::string("AYUNTAM.DBF"), carpeta.Ruta().string()})
        EXPECT_THAT(ejecucion.Errores, HasSubstr(nombre));
}

TEST(UsoAnaliza, LaSalidaQueNoCabeEsUnFallo) {
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "there is no /dev/full";
    // Many reports too: the first failure then comes long before the end.
    for (const std::size_t veces : {std::size_t{1}, std::size_t{20}}) {
        const auto ejecucion =
            Analiza(std::vector<std::string>(veces, Ejemplo("compraventa").string()), "/dev/full");
        EXPECT_EQ(ejecucion.Codigo, 1);
        EXPECT_EQ(ejecucion.Errores, "analiza: no se puede escribir la salida\n");
    }
}

}  // namespace
}  // namespace analizador

// analiza vocabulario, run as the person who keeps the vocabularies does.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "pruebas/programas/ProgramaDePrueba.h"

namespace analizador {
namespace {

using testing::ContainsRegex;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

// A copy of the shipped configuration, for spoiling.
class OrdenVocabulario : public testing::Test {
  protected:
    OrdenVocabulario() {
        for (const char* nombre : {"CASTELLANO.INI", "CATALAN.INI", "palabras_corrientes.txt"})
            std::filesystem::copy_file(std::filesystem::path(CARPETA_VOCABULARIO) / nombre,
                                       FCarpeta.Ruta() / nombre);
    }

    // Replaces the first `antes` of the Castilian file.
    void Cambia(const std::string& antes, const std::string& despues) const {
        std::string texto = Bytes(FCarpeta.Ruta() / "CASTELLANO.INI");
        const std::size_t donde = texto.find(antes);
        ASSERT_NE(donde, std::string::npos) << antes;
        texto.replace(donde, antes.size(), despues);
        (void)FCarpeta.Fichero("CASTELLANO.INI", texto);
    }

    [[nodiscard]] TEjecucion Revisa() const { return Analiza({"vocabulario", "--config", FCarpeta.Ruta()}); }

    TCarpetaTemporal FCarpeta;
};

TEST_F(OrdenVocabulario, LosQueSeEntreganNoTienenReparos) {
    const auto revision = Analiza({"vocabulario"});
    EXPECT_EQ(revision.Codigo, 0);
    EXPECT_EQ(revision.Errores, "");
    EXPECT_EQ(revision.Salida, "0 errores, 0 avisos\n");
}

TEST_F(OrdenVocabulario, SinSuMarcaUnRiesgoConocidoEsUnAviso) {
    Cambia("; conocido: MAYOR\r\n", "");
    const auto revision = Revisa();
    EXPECT_EQ(revision.Codigo, 0);
    EXPECT_THAT(revision.Salida, HasSubstr("[MESES] «MAYO» está dentro de una palabra corriente: MAYOR\n"));
    EXPECT_EQ(Lineas(revision.Salida).back(), "0 errores, 1 aviso");
}

TEST_F(OrdenVocabulario, UnErrorSeDiceConSuLineaYDevuelveUno) {
    Cambia("1=PASAPORTE", "1=Pasaporte");
    const auto revision = Revisa();
    EXPECT_EQ(revision.Codigo, 1);
    EXPECT_EQ(revision.Errores, "");
    EXPECT_THAT(revision.Salida,
                ContainsRegex("CASTELLANO.INI:[0-9]+: error: .PASAPORTE. «Pasaporte» lleva minúsculas"));
    EXPECT_THAT(Lineas(revision.Salida).back(), testing::StartsWith("1 error, "));
}

TEST_F(OrdenVocabulario, UnAvisoNoEsUnError) {
    const auto antes = Lineas(Revisa().Salida).size();
    Cambia("[PASAPORTE]\r\nNumPalabras=1\r\n1=PASAPORTE", "[PASAPORTE]\r\nNumPalabras=1\r\n1=ARRENDA");
    const auto revision = Revisa();
    EXPECT_EQ(revision.Codigo, 0);
    EXPECT_EQ(Lineas(revision.Salida).size(), antes + 1);
    EXPECT_THAT(revision.Salida,
                HasSubstr(": aviso: [PASAPORTE] «ARRENDA» está dentro de una palabra corriente: "
                          "ARRENDADO\n"));
}

TEST_F(OrdenVocabulario, SinListaDeCorrientesValeLaDelPrograma) {
    Cambia("[PASAPORTE]\r\nNumPalabras=1\r\n1=PASAPORTE", "[PASAPORTE]\r\nNumPalabras=1\r\n1=ARRENDA");
    std::filesystem::remove(FCarpeta.Ruta() / "palabras_corrientes.txt");
    EXPECT_THAT(Revisa().Salida, HasSubstr("«ARRENDA» está dentro de una palabra corriente"));
}

TEST_F(OrdenVocabulario, SinUnoDeLosDosNoSeRevisaNada) {
    std::filesystem::remove(FCarpeta.Ruta() / "CATALAN.INI");
    const auto revision = Revisa();
    EXPECT_EQ(revision.Codigo, 2);
    EXPECT_EQ(revision.Salida, "");
    EXPECT_THAT(revision.Errores, HasSubstr("CATALAN.INI: falta ese vocabulario"));
}

TEST_F(OrdenVocabulario, UnaLlamadaEquivocadaSeExplica) {
    const std::vector<std::pair<std::vector<std::string>, std::string>> casos = {
        {{"vocabulario", "--catalan"}, "--catalan solo va con --explica"},
        {{"vocabulario", "--tablas", "x"}, "--tablas solo va con --explica"},
        {{"vocabulario", "--explica"}, "a --explica le falta su valor"},
        {{"vocabulario", "--json"}, "no se conoce la opción --json"},
        {{"vocabulario", "a.docx"}, "sobra a.docx"},
    };
    for (const auto& [argumentos, causa] : casos) {
        const auto ejecucion = Analiza(argumentos);
        EXPECT_EQ(ejecucion.Codigo, 2) << causa;
        EXPECT_EQ(ejecucion.Salida, "") << causa;
        EXPECT_THAT(ejecucion.Errores, HasSubstr(causa));
    }
}

// The line of the text that begins with these words, blanks apart.
std::string Linea(const TEjecucion& ejecucion, const std::string& principio) {
    for (const auto& linea : Lineas(ejecucion.Salida))
        if (linea.starts_with("  " + principio + " ")) return linea;
    return {};
}

constexpr auto PARRAFO =
    "DON JUAN GARCÍA LÓPEZ, soltero, vecino de 28001-MADRID, con domicilio en la calle Mayor, número 5; con "
    "D.N.I. número 12.345.678-Z.";

TEST_F(OrdenVocabulario, ExplicaUnParrafo) {
    const auto explicacion = Analiza({"vocabulario", "--explica", PARRAFO});
    EXPECT_EQ(explicacion.Codigo, 0) << explicacion.Errores;
    EXPECT_THAT(Lineas(explicacion.Salida).front(), EndsWith("con CASTELLANO.INI"));
    EXPECT_THAT(Linea(explicacion, "HOMBRE"), ContainsRegex("«DON» +[0-9]+ +1-3 +\\[DON\\] JUAN"));
    EXPECT_THAT(Linea(explicacion, "SOLTERO"), HasSubstr("[solter]o, vecino"));
    EXPECT_THAT(Linea(explicacion, "BuscaPersonas"),
                ContainsRegex("hombre +GARCIA LOPEZ, JUAN +5-21 +«JUAN GARCÍA LÓPEZ»"));
    EXPECT_THAT(explicacion.Salida, ContainsRegex("BuscaDocumentos +NIF +12345678Z .*«12.345.678-Z»"));
    EXPECT_THAT(explicacion.Salida, ContainsRegex("BuscaVecindad +código postal +28001 .*«28001»"));
    EXPECT_THAT(explicacion.Salida, ContainsRegex("BuscaDomicilio +vía +MAYOR .*«Mayor»"));
    EXPECT_THAT(Linea(explicacion, "BuscaTipoInteres"), EndsWith("·"));
}

TEST_F(OrdenVocabulario, LaLineaDeLaEntradaEsLaDelFichero) {
    const auto explicacion = Analiza({"vocabulario", "--explica", "con pasaporte AB123456"});
    const auto fichero = Lineas(Bytes(std::filesystem::path(CARPETA_VOCABULARIO) / "CASTELLANO.INI"));
    const auto donde = std::ranges::find(fichero, "1=PASAPORTE\r") - fichero.begin() + 1;
    EXPECT_THAT(Linea(explicacion, "PASAPORTE"),
                ContainsRegex("«PASAPORTE» +" + std::to_string(donde) + " "));
}

TEST_F(OrdenVocabulario, ElParrafoPuedeVenirPorLaEntrada) {
    const auto dicho = Analiza({"vocabulario", "--explica", PARRAFO});
    const auto leido = Analiza({"vocabulario", "--explica", "-"}, {},
                               FCarpeta.Fichero("parrafo", PARRAFO + std::string("\n")));
    EXPECT_EQ(leido.Codigo, 0);
    EXPECT_EQ(leido.Salida, dicho.Salida);
}

TEST_F(OrdenVocabulario, ExplicaConElVocabularioCatalan) {
    const std::vector<std::string> argumentos = {"vocabulario", "--explica", "veí de Reus, solter",
                                                 "--catalan"};
    const auto explicacion = Analiza(argumentos);
    EXPECT_THAT(Lineas(explicacion.Salida).front(), EndsWith("con CATALAN.INI"));
    EXPECT_THAT(Linea(explicacion, "VECINDAD"), HasSubstr("«VEI DE»"));
    EXPECT_THAT(Linea(explicacion, "BuscaVecindad"), ContainsRegex("municipio +REUS"));
}

// The longer form of address goes before the one that it begins with.
TEST_F(OrdenVocabulario, ElTratamientoLargoNoSeQuedaEnElNombre) {
    for (const std::string tratamiento :
         {"SENYOR DON", "SR. DON", "SR. D.", "I EL SENYOR DON", "I EL SR. D."}) {
        const auto explicacion =
            Analiza({"vocabulario", "--explica",
                     tratamiento + " JOAN GIL ROS i la SRA. DOÑA ANNA PI, solters", "--catalan"});
        EXPECT_THAT(Linea(explicacion, "HOMBRE"), HasSubstr("«" + tratamiento + "»")) << explicacion.Errores;
        EXPECT_THAT(Linea(explicacion, "BuscaPersonas"), ContainsRegex("hombre +GIL ROS, JOAN "));
        EXPECT_THAT(explicacion.Salida, ContainsRegex("mujer +PI, ANNA "));
        EXPECT_THAT(explicacion.Salida, Not(ContainsRegex("mujer +, "))) << "nobody without a name";
    }
}

// A deed may be called like an order.
TEST_F(OrdenVocabulario, UnaEscrituraQueSeLlameAsiSeAnaliza) {
    const auto esperado = Analiza({Ejemplo("testamento")});
    for (const char* nombre : {"vocabulario", "medida"}) {
        const auto copia = FCarpeta.Copia("testamento", nombre);
        EXPECT_EQ(Analiza({copia}).Salida, esperado.Salida);
        EXPECT_EQ(Analiza({"--config", CARPETA_VOCABULARIO, copia.string()}).Codigo, 0);
        // Only the first word is an order.
        EXPECT_THAT(Analiza({copia.string(), nombre}).Errores, HasSubstr(std::string(nombre) + ":"));
    }
}

TEST_F(OrdenVocabulario, LaAyudaLaNombraYTieneLaSuya) {
    EXPECT_THAT(Analiza({"--ayuda"}).Salida, HasSubstr("analiza vocabulario"));
    const auto ayuda = Analiza({"vocabulario", "--ayuda"});
    EXPECT_EQ(ayuda.Codigo, 0);
    for (const char* texto : {"Uso: analiza vocabulario", "--explica", "--catalan", "--config", "--tablas"})
        EXPECT_THAT(ayuda.Salida, HasSubstr(texto));
    for (const char* ingles : {"Usage", "OPTION", "TEXT ", "Options"})
        EXPECT_THAT(ayuda.Salida, Not(HasSubstr(ingles)));
}

}  // namespace
}  // namespace analizador

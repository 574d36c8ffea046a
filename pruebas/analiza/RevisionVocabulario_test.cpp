#include "programas/analiza/RevisionVocabulario.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "plataforma/Ansi.h"

namespace analizador {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Lineas(const TVocabulario& vocabulario, const std::vector<TReparo>& reparos) {
    std::vector<std::string> lineas;
    for (const auto& reparo : reparos) lineas.push_back(LineaDeReparo(vocabulario, reparo));
    return lineas;
}

TVocabulario De(std::string_view utf8) {
    return VocabularioDe("V.INI", AnsiDeUtf8(utf8));
}

// A file with one section of these entries.
TVocabulario Con(const std::string& seccion, const std::vector<std::string>& entradas) {
    std::string texto = "[" + seccion + "]\nNumPalabras=" + std::to_string(entradas.size()) + "\n";
    for (std::size_t i = 0; i < entradas.size(); ++i)
        texto += std::to_string(i + 1) + "=\"" + entradas[i] + "\"\n";
    return De(texto);
}

// What is said of the section itself; the ones that the file lacks are left out.
std::vector<std::string> DeSecciones(std::string_view utf8) {
    const auto vocabulario = De(utf8);
    auto lineas = Lineas(vocabulario, RevisaSecciones(vocabulario));
    std::erase_if(lineas,
                  [](const auto& linea) { return linea.find("falta la sección") != std::string::npos; });
    return lineas;
}

TEST(LineaDeReparo, EsUnaSolaLineaDigaLoQueDigaElFichero) {
    const auto vocabulario = VocabularioDe("V\n.INI", "");
    EXPECT_EQ(LineaDeReparo(vocabulario, {true, 3, "[N\rIF] \u0085 mal"}), "V?.INI:3: error: [N?IF] ? mal");
}

TEST(RevisaSecciones, CuentasHuecosYRepetidas) {
    struct TCaso {
        const char* Texto;
        std::vector<std::string> Reparos;
    };
    const std::vector<TCaso> casos = {
        {"[NIF]\nNumPalabras=2\n1=A\n2=B\n", {}},
        {"[NIF]\n1=A\n", {"V.INI:1: error: [NIF] falta NumPalabras: no se lee ninguna entrada"}},
        {"[NIF]\nNumPalabras=dos\n1=A\n",
         {"V.INI:2: error: [NIF] NumPalabras no es una cifra: no se lee ninguna entrada"}},
        {"[NIF]\nNumPalabras=1\n1=A\n2=B\n",
         {"V.INI:2: error: [NIF] NumPalabras dice 1 y hay hasta la clave 2: las que pasan de 1 no se leen"}},
        {"[NIF]\nNumPalabras=3\n1=A\n2=B\n",
         {"V.INI:2: error: [NIF] NumPalabras dice 3 y solo hay hasta la clave 2"}},
        {"[NIF]\nNumPalabras=3\n1=A\n3=B\n", {"V.INI:4: error: [NIF] falta la clave 2"}},
        {"[NIF]\nNumPalabras=5\n1=A\n5=B\n", {"V.INI:4: error: [NIF] faltan las claves 2 a 4"}},
        {"[NIF]\nNumPalabras=1\n1=A\n1=B\n",
         {"V.INI:4: error: [NIF] la clave 1 está repetida y no se lee: vale la de la línea 3"}},
        {"[NIF]\nNumPalabras=1\n01=B\n1=A\n",
         {"V.INI:3: error: [NIF] la clave 01 no se lee: se cuenta desde 1, sin ceros delante"}},
        {"[NIF]\nNumPalabras=1\n1=A\nuno=B\n",
         {"V.INI:4: aviso: [NIF] la clave uno no se conoce y no se lee"}},
        {"[NIF]\nNumPalabras=1\n1=\n", {"V.INI:3: aviso: [NIF] la entrada 1 está vacía"}},
        {"[NIF]\nNumPalabras=0\n", {"V.INI:1: aviso: [NIF] no tiene ninguna entrada"}},
        {"[NIF]\nNumPalabras=1\n1=A\n[nif]\nNumPalabras=1\n1=B\n",
         {"V.INI:4: error: [nif] la sección está repetida y no se lee: vale la de la línea 1"}},
        {"[NIFES]\n1=B\n", {"V.INI:1: aviso: [NIFES] la sección no se conoce y no se lee"}},
    };
    for (const auto& caso : casos) EXPECT_EQ(DeSecciones(caso.Texto), caso.Reparos) << caso.Texto;
}

TEST(RevisaSecciones, LaQueFaltaEsUnError) {
    std::string todas;
    for (const auto& seccion : SeccionesVocabulario())
        if (seccion.Nombre != "PASAPORTE")
            todas += "[" + std::string(seccion.Nombre) + "]\nNumPalabras=1\n1=A\n";
    const auto vocabulario = De(todas);
    EXPECT_THAT(Lineas(vocabulario, RevisaSecciones(vocabulario)),
                ElementsAre("V.INI: error: falta la sección [PASAPORTE]"));
}

TEST(RevisaEntradas, LasQueNoSeEncuentran) {
    struct TCaso {
        const char* Seccion;
        std::vector<std::string> Entradas;
        std::vector<std::string> Reparos;
    };
    const std::vector<TCaso> casos = {
        {"MUJER", {"DOÑA", "VEÏNA", "Dª"}, {}},
        {"CALLE",
         {"calle"},
         {"V.INI:3: error: [CALLE] «calle» lleva minúsculas y no se encuentra: se escribe «CALLE»"}},
        {"PLAZA",
         {"PLAZÀ"},
         {"V.INI:3: error: [PLAZA] «PLAZÀ» lleva acentos y no se encuentra: se escribe «PLAZA»"}},
        {"EXPONEN",
         {"EXPOSICIÓN"},
         {"V.INI:3: aviso: [EXPONEN] «EXPOSICIÓN» solo halla el título escrito exactamente así"}},
        {"NIF", {"A", "B", "A"}, {"V.INI:5: aviso: [NIF] «A» está repetida (línea 3)"}},
        {"VECINDAD",
         {"VECINO DE "},
         {"V.INI:3: aviso: [VECINDAD] «VECINO DE » acaba en blanco o apóstrofo: tras la entrada se salta un "
          "carácter y se perdería la primera letra"}},
        {"DOMICILIO", {"DOMICILIO EN LA "}, {}},
        {"NUMEROS", {"VINTIDOS", "VINT-I-DOS"}, {}},
        {"NUMEROS",
         {"VINT-I-DOS"},
         {"V.INI:3: error: [NUMEROS] «VINT-I-DOS» no se encuentra: los signos se quitan antes; falta "
          "«VINTIDOS»"}},
        {"NUMEROS",
         {"CIEN MIL"},
         {"V.INI:3: error: [NUMEROS] «CIEN MIL» no se encuentra: se compara con una sola palabra"}},
        {"MESES",
         {"ENERO", "FEBRERO"},
         {"V.INI:4: error: [MESES] los meses son trece: los doce por su orden y otra forma de septiembre"}},
    };
    for (const auto& caso : casos) {
        const auto vocabulario = Con(caso.Seccion, caso.Entradas);
        EXPECT_EQ(Lineas(vocabulario, RevisaEntradas(vocabulario)), caso.Reparos) << caso.Seccion;
    }
}

// Hidden or not, by how the section is searched.
TEST(RevisaTapadas, SegunComoSeBuscaLaSeccion) {
    struct TCaso {
        const char* Seccion;
        std::vector<std::string> Entradas;
        int Linea;  // of the one that never wins; 0: all can
    };
    const std::vector<TCaso> casos = {
        // the first of the list: whatever contains an earlier one
        {"VECINDAD", {"VECINO DE", "ES VECINO DE"}, 4},
        {"VECINDAD", {"ES VECINO DE", "VECINO DE"}, 0},
        {"TRANSMISION", {" VENDE ", "QUE VENDE A"}, 4},
        {"MESES", {"MAYO", "MAYORAL"}, 4},
        // the leftmost: only what begins with an earlier one
        {"NUMERO", {"NUMERO", "NUMERO DE ORDEN"}, 4},
        {"NUMERO", {"NUMERO DE ORDEN", "NUMERO"}, 0},
        {"NUMERO", {"NUMERO", "CON EL NUMERO"}, 0},
        {"EURO", {"EURO", "EUROS"}, 4},
        // whole words of the document
        {"PARTE DEUDORA", {"DEUDOR", "DEUDORES"}, 0},
        {"PARTE DEUDORA", {"DEUDOR", "EL DEUDOR"}, 4},
        // forms of address have a blank behind them
        {"HOMBRE", {"D", "DON"}, 0},
        {"HOMBRE", {"DON", "DON FRAY"}, 4},
        {"HOMBRE", {"DON", "SR. DON"}, 0},
        // each one at its last occurrence; headings each at its own place; whole words
        {"NIF", {"NIF", "NIF NUMERO"}, 0},
        {"EXPONEN", {"EXPONE", "EXPONEN"}, 0},
        {"NUMEROS", {"CIEN", "CIENTO"}, 0},
        // one is enough
        {"EXTRANJEROS", {"RESIDENTE EN FRANCIA", "NO RESIDENTE EN FRANCIA"}, 4},
    };
    for (const auto& caso : casos) {
        const auto vocabulario = Con(caso.Seccion, caso.Entradas);
        const auto reparos = RevisaTapadas(vocabulario);
        ASSERT_EQ(reparos.size(), caso.Linea == 0 ? 0U : 1U) << caso.Seccion << " " << caso.Entradas.back();
        if (caso.Linea != 0) {
            EXPECT_EQ(reparos.front().Linea, caso.Linea) << caso.Seccion;
            EXPECT_FALSE(reparos.front().Error);
        }
    }
}

TEST(RevisaTapadas, DiceCualLaTapa) {
    const auto vocabulario = Con("NUMERO", {"NUMERO", "NUMERO DE ORDEN"});
    EXPECT_THAT(Lineas(vocabulario, RevisaTapadas(vocabulario)),
                ElementsAre("V.INI:4: aviso: [NUMERO] «NUMERO DE ORDEN» no gana nunca: antes se encuentra "
                            "«NUMERO» (línea 3)"));
}

// Sections that are searched together hide each other's entries, in the order of the sections.
TEST(RevisaTapadas, TambienEntreLasSeccionesDeUnGrupo) {
    const auto civil = De("[VIUDO]\nNumPalabras=1\n1=VIUD\n[CASADO]\nNumPalabras=1\n1=CASADO, VIUDO\n");
    EXPECT_THAT(Lineas(civil, RevisaTapadas(civil)),
                ElementsAre("V.INI:6: aviso: [CASADO] «CASADO, VIUDO» no gana nunca: antes se encuentra "
                            "«VIUD» ([VIUDO], línea 3)"));
    const auto alReves = De("[VIUDO]\nNumPalabras=1\n1=VIUDO, CASADO\n[CASADO]\nNumPalabras=1\n1=CASADO\n");
    EXPECT_THAT(RevisaTapadas(alReves), IsEmpty());
    const auto vias = De("[CALLE]\nNumPalabras=1\n1=C.\n[COLONIA]\nNumPalabras=1\n1=C. DE\n");
    EXPECT_EQ(RevisaTapadas(vias).size(), 1U);
}

TEST(RevisaTapadas, DondeCuentanTodasLaContenidaVaAntes) {
    const auto mal = Con("PORCENTAJE", {"POR CIENTO", "POR CIEN"});
    EXPECT_THAT(
        Lineas(mal, RevisaTapadas(mal)),
        ElementsAre("V.INI:4: aviso: [PORCENTAJE] «POR CIEN» va antes que «POR CIENTO» (línea 3), que "
                    "la contiene: si no, se saltan menciones"));
}

TEST(RevisaCorrientes, SoloDondeSeBuscaDentroDeLasPalabras) {
    const std::vector<std::string> corrientes = {"MANIFIESTA", "CORDON"};
    const auto nif = Con("NIF", {"D.N.I", "NIF"});
    EXPECT_THAT(Lineas(nif, RevisaCorrientes(nif, corrientes)),
                ElementsAre("V.INI:4: aviso: [NIF] «NIF» está dentro de una palabra corriente: MANIFIESTA"));
    const auto hombre = Con("HOMBRE", {"DON"});
    EXPECT_THAT(RevisaCorrientes(hombre, corrientes), IsEmpty());
    const auto conBlanco = Con("NIF", {" NIF"});
    EXPECT_THAT(RevisaCorrientes(conBlanco, corrientes), IsEmpty());
}

// A known risk is one word of one entry: any other is told all the same, and a mark without use too.
TEST(RevisaCorrientes, LaMarcaConocidoCallaSoloLoQueDice) {
    struct TCaso {
        std::string Encima;  // what stands above the entry MAYO
        std::vector<std::string> Reparos;
    };
    const std::string dentro = "V.INI:4: aviso: [MESES] «MAYO» está dentro de una palabra corriente: ";
    const std::string sobra = "V.INI:4: aviso: la marca «conocido» de encima sobra: ";
    const std::vector<TCaso> casos = {
        {"; conocido: MAYOR MAYORÍA", {}},
        {";Conocido:  mayoría   Mayor ", {}},
        {"; conocido: MAYOR", {dentro + "MAYORIA"}},
        {"; conocido: MAYORIA", {dentro + "MAYOR"}},
        {"; conocido:", {dentro + "MAYOR"}},
        {"; conocidos: MAYOR", {dentro + "MAYOR"}},
        {"; MAYO está en MAYOR", {dentro + "MAYOR"}},
        {"; conocido: MAYOR MAYORIA ENERO",
         {sobra + "«ENERO» no es una palabra corriente que contenga «MAYO»"}},
    };
    for (const auto& caso : casos) {
        const auto vocabulario = De("[MESES]\nNumPalabras=2\n" + caso.Encima + "\n1=MAYO\n2=JUNIO\n");
        EXPECT_EQ(Lineas(vocabulario, RevisaCorrientes(vocabulario, {"MAYOR", "MAYORIA", "ENERO"})),
                  caso.Reparos)
            << caso.Encima;
    }
}

TEST(RevisaCorrientes, LaMarcaConocidoEsDeLaEntradaDeDebajo) {
    for (const char* texto : {"[MESES]\n; conocido: MAYOR\n\n1=MAYO\nNumPalabras=1\n",
                              "; conocido: MAYOR\n[MESES]\n1=MAYO\nNumPalabras=1\n"}) {
        const auto vocabulario = De(texto);
        const auto lineas = Lineas(vocabulario, RevisaCorrientes(vocabulario, {"MAYOR"}));
        ASSERT_EQ(lineas.size(), 2U) << texto;
        EXPECT_THAT(lineas.front(), testing::EndsWith("está dentro de una palabra corriente: MAYOR"));
        EXPECT_THAT(lineas.back(), testing::EndsWith("debajo no hay una entrada que se busque dentro de las "
                                                     "palabras"));
    }
}

TEST(RevisaCorrientes, LaMarcaConocidoNoCallaLosOtrosReparos) {
    const auto vocabulario = De("[NUMERO]\nNumPalabras=2\n1=NUMERO\n; conocido: NUMEROSO\n2=NUMERO DE\n");
    EXPECT_EQ(RevisaTapadas(vocabulario).size(), 1U);
}

TEST(RevisaCorrientes, LaMarcaSeLeeEnLasDosPaginasDeCodigos) {
    const std::string utf8 = "[NIF]\nNumPalabras=1\n; conocido: Sueñón\n1=EÑO\n";
    for (const auto& bytes : {AnsiDeUtf8(utf8), "\xEF\xBB\xBF" + utf8}) {
        const auto marcas = MarcasConocido(VocabularioDe("V.INI", bytes));
        ASSERT_EQ(marcas.size(), 1U);
        EXPECT_EQ(marcas.front().Linea, 4);
        EXPECT_THAT(marcas.front().Palabras, ElementsAre("SUEÑON"_ansi));
    }
}

TEST(RevisaCorrientes, LaListaSeLeePorLenguasYSePliega) {
    const auto palabras = LeePalabrasCorrientes(
        "; nada\nsuelta\n[CASTELLANO]\nCordón acción\r\n\nsueño\n; no\n[CATALAN]\nplaça\n[OTRA]\nx\n");
    EXPECT_THAT(palabras.Castellano, ElementsAre("CORDON", "ACCION", "SUEÑO"_ansi));
    EXPECT_THAT(palabras.Catalan, ElementsAre("PLAÇA"_ansi));
}

TEST(RevisaBytes, LaPaginaDeCodigos) {
    const std::string seccion = "[MUJER]\n1=";
    struct TCaso {
        std::string Bytes;
        std::vector<int> LineasConError;
    };
    const std::vector<TCaso> casos = {
        {seccion + "DO\xD1"
                   "A\n",
         {}},
        {seccion + "DONA\n", {}},
        {seccion + "DO\xC3\x91"
                   "A\n",
         {2}},  // UTF-8 without its mark
        {"\xEF\xBB\xBF" + seccion +
             "DO\xC3\x91"
             "A\n",
         {}},  // with it
        {"\xEF\xBB\xBF" + seccion +
             "DO\xD1"
             "A\n",
         {2}},                                           // the mark and no UTF-8
        {"\xEF\xBB\xBF" + seccion + "\xCE\xA9\n", {2}},  // a letter that the code page lacks
        {seccion + "DO\xD1"
                   "A\n2=\x81\n",
         {3}},
        {seccion + "A\x01\n", {2}},
        {"\xFF\xFE[\0M\0", {1}},
    };
    for (const auto& caso : casos) {
        std::vector<int> lineas;
        for (const auto& reparo : RevisaBytes(VocabularioDe("V.INI", caso.Bytes)))
            if (reparo.Error) lineas.push_back(reparo.Linea);
        EXPECT_EQ(lineas, caso.LineasConError) << testing::PrintToString(caso.Bytes);
    }
}

TEST(RevisaBytes, LaLineaQueNoSeLee) {
    const auto vocabulario = De("1=ANTES\n; comentario\n[NIF]\n\nsin igual\n1=A\n");
    EXPECT_THAT(
        Lineas(vocabulario, RevisaBytes(vocabulario)),
        ElementsAre("V.INI:1: aviso: la línea no se lee: no es una sección, una clave ni un comentario",
                    "V.INI:5: aviso: la línea no se lee: no es una sección, una clave ni un comentario"));
}

TEST(RevisaVocabulario, LosQueSeEntreganNoTienenReparos) {
    for (const char* nombre : {"CASTELLANO.INI", "CATALAN.INI"}) {
        const auto vocabulario = LeeVocabulario(std::filesystem::path(CARPETA_VOCABULARIO) / nombre);
        EXPECT_THAT(Lineas(vocabulario, RevisaVocabulario(vocabulario, {})), IsEmpty());
    }
}

}  // namespace
}  // namespace analizador

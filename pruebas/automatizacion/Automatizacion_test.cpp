// The library as macros see it: registered, made by its name, and read member by member.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <utility>
#include <vector>

#include "adaptadores/word/ObjetoWord.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rficheros.h"
#include "pruebas/automatizacion/Maquina.h"
#include "pruebas/automatizacion/Teclado.h"
#include "pruebas/automatizacion/WordQueVuelve.h"
#include "pruebas/word/Compraventa.h"
#include "pruebas/word/WordDePrueba.h"

namespace analizador {
namespace {

using namespace pruebas;
using testing::Each;
using testing::HasSubstr;
using testing::SizeIs;

constexpr const wchar_t* CLASE = L"Software\\Classes\\CLSID\\{174AE529-FF7C-496E-B3FC-56DD4165775B}";
constexpr const wchar_t* NOMBRE = L"Software\\Classes\\Analizador.Escritura";

// The deed as Word holds it.
std::string Ejemplo(const char* nombre) {
    std::ifstream entrada(std::filesystem::path(CARPETA_EJEMPLOS) / nombre, std::ios::binary);
    std::string texto{std::istreambuf_iterator<char>(entrada), {}};
    std::replace(texto.begin(), texto.end(), '\n', '\r');
    return AnsiDeUtf8(texto);
}

// The macro for Word's editor as a script: without what a script has not (types, jumps on errors, Word
// itself).
std::string MacroDeWord() {
    std::ifstream entrada(MACRO_DE_WORD, std::ios::binary);
    std::string macro{std::istreambuf_iterator<char>(entrada), {}};
    std::erase(macro, '\r');
    for (const auto& [vba, vbs] : {std::pair("Attribute .*\n", ""),
                                   {" As (Object|String)\\b", ""},
                                   {" *On Error GoTo .*\n", ""},
                                   {"\nFallo:\n", "\n"},
                                   {"MsgBox (.*), vb\\w+, \"Analizador\"", "WScript.Echo $1"},
                                   {"\\bApplication\\b", "Nothing"}})
        macro = std::regex_replace(macro, std::regex(vba), vbs);
    return macro + "AnalizaEscritura\n";
}

std::wstring Biblioteca() {
    return Entrecomilla(BIBLIOTECA);
}

DWORD Regsvr32(const std::wstring& opciones) {
    return Ejecuta(L"regsvr32 /s " + opciones + L" " + Biblioteca()).Codigo;
}

// Wine finds only the classes of the machine.
class Automatizacion : public testing::Test {
  protected:
    static void SetUpTestSuite() { ASSERT_EQ(Regsvr32(L"/n /i:maquina"), 0U); }
    static void TearDownTestSuite() {
        EXPECT_EQ(Regsvr32(L"/n /u /i:maquina"), 0U);
        EXPECT_FALSE(EstaEnElRegistro(HKEY_LOCAL_MACHINE, CLASE));
        EXPECT_FALSE(EstaEnElRegistro(HKEY_LOCAL_MACHINE, NOMBRE));
    }
    Automatizacion() { Word.Abre({COMPRAVENTA, {{"FINCA_1", {0, 3}}}, {{"EMPLEADO", "MGR"}}}); }

    [[nodiscard]] TObjetoWord Escritura() {
        CLSID clase{};
        void* objeto = nullptr;
        EXPECT_EQ(CLSIDFromProgID(L"Analizador.Escritura", &clase), S_OK);
        EXPECT_EQ(CoCreateInstance(clase, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, &objeto), S_OK);
        return {Conexion, TPuntero<IDispatch>(static_cast<IDispatch*>(objeto)), "Escritura"};
    }
    [[nodiscard]] TObjetoWord Analizada() {
        auto escritura = Escritura();
        EXPECT_FALSE(escritura.Verdad("Analiza", Word.Aplicacion(), true));
        return escritura;
    }

    TApartamento Apartamento;
    TWordDePrueba& Word = TWordDePrueba::EnMarcha();
    TConexionWord Conexion{};
};

// The message of what a call throws; empty when it throws nothing.
template <class TLlamada>
std::string Mensaje(TLlamada llamada) {
    try {
        (void)llamada();
    } catch (const ErrorWord& error) {
        return Utf8DeAnsi(error.what());
    }
    return {};
}

TEST(RegistroAutomatizacion, ParaElUsuarioYSinDejarRastro) {
    ASSERT_EQ(Regsvr32(L""), 0U);
    EXPECT_EQ(ValorDelRegistro(HKEY_CURRENT_USER, std::wstring(NOMBRE) + L"\\CLSID"),
              std::wstring(CLASE).substr(std::wstring(CLASE).find(L'{')));
    const auto servidor = std::wstring(CLASE) + L"\\InprocServer32";
    EXPECT_EQ(L"\"" + ValorDelRegistro(HKEY_CURRENT_USER, servidor) + L"\"", Biblioteca());
    EXPECT_EQ(ValorDelRegistro(HKEY_CURRENT_USER, servidor, L"ThreadingModel"), L"Apartment");
    EXPECT_FALSE(EstaEnElRegistro(HKEY_LOCAL_MACHINE, CLASE));
    ASSERT_EQ(Regsvr32(L"/u"), 0U);
    EXPECT_FALSE(EstaEnElRegistro(HKEY_CURRENT_USER, CLASE));
    EXPECT_FALSE(EstaEnElRegistro(HKEY_CURRENT_USER, NOMBRE));
}

TEST_F(Automatizacion, UnaMacroLeeLosOtorgantes) {
    const auto macro = Ejecuta(L"cscript //nologo " + Entrecomilla(MACRO));
    EXPECT_EQ(macro.Salida,
              "Protocolo 2005 de 02/03/2012\n"
              "Notario ALFONSO REQUEJO\n"
              "Concepto 1 COMPRAVENTA / COMPRAVENDA / VENTA / VENDA\n"
              "Otorgantes 2\n"
              "JUAN|PEREZ GIL|12345678Z|?\n"
              "LUIS|SANZ RUBIO|00000001R|?\n"
              "Cuantia 1000,50\n"
              "Finca 1\n");
    EXPECT_EQ(Word.Objetos(), 0);
}

TEST_F(Automatizacion, LaMacroDeWordMuestraUnResumen) {
    const auto guion = FicheroTemporal_({}, "macro", "vbs");
    std::ofstream(guion, std::ios::binary) << MacroDeWord();
    const auto macro = Ejecuta(L"cscript //nologo " + Entrecomilla(guion));
    std::filesystem::remove(guion);
    EXPECT_EQ(macro.Salida,
              "Protocolo 2005, 02/03/2012\n"
              "ALFONSO REQUEJO\n"
              "\n"
              "COMPRAVENTA / COMPRAVENDA / VENTA / VENDA\n"
              "JUAN PEREZ GIL, 12345678Z\n"
              "LUIS SANZ RUBIO, 00000001R\n");
}

// A macro asks a date for its day, month and year.
TEST_F(Automatizacion, ElNacimientoEsUnaFecha) {
    Word.Abre({Ejemplo("testamento.txt"), {}, {}});
    const auto macro = Ejecuta(L"cscript //nologo " + Entrecomilla(MACRO));
    EXPECT_THAT(macro.Salida, HasSubstr("|17-5-1948\n"));
}

TEST_F(Automatizacion, UnaMacroDiceQueNoHayDocumento) {
    Word.Orden().Haz("Prueba_Cierra");
    const auto macro = Ejecuta(L"cscript //nologo " + Entrecomilla(MACRO));
    EXPECT_EQ(macro.Salida,
              "ERROR Analizador.Escritura: No hay ningún documento activo en el procesador de textos\n");
}

TEST_F(Automatizacion, LasPropiedadesSonLasDeLaEscritura) {
    const auto escritura = Analizada();
    EXPECT_EQ(escritura.Entero("NumeroProtocolo"), 2005);
    EXPECT_EQ(escritura.Texto("Fecha"), u"02/03/2012");
    EXPECT_EQ(escritura.Entero("lugar"), 1);
    EXPECT_EQ(escritura.Texto("NOTARIO"), u"ALFONSO REQUEJO");
    EXPECT_EQ(escritura.Texto("NotarioSustituto"), u"");
    EXPECT_EQ(escritura.Texto("Empleado"), u"MGR");
    EXPECT_FALSE(escritura.Verdad("Aceptado"));
    EXPECT_THAT(Utf8DeAnsi(AnsiDeUtf16(escritura.Texto("Pizarra"))), HasSubstr("ALFONSO REQUEJO"));
    EXPECT_THAT(Utf8DeAnsi(AnsiDeUtf16(escritura.Texto("Json"))),
                HasSubstr("\"Notario\":\"ALFONSO REQUEJO\""));
    EXPECT_EQ(Word.Objetos(), 0);
}

TEST_F(Automatizacion, LasListasCuentanDesdeUno) {
    const auto escritura = Analizada();
    const auto otorgantes = escritura.Objeto("Otorgantes", "Otorgantes");
    ASSERT_EQ(otorgantes.Entero("Count"), 2);
    EXPECT_EQ(otorgantes.Objeto("Item", "Otorgante", 2).Texto("Apellidos"), u"SANZ RUBIO");
    // As a macro writes it: Otorgantes(1).
    EXPECT_EQ(escritura.Objeto("Otorgantes", "Otorgante", 1).Texto("Apellidos"), u"PEREZ GIL");
    EXPECT_EQ(escritura.Texto("Fincas", 1), u"1");
    EXPECT_THAT(Mensaje([&] { return otorgantes.Objeto("Item", "Otorgante", 0); }), HasSubstr("0x8002000b"));
    EXPECT_THAT(Mensaje([&] { return otorgantes.Objeto("Item", "Otorgante", 3); }), HasSubstr("0x8002000b"));
}

// What was handed out stays as it was.
TEST_F(Automatizacion, OtroAnalisisNoCambiaLoQueSeDio) {
    const auto escritura = Analizada();
    const auto otorgante = escritura.Objeto("Otorgantes", "Otorgante", 1);
    Word.Abre({"NUMERO TRES.\r", {}, {}});
    EXPECT_FALSE(escritura.Verdad("Analiza", Word.Aplicacion(), true));
    EXPECT_EQ(escritura.Objeto("Otorgantes", "Otorgantes").Entero("Count"), 0);
    EXPECT_EQ(otorgante.Texto("Nombre"), u"JUAN");
}

TEST_F(Automatizacion, LosErroresSonDeLaEscrituraYEnCastellano) {
    const auto escritura = Escritura();
    const auto sinAnalizar = Mensaje([&] { return escritura.Texto("Notario"); });
    EXPECT_THAT(sinAnalizar, HasSubstr("no hay ninguna escritura analizada en la sesión"));
    EXPECT_THAT(sinAnalizar, HasSubstr("[Analizador.Escritura]"));
    EXPECT_THAT(Mensaje([&] { return escritura.Verdad("Analiza", std::u16string(u"Word"), true); }),
                HasSubstr("0x80020005"));
    EXPECT_THAT(Mensaje([&] { return escritura.Verdad("Analiza"); }), HasSubstr("0x8002000e"));
    EXPECT_THAT(Mensaje([&] { return escritura.Texto("NoEsNinguna"); }), HasSubstr("0x80020006"));
}

#ifndef CON_VENTANAS
TEST_F(Automatizacion, SinVentanasNoHayRevisionYSeDice) {
    const auto escritura = Escritura();
    EXPECT_THAT(Mensaje([&] { return escritura.Verdad("Analiza", Word.Aplicacion(), false); }),
                HasSubstr("no hay ventanas instaladas para la revisión"));
}
#else
TEST_F(Automatizacion, LoRevisadoSeAceptaOSeCancela) {
    const auto escritura = Escritura();
    {
        const TTeclado teclado(L"Lista de Conceptos de la Escritura", {VK_ESCAPE});
        EXPECT_FALSE(escritura.Verdad("Analiza", Word.Aplicacion(), false));
    }
    EXPECT_FALSE(escritura.Verdad("Aceptado"));
    {
        // The first control has the focus; "Continuar" is the last but one.
        std::vector<WORD> teclas(13, VK_TAB);
        teclas.push_back(VK_SPACE);
        const TTeclado teclado(L"Lista de Conceptos de la Escritura", std::move(teclas));
        EXPECT_TRUE(escritura.Verdad("Analiza", Word.Aplicacion(), false));
    }
    EXPECT_TRUE(escritura.Verdad("Aceptado"));
    EXPECT_EQ(escritura.Objeto("Otorgantes", "Otorgantes").Entero("Count"), 2);
    EXPECT_EQ(Word.Objetos(), 0);
}
#endif
// While Word answers, an event may run another procedure of the macro's program.
TEST_F(Automatizacion, MientrasAnalizaRechazaLoDemas) {
    const auto escritura = Escritura();
    std::vector<std::string> rechazos;
    const auto otro = WordQueVuelve([&] {
        rechazos.push_back(Mensaje([&] { return escritura.Texto("Notario"); }));
        rechazos.push_back(Mensaje([&] { return escritura.Verdad("Analiza", Word.Aplicacion(), true); }));
    });
    IDispatch* const suAplicacion = otro.get();
    EXPECT_THAT(Mensaje([&] { return escritura.Verdad("Analiza", suAplicacion, true); }),
                HasSubstr("documento activo"));
    EXPECT_THAT(rechazos, SizeIs(2));
    EXPECT_THAT(rechazos, Each(HasSubstr("el análisis anterior no ha terminado")));
    EXPECT_FALSE(escritura.Verdad("Analiza", Word.Aplicacion(), true));
    EXPECT_EQ(escritura.Entero("NumeroProtocolo"), 2005);
}

// The failure of a call in the middle: told once, without the deed's words, and the next analysis goes well.
TEST_F(Automatizacion, UnFalloDeWordNoDiceNadaDeLaEscritura) {
    const auto escritura = Escritura();
    Word.Falla(TFallo::Error, 60);
    const auto mensaje = Mensaje([&] { return escritura.Verdad("Analiza", Word.Aplicacion(), true); });
    EXPECT_THAT(mensaje, HasSubstr("[Analizador.Escritura]"));
    for (const char* palabra : {"PEREZ", "COMPRAVENTA", "Madrid", "12345678"})
        EXPECT_EQ(mensaje.find(palabra), std::string::npos) << mensaje;
    EXPECT_EQ(Word.Objetos(), 0);
    Word.Falla(TFallo::Ninguno, 0, 0);
    EXPECT_FALSE(escritura.Verdad("Analiza", Word.Aplicacion(), true));
    EXPECT_EQ(escritura.Entero("NumeroProtocolo"), 2005);
}

}  // namespace
}  // namespace analizador

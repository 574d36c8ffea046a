#include <chrono>

#include "dialogos/CodificacionXml.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "plataforma/Rvarias.h"
#include "pruebas/fuzz/Fuzzers.h"
#include "pruebas/fuzz/Utf8Valido.h"

namespace analizador {

namespace {

void CompruebaConversiones(std::string_view bytes) {
    ExigeUtf8(Utf8DeAnsi(bytes));
    const std::string ansi = AnsiDeUtf8(bytes);
    Exige(ansi.size() == Utf16DeUtf8(bytes).size(), "not one byte a UTF-16 unit");
    Exige(AnsiDeUtf16(Utf16DeUtf8(bytes)) == ansi, "two ways to Windows-1252 differ");
    const std::string utf8 = Utf8DeAnsi(ansi);
    Exige(Utf8DeAnsi(AnsiDeUtf8(utf8)) == utf8, "a text of the code page changes on its way");
}

void CompruebaPlegado(std::string_view texto) {
    const std::string plegado = Pliega(texto);
    Exige(plegado.size() == texto.size() && Pliega(plegado) == plegado, "folding moves or folds twice");
    Exige(AnsiUpperCase(QuitaAcentoMayMin(texto)) == plegado, "folding is not its two steps");
    const std::string traducido = TraduceCaracteresExtranosDeWord(texto);
    Exige(traducido.size() <= texto.size() && TraduceCaracteresExtranosDeWord(traducido) == traducido,
          "translating twice is not translating once");
    const std::string_view recortado = Recorta(texto);
    Exige(Recorta(recortado) == recortado && RecortaDerecha(RecortaIzquierda(texto)) == recortado,
          "trimming twice is not trimming once");
}

void CompruebaNumeros(std::string_view texto) {
    if (const auto entero = EnteroDeCadena(texto))
        Exige(EnteroDeCadena(Int_Cad(*entero)) == entero, "a whole number does not read back");
    if (const auto real = RealDeCadena(texto))
        Exige(RealDeCadena(Float_Cad(*real)) == real, "a number does not read back");
    for (const bool catalan : {false, true})
        Exige(ConvierteNumeroDeCadenaAEnteroNvx(texto, catalan) >= 0, "a number in words below zero");
    const std::string dni = FormateaDNI(texto);
    if (EsNif(texto, false))
        Exige(EsNif(dni, false) && FormateaDNI(dni) == dni, "a printed identity number is none");
    Exige(!(EsUnNie(texto, false) && EsUnCif(texto, false)), "both a foreigner's and a company's number");
}

void CompruebaFecha(std::string_view texto) {
    using namespace std::chrono_literals;
    const auto fecha = VerificaFecha(texto, 2024y / 2 / 29);
    if (!fecha) return;
    Exige(fecha->ok() && *fecha >= 1900y / 1 / 1, "a date that is none");
    Exige(VerificaFecha(Fecha_Cad(*fecha), 2024y / 2 / 29) == fecha, "a date does not read back");
}

}  // namespace

void FuzzTextos(std::string_view bytes) {
    CompruebaConversiones(bytes);
    CompruebaPlegado(bytes);
    CompruebaNumeros(bytes);
    CompruebaFecha(bytes);
    ExigeUtf8(Utf8DeXml(bytes));
    ExigeUtf8(Utf8DeXml(BytesDeXml(bytes)));
}

}  // namespace analizador

#include "dialogos/CodificacionXml.h"

#include <gtest/gtest.h>

#include "pruebas/comun/Literales.h"

namespace analizador {
namespace {

using namespace std::string_literals;

std::string Declaracion(std::string_view codificacion) {
    return std::string("<?xml version=\"1.0\" encoding=\"").append(codificacion).append("\"?>");
}

// Each ASCII character as a unit of UTF-16.
std::string Ancho(std::string_view ascii, bool altoPrimero) {
    std::string bytes;
    for (const char c : ascii) bytes.append(altoPrimero ? "\0"s + c : c + "\0"s);
    return bytes;
}

// A letter, the euro sign and others of ISO-8859-15, and what stands in their places in ISO-8859-1.
const std::string_view TEXTO =
    "<a>ñ€Šž¤½"
    "</a>"_a;

struct TCaso {
    std::string_view Codificacion;
    std::string Cuerpo;    // the bytes of TEXTO after the declaration
    std::string DeVuelta;  // what the bytes read as, in UTF-8
};

const std::string UTF8 = "<a>ñ€Šž¤½</a>";

const TCaso CASOS[] = {
    {"UTF-8", UTF8, UTF8},
    {"utf8", UTF8, UTF8},
    {"windows-1252", "<a>\xF1\x80\x8A\x9E\xA4\xBD</a>", UTF8},
    {"CP1252", "<a>\xF1\x80\x8A\x9E\xA4\xBD</a>", UTF8},
    {"ISO-8859-1", "<a>\xF1&#8364;&#352;&#382;\xA4\xBD</a>", "<a>ñ&#8364;&#352;&#382;¤½</a>"},
    {"latin1", "<a>\xF1&#8364;&#352;&#382;\xA4\xBD</a>", "<a>ñ&#8364;&#352;&#382;¤½</a>"},
    {"iso-8859-15", "<a>\xF1\xA4\xA6\xB8&#164;&#189;</a>", "<a>ñ€Šž&#164;&#189;</a>"},
    {"US-ASCII", "<a>&#241;&#8364;&#352;&#382;&#164;&#189;</a>",
     "<a>&#241;&#8364;&#352;&#382;&#164;&#189;</a>"},
    {"KOI8-R", UTF8, UTF8},  // not one of ours
    {"", UTF8, UTF8},
};

TEST(CodificacionXml, SeEscribeEnLaQueDeclaraYSeVuelveALeer) {
    for (const auto& caso : CASOS) {
        const std::string declaracion = Declaracion(caso.Codificacion);
        const std::string bytes = BytesDeXml(declaracion + std::string(TEXTO));
        EXPECT_EQ(bytes, declaracion + caso.Cuerpo) << caso.Codificacion;
        EXPECT_EQ(Utf8DeXml(bytes), declaracion + caso.DeVuelta) << caso.Codificacion;
    }
}

TEST(CodificacionXml, Utf16VaConSuMarca) {
    for (const bool altoPrimero : {false, true}) {
        const std::string declaracion = Declaracion(altoPrimero ? "utf-16be" : "UTF-16");
        const std::string bytes = BytesDeXml(declaracion + std::string("ñ€"_a));
        EXPECT_EQ(bytes, (altoPrimero ? "\xFE\xFF" : "\xFF\xFE") + Ancho(declaracion, altoPrimero) +
                             (altoPrimero ? "\x00\xF1\x20\xAC"s : "\xF1\x00\xAC\x20"s));
        EXPECT_EQ(Utf8DeXml(bytes), declaracion + "ñ€");
        EXPECT_EQ(Utf8DeXml(std::string_view(bytes).substr(2)), declaracion + "ñ€") << "without mark";
    }
}

// How the declaration may be written, and what is none.
TEST(CodificacionXml, LaDeclaracionSeEntiendeComoQuieraQueSeEscriba) {
    struct TDeclaracion {
        std::string_view Texto;
        bool EsLatin1;
    };
    const TDeclaracion casos[] = {
        {"<?xml version='1.0' encoding='ISO-8859-1'?>", true},
        {"<?xml version=\"1.0\"\r\n\tencoding = \"iso-8859-1\" standalone=\"yes\"?>", true},
        {"\x1F<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>", true},  // a byte-order mark stood there
        {"<?xml version=\"1.0\"?><a encoding=\"ISO-8859-1\"/>", false},
        {"<a encoding=\"ISO-8859-1\"/>", false},
        {" <?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>", false},
        {"<?xml version=\"1.0\" codencoding=\"ISO-8859-1\"?>", false},
        {"<?xml version=\"1.0\" encoding=ISO-8859-1?>", false},
        {"<?xml version=\"1.0\" encoding=\"ISO-8859-1?>", false},
        {"<?xml version=\"1.0\" encoding=", false},
        {"<?xml version=\"1.0\" encoding", false},
        {"<?xml", false},
        {"", false},
    };
    for (const auto& caso : casos) {
        const std::string bytes = BytesDeXml(std::string(caso.Texto) + "\xF1");
        EXPECT_TRUE(bytes.ends_with(caso.EsLatin1 ? "\xF1" : "\xC3\xB1")) << caso.Texto;
        EXPECT_EQ(bytes.find('\x1F'), std::string::npos);
        const std::string texto(caso.Texto.substr(caso.Texto.starts_with('\x1F') ? 1 : 0));
        EXPECT_EQ(Utf8DeXml(bytes), texto + "ñ") << caso.Texto;
    }
}

TEST(CodificacionXml, UnByteSinCaracterEsElControlDeSuValor) {
    EXPECT_EQ(BytesDeXml("\x81"), "\xC2\x81");
    EXPECT_EQ(BytesDeXml(Declaracion("windows-1252") + "\x81"), Declaracion("windows-1252") + "\x81");
    EXPECT_EQ(BytesDeXml(Declaracion("ascii") + "\x81"), Declaracion("ascii") + "&#129;");
}

TEST(CodificacionXml, LaMarcaMandaSobreLaDeclaracion) {
    EXPECT_EQ(Utf8DeXml("\xEF\xBB\xBF" + Declaracion("ISO-8859-1") + "ñ"), Declaracion("ISO-8859-1") + "ñ");
    EXPECT_EQ(Utf8DeXml("\xFF\xFE" + Ancho(Declaracion("UTF-8"), false)), Declaracion("UTF-8"));
    EXPECT_EQ(Utf8DeXml(Declaracion("UTF-16") + "ñ"), Declaracion("UTF-16") + "ñ") << "it cannot be true";
}

TEST(CodificacionXml, LoMalFormadoNoSePierde) {
    EXPECT_EQ(Utf8DeXml("<a>\xF1</a>"), "<a>\uFFFD</a>");
    EXPECT_EQ(Utf8DeXml(Declaracion("US-ASCII") + "\xF1"), Declaracion("US-ASCII") + "\uFFFD");
    EXPECT_EQ(Utf8DeXml("\xFF\xFE<\0/"s), "<\uFFFD") << "half a unit";
    EXPECT_EQ(Utf8DeXml("\xFF\xFE\x01\xD8<\0"s), "\uFFFD<") << "half a pair";
    EXPECT_EQ(Utf8DeXml("\xFE\xFF\xD8\x3D\xDE\x00"s), "\U0001F600") << "a whole one";
    EXPECT_EQ(Utf8DeXml(""), "");
}

}  // namespace
}  // namespace analizador

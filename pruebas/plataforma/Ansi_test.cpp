#include "plataforma/Ansi.h"

#include <gtest/gtest.h>

#include <string>

namespace analizador {
namespace {

std::string TodosLosBytes() {
    std::string todos;
    for (int c = 0; c < 256; ++c) todos += static_cast<char>(c);
    return todos;
}

TEST(AnsiUpperCase, PoneEnMayusculasCadaLetraDeLaPagina) {
    std::string esperado = TodosLosBytes();
    const auto minusculas = "abcdefghijklmnopqrstuvwxyzàáâãäåæçèéêëìíîïðñòóôõöøùúûüýþÿšœž"_ansi;
    const auto mayusculas = "ABCDEFGHIJKLMNOPQRSTUVWXYZÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞŸŠŒŽ"_ansi;
    ASSERT_EQ(minusculas.size(), mayusculas.size());
    for (std::size_t i = 0; i < minusculas.size(); ++i)
        esperado[static_cast<unsigned char>(minusculas[i])] = mayusculas[i];
    EXPECT_EQ(AnsiUpperCase(TodosLosBytes()), esperado);
}

TEST(Ansi, TodoByteVuelveDeUtf8) {
    EXPECT_EQ(AnsiDeUtf8(Utf8DeAnsi(TodosLosBytes())), TodosLosBytes());
}

TEST(Ansi, EscribeUtf8) {
    EXPECT_EQ(Utf8DeAnsi("Núñez, 12 € – œ"_ansi), "Núñez, 12 € – œ");
    EXPECT_EQ(Utf8DeAnsi("\x81\x8D\x8F\x90\x9D"), "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D");
}

struct TCasoUtf16 {
    std::u16string Unidades;
    std::string_view Ansi;
};

class AnsiDeUtf16Prueba : public testing::TestWithParam<TCasoUtf16> {};

TEST_P(AnsiDeUtf16Prueba, CadaUnidadEsUnByte) {
    const auto& caso = GetParam();
    EXPECT_EQ(AnsiDeUtf16(caso.Unidades), caso.Ansi);
    EXPECT_EQ(AnsiDeUtf16(caso.Unidades).size(), caso.Unidades.size());
}

INSTANTIATE_TEST_SUITE_P(
    DeLaPagina, AnsiDeUtf16Prueba,
    testing::Values(TCasoUtf16{u"", ""},
                    TCasoUtf16{u"DOÑA MARÍA DE L'HOSPITALET", "DOÑA MARÍA DE L'HOSPITALET"_ansi},
                    TCasoUtf16{u"12 € “sí” – l·l…", "12 € “sí” – l·l…"_ansi},
                    TCasoUtf16{u"\u00AD\u00A0\x1E\x1F\r\a", "\u00AD\u00A0\x1E\x1F\r\a"_ansi}));

INSTANTIATE_TEST_SUITE_P(
    Equivalentes, AnsiDeUtf16Prueba,
    testing::Values(TCasoUtf16{u"\u2010\u2011\u2012\u2015\u2212", "-----"},
                    TCasoUtf16{u"\u2002\u2003\u2007\u2009\u200A\u202F\u3000", "       "},
                    TCasoUtf16{u"5\u2032 6\u2033", "5' 6\""}, TCasoUtf16{u"\u2219\u22C5\u2027", "···"_ansi},
                    TCasoUtf16{u"\uFF11\uFF12\uFF21", "12A"}, TCasoUtf16{u"\u2070\u2074\u2089", "049"},
                    TCasoUtf16{u"\u03A9\u0416\u4E2D\u25A0", "????"}, TCasoUtf16{u"\x85\x93", "??"}));

INSTANTIATE_TEST_SUITE_P(
    LetrasDeFuera, AnsiDeUtf16Prueba,
    testing::Values(TCasoUtf16{u"ĀāĂăĄąĆćĈĉĊċČč", "AaAaAaCcCcCcCc"},
                    TCasoUtf16{u"ŁódźŃowĶ",
                               "Lódz"
                               "NowK"_ansi},
                    TCasoUtf16{u"ĐđĦħıĸŀŊŧſ",
                               "DdHhikl"
                               "Nts"},
                    TCasoUtf16{u"ŐőŰűŤťŢţŞşȘșȚț", "OoUuTtTtSsSsTt"}, TCasoUtf16{u"ŠšŽžŸŒœƒ", "ŠšŽžŸŒœƒ"_ansi},
                    TCasoUtf16{u"ƀƁƠơƯưƦƵƶ", "bBOoUuRZz"}, TCasoUtf16{u"ǍǎǰǴǵǸǺȀȳɄɏ", "AajGgNAAyUy"},
                    TCasoUtf16{u"ǼǽǾǿǢẞ", "ÆæØøÆß"_ansi}, TCasoUtf16{u"ḀḁḂẀẁẅẼẽẾỲỹỤỿ", "AaBWwwEeEYyUy"},
                    TCasoUtf16{u"ĲǄǱƏ", "????"}));

INSTANTIATE_TEST_SUITE_P(Combinables, AnsiDeUtf16Prueba,
                         testing::Values(TCasoUtf16{u"MUN\u0303OZ", "MUÑ\x1FOZ"_ansi},
                                         TCasoUtf16{u"Mari\u0301a",
                                                    "Marí\x1F"
                                                    "a"_ansi},
                                         TCasoUtf16{
                                             u"e\u0300a\u0302o\u0303u\u0308c\u0327S\u030CA\u030AY\u0308",
                                             "è\x1Fâ\x1Fõ\x1Fü\x1Fç\x1FŠ\x1FÅ\x1FŸ\x1F"_ansi},
                                         TCasoUtf16{u"c\u0301a",
                                                    "c\x1F"
                                                    "a"},  // the page has no such letter
                                         TCasoUtf16{u"n\u0303\u0301a",
                                                    "ñ\x1F\x1F"
                                                    "a"_ansi},
                                         TCasoUtf16{u"n\u200D\u0303", "ñ\x1F\x1F"_ansi},
                                         TCasoUtf16{u"\u0301a",
                                                    "\x1F"
                                                    "a"},
                                         TCasoUtf16{u"1\u0301", "1\x1F"}));

INSTANTIATE_TEST_SUITE_P(SinAnchura, AnsiDeUtf16Prueba,
                         testing::Values(TCasoUtf16{u"a\u200Bb\u200Cc\u200Dd\u2060e\uFEFF",
                                                    "a\x1F"
                                                    "b\x1F"
                                                    "c\x1F"
                                                    "d\x1F"
                                                    "e\x1F"},
                                         TCasoUtf16{u"\u200E\u202A\u2066\uFE0F", "\x1F\x1F\x1F\x1F"}));

TEST(AnsiDeUtf16, UnParSustitutoSonDosInterrogaciones) {
    EXPECT_EQ(AnsiDeUtf16(u"a\U0001F600b"), "a??b");
    EXPECT_EQ(AnsiDeUtf16(std::u16string{0xD800, u'a', 0xDC00}), "?a?");
}

TEST(Utf16DeUtf8, LeeTodasLasLongitudes) {
    EXPECT_EQ(Utf16DeUtf8("aé€\U0001F600z"), u"aé€\U0001F600z");
    EXPECT_EQ(Utf16DeUtf8("\u007F\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF"),
              u"\u007F\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF");
}

TEST(Utf16DeUtf8, CadaByteMalFormadoEsUnCaracter) {
    const struct {
        std::string_view Utf8;
        std::u16string_view Unidades;
    } casos[] = {{"a\x80"
                  "b",
                  u"a\uFFFDb"},
                 {"\xC3", u"\uFFFD"},                                // cut short
                 {"\xE2\x82z", u"\uFFFD\uFFFDz"},                    // cut short before another
                 {"\xC0\xAF", u"\uFFFD\uFFFD"},                      // "/" in more bytes than it needs
                 {"\xE0\x80\xAF", u"\uFFFD\uFFFD\uFFFD"},            // idem
                 {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},            // half of a surrogate pair
                 {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},  // beyond the last code point
                 {"\xFF\xFE", u"\uFFFD\uFFFD"}};
    for (const auto& [utf8, unidades] : casos) {
        EXPECT_EQ(Utf16DeUtf8(utf8), unidades);
        EXPECT_EQ(AnsiDeUtf8(utf8).size(), unidades.size());
    }
    EXPECT_EQ(AnsiDeUtf8("Nu\xF1"
                         "ez"),
              "Nu?ez");
}

}  // namespace
}  // namespace analizador

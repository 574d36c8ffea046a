#include "plataforma/Utf8.h"

#include <gtest/gtest.h>

namespace analizador {
namespace {

TEST(EnUnaLinea, DejaElTextoComoEs) {
    for (const std::string texto :
         {"", "word/document.xml", "C:\\Ñandú «€» \u00A0 \u0416 \U0001F600.docx", "\uFF21"})
        EXPECT_EQ(EnUnaLinea(texto), texto);
}

TEST(EnUnaLinea, PoneInterrogacionEnLoQueNoCabeEnUnaLinea) {
    struct TCaso {
        std::string_view Texto, Dicho;
    };
    using namespace std::string_view_literals;
    for (const auto& [texto, dicho] : {
             TCaso{"a\nb\r\nc\td"sv, "a?b??c?d"sv},
             TCaso{"\0a\x1B[31m\x7F"sv, "?a?[31m?"sv},
             TCaso{"\u0080\u0085\u009B\u009F\u00A0"sv, "????\u00A0"sv},
             TCaso{"a\u2028b\u2029c\u2027d"sv, "a?b?c\u2027d"sv},
             TCaso{"\u061C\u200E\u200F\u202A\u202E\u2066\u2069"sv, "???????"sv},
             TCaso{"\xFF\xC3z\xE2\x82"sv, "??z??"sv},
             TCaso{"\uFFFD"sv, "?"sv},
         })
        EXPECT_EQ(EnUnaLinea(texto), dicho);
}

TEST(NombreCitado, VaEntreComillasYEnUnaLinea) {
    EXPECT_EQ(NombreCitado("word/a\nb.xml"), "«word/a?b.xml»");
    EXPECT_EQ(NombreCitado(""), "«»");
}

TEST(NombreCitado, SeCortaEnteroEntreDosLetras) {
    const std::string cabe(160, 'x');
    EXPECT_EQ(NombreCitado(cabe), "«" + cabe + "»");
    EXPECT_EQ(NombreCitado(cabe + "y"), "«" + cabe + "…»");
    const std::string hasta158(158, 'x');
    EXPECT_EQ(NombreCitado(hasta158 + "€uros"), "«" + hasta158 + "…»");
    EXPECT_EQ(NombreCitado(hasta158.substr(1) + "€uros"), "«" + hasta158.substr(1) + "€…»");
    EXPECT_EQ(NombreCitado(std::string(100000, '\x80')), "«…»");
    EXPECT_EQ(PrincipioEnUnaLinea("\n" + cabe), "?" + cabe.substr(1) + "…");
}

}  // namespace
}  // namespace analizador

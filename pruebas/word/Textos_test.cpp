// What needs no Word: the notation of a search, and the paragraphs of a text.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "adaptadores/word/TextoBuscado.h"
#include "adaptadores/word/TextoWord.h"
#include "plataforma/Ansi.h"
#include "plataforma/VrkWord.h"

namespace analizador {
namespace {

TEST(TextoBuscado, EscribeLosSignosComoWordLosQuiere) {
    const struct {
        std::string_view Literal;
        std::optional<std::u16string> Escrito;
    } casos[] = {
        {"EXPONEN", u"EXPONEN"},
        {"a^p", u"a^^p"},
        {"^^", u"^^^^"},
        {"Dos\r", u"Dos^p"},
        {"a\tb\vc\fd\x0E"
         "e\x1E"
         "f",
         u"a^tb^lc^md^ne^~f"},
        {"compare\x1F"
         "cen",
         u"comparecen"},
        {"SEÑORA"_ansi, u"SEÑORA"},
        {"\xAD", std::nullopt},
        {"", std::nullopt},
        {"5*(2)?", u"5*(2)?"},
    };
    for (const auto& [literal, escrito] : casos) EXPECT_EQ(TextoBuscado(literal), escrito) << literal;
}

TEST(TextoBuscado, NoPasaDe255CaracteresEscritos) {
    EXPECT_EQ(TextoBuscado(std::string(255, 'x'))->size(), 255U);
    EXPECT_EQ(TextoBuscado(std::string(127, '^'))->size(), 254U);
    EXPECT_THROW((void)TextoBuscado(std::string(256, 'x')), ErrorWord);
    EXPECT_THROW((void)TextoBuscado(std::string(128, '^')), ErrorWord);
}

TEST(ParteParrafos, CadaUnoConSuFinal) {
    using Textos = std::vector<std::string>;
    const struct {
        std::string_view Texto;
        Textos Parrafos;
    } casos[] = {
        {"", {}},
        {"\r", {"\r"}},
        {"Uno\r\rDos\r", {"Uno\r", "\r", "Dos\r"}},
        {"Uno\r\aDos\r\a\r\aTres\r", {"Uno\r\a", "Dos\r\a", "\r\a", "Tres\r"}},
        {"Uno\rDos", {"Uno\r", "Dos"}},
        {"a\vb\fc\r", {"a\vb\fc\r"}},
    };
    for (const auto& [texto, parrafos] : casos) EXPECT_EQ(ParteParrafos(texto), parrafos);
}

}  // namespace
}  // namespace analizador

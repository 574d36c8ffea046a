#include "adaptadores/qt/TextoQt.h"

#include <gtest/gtest.h>

#include <set>

#include "pruebas/comun/Literales.h"

namespace analizador {
namespace {

TEST(TextoQt, EveryByteComesBackAsItWas) {
    std::string todos;
    for (int byte = 0; byte < 256; ++byte) todos += static_cast<char>(byte);
    const QString texto = QtDeAnsi(todos);
    EXPECT_EQ(texto.size(), 256);
    EXPECT_EQ(std::set<QChar>(texto.begin(), texto.end()).size(), 256U);
    EXPECT_EQ(AnsiDeQt(texto), todos);
}

TEST(TextoQt, LettersAreThoseOfTheCodePage) {
    EXPECT_EQ(QtDeAnsi("MUÑOZ – 5 €"_a), QStringLiteral("MUÑOZ – 5 €"));
    EXPECT_EQ(AnsiDeQt(QStringLiteral("MUÑOZ – 5 €")), "MUÑOZ – 5 €"_a);
}

TEST(TextoQt, WhatThePageLacksBecomesPlain) {
    const struct {
        QString Texto;
        std::string_view Ansi;
    } casos[] = {
        {QStringLiteral("MUN\u0303OZ"), "MUÑOZ"_a},  // a loose tilde joins its letter
        {QStringLiteral("A\u200BB"), "AB"_a},        // a blank without width goes
        {QStringLiteral("10\u22125"), "10-5"_a},     // the minus sign
        {QStringLiteral("\u0416"), "?"_a},           // a letter of another script
        {QStringLiteral("A\u00AD\u001FB"),
         "A\u00AD\x1F"
         "B"_a},  // what is in the page stays
    };
    for (const auto& caso : casos) EXPECT_EQ(AnsiDeQt(caso.Texto), caso.Ansi) << caso.Texto.toStdString();
}

}  // namespace
}  // namespace analizador

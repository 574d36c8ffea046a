#include "programas/analiza/Columnas.h"

#include <gtest/gtest.h>

namespace analizador {
namespace {

TEST(Columnas, CuentanCaracteresYNoBytes) {
    EXPECT_EQ(Caracteres(""), 0U);
    EXPECT_EQ(Caracteres("año"), 3U);
    EXPECT_EQ(Caracteres("«€»"), 3U);
}

TEST(Columnas, CadaUnaTieneElAnchoDeSuCeldaMasAncha) {
    EXPECT_EQ(EnColumnas({{"año", "1"}, {"a", "100"}}, "id"), "año    1\na    100\n");
    EXPECT_EQ(EnColumnas({{"uno", "b"}, {"a", ""}, {"c"}}), "uno  b\na\nc\n");
    EXPECT_EQ(EnColumnas({}), "");
}

}  // namespace
}  // namespace analizador

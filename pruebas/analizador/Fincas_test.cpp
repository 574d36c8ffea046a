#include "analizador/Fincas.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace analizador {
namespace {

TEST(Fincas, NombreFinca) {
    const std::vector<std::pair<std::string_view, std::optional<std::string>>> casos = {
        {"FINCA_1", "1"},          {"XFINCA_1", "1"},
        {"FINCA_12_B", "12_B"},    {"FINCA_", ""},
        {"LA_FINCA_3", "3"},       {"FINCA_FINCA_7", "FINCA_7"},
        {"FINCA_A B", "A B"},      {"FINCA1", std::nullopt},
        {"finca_1", std::nullopt}, {"CABECERA", std::nullopt},
        {"EXPONEN", std::nullopt}, {"", std::nullopt},
    };
    for (const auto& [marcador, nombre] : casos) EXPECT_EQ(NombreFinca(marcador), nombre) << marcador;
}

}  // namespace
}  // namespace analizador

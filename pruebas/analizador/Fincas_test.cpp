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

TEST(Fincas, FincasDeMarcadores) {
    const auto marcadores = [](const std::vector<std::string>& nombres) {
        std::vector<TMarcador> lista;
        for (const auto& nombre : nombres) lista.push_back({nombre, {0, 1}});
        return lista;
    };
    using TNombres = std::vector<std::string>;
    EXPECT_EQ(FincasDeMarcadores(marcadores({"CABECERA", "FINCA_2", "EXPONEN", "FINCA_1"})),
              (TNombres{"2", "1"}));
    EXPECT_EQ(FincasDeMarcadores(marcadores({"FINCA_1", "XFINCA_1", "FINCA_a", "FINCA_A"})),
              (TNombres{"1", "a", "A"}));
    EXPECT_EQ(FincasDeMarcadores(marcadores({"FINCA_", "XFINCA_"})), TNombres{""});
    EXPECT_EQ(FincasDeMarcadores({}), TNombres{});
}

}  // namespace
}  // namespace analizador

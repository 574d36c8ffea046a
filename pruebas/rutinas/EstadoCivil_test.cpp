#include <gtest/gtest.h>

#include "pruebas/comun/Literales.h"
#include "pruebas/comun/Tramos.h"
#include "pruebas/comun/VocabularioDePrueba.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

const TSeccionesDePrueba SECCIONES = {
    {"CASADO EN SEGUNDAS NUPCIAS", {"SEGUNDAS NUPCIAS"}},
    {"DIVORCIADO", {"DIVORCIAD"}},
    {"SOLTERO", {"", "SOLTER"}},
    {"VIUDO", {"VIUD"}},
    {"PAREJA DE HECHO", {"PAREJA DE HECHO"}},
    {"SEPARADO", {"SEPARADO", "SEPARADA"}},
    {"CASADO", {"CONYUGES", "CASAD"}},
    {"GANANCIALES", {"GANANCIAL"}},
    {"SEPARACION DE BIENES", {"SEPARACION DE BIENES"}},
    {"PARTICIPACION", {"PARTICIPACION"}},
};

class EstadoCivil : public testing::Test {
  protected:
    TVocabularioDePrueba vocabulario_{SECCIONES};
};

TEST_F(EstadoCivil, BuscaEstadoCivil) {
    struct TCaso {
        std::string_view Texto;
        int Estado;
        std::string_view EstadoLeido;
        int Regimen;
        std::string_view RegimenLeido;
    };
    const std::vector<TCaso> casos = {
        {"", 0, "", 0, ""},
        {"mayor de edad, vecina de Lugo", 0, "", 0, ""},
        {"mayor de edad, soltera", 5, "solter", 0, ""},
        {"viudo", 6, "viud", 0, ""},
        {"pareja de hecho", 7, "pareja de hecho", 0, ""},
        {"separada", 4, "separada", 0, ""},
        {"divorciado", 3, "divorciad", 0, ""},
        {"casado", 1, "casad", 4, ""},
        {"cónyuges"_a, 1, "cónyuges"_a, 4, ""},
        {"casado en régimen de separación de bienes"_a, 1, "casad", 2, "separación de bienes"_a},
        {"casados en gananciales", 1, "casad", 1, "ganancial"},
        {"casados en participación"_a, 1, "casad", 3, "participación"_a},
        // The order of the sections, not of the text.
        {"viuda, casada en segundas nupcias en gananciales", 2, "segundas nupcias", 1, "ganancial"},
        {"casado en segundas nupcias", 2, "segundas nupcias", 4, ""},
        {"casado en la actualidad, divorciado de su anterior matrimonio", 3, "divorciad", 0, ""},
        {"viuda y soltera", 5, "solter", 0, ""},
        {"pareja de hecho, viuda", 6, "viud", 0, ""},
        {"separado, en pareja de hecho", 7, "pareja de hecho", 0, ""},
        {"casada, separada de hecho", 4, "separada", 0, ""},
        {"soltero, divorciado", 3, "divorciad", 0, ""},
        // Within a section the order of its entries.
        {"casados, los conyuges", 1, "conyuges", 4, ""},
        // The regime is asked of the married alone.
        {"soltera, en gananciales", 5, "solter", 0, ""},
        {"separado, en gananciales", 4, "separado", 0, ""},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Texto);
        const TEstadoCivil hallado = BuscaEstadoCivil(caso.Texto);
        EXPECT_EQ(hallado.Estado.Valor, caso.Estado);
        EXPECT_EQ(EnTramo(caso.Texto, hallado.Estado.Donde), caso.EstadoLeido);
        EXPECT_EQ(hallado.Regimen.Valor, caso.Regimen);
        EXPECT_EQ(EnTramo(caso.Texto, hallado.Regimen.Donde), caso.RegimenLeido);
    }
}

TEST_F(EstadoCivil, BuscaRegimenMatrimonial) {
    struct TCaso {
        std::string_view Texto;
        int Regimen;
        std::string_view Leido;
    };
    const std::vector<TCaso> casos = {
        {"", 4, ""},
        {"régimen legal"_a, 4, ""},
        {"Gananciales", 1, "Ganancial"},
        {"separación de bienes"_a, 2, "separación de bienes"_a},
        {"participación"_a, 3, "participación"_a},
        // The order of the sections, not of the text.
        {"separación de bienes, antes gananciales"_a, 1, "ganancial"},
        {"participación, antes separación de bienes"_a, 2, "separación de bienes"_a},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Texto);
        const THallazgo<int> hallado = BuscaRegimenMatrimonial(caso.Texto);
        EXPECT_EQ(hallado.Valor, caso.Regimen);
        EXPECT_EQ(EnTramo(caso.Texto, hallado.Donde), caso.Leido);
    }
}

}  // namespace

}  // namespace analizador

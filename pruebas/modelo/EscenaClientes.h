#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>

#include "modelo/ListaOtorgantes.h"
#include "pruebas/comun/ConfigDePrueba.h"
#include "pruebas/comun/TablasDePrueba.h"
#include "pruebas/comun/VocabularioDePrueba.h"

namespace analizador {

// One line for each field, for the reports of failed comparisons.
void PrintTo(const TROtorgante& otorgante, std::ostream* salida);

// An office in Madrid with words, first names, municipalities and countries enough for the paragraphs of the
// tests.
class EscenaClientes : public testing::Test {
  protected:
    EscenaClientes();

    // The words in which each field was read, by the field's name; they must all be of paragraph `numero`.
    static std::map<std::string, std::string> Leido(std::string_view parrafo, const TOrigenes& origenes,
                                                    int numero);

    TVocabularioDePrueba vocabulario_;
    TTablasDePrueba tablas_;
    InstalaTablas instalaTablas_{tablas_};
    TListaOtorgantes lista_;
};

}  // namespace analizador

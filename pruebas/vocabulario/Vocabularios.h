#pragma once

// The two vocabulary files as they ship, for the tests on them.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "plataforma/FicheroIni.h"

namespace analizador::vocabulario {

struct Vocabulario {
    std::string Fichero;  // its name: CASTELLANO.INI
    bool Catalan = false;
    std::string Bytes;
    TFicheroIni Ini;
};

// Castilian, then Catalan; read once. A file that is not there has no bytes.
[[nodiscard]] const std::vector<Vocabulario>& Vocabularios();
[[nodiscard]] const Vocabulario& Castellano();
[[nodiscard]] const Vocabulario& Catalan();

// The sections that the analysis reads, in the files' order.
[[nodiscard]] const std::vector<std::string_view>& SeccionesLeidas();

// Where a section's list holds the entry, from 0; -1 when it does not.
[[nodiscard]] int Posicion(const Vocabulario& vocabulario, std::string_view seccion,
                           std::string_view entrada);

// "CASTELLANO.INI [NIF] D.N.I" in UTF-8, to begin the message of a failure.
[[nodiscard]] std::string Sitio(const Vocabulario& vocabulario, std::string_view seccion,
                                std::string_view entrada = {});

// A suite run once for each file.
class EnCadaVocabulario : public testing::TestWithParam<int> {
  protected:
    [[nodiscard]] static const Vocabulario& Actual() {
        return Vocabularios().at(static_cast<std::size_t>(GetParam()));
    }
};

[[nodiscard]] inline std::string NombreDeCaso(const testing::TestParamInfo<int>& caso) {
    return caso.param == 0 ? "Castellano" : "Catalan";
}

}  // namespace analizador::vocabulario

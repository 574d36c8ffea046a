#pragma once

#include <filesystem>
#include <string>

#include "programas/analiza/AnalisisEscritura.h"

namespace analizador {

struct TPedidoJson {
    bool Origen = false;    // adds where each fact was read, under "Origen"
    bool Revisado = false;  // adds whether the user accepted, and the concepts accepted
    std::string Huella{};   // adds the mark of the deed's content under "huella"; empty: does not
};

// The analysis of a file as one line of JSON (UTF-8, without the line end): its results, or only the file and
// the error.
[[nodiscard]] std::string LineaJson(const std::filesystem::path& fichero, const TAnalisisEscritura& analisis,
                                    const TPedidoJson& pedido = {});

// The line of a file that could not be analysed.
[[nodiscard]] std::string LineaJsonError(const std::filesystem::path& fichero, const std::string& error);

// A line with the same keys and nothing found, a concept and a party without facts in their lists: what keys
// there are and of which shape.
[[nodiscard]] std::string LineaJsonModelo();

}  // namespace analizador

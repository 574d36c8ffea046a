#pragma once

// Deeds made by chance, for the tests that need more of them, or longer ones, than the examples: Castilian or
// Catalan, worded as the offices word them, with the slips that they make. Nobody in them exists.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "plataforma/VrkWord.h"

namespace analizador::pruebas {

inline constexpr std::string_view VARIABLE_EMPLEADO = "EMPLEADO";
inline constexpr std::string_view EMPLEADO = "MGR";

// The deed of a seed: its paragraphs, Windows-1252, without their ends. The same seed gives the same deed on
// every machine. `parrafos`: how many paragraphs it has at least (one in twenty of those added names
// parties); 0 leaves the length to chance (25 to 70 or so).
[[nodiscard]] std::vector<std::string> GeneraEscritura(std::uint32_t semilla, std::size_t parrafos = 0);

// The deed as a document in memory: a bookmark FINCA_1, FINCA_2... over each paragraph that describes an
// estate, its end left out, and its variable.
[[nodiscard]] TContenidoDocumento ContenidoDe(const std::vector<std::string>& parrafos);

// The deed with other slips, those of the seed: characters doubled, lost or replaced, paragraphs moved.
[[nodiscard]] std::vector<std::string> Descuidada(std::vector<std::string> parrafos, std::uint32_t semilla);

// The deed with some of those words (a vocabulary's, say) strewn over its paragraphs, anywhere in them.
[[nodiscard]] std::vector<std::string> Salpicada(std::vector<std::string> parrafos, std::uint32_t semilla,
                                                 const std::vector<std::string>& palabras);

// Whether the paragraph describes an estate.
[[nodiscard]] bool DescribeFinca(std::string_view parrafo);

}  // namespace analizador::pruebas

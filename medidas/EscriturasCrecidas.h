#pragma once

// Deeds made many times as long as an example, each in a way of its own, so that every stage gets more to do.
// `veces`: 1 or more. Texts as TContenidoDocumento has them.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "analizador/ClaseAnalizadorAbierto.h"

namespace analizador {

// An example and what its analysis says of it.
struct TEscrituraEjemplo {
    std::string Texto;
    std::vector<std::string> Nombres;     // of its parties, as the text has them, without repetition
    std::vector<std::size_t> Principios;  // of its sections, in their order; the first is 0
};

// Analyses the text. Throws as the analysis does.
[[nodiscard]] TEscrituraEjemplo Ejemplo(std::string texto);

// The whole deed time and again.
[[nodiscard]] std::string EscrituraRepetida(const TEscrituraEjemplo& ejemplo, int veces);

// Each paragraph that many times where it stands, so that every section grows.
[[nodiscard]] std::string ParrafosRepetidos(const TEscrituraEjemplo& ejemplo, int veces);

// The same with other parties in every copy.
[[nodiscard]] std::string OtorgantesDistintos(const TEscrituraEjemplo& ejemplo, int veces);

// The whole deed time and again in one paragraph, where no section has a heading.
[[nodiscard]] std::string UnSoloParrafo(const TEscrituraEjemplo& ejemplo, int veces);

// One paragraph for each section, which holds the section time and again.
[[nodiscard]] std::string UnParrafoPorSeccion(const TEscrituraEjemplo& ejemplo, int veces);

// ---- Deeds of nothing but what costs most

// A sale of so many parties who appear, each for a company, all of them named in the transfer's paragraph.
[[nodiscard]] std::string EscrituraDeOtorgantes(int otorgantes);

// One paragraph with every entry of the vocabulary, so many times.
[[nodiscard]] std::string SoloPalabras(const std::filesystem::path& vocabulario, int veces);

}  // namespace analizador

#pragma once

// Documents spoiled in every way that a deed's file may be, by accident or on purpose.

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "pruebas/ataques/Azar.h"
#include "pruebas/docx/ConstruyeDocx.h"

namespace analizador::pruebas {

using TPartes = std::vector<TParte>;

// A way of spoiling a sound document: given its parts, the bytes of a file.
struct TClaseMutacion {
    const char* Nombre;
    std::string (*Haz)(TPartes partes, TAzar& azar);
};

// The ways, by what they spoil: the file's bytes, the archive's parts, the XML inside.
[[nodiscard]] const std::vector<TClaseMutacion>& MutacionesDeBytes();
[[nodiscard]] const std::vector<TClaseMutacion>& MutacionesDePartes();
[[nodiscard]] const std::vector<TClaseMutacion>& MutacionesDeXml();

struct TMutacion {
    std::string Nombre;                  // the way and the sound document
    std::function<std::string()> Bytes;  // makes the file's content; valid as long as the sound documents
};

// Mutation number `numero` (any) of these sound documents: always the same for the same number. The ways take
// turns.
[[nodiscard]] TMutacion Muta(const std::vector<std::pair<std::string, TPartes>>& semillas,
                             std::uint64_t numero);

// The content of a part, to be changed; that of the first part when there is none of the name.
[[nodiscard]] std::string& Parte(TPartes& partes, std::string_view nombre);

constexpr std::string_view PRINCIPAL = "word/document.xml";

}  // namespace analizador::pruebas

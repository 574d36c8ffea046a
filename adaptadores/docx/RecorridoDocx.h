#pragma once

#include <cstdint>
#include <pugixml.hpp>
#include <vector>

#include "adaptadores/docx/EstilosDocx.h"

namespace analizador {

enum class TipoSuceso : std::uint8_t {
    Texto,       // Nodo: a text node; [Desde, Hasta): the bytes of its value that count
    Caracter,    // Nodo: an element of a run that stands for `Caracter`
    FinParrafo,  // Nodo: the paragraph
    InicioFila,
    FinFila,
    InicioCelda,
    FinCelda,
    FinCuerpo,
    InicioCampo,  // a field's code begins,
    MedioCampo,   // its result begins,
    FinCampo,     // and ends
    InicioMarcador,
    FinMarcador,
};

// What stands in the main story, in document order. Only its marks and texts that are Visible count in the
// text: others are deleted or hidden. (Fields hide more: see Compone.)
struct TSuceso {
    pugi::xml_node Nodo;
    std::uint32_t Desde = 0;
    std::uint32_t Hasta = 0;
    char16_t Caracter = 0;
    TipoSuceso Tipo = TipoSuceso::Texto;
    bool Visible = true;
};

// The whole body of a document whose root is `raiz`. Nodes belong to its tree, which must outlive the answer.
[[nodiscard]] std::vector<TSuceso> RecorreDocumento(pugi::xml_node raiz, const TEstilosDocx& estilos);

}  // namespace analizador

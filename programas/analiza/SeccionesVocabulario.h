#pragma once

#include <span>
#include <string_view>

namespace analizador {

// Which entry of a section counts when several are in the text.
enum class TModoSeccion {
    Titulo,            // each one at its first occurrence, at the start of a paragraph; the earliest of them
    PrimeraDeLaLista,  // the first entry that occurs at all, wherever it stands
    PrimeraPalabra,    // the same, as a whole word of the document
    MasALaIzquierda,   // the entry that begins first; of two at one place the first of the list
    Tratamiento,       // the same, between blanks, again and again through the text
    UltimasMasALaIzquierda,  // each one at its last occurrence; the leftmost of those
    BastaUna,                // that one occurs is all that matters
    TodasPorPosicion,        // every mention, as they stand in the text
    TodasPorLista,           // every mention, each time the first entry of the list that is left in the text
    PalabraIgual             // whole words of the text, without their signs, equal to an entry
};

// How a section of the token files is searched.
struct TSeccionVocabulario {
    std::string_view Nombre;
    TModoSeccion Modo = TModoSeccion::MasALaIzquierda;
    bool DentroDePalabra = true;  // its entries are found inside longer words too
    bool SaltaUno = false;        // the character behind the entry is taken for a separator and lost
    // Sections with one group are searched together, in the order of the table, and only one of them wins.
    // Empty: searched by itself.
    std::string_view Grupo;
    std::string_view Para;  // what it is for, in Castilian (UTF-8)
};

// All sections that the program reads, in the order of the token files.
[[nodiscard]] std::span<const TSeccionVocabulario> SeccionesVocabulario();

// The section of that name, whatever its case; nullptr when the program reads none such.
[[nodiscard]] const TSeccionVocabulario* SeccionVocabulario(std::string_view nombre);

// The mode in a few words of Castilian (UTF-8).
[[nodiscard]] std::string_view TextoDeModo(TModoSeccion modo);

}  // namespace analizador

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace analizador {

// Positions in well-formed XML text, for changing it in place. All are byte offsets; npos never comes out for
// XML that a parser accepted.

// Where a piece of markup that begins at `inicio` ("<") ends: one after its ">". Knows tags, comments, CDATA
// sections and processing instructions.
[[nodiscard]] std::size_t FinDeEtiqueta(std::string_view xml, std::size_t inicio);

// An element: start tag [Inicio, FinApertura), end tag [Cierre, Fin). Of an empty element written as one
// tag, FinApertura, Cierre and Fin are equal.
struct TElementoXml {
    std::size_t Inicio = 0;
    std::size_t FinApertura = 0;
    std::size_t Cierre = 0;
    std::size_t Fin = 0;
    bool operator==(const TElementoXml&) const = default;
    [[nodiscard]] bool EnUnaEtiqueta() const { return FinApertura == Fin; }
};

// The element whose start tag begins at `inicio`.
[[nodiscard]] TElementoXml ElementoEn(std::string_view xml, std::size_t inicio);

// The name, prefix included, in a start tag.
[[nodiscard]] std::string_view NombreEnEtiqueta(std::string_view etiqueta);

// The start tag with xml:space="preserve", in place of another value of xml:space.
[[nodiscard]] std::string ConBlancosPreservados(std::string_view etiqueta);

// Where, in the text that begins at `inicio`, the character begins that comes after `unidades` UTF-16 units:
// references and line ends count as the character they stand for. In a CDATA section there are no references.
[[nodiscard]] std::size_t PosicionTrasUnidades(std::string_view xml, std::size_t inicio, int unidades,
                                               bool esCdata);

// A text as the value of an attribute between double quotes.
[[nodiscard]] std::string EscapaAtributo(std::string_view texto);

}  // namespace analizador

#pragma once

#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace analizador {

// A parsed part, with namespaces resolved into names, so that the rest of the reader compares plain strings
// whatever prefixes the file uses. Elements and attributes are named
//
//   p, val        what belongs to the document format itself (transitional or strict, and the package's
//                 own parts), and attributes without a prefix
//   +Choice       markup compatibility; a Choice that must not be chosen is ?Choice
//   #oMath        mathematics
//   ?name         everything else
//
// (xml:space and the xmlns declarations keep their names.) Character references are expanded, entities
// never.
class TArbolXml {
  public:
    // `xml` is UTF-8 and is copied; `parte` names the part in messages. Throws FalloDocx for XML that is not
    // well formed, declares a document type, or is nested or crowded beyond reason.
    TArbolXml(std::string_view xml, const std::string& parte);
    TArbolXml(const TArbolXml&) = delete;  // nodes point into the buffer
    TArbolXml& operator=(const TArbolXml&) = delete;

    [[nodiscard]] pugi::xml_node Raiz() const { return Documento.document_element(); }

    // The namespace of the root element, as the part spells it.
    [[nodiscard]] const std::string& EspacioRaiz() const { return Espacio; }

  private:
    std::vector<char> Memoria;
    pugi::xml_document Documento;
    std::string Espacio;
};

// The position of an element's "<" in the XML that the tree was made from. Throws FalloDocx when it is not
// known: the element belongs to another namespace than the format's and is written without prefix.
[[nodiscard]] std::size_t PosicionDeEtiqueta(pugi::xml_node elemento);

// The position in the XML of a text node's first character. Throws FalloDocx likewise.
[[nodiscard]] std::size_t PosicionDeTexto(pugi::xml_node texto);

// What an on/off element says: true without a value; `siFalta` when there is no element.
[[nodiscard]] bool EstaActivo(pugi::xml_node interruptor, bool siFalta = false);

// The branch of +AlternateContent that is read: the first +Choice, else +Fallback; null without either.
[[nodiscard]] pugi::xml_node RamaElegida(pugi::xml_node alternativa);

// The node after `nodo` in document order within `raiz`; null after the last.
[[nodiscard]] pugi::xml_node NodoSiguiente(pugi::xml_node nodo, pugi::xml_node raiz);

}  // namespace analizador

#include "adaptadores/docx/ArbolXml.h"

#include <algorithm>
#include <cstddef>
#include <new>

#include "adaptadores/docx/EspaciosXml.h"
#include "adaptadores/docx/FalloDocx.h"

namespace analizador {

namespace {

// What a part takes in memory once read: its text twice, and an element or an attribute, however short they
// are written, so many bytes with what the reader notes down of them.
constexpr std::size_t MEMORIA_MAXIMA = 320ULL * 1024 * 1024;
constexpr std::size_t POR_ELEMENTO = 136;
constexpr std::size_t POR_ATRIBUTO = 40;

constexpr unsigned LECTURA = pugi::parse_escapes | pugi::parse_eol | pugi::parse_ws_pcdata |
                             pugi::parse_cdata | pugi::parse_wconv_attribute | pugi::parse_doctype;

[[noreturn]] void Rehusa(const std::string& parte, std::string_view causa) {
    throw FalloDocx("la parte " + NombreCitado(parte) + " " + std::string(causa));
}

// No less than it will take: what only looks like an element or an attribute counts too.
std::size_t MemoriaPrevista(std::string_view xml) {
    std::size_t memoria = 2 * xml.size();
    for (std::size_t i = 0; i + 1 < xml.size(); ++i) {
        if (xml[i] == '<' && xml[i + 1] != '/') memoria += POR_ELEMENTO;
        if (xml[i] == '=' && (xml[i + 1] == '"' || xml[i + 1] == '\'')) memoria += POR_ATRIBUTO;
    }
    return memoria;
}

bool DeclaraTipo(const pugi::xml_document& documento) {
    return std::ranges::any_of(documento.children(),
                               [](pugi::xml_node nodo) { return nodo.type() == pugi::node_doctype; });
}

std::size_t ExigePosicion(std::ptrdiff_t posicion) {
    if (posicion <= 0) throw FalloDocx("su XML está escrito de un modo en que no se puede cambiar");
    return static_cast<std::size_t>(posicion);
}

}  // namespace

TArbolXml::TArbolXml(std::string_view xml, const std::string& parte) : Memoria(xml.begin(), xml.end()) {
    if (MemoriaPrevista(xml) > MEMORIA_MAXIMA) Rehusa(parte, "tiene demasiados elementos");
    const auto resultado =
        Documento.load_buffer_inplace(Memoria.data(), Memoria.size(), LECTURA, pugi::encoding_utf8);
    if (resultado.status == pugi::status_out_of_memory) throw std::bad_alloc();
    if (!resultado) Rehusa(parte, "no es XML bien formado");
    if (DeclaraTipo(Documento)) Rehusa(parte, "declara un tipo de documento (DTD), que no se admite");
    try {
        Espacio = NormalizaNombres(Raiz());
    } catch (const FalloDocx& fallo) {
        Rehusa(parte, fallo.what());
    }
}

std::size_t PosicionDeEtiqueta(pugi::xml_node elemento) {
    return ExigePosicion(elemento.offset_debug()) - 1;  // the name follows the "<"
}

std::size_t PosicionDeTexto(pugi::xml_node texto) {
    return ExigePosicion(texto.offset_debug());
}

bool EstaActivo(pugi::xml_node interruptor, bool siFalta) {
    if (!interruptor) return siFalta;
    const auto valor = interruptor.attribute("val");
    if (!valor) return true;
    const std::string_view texto = valor.value();
    return texto != "0" && texto != "false" && texto != "off";
}

pugi::xml_node RamaElegida(pugi::xml_node alternativa) {
    if (const auto rama = alternativa.child("+Choice")) return rama;
    return alternativa.child("+Fallback");
}

pugi::xml_node NodoSiguiente(pugi::xml_node nodo, pugi::xml_node raiz) {
    if (const auto hijo = nodo.first_child()) return hijo;
    while (nodo && nodo != raiz) {
        if (const auto hermano = nodo.next_sibling()) return hermano;
        nodo = nodo.parent();
    }
    return {};
}

}  // namespace analizador

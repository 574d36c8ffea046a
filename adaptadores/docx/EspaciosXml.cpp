#include "adaptadores/docx/EspaciosXml.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "adaptadores/docx/FalloDocx.h"

namespace analizador {

namespace {

constexpr std::size_t ANIDAMIENTO_MAXIMO = 256;
constexpr std::size_t DECLARACIONES_MAXIMAS = 512;

// What a name begins with once its namespace is known; PROPIO: nothing.
constexpr char PROPIO = '\0';
constexpr char COMPATIBILIDAD = '+';
constexpr char MATEMATICAS = '#';
constexpr char AJENO = '?';

struct TEspacioConocido {
    std::string_view Uri;
    char Clase;
};

constexpr std::array<TEspacioConocido, 7> CONOCIDOS = {{
    {"http://schemas.openxmlformats.org/wordprocessingml/2006/main", PROPIO},
    {"http://purl.oclc.org/ooxml/wordprocessingml/main", PROPIO},
    {"http://schemas.openxmlformats.org/package/2006/relationships", PROPIO},
    {"http://schemas.openxmlformats.org/package/2006/content-types", PROPIO},
    {"http://schemas.openxmlformats.org/markup-compatibility/2006", COMPATIBILIDAD},
    {"http://schemas.openxmlformats.org/officeDocument/2006/math", MATEMATICAS},
    {"http://purl.oclc.org/ooxml/officeDocument/math", MATEMATICAS},
}};

// Extensions whose branch of alternate content is taken: all they add is drawings, which are no text, and
// attributes. Not among them the extended symbols, whose other branch has the character itself.
constexpr std::array<std::string_view, 12> ENTENDIDOS = {
    "http://schemas.microsoft.com/office/word/2010/wordprocessingShape",
    "http://schemas.microsoft.com/office/word/2010/wordprocessingGroup",
    "http://schemas.microsoft.com/office/word/2010/wordprocessingCanvas",
    "http://schemas.microsoft.com/office/word/2010/wordprocessingInk",
    "http://schemas.microsoft.com/office/word/2010/wordprocessingDrawing",
    "http://schemas.microsoft.com/office/word/2010/wordml",
    "http://schemas.microsoft.com/office/word/2012/wordml",
    "http://schemas.openxmlformats.org/drawingml/2006/main",
    "http://schemas.openxmlformats.org/drawingml/2006/wordprocessingDrawing",
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships",
    "urn:schemas-microsoft-com:vml",
    "urn:schemas-microsoft-com:office:office",
};

char ClaseDeUri(std::string_view uri) {
    for (const auto& conocido : CONOCIDOS)
        if (conocido.Uri == uri) return conocido.Clase;
    return AJENO;
}

struct TDeclaracion {
    std::string_view Prefijo;
    std::string_view Uri;
    char Clase;
};

struct TNombrePartido {
    std::string_view Prefijo;
    std::string_view Local;
};

TNombrePartido Parte(std::string_view nombre) {
    const auto dos = nombre.find(':');
    if (dos == std::string_view::npos) return {{}, nombre};
    return {nombre.substr(0, dos), nombre.substr(dos + 1)};
}

class TNormalizador {
  public:
    std::string Normaliza(pugi::xml_node raiz) {
        Entra(raiz);
        const std::string espacio(UriDe(Parte(raiz.name()).Prefijo));
        for (auto nodo = raiz; nodo;) {
            Renombra(nodo);
            nodo = Avanza(nodo, raiz);
        }
        return espacio;
    }

  private:
    // The next element in document order; opens and closes the scopes passed on the way.
    pugi::xml_node Avanza(pugi::xml_node nodo, pugi::xml_node raiz) {
        if (const auto hijo = Elemento(nodo.first_child())) return Entra(hijo), hijo;
        while (nodo != raiz) {
            Sale();
            if (const auto hermano = Elemento(nodo.next_sibling())) return Entra(hermano), hermano;
            nodo = nodo.parent();
        }
        return {};
    }

    static pugi::xml_node Elemento(pugi::xml_node nodo) {
        while (nodo && nodo.type() != pugi::node_element) nodo = nodo.next_sibling();
        return nodo;
    }

    void Sale() {
        if (Declaraciones.size() != Ambitos.back()) Ultima.reset();
        Declaraciones.resize(Ambitos.back());
        Ambitos.pop_back();
    }

    void Entra(pugi::xml_node nodo) {
        Ambitos.push_back(Declaraciones.size());
        if (Ambitos.size() > ANIDAMIENTO_MAXIMO) throw FalloDocx("tiene elementos anidados en exceso");
        for (const auto atributo : nodo.attributes()) {
            const std::string_view nombre = atributo.name();
            const std::string_view uri = atributo.value();
            if (nombre == "xmlns") Declaraciones.push_back({{}, uri, ClaseDeUri(uri)});
            if (nombre.starts_with("xmlns:"))
                Declaraciones.push_back({nombre.substr(6), uri, ClaseDeUri(uri)});
        }
        if (Declaraciones.size() > DECLARACIONES_MAXIMAS)
            throw FalloDocx("declara espacios de nombres en exceso");
        if (Declaraciones.size() != Ambitos.back()) Ultima.reset();
    }

    // Nearly all names have the prefix of the one before.
    [[nodiscard]] const TDeclaracion* Busca(std::string_view prefijo) {
        if (Ultima && Declaraciones[*Ultima].Prefijo == prefijo) return &Declaraciones[*Ultima];
        for (std::size_t i = Declaraciones.size(); i-- > 0;)
            if (Declaraciones[i].Prefijo == prefijo) {
                Ultima = i;
                return &Declaraciones[i];
            }
        return nullptr;
    }

    [[nodiscard]] std::string_view UriDe(std::string_view prefijo) {
        const auto* declaracion = Busca(prefijo);
        return declaracion != nullptr ? declaracion->Uri : std::string_view();
    }

    [[nodiscard]] char ClaseDe(std::string_view prefijo) {
        const auto* declaracion = Busca(prefijo);
        return declaracion != nullptr ? declaracion->Clase : AJENO;
    }

    // A branch may be chosen when all the extensions that it requires are understood.
    [[nodiscard]] bool EsEntendido(std::string_view prefijos) {
        while (!prefijos.empty()) {
            const auto prefijo = prefijos.substr(0, prefijos.find_first_of(" \t\r\n"));
            prefijos.remove_prefix(std::min(prefijos.size(), prefijo.size() + 1));
            if (prefijo.empty()) continue;
            const auto uri = UriDe(prefijo);
            const bool entendido =
                ClaseDeUri(uri) != AJENO || std::ranges::find(ENTENDIDOS, uri) != ENTENDIDOS.end();
            if (!entendido) return false;
        }
        return true;
    }

    void Renombra(pugi::xml_node nodo) {
        const auto [prefijo, local] = Parte(nodo.name());
        char clase = ClaseDe(prefijo);
        if (clase == COMPATIBILIDAD && local == "Choice" && !EsEntendido(nodo.attribute("Requires").value()))
            clase = AJENO;
        PonNombre(nodo, clase, local);
        for (const auto atributo : nodo.attributes()) RenombraAtributo(atributo);
    }

    void RenombraAtributo(pugi::xml_attribute atributo) {
        const auto [prefijo, local] = Parte(atributo.name());
        if (prefijo.empty() || prefijo == "xml" || prefijo == "xmlns") return;
        PonNombre(atributo, ClaseDe(prefijo), local);
    }

    template <typename TNombrado>
    void PonNombre(TNombrado nombrado, char clase, std::string_view local) {
        Nombre.clear();
        if (clase != PROPIO) Nombre += clase;
        Nombre += local;
        if (Nombre != nombrado.name()) nombrado.set_name(Nombre.c_str());
    }

    std::vector<TDeclaracion> Declaraciones;
    std::vector<std::size_t> Ambitos;   // number of declarations in force before each open element
    std::optional<std::size_t> Ultima;  // the declaration found last, as long as the same ones are in force
    std::string Nombre;
};

}  // namespace

std::string NormalizaNombres(pugi::xml_node raiz) {
    return TNormalizador().Normaliza(raiz);
}

}  // namespace analizador

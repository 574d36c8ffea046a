#include "adaptadores/docx/EstilosDocx.h"

#include <optional>
#include <vector>

#include "adaptadores/docx/ArbolXml.h"

namespace analizador {

namespace {

struct TEstiloLeido {
    std::optional<bool> Propio;
    std::string_view Base;
};

using TEstilosLeidos = std::unordered_map<std::string_view, TEstiloLeido>;

// Settles a style and those it is based on. In a loop of styles nobody hides.
void Resuelve(std::string_view id, const TEstilosLeidos& leidos,
              std::unordered_map<std::string, bool>& ocultas) {
    std::vector<std::string> cadena;
    bool valor = false;
    for (auto it = leidos.find(id); it != leidos.end(); it = leidos.find(it->second.Base)) {
        const auto [resuelto, nuevo] = ocultas.try_emplace(std::string(it->first), false);
        if (!nuevo) {
            valor = resuelto->second;
            break;
        }
        cadena.emplace_back(it->first);
        if (it->second.Propio) {
            valor = *it->second.Propio;
            break;
        }
    }
    for (const auto& estilo : cadena) ocultas[estilo] = valor;
}

}  // namespace

void TEstilosDocx::TFamilia::Lee(pugi::xml_node raiz, std::string_view tipo) {
    TEstilosLeidos leidos;
    std::string_view defecto;
    for (const auto estilo : raiz.children("style")) {
        const auto claseDeEstilo = estilo.attribute("type");
        const std::string_view suTipo = claseDeEstilo ? claseDeEstilo.value() : "paragraph";
        if (suTipo != tipo) continue;
        const std::string_view id = estilo.attribute("styleId").value();
        TEstiloLeido leido;
        if (const auto oculto = estilo.child("rPr").child("vanish")) leido.Propio = EstaActivo(oculto);
        leido.Base = estilo.child("basedOn").attribute("val").value();
        leidos.try_emplace(id, leido);
        const std::string_view marca = estilo.attribute("default").value();
        if (marca == "1" || marca == "true" || marca == "on") defecto = id;
    }
    for (const auto& [id, leido] : leidos) Resuelve(id, leidos, Ocultas);
    PorDefecto = Oculta(defecto);
}

bool TEstilosDocx::TFamilia::Oculta(std::string_view id) const {
    if (id.empty()) return PorDefecto;
    const auto it = Ocultas.find(std::string(id));
    return it != Ocultas.end() ? it->second : PorDefecto;
}

TEstilosDocx::TEstilosDocx(pugi::xml_node raiz) {
    Siempre = EstaActivo(raiz.child("docDefaults").child("rPrDefault").child("rPr").child("vanish"));
    Tablas.Lee(raiz, "table");
    Parrafos.Lee(raiz, "paragraph");
    Caracteres.Lee(raiz, "character");
}

bool TEstilosDocx::EsOculto(pugi::xml_node propiedades, bool tabla, bool parrafo) const {
    if (const auto directo = propiedades.child("vanish")) return EstaActivo(directo);
    const bool caracter = OcultaCaracter(propiedades.child("rStyle").attribute("val").value());
    return Siempre || ((tabla != parrafo) != caracter);
}

}  // namespace analizador

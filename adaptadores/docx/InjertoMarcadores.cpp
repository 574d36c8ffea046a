#include "adaptadores/docx/InjertoMarcadores.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <limits>
#include <map>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <unordered_set>

#include "adaptadores/docx/EtiquetasXml.h"
#include "adaptadores/docx/FalloDocx.h"
#include "adaptadores/docx/PuntosInsercion.h"
#include "plataforma/Ansi.h"

namespace analizador {

namespace {

// Identifiers that no mark of the part uses.
class TIdentificadores {
  public:
    explicit TIdentificadores(pugi::xml_node raiz) {
        for (auto nodo = raiz; nodo; nodo = NodoSiguiente(nodo, raiz)) Anota(nodo.attribute("id").value());
    }

    int Nuevo() {
        while (Usados.contains(Siguiente)) Siguiente = Siguiente == MAXIMO ? 0 : Siguiente + 1;
        Usados.insert(Siguiente);
        return Siguiente;
    }

  private:
    static constexpr int MAXIMO = std::numeric_limits<int>::max();

    void Anota(std::string_view texto) {
        int id = 0;
        const auto leido = std::from_chars(texto.data(), texto.data() + texto.size(), id);
        if (leido.ec != std::errc() || id < 0) return;
        Usados.insert(id);
        Siguiente = std::max(Siguiente, id);
    }

    std::unordered_set<int> Usados;
    int Siguiente = 1;
};

// The bookmarks' elements that bear one of `nombres` (upper case), starts and ends.
std::vector<pugi::xml_node> ElementosDe(const std::unordered_set<std::string>& nombres, pugi::xml_node raiz) {
    std::vector<pugi::xml_node> elementos;
    std::unordered_map<std::string_view, bool> abiertos;  // by identifier: whether it goes
    for (auto nodo = raiz; nodo; nodo = NodoSiguiente(nodo, raiz)) {
        const std::string_view clase = nodo.name();
        const std::string_view id = nodo.attribute("id").value();
        if (clase == "bookmarkStart") {
            const bool sobra = nombres.contains(AnsiUpperCase(AnsiDeUtf8(nodo.attribute("name").value())));
            abiertos[id] = sobra;
            if (sobra) elementos.push_back(nodo);
        } else if (clase == "bookmarkEnd") {
            const auto it = abiertos.find(id);
            if (it == abiertos.end()) continue;
            if (it->second) elementos.push_back(nodo);
            abiertos.erase(it);
        }
    }
    return elementos;
}

struct TAtributo {
    std::string_view Nombre;
    std::string Valor;
};

// An empty element of the format's namespace. Its attributes need a prefix, which has to be declared where
// the part itself uses none.
std::string ElementoVacio(const TPuntoInsercion& punto, const std::string& espacio, std::string_view local,
                          const std::vector<TAtributo>& atributos) {
    const std::string prefijo = punto.Prefijo.empty() ? "w:" : punto.Prefijo;
    std::string elemento = "<" + prefijo + std::string(local);
    if (punto.Prefijo.empty()) elemento += " xmlns:w=\"" + EscapaAtributo(espacio) + "\"";
    for (const auto& [nombre, valor] : atributos)
        elemento += " " + prefijo + std::string(nombre) + "=\"" + EscapaAtributo(valor) + "\"";
    return elemento + "/>";
}

// A start or an end to be written at some position.
struct TExtremo {
    const TMarcador* Marcador;
    int Id;
    bool EsFin;

    // Ends come before the starts of others; a bookmark of no length still begins before it ends.
    [[nodiscard]] int Turno() const {
        if (!EsFin) return 1;
        return Marcador->Intervalo.Inicio == Marcador->Intervalo.Fin ? 2 : 0;
    }
};

std::string XmlDeExtremo(const TExtremo& extremo, const TPuntoInsercion& punto, const std::string& espacio) {
    const TAtributo id{"id", std::to_string(extremo.Id)};
    if (extremo.EsFin) return ElementoVacio(punto, espacio, "bookmarkEnd", {id});
    return ElementoVacio(punto, espacio, "bookmarkStart",
                         {id, {"name", Utf8DeAnsi(extremo.Marcador->Nombre)}});
}

std::map<int, std::vector<TExtremo>> ExtremosPorPosicion(const std::vector<TMarcador>& marcadores,
                                                         pugi::xml_node raiz) {
    TIdentificadores identificadores(raiz);
    std::map<int, std::vector<TExtremo>> extremos;
    for (const auto& marcador : marcadores) {
        const int id = identificadores.Nuevo();
        extremos[marcador.Intervalo.Inicio].push_back({&marcador, id, false});
        extremos[marcador.Intervalo.Fin].push_back({&marcador, id, true});
    }
    for (auto& [posicion, juntos] : extremos) std::ranges::stable_sort(juntos, {}, &TExtremo::Turno);
    return extremos;
}

// Applies changes that do not overlap; equal ones, which two insertions may ask for, count once.
std::string Aplica(std::string_view xml, std::vector<TEdicion> ediciones) {
    std::ranges::stable_sort(ediciones, [](const TEdicion& a, const TEdicion& b) {
        return std::tie(a.Desde, a.Hasta) < std::tie(b.Desde, b.Hasta);
    });
    std::string nuevo;
    std::size_t copiado = 0;
    const TEdicion* anterior = nullptr;
    for (const auto& edicion : ediciones) {
        const bool repetida = anterior != nullptr && edicion.Desde < edicion.Hasta &&
                              edicion.Desde == anterior->Desde && edicion.Hasta == anterior->Hasta;
        if (repetida) continue;
        if (edicion.Desde < copiado) throw FalloDocx("los marcadores no se pueden añadir a su XML");
        nuevo += xml.substr(copiado, edicion.Desde - copiado);
        nuevo += edicion.Texto;
        copiado = edicion.Hasta;
        anterior = &edicion;
    }
    nuevo += xml.substr(copiado);
    return nuevo;
}

}  // namespace

std::string InjertaMarcadores(const TLecturaDocx& lectura, const std::vector<TMarcador>& marcadores) {
    const std::string_view xml = lectura.Principal.Utf8;
    const auto raiz = lectura.Arbol.Raiz();
    std::vector<TEdicion> ediciones;

    std::unordered_set<std::string> nombres;
    for (const auto& marcador : marcadores) nombres.insert(AnsiUpperCase(marcador.Nombre));
    for (const auto nodo : ElementosDe(nombres, raiz)) {
        const auto elemento = ElementoEn(xml, PosicionDeEtiqueta(nodo));
        ediciones.push_back({elemento.Inicio, elemento.Fin, ""});
    }

    for (const auto& [posicion, extremos] : ExtremosPorPosicion(marcadores, raiz)) {
        auto punto = PuntoDePosicion(lectura, posicion);
        std::string texto = punto.Antes;
        for (const auto& extremo : extremos)
            texto += XmlDeExtremo(extremo, punto, lectura.Arbol.EspacioRaiz());
        ediciones.push_back({punto.Posicion, punto.Posicion, texto + punto.Despues});
        std::ranges::move(punto.Otras, std::back_inserter(ediciones));
    }
    return Aplica(xml, std::move(ediciones));
}

}  // namespace analizador

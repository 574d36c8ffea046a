#include "adaptadores/docx/PuntosInsercion.h"

#include <algorithm>

#include "adaptadores/docx/EtiquetasXml.h"
#include "plataforma/Ansi.h"

namespace analizador {

namespace {

constexpr char16_t FIN_CELDA = 7;

bool EsTirada(pugi::xml_node nodo) {
    const std::string_view nombre = nodo.name();
    return nombre == "r" || nombre == "#r";
}

bool EsPropiedades(pugi::xml_node nodo) {
    const std::string_view nombre = nodo.name();
    return nombre == "rPr" || nombre == "#rPr";
}

// Where to insert in the XML of one reading.
class TBuscador {
  public:
    explicit TBuscador(const TLecturaDocx& lectura) : Lectura(lectura), Xml(lectura.Principal.Utf8) {}

    [[nodiscard]] TPuntoInsercion Busca(int posicion) const {
        const auto& fuentes = Lectura.Composicion.Fuentes;
        if (posicion >= static_cast<int>(Lectura.Composicion.Texto.size()))
            return AlFinalDelCuerpo(Lectura.Arbol.Raiz().child("body"));
        const auto siguiente = std::ranges::upper_bound(fuentes, posicion, {}, &TFuente::Inicio);
        const auto& fuente = *(siguiente - 1);
        const auto& suceso = Lectura.Sucesos[fuente.Suceso];
        switch (suceso.Tipo) {
            case TipoSuceso::Texto:
                return EnTexto(suceso, posicion - fuente.Inicio);
            case TipoSuceso::Caracter:
                return AnteElemento(suceso.Nodo);
            case TipoSuceso::InicioFila:
                return Ante(suceso.Nodo, suceso.Nodo.parent());
            case TipoSuceso::FinCuerpo:
                return AlFinalDelCuerpo(suceso.Nodo);
            default:
                return AlFinalDe(suceso.Nodo);
        }
    }

  private:
    [[nodiscard]] std::string_view Etiqueta(pugi::xml_node nodo) const {
        const auto inicio = PosicionDeEtiqueta(nodo);
        return Xml.substr(inicio, FinDeEtiqueta(Xml, inicio) - inicio);
    }

    // The prefix that the nearest element of the format's own namespace is written with.
    [[nodiscard]] std::string PrefijoEn(pugi::xml_node nodo) const {
        while (std::string_view("+#?").find(nodo.name()[0]) != std::string_view::npos) nodo = nodo.parent();
        const auto nombre = NombreEnEtiqueta(Etiqueta(nodo));
        const auto dos = nombre.find(':');
        return dos == std::string_view::npos ? std::string() : std::string(nombre.substr(0, dos + 1));
    }

    [[nodiscard]] TPuntoInsercion Ante(pugi::xml_node nodo, pugi::xml_node padre) const {
        TPuntoInsercion punto;
        punto.Posicion = PosicionDeEtiqueta(nodo);
        punto.Prefijo = PrefijoEn(padre);
        return punto;
    }

    // Just before the end tag; a paragraph written as one tag is opened.
    [[nodiscard]] TPuntoInsercion AlFinalDe(pugi::xml_node nodo) const {
        TPuntoInsercion punto;
        punto.Prefijo = PrefijoEn(nodo);
        const auto elemento = ElementoEn(Xml, PosicionDeEtiqueta(nodo));
        punto.Posicion = elemento.Cierre;
        if (!elemento.EnUnaEtiqueta()) return punto;
        const std::string nombre(NombreEnEtiqueta(Etiqueta(nodo)));
        punto.Otras.push_back({elemento.Fin - 2, elemento.Fin, ">"});
        punto.Despues = "</" + nombre + ">";
        return punto;
    }

    // The properties of the last section close the body.
    [[nodiscard]] TPuntoInsercion AlFinalDelCuerpo(pugi::xml_node cuerpo) const {
        const auto seccion = cuerpo.child("sectPr");
        return seccion ? Ante(seccion, cuerpo) : AlFinalDe(cuerpo);
    }

    // Before a child of a run, or of what a run holds.
    [[nodiscard]] TPuntoInsercion AnteElemento(pugi::xml_node nodo) const {
        const auto tirada = TiradaDe(nodo);
        if (EsLoPrimero(nodo, tirada)) return Ante(tirada, tirada.parent());
        auto punto = Ante(nodo, tirada.parent());
        Parte(punto, nodo.parent(), tirada);
        return punto;
    }

    [[nodiscard]] TPuntoInsercion EnTexto(const TSuceso& suceso, int unidades) const {
        const auto elemento = suceso.Nodo.parent();
        if (unidades == 0 && suceso.Nodo == elemento.first_child()) return AnteElemento(elemento);
        const bool esCdata = suceso.Nodo.type() == pugi::node_cdata;
        const auto comienzo = PosicionDeTexto(suceso.Nodo);
        const int sinContar = static_cast<int>(suceso.Desde);  // blanks, of one byte each
        TPuntoInsercion punto;
        punto.Posicion = PosicionTrasUnidades(Xml, comienzo, unidades + sinContar, esCdata);
        const auto tirada = TiradaDe(elemento);
        punto.Prefijo = PrefijoEn(tirada.parent());
        Parte(punto, elemento.parent(), tirada);
        ParteTexto(punto, elemento, esCdata);
        return punto;
    }

    static pugi::xml_node TiradaDe(pugi::xml_node nodo) {
        while (nodo && !EsTirada(nodo)) nodo = nodo.parent();
        return nodo;
    }

    // Nothing but properties stands before it in the run.
    static bool EsLoPrimero(pugi::xml_node nodo, pugi::xml_node tirada) {
        if (nodo.parent() != tirada) return false;
        for (auto otro = nodo.previous_sibling(); otro; otro = otro.previous_sibling())
            if (otro.type() == pugi::node_element && !EsPropiedades(otro)) return false;
        return true;
    }

    // Closes and opens again what is open from `interior` out to the run.
    void Parte(TPuntoInsercion& punto, pugi::xml_node interior, pugi::xml_node tirada) const {
        for (auto nodo = interior;; nodo = nodo.parent()) {
            const auto etiqueta = Etiqueta(nodo);
            punto.Antes += "</" + std::string(NombreEnEtiqueta(etiqueta)) + ">";
            if (nodo == tirada) break;
            punto.Despues.insert(0, etiqueta);
        }
        std::string comienzo(Etiqueta(tirada));
        for (const auto hijo : tirada.children())
            if (EsPropiedades(hijo)) comienzo += XmlDe(hijo);
        punto.Despues.insert(0, comienzo);
    }

    [[nodiscard]] std::string_view XmlDe(pugi::xml_node nodo) const {
        const auto elemento = ElementoEn(Xml, PosicionDeEtiqueta(nodo));
        return Xml.substr(elemento.Inicio, elemento.Fin - elemento.Inicio);
    }

    // The text itself. Blanks at the new ends now have to be preserved; those at the old ends, which did not
    // count, have to go.
    void ParteTexto(TPuntoInsercion& punto, pugi::xml_node texto, bool esCdata) const {
        const auto etiqueta = Etiqueta(texto);
        const auto nueva = ConBlancosPreservados(etiqueta);
        punto.Antes.insert(0, "</" + std::string(NombreEnEtiqueta(etiqueta)) + ">");
        punto.Despues += nueva;
        if (esCdata) {
            punto.Antes.insert(0, "]]>");
            punto.Despues += "<![CDATA[";
        }
        if (nueva == etiqueta) return;
        const auto inicio = PosicionDeEtiqueta(texto);
        punto.Otras.push_back({inicio, inicio + etiqueta.size(), nueva});
        QuitaBlancosSobrantes(punto, texto);
    }

    void QuitaBlancosSobrantes(TPuntoInsercion& punto, pugi::xml_node texto) const {
        for (const auto& suceso : Lectura.Sucesos) {
            if (suceso.Tipo != TipoSuceso::Texto || suceso.Nodo.parent() != texto) continue;
            const bool esCdata = suceso.Nodo.type() == pugi::node_cdata;
            const std::string_view valor = suceso.Nodo.value();
            const auto unidades = [](std::string_view trozo) {
                return static_cast<int>(Utf16DeUtf8(trozo).size());
            };
            const auto comienzo = PosicionDeTexto(suceso.Nodo);
            const auto tras = [&](std::size_t bytes) {
                return PosicionTrasUnidades(Xml, comienzo, unidades(valor.substr(0, bytes)), esCdata);
            };
            if (suceso.Desde > 0) punto.Otras.push_back({comienzo, tras(suceso.Desde), ""});
            if (suceso.Hasta < valor.size())
                punto.Otras.push_back({tras(suceso.Hasta), tras(valor.size()), ""});
        }
    }

    const TLecturaDocx& Lectura;
    std::string_view Xml;
};

bool EstaEntre(char16_t anterior, char16_t siguiente) {
    const bool enMarca = anterior == u'\r' && siguiente == FIN_CELDA;
    const bool enPareja =
        anterior >= 0xD800 && anterior <= 0xDBFF && siguiente >= 0xDC00 && siguiente <= 0xDFFF;
    return enMarca || enPareja;
}

}  // namespace

int PosicionPosible(const TComposicion& composicion, const std::vector<TSuceso>& sucesos, int posicion,
                    bool haciaDelante) {
    const auto& texto = composicion.Texto;
    const auto donde = static_cast<std::size_t>(posicion);
    if (donde == texto.size()) {
        const auto ultima = sucesos[composicion.Fuentes.back().Suceso].Tipo;
        return ultima == TipoSuceso::FinCuerpo ? posicion - 1 : posicion;
    }
    if (donde == 0 || !EstaEntre(texto[donde - 1], texto[donde])) return posicion;
    return haciaDelante ? posicion + 1 : posicion - 1;
}

TPuntoInsercion PuntoDePosicion(const TLecturaDocx& lectura, int posicion) {
    return TBuscador(lectura).Busca(posicion);
}

}  // namespace analizador

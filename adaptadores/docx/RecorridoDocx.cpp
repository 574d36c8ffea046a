#include "adaptadores/docx/RecorridoDocx.h"

#include <string_view>
#include <unordered_map>

#include "adaptadores/docx/ArbolXml.h"
#include "adaptadores/docx/SimbolosDocx.h"

namespace analizador {

namespace {

using namespace std::string_view_literals;

constexpr char16_t TABULADOR = 9;
constexpr char16_t SALTO_LINEA = 11;
constexpr char16_t SALTO_PAGINA = 12;
constexpr char16_t SALTO_COLUMNA = 14;
constexpr char16_t GUION_FIJO = 30;
constexpr char16_t GUION_OPCIONAL = 31;

constexpr auto BLANCOS = " \t\r\n"sv;

// What holds for an element from those around it.
struct TContexto {
    bool Fuera = false;          // deleted
    bool Oculto = false;         // in a hidden run
    bool EnTirada = false;       // in a run: where text may stand
    bool TablaOculta = false;    // the table's style hides
    bool ParrafoOculto = false;  // the paragraph's style hides
};

bool EstaBorrado(pugi::xml_node propiedades) {
    return propiedades.child("del") || propiedades.child("moveFrom");
}

char16_t CaracterDeSalto(pugi::xml_node salto) {
    const std::string_view tipo = salto.attribute("type").value();
    if (tipo == "page") return SALTO_PAGINA;
    return tipo == "column" ? SALTO_COLUMNA : SALTO_LINEA;
}

bool EsTexto(pugi::xml_node nodo) {
    return nodo.type() == pugi::node_pcdata || nodo.type() == pugi::node_cdata;
}

class TRecorrido {
  public:
    explicit TRecorrido(const TEstilosDocx& estilos) : Estilos(estilos) {}

    std::vector<TSuceso> Recorre(pugi::xml_node raiz) {
        const auto cuerpo = raiz.child("body");
        Hijos(cuerpo, {});
        Anota(TipoSuceso::FinCuerpo, cuerpo, true);
        return std::move(Sucesos);
    }

  private:
    using TAccion = void (TRecorrido::*)(pugi::xml_node, const TContexto&);

    static const std::unordered_map<std::string_view, TAccion>& Acciones() {
        static const std::unordered_map<std::string_view, TAccion> ACCIONES = {
            {"p", &TRecorrido::Parrafo},
            {"tbl", &TRecorrido::Tabla},
            {"tr", &TRecorrido::Fila},
            {"tc", &TRecorrido::Celda},
            {"r", &TRecorrido::Tirada},
            {"#r", &TRecorrido::Tirada},
            {"t", &TRecorrido::Texto},
            {"#t", &TRecorrido::Texto},
            {"tab", &TRecorrido::Caracter<TABULADOR>},
            {"ptab", &TRecorrido::Caracter<TABULADOR>},
            {"cr", &TRecorrido::Caracter<SALTO_LINEA>},
            {"noBreakHyphen", &TRecorrido::Caracter<GUION_FIJO>},
            {"softHyphen", &TRecorrido::Caracter<GUION_OPCIONAL>},
            {"br", &TRecorrido::Salto},
            {"sym", &TRecorrido::Simbolo},
            {"fldChar", &TRecorrido::Campo},
            {"bookmarkStart", &TRecorrido::Marca<TipoSuceso::InicioMarcador>},
            {"bookmarkEnd", &TRecorrido::Marca<TipoSuceso::FinMarcador>},
            {"del", &TRecorrido::Borrado},
            {"moveFrom", &TRecorrido::Borrado},
            {"ins", &TRecorrido::Hijos},
            {"moveTo", &TRecorrido::Hijos},
            {"hyperlink", &TRecorrido::Hijos},
            {"fldSimple", &TRecorrido::Hijos},
            {"sdt", &TRecorrido::Hijos},
            {"sdtContent", &TRecorrido::Hijos},
            {"customXml", &TRecorrido::Hijos},
            {"smartTag", &TRecorrido::Hijos},
            {"bdo", &TRecorrido::Hijos},
            {"dir", &TRecorrido::Hijos},
            {"ruby", &TRecorrido::Hijos},
            {"rubyBase", &TRecorrido::Hijos},
            {"+AlternateContent", &TRecorrido::Alternativa},
        };
        return ACCIONES;
    }

    // Everything that is not known to hold text of the main story is passed over: drawings, text boxes,
    // notes, properties, field codes, the contents of other files.
    void Hijos(pugi::xml_node nodo, const TContexto& contexto) {
        for (const auto hijo : nodo.children()) {
            const std::string_view nombre = hijo.name();
            const auto accion = Acciones().find(nombre);
            if (accion != Acciones().end())
                (this->*accion->second)(hijo, contexto);
            else if (nombre.starts_with('#') && !nombre.ends_with("Pr"))
                Hijos(hijo, contexto);  // the structure of a formula
        }
    }

    void Anota(TipoSuceso tipo, pugi::xml_node nodo, bool visible) {
        TSuceso suceso;
        suceso.Nodo = nodo;
        suceso.Tipo = tipo;
        suceso.Visible = visible;
        Sucesos.push_back(suceso);
    }

    void AnotaCaracter(pugi::xml_node nodo, char16_t caracter, const TContexto& contexto) {
        if (!contexto.EnTirada) return;
        Anota(TipoSuceso::Caracter, nodo, !contexto.Fuera && !contexto.Oculto);
        Sucesos.back().Caracter = caracter;
    }

    void Parrafo(pugi::xml_node parrafo, const TContexto& contexto) {
        const auto propiedades = parrafo.child("pPr");
        TContexto interior = contexto;
        interior.EnTirada = false;
        interior.ParrafoOculto = Estilos.OcultaParrafo(propiedades.child("pStyle").attribute("val").value());
        Hijos(parrafo, interior);

        const auto deMarca = propiedades.child("rPr");
        const bool marcaOculta = EstaActivo(deMarca.child("specVanish")) ||
                                 Estilos.EsOculto(deMarca, interior.TablaOculta, interior.ParrafoOculto);
        Anota(TipoSuceso::FinParrafo, parrafo, !contexto.Fuera && !marcaOculta && !EstaBorrado(deMarca));
    }

    void Tabla(pugi::xml_node tabla, const TContexto& contexto) {
        TContexto interior = contexto;
        interior.EnTirada = false;
        interior.TablaOculta =
            Estilos.OcultaTabla(tabla.child("tblPr").child("tblStyle").attribute("val").value());
        Hijos(tabla, interior);
    }

    void Fila(pugi::xml_node fila, const TContexto& contexto) {
        TContexto interior = contexto;
        interior.Fuera = contexto.Fuera || EstaBorrado(fila.child("trPr"));
        Anota(TipoSuceso::InicioFila, fila, !interior.Fuera);
        Hijos(fila, interior);
        Anota(TipoSuceso::FinFila, fila, !interior.Fuera);
    }

    void Celda(pugi::xml_node celda, const TContexto& contexto) {
        TContexto interior = contexto;
        interior.Fuera = contexto.Fuera || celda.child("tcPr").child("cellDel");
        Anota(TipoSuceso::InicioCelda, celda, !interior.Fuera);
        Hijos(celda, interior);
        Anota(TipoSuceso::FinCelda, celda, !interior.Fuera);
    }

    void Tirada(pugi::xml_node tirada, const TContexto& contexto) {
        const auto propiedades = tirada.child("rPr");
        TContexto interior = contexto;
        interior.EnTirada = true;
        interior.Fuera = contexto.Fuera || EstaBorrado(propiedades);
        interior.Oculto = Estilos.EsOculto(propiedades, contexto.TablaOculta, contexto.ParrafoOculto);
        Hijos(tirada, interior);
    }

    // Blanks at the ends of a text count only where the file says that they are to be preserved.
    void Texto(pugi::xml_node texto, const TContexto& contexto) {
        if (!contexto.EnTirada) return;
        const auto primero = Sucesos.size();
        for (const auto nodo : texto.children()) {
            if (!EsTexto(nodo)) continue;
            Anota(TipoSuceso::Texto, nodo, !contexto.Fuera && !contexto.Oculto);
            Sucesos.back().Hasta = static_cast<std::uint32_t>(std::string_view(nodo.value()).size());
        }
        if (std::string_view(texto.attribute("xml:space").value()) != "preserve") Recorta(primero);
    }

    void Recorta(std::size_t primero) {
        for (auto i = primero; i < Sucesos.size(); ++i) {
            const std::string_view valor = Sucesos[i].Nodo.value();
            const auto letra = std::min(valor.find_first_not_of(BLANCOS), valor.size());
            Sucesos[i].Desde = static_cast<std::uint32_t>(letra);
            if (letra < valor.size()) break;
        }
        for (auto i = Sucesos.size(); i > primero; --i) {
            auto& suceso = Sucesos[i - 1];
            const auto letra = std::string_view(suceso.Nodo.value()).find_last_not_of(BLANCOS);
            suceso.Hasta =
                letra == std::string_view::npos ? suceso.Desde : static_cast<std::uint32_t>(letra + 1);
            if (letra != std::string_view::npos) break;
        }
    }

    template <char16_t CARACTER>
    void Caracter(pugi::xml_node nodo, const TContexto& contexto) {
        AnotaCaracter(nodo, CARACTER, contexto);
    }

    void Salto(pugi::xml_node salto, const TContexto& contexto) {
        AnotaCaracter(salto, CaracterDeSalto(salto), contexto);
    }

    void Simbolo(pugi::xml_node simbolo, const TContexto& contexto) {
        const auto caracter =
            CaracterDeSimbolo(simbolo.attribute("font").value(), simbolo.attribute("char").value());
        AnotaCaracter(simbolo, caracter, contexto);
    }

    // Fields count wherever they stand: a deleted run may hold the end of a field that stays.
    void Campo(pugi::xml_node campo, const TContexto&) {
        const std::string_view tipo = campo.attribute("fldCharType").value();
        if (tipo == "begin") Anota(TipoSuceso::InicioCampo, campo, true);
        if (tipo == "separate") Anota(TipoSuceso::MedioCampo, campo, true);
        if (tipo == "end") Anota(TipoSuceso::FinCampo, campo, true);
    }

    template <TipoSuceso TIPO>
    void Marca(pugi::xml_node marca, const TContexto&) {
        Anota(TIPO, marca, true);
    }

    void Borrado(pugi::xml_node nodo, const TContexto& contexto) {
        TContexto interior = contexto;
        interior.Fuera = true;
        Hijos(nodo, interior);
    }

    void Alternativa(pugi::xml_node nodo, const TContexto& contexto) {
        if (const auto rama = RamaElegida(nodo)) Hijos(rama, contexto);
    }

    const TEstilosDocx& Estilos;
    std::vector<TSuceso> Sucesos;
};

}  // namespace

std::vector<TSuceso> RecorreDocumento(pugi::xml_node raiz, const TEstilosDocx& estilos) {
    return TRecorrido(estilos).Recorre(raiz);
}

}  // namespace analizador

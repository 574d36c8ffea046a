#pragma once

#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <unordered_map>

namespace analizador {

// Which styles hide text. A style says so itself or takes it from the style it is based on; the hidden mark
// is a toggle, so styles of two kinds that both set it undo each other.
class TEstilosDocx {
  public:
    // No styles: nothing hidden but what is marked itself.
    TEstilosDocx() = default;

    // `raiz`: the root of the styles part.
    explicit TEstilosDocx(pugi::xml_node raiz);

    // Whether a style of each kind hides. An unknown or empty identifier means the default style.
    [[nodiscard]] bool OcultaTabla(std::string_view id) const { return Tablas.Oculta(id); }
    [[nodiscard]] bool OcultaParrafo(std::string_view id) const { return Parrafos.Oculta(id); }
    [[nodiscard]] bool OcultaCaracter(std::string_view id) const { return Caracteres.Oculta(id); }

    // Whether the text with these run properties (null: none) is hidden, in a table and a paragraph whose
    // styles hide or not.
    [[nodiscard]] bool EsOculto(pugi::xml_node propiedades, bool tabla, bool parrafo) const;

  private:
    class TFamilia {
      public:
        void Lee(pugi::xml_node raiz, std::string_view tipo);
        [[nodiscard]] bool Oculta(std::string_view id) const;

      private:
        std::unordered_map<std::string, bool> Ocultas;
        bool PorDefecto = false;
    };

    TFamilia Tablas;
    TFamilia Parrafos;
    TFamilia Caracteres;
    bool Siempre = false;  // the document's defaults hide
};

}  // namespace analizador

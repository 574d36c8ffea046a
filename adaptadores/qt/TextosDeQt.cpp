#include "adaptadores/qt/TextosDeQt.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <string_view>

namespace analizador {

namespace {

struct TTraduccion {
    std::string_view Ingles;
    const char16_t* Castellano;
};

constexpr std::array TRADUCCIONES = {
    TTraduccion{"&Undo", u"&Deshacer"},
    TTraduccion{"&Redo", u"&Rehacer"},
    TTraduccion{"Cu&t", u"Cor&tar"},
    TTraduccion{"&Copy", u"&Copiar"},
    TTraduccion{"&Paste", u"&Pegar"},
    TTraduccion{"Delete", u"Eliminar"},
    TTraduccion{"Select All", u"Seleccionar todo"},
    TTraduccion{"Scroll here", u"Desplazar hasta aquí"},
    TTraduccion{"Top", u"Principio"},
    TTraduccion{"Bottom", u"Final"},
    TTraduccion{"Left edge", u"Borde izquierdo"},
    TTraduccion{"Right edge", u"Borde derecho"},
    TTraduccion{"Page up", u"Página anterior"},
    TTraduccion{"Page down", u"Página siguiente"},
    TTraduccion{"Page left", u"Página a la izquierda"},
    TTraduccion{"Page right", u"Página a la derecha"},
    TTraduccion{"Scroll up", u"Subir"},
    TTraduccion{"Scroll down", u"Bajar"},
    TTraduccion{"Scroll left", u"Ir a la izquierda"},
    TTraduccion{"Scroll right", u"Ir a la derecha"},
};

constexpr std::array<std::string_view, 3> CONTEXTOS = {"QLineEdit", "QWidgetTextControl", "QScrollBar"};

}  // namespace

TTextosDeQt::TTextosDeQt() {
    QCoreApplication::installTranslator(this);
}

QString TTextosDeQt::translate(const char* contexto, const char* texto, const char* /*distincion*/,
                               int /*cuantos*/) const {
    if (std::find(CONTEXTOS.begin(), CONTEXTOS.end(), contexto) == CONTEXTOS.end()) return {};
    const auto donde = std::find_if(TRADUCCIONES.begin(), TRADUCCIONES.end(),
                                    [&](const TTraduccion& t) { return t.Ingles == texto; });
    return donde == TRADUCCIONES.end() ? QString() : QString::fromUtf16(donde->Castellano);
}

}  // namespace analizador

#include "programas/analiza/SalidaTexto.h"

#include "analizador/ConstAnalizador.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"

namespace analizador {

std::string InformeTexto(const TClassAnalizadorAbierto& sesion) {
    std::string informe = Utf8DeAnsi(QuitaCaracter(sesion.Pizarra, '\r'));
    informe += "\nIDIOMA       : ";
    informe += EsCastellano() ? "CASTELLANO" : "CATALAN";
    informe += "\nCUANTIAS     : ";
    std::string separador;
    for (const auto& cuantia : sesion.Cuantias) {
        informe += separador + Utf8DeAnsi(cuantia);
        separador = "\n               ";
    }
    informe += '\n';
    return informe;
}

}  // namespace analizador

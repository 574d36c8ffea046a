#include "programas/analiza/SalidaTexto.h"

#include "analizador/ConstAnalizador.h"
#include "analizador/Pizarra.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"

namespace analizador {

namespace {

std::string ConIdiomaYCuantias(const std::string& pizarra, const TClassAnalizadorAbierto& sesion) {
    std::string informe = Utf8DeAnsi(QuitaCaracter(pizarra, '\r'));
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

}  // namespace

std::string InformeTexto(const TClassAnalizadorAbierto& sesion) {
    return ConIdiomaYCuantias(sesion.Pizarra, sesion);
}

std::string EleccionTexto(const TClassAnalizadorAbierto& sesion) {
    return ConIdiomaYCuantias(TextoPizarra(sesion, sesion.ConceptosValidos), sesion);
}

}  // namespace analizador

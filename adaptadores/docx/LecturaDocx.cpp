#include "adaptadores/docx/LecturaDocx.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "adaptadores/docx/EstilosDocx.h"
#include "adaptadores/docx/FalloDocx.h"
#include "plataforma/Ansi.h"

namespace analizador {

namespace {

TTextoXml LeeXml(TPaqueteZip& paquete, const std::string& parte) {
    return DecodificaXml(paquete.Lee(parte), parte);
}

TEstilosDocx LeeEstilos(TPaqueteZip& paquete, const TPartesDocx& partes) {
    if (!partes.Estilos) return {};
    const TArbolXml arbol(LeeXml(paquete, *partes.Estilos).Utf8, *partes.Estilos);
    return TEstilosDocx(arbol.Raiz());
}

std::vector<TVariable> LeeVariables(TPaqueteZip& paquete, const TPartesDocx& partes) {
    std::vector<TVariable> variables;
    if (!partes.Ajustes) return variables;
    const TArbolXml arbol(LeeXml(paquete, *partes.Ajustes).Utf8, *partes.Ajustes);
    for (const auto variable : arbol.Raiz().child("docVars").children("docVar"))
        variables.push_back(
            {AnsiDeUtf8(variable.attribute("name").value()), AnsiDeUtf8(variable.attribute("val").value())});
    return variables;
}

std::vector<TSuceso> RecorrePrincipal(const TArbolXml& arbol, const TEstilosDocx& estilos) {
    const auto raiz = arbol.Raiz();
    if (std::string_view(raiz.name()) != "document" || !raiz.child("body"))
        throw FalloDocx("no es un documento de Word: su parte principal no tiene cuerpo de documento");
    return RecorreDocumento(raiz, estilos);
}

// A longer text, or one in more paragraphs, is none that anyone signs; its analysis would take too long.
TComposicion ExigeMesura(TComposicion composicion) {
    constexpr std::size_t TEXTO_MAXIMO = 6'000'000;
    constexpr std::ptrdiff_t PARRAFOS_MAXIMOS = 300'000;
    if (composicion.Texto.size() > TEXTO_MAXIMO)
        throw FalloDocx("su texto es demasiado largo para ser una escritura");
    if (std::ranges::count(composicion.Texto, u'\r') > PARRAFOS_MAXIMOS)
        throw FalloDocx("tiene demasiados párrafos para ser una escritura");
    return composicion;
}

}  // namespace

TLecturaDocx::TLecturaDocx(std::string_view bytes)
    : Paquete(bytes),
      Partes(LocalizaPartes(Paquete)),
      Principal(LeeXml(Paquete, Partes.Principal)),
      Arbol(Principal.Utf8, Partes.Principal),
      Sucesos(RecorrePrincipal(Arbol, LeeEstilos(Paquete, Partes))),
      Composicion(ExigeMesura(Compone(Sucesos))) {}

TContenidoDocumento TLecturaDocx::Contenido() {
    return {AnsiDeUtf16(Composicion.Texto), Composicion.Marcadores, LeeVariables(Paquete, Partes)};
}

}  // namespace analizador

#include "adaptadores/word/TextoWord.h"

#include <algorithm>

#include "plataforma/Ansi.h"

namespace analizador {

namespace {

// Kinds of tracked changes whose text is no longer the document's.
constexpr int REVISION_BORRA = 2;
constexpr int REVISION_LLEVA_DE_AQUI = 14;

std::string LeeSeguido(const TObjetoWord& documento, TIntervalo intervalo) {
    if (intervalo.Inicio >= intervalo.Fin) return {};
    const auto rango = documento.Objeto("Range", "Range", intervalo.Inicio, intervalo.Fin);
    const auto modo = rango.Objeto("TextRetrievalMode", "TextRetrievalMode");
    modo.Pon("IncludeHiddenText", false);
    modo.Pon("IncludeFieldCodes", false);
    return AnsiDeUtf16(rango.Texto("Text"));
}

std::vector<TIntervalo> Borrados(const TObjetoWord& documento) {
    const auto revisiones = documento.Objeto("Content", "Range").Objeto("Revisions", "Revisions");
    std::vector<TIntervalo> borrados;
    const int cuantas = revisiones.Entero("Count");
    for (int i = 1; i <= cuantas; ++i) {
        const auto revision = revisiones.Objeto("Item", "Revision", i);
        const int tipo = revision.Entero("Type");
        if (tipo != REVISION_BORRA && tipo != REVISION_LLEVA_DE_AQUI) continue;
        const auto rango = revision.Objeto("Range", "Range");
        borrados.push_back({rango.Entero("Start"), rango.Entero("End")});
    }
    std::sort(borrados.begin(), borrados.end(),
              [](const TIntervalo& uno, const TIntervalo& otro) { return uno.Inicio < otro.Inicio; });
    return borrados;
}

}  // namespace

std::vector<std::string> ParteParrafos(std::string_view texto) {
    std::vector<std::string> parrafos;
    while (!texto.empty()) {
        const auto cr = texto.find('\r');
        auto longitud = cr == std::string_view::npos ? texto.size() : cr + 1;
        if (texto.substr(longitud).starts_with('\a')) ++longitud;
        parrafos.emplace_back(texto.substr(0, longitud));
        texto.remove_prefix(longitud);
    }
    return parrafos;
}

TTextoWord::TTextoWord(const TObjetoWord& documento)
    : FDocumento(documento), FBorrados(Borrados(documento)) {}

std::string TTextoWord::Lee(TIntervalo intervalo) const {
    std::string texto;
    for (const auto& [inicio, fin] : FBorrados) {
        if (inicio >= intervalo.Fin || fin <= intervalo.Inicio) continue;
        texto += LeeSeguido(FDocumento, {intervalo.Inicio, inicio});
        intervalo.Inicio = fin;
    }
    return texto + LeeSeguido(FDocumento, intervalo);
}

}  // namespace analizador

#include <algorithm>

#include "plataforma/Rnumcad.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

// The first line whose party fulfils the condition; the end when none does.
template <class TLista, class TCondicion>
auto PrimerOtorgante(TLista& lista, const TCondicion& condicion) {
    return std::find_if(lista.begin(), lista.end(), [&](const auto& linea) {
        return linea.Objeto != nullptr && condicion(*linea.Objeto);
    });
}

// A party without a name occurs in no text.
auto NombradoEn(std::string_view texto) {
    return [texto](const TROtorgante& otorgante) { return Pos(otorgante.NombreOtorgante(), texto) != 0; };
}

}  // namespace

TROtorgante* Otorgante(std::string_view texto, ListaTextos<TROtorgante>& lista) {
    const auto linea = PrimerOtorgante(lista, NombradoEn(texto));
    return linea == lista.end() ? nullptr : linea->Objeto.get();
}

bool EsUnOtorgante(std::string_view texto, const ListaTextos<TROtorgante>& lista) {
    return PrimerOtorgante(lista, NombradoEn(texto)) != lista.end();
}

bool EsUnDocumentoDeOtorgante(std::string_view texto, const ListaTextos<TROtorgante>& lista) {
    const auto conDocumento = [texto](const TROtorgante& o) { return Pos(o.NumDocumento, texto) != 0; };
    return PrimerOtorgante(lista, conDocumento) != lista.end();
}

}  // namespace analizador

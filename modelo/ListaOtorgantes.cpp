#include "modelo/ListaOtorgantes.h"

#include <memory>
#include <utility>

namespace analizador {

void TListaOtorgantes::Anade(TOtorganteHallado hallado) {
    std::string nombre = hallado.Otorgante.NombreOtorgante();
    Lista.Anade(std::move(nombre), std::make_unique<TROtorgante>(std::move(hallado.Otorgante)));
    Origenes.push_back(std::move(hallado.Origenes));
}

void TListaOtorgantes::Limpia() {
    Lista.Limpia();
    Origenes.clear();
}

}  // namespace analizador

#include "pruebas/ataques/Mutaciones.h"

namespace analizador::pruebas {

namespace {

std::vector<TClaseMutacion> Todas() {
    std::vector<TClaseMutacion> todas;
    for (const auto* clases : {&MutacionesDeBytes(), &MutacionesDePartes(), &MutacionesDeXml()})
        todas.insert(todas.end(), clases->begin(), clases->end());
    return todas;
}

}  // namespace

TMutacion Muta(const std::vector<std::pair<std::string, TPartes>>& semillas, std::uint64_t numero) {
    static const std::vector<TClaseMutacion> CLASES = Todas();
    TAzar azar(numero);
    const auto& clase = CLASES[numero % CLASES.size()];
    const auto& [nombre, partes] = azar.Uno(semillas);
    return {std::string(clase.Nombre) + " (" + nombre + ")",
            [&clase, &partes = partes, azar]() mutable { return clase.Haz(partes, azar); }};
}

std::string& Parte(TPartes& partes, std::string_view nombre) {
    for (auto& [suNombre, contenido] : partes)
        if (suNombre == nombre) return contenido;
    return partes.front().second;
}

}  // namespace analizador::pruebas

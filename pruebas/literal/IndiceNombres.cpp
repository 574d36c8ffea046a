// The names of the parties known, tried one after another.

#include "rutinas/IndiceNombres.h"

#include "plataforma/Rnumcad.h"

namespace analizador {

void TIndiceNombres::Pon(std::string_view nombre, std::size_t linea) {
    if (!nombre.empty()) largos_[std::string(nombre)].insert(linea);
}

void TIndiceNombres::Quita(std::string_view nombre, std::size_t linea) {
    if (nombre.empty()) return;
    largos_[std::string(nombre)].erase(linea);
    if (largos_[std::string(nombre)].empty()) largos_.erase(std::string(nombre));
}

std::optional<std::size_t> TIndiceNombres::LineaDe(std::string_view nombre) const {
    for (const auto& [otro, lineas] : largos_)
        if (otro == nombre) return *lineas.begin();
    return std::nullopt;
}

std::optional<std::size_t> TIndiceNombres::PrimeraEn(std::string_view texto) const {
    std::optional<std::size_t> primera;
    for (const auto& [nombre, lineas] : largos_)
        if (Pos(nombre, texto) != 0 && (!primera || *lineas.begin() < *primera)) primera = *lineas.begin();
    return primera;
}

void TIndiceNombres::Recorre(std::string_view texto,
                             const std::function<void(std::size_t, Tramo)>& visita) const {
    for (const auto& [nombre, lineas] : largos_)
        for (std::size_t i = 0; i < texto.size(); ++i)
            if (texto.substr(i).starts_with(nombre)) visita(*lineas.begin(), {i, nombre.size()});
}

}  // namespace analizador

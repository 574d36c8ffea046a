#include "rutinas/IndiceNombres.h"

#include <algorithm>

#include "plataforma/Encuentra.h"

namespace analizador {

namespace {

// Bounds what one position of a text can cost.
constexpr std::size_t LONGITUD_MAXIMA = 254;
constexpr std::size_t NADA = std::string_view::npos;

std::uint64_t Clave(std::uint32_t nodo, char letra) {
    return std::uint64_t{nodo} << 8U | static_cast<unsigned char>(letra);
}

}  // namespace

TIndiceNombres::TNodo TIndiceNombres::Hijo(TNodo nodo, char letra) const {
    const auto hijo = hijos_.find(Clave(nodo, letra));
    return hijo == hijos_.end() ? NINGUNO : hijo->second;
}

TIndiceNombres::TNodo TIndiceNombres::NodoDe(std::string_view nombre) const {
    TNodo nodo = RAIZ;
    for (std::size_t i = 0; i < nombre.size() && nodo != NINGUNO; ++i) nodo = Hijo(nodo, nombre[i]);
    return nodo;
}

void TIndiceNombres::Pon(std::string_view nombre, std::size_t linea) {
    if (nombre.empty()) return;
    if (nombre.size() > LONGITUD_MAXIMA) {
        largos_[std::string(nombre)].insert(linea);
        return;
    }
    iniciales_.set(static_cast<unsigned char>(nombre.front()));
    TNodo nodo = RAIZ;
    for (const char letra : nombre) {
        const auto [hijo, nuevo] = hijos_.try_emplace(Clave(nodo, letra), nodos_);
        if (nuevo) ++nodos_;
        nodo = hijo->second;
    }
    lineas_[nodo].insert(linea);
}

void TIndiceNombres::Quita(std::string_view nombre, std::size_t linea) {
    const auto quita = [linea](auto& lineas, auto donde) {
        if (donde == lineas.end()) return;
        donde->second.erase(linea);
        if (donde->second.empty()) lineas.erase(donde);
    };
    quita(largos_, largos_.find(nombre));
    quita(lineas_, lineas_.find(NodoDe(nombre)));
}

std::optional<std::size_t> TIndiceNombres::LineaDe(std::string_view nombre) const {
    if (const auto largo = largos_.find(nombre); largo != largos_.end()) return *largo->second.begin();
    const auto corto = lineas_.find(NodoDe(nombre));
    return corto == lineas_.end() ? std::nullopt : std::optional(*corto->second.begin());
}

std::optional<std::size_t> TIndiceNombres::PrimeraEn(std::string_view texto) const {
    std::optional<std::size_t> primera;
    Recorre(texto, [&](std::size_t linea, Tramo) { primera = std::min(primera.value_or(linea), linea); });
    return primera;
}

void TIndiceNombres::Recorre(std::string_view texto,
                             const std::function<void(std::size_t, Tramo)>& visita) const {
    for (std::size_t inicio = 0; inicio < texto.size(); ++inicio) {
        if (!iniciales_[static_cast<unsigned char>(texto[inicio])]) continue;
        TNodo nodo = RAIZ;
        for (std::size_t fin = inicio; fin < texto.size(); ++fin) {
            nodo = Hijo(nodo, texto[fin]);
            if (nodo == NINGUNO) break;
            if (const auto aqui = lineas_.find(nodo); aqui != lineas_.end())
                visita(*aqui->second.begin(), {inicio, fin + 1 - inicio});
        }
    }
    for (const auto& [nombre, lineas] : largos_)
        for (auto inicio = Encuentra(texto, nombre); inicio != NADA;
             inicio = Encuentra(texto, nombre, inicio + 1))
            visita(*lineas.begin(), {inicio, nombre.size()});
}

}  // namespace analizador

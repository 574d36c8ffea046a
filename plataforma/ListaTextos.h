#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace analizador {

// A list of lines, each with an object that the list owns (it may be none). Positions are 0-based. Clearing
// or destroying the list destroys the objects. Copying is left out: two lists cannot own the same objects.
template <class T>
class ListaTextos {
  public:
    struct Linea {
        std::string Texto;
        std::unique_ptr<T> Objeto;
    };

    // Appends a line and returns the object just stored, or nullptr when none was given.
    T* Anade(std::string texto, std::unique_ptr<T> objeto) {
        lineas_.push_back({std::move(texto), std::move(objeto)});
        return lineas_.back().Objeto.get();
    }

    void Limpia() { lineas_.clear(); }

    [[nodiscard]] bool Vacia() const { return lineas_.empty(); }
    [[nodiscard]] std::size_t Cuenta() const { return lineas_.size(); }

    // True when some line's text equals `texto` exactly.
    [[nodiscard]] bool Contiene(std::string_view texto) const {
        return std::any_of(lineas_.begin(), lineas_.end(), [&](const Linea& l) { return l.Texto == texto; });
    }

    [[nodiscard]] const Linea& operator[](std::size_t i) const { return lineas_[i]; }
    [[nodiscard]] Linea& operator[](std::size_t i) { return lineas_[i]; }

    [[nodiscard]] auto begin() const { return lineas_.begin(); }
    [[nodiscard]] auto end() const { return lineas_.end(); }
    [[nodiscard]] auto begin() { return lineas_.begin(); }
    [[nodiscard]] auto end() { return lineas_.end(); }

  private:
    std::vector<Linea> lineas_;
};

}  // namespace analizador

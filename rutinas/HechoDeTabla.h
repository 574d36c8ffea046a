#pragma once

#include <memory>
#include <mutex>
#include <utility>

#include "plataforma/Ruttb.h"

namespace analizador {

// What was made of the rows of a table and takes far longer to make than to use: kept as long as the table
// has the same rows, for all threads.
template <class T>
class THechoDeTabla {
  public:
    // What `hace(tabla)`, called only where the rows are not those seen last, makes of the rows it has now.
    // Throws what `hace` throws.
    template <class THace>
    [[nodiscard]] std::shared_ptr<const T> De(TTabla& tabla, const THace& hace) {
        auto contenido = tabla.Contenido();
        const std::lock_guard guarda(cerrojo_);
        if (hecho_ == nullptr || contenido == nullptr || contenido != contenido_) {
            hecho_ = std::make_shared<const T>(hace(tabla));
            contenido_ = std::move(contenido);
        }
        return hecho_;
    }

  private:
    std::mutex cerrojo_;
    std::shared_ptr<const void> contenido_;
    std::shared_ptr<const T> hecho_;
};

}  // namespace analizador

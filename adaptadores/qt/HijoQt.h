#pragma once

#include <memory>
#include <utility>

namespace analizador {

// A new object that its Qt parent owns and destroys; the parent goes last to its constructor.
template <class T, class Padre, class... Args>
T& HijoDe(Padre* padre, Args&&... argumentos) {
    return *std::make_unique<T>(std::forward<Args>(argumentos)..., padre).release();
}

// A new layout that the widget, or the layout to which it is then added, owns.
template <class T>
T& NuevaDisposicion() {
    return *std::make_unique<T>().release();
}

}  // namespace analizador

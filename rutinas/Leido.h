#pragma once

#include <string>
#include <string_view>

#include "rutinas/Tramo.h"

namespace analizador {

// The stretch of `todo` that `parte`, a view into it, covers; an empty part stands nowhere.
[[nodiscard]] inline Tramo TramoDe(std::string_view todo, std::string_view parte) {
    if (parte.empty()) return {};
    return {static_cast<std::size_t>(parte.data() - todo.data()), parte.size()};
}

// A part of a text as a fact read there.
[[nodiscard]] inline THallazgo<std::string> Leido(std::string_view todo, std::string_view parte) {
    return {std::string(parte), TramoDe(todo, parte)};
}

}  // namespace analizador

#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <string_view>

#include "plataforma/Ansi.h"

namespace analizador {

// "INTERVENCIÓN"_a: as _ansi, but converted when it is met. For the tables of the tests: clang 14 falls over
// _ansi inside the braces of a vector.
inline std::string_view operator""_a(const char* utf8, std::size_t longitud) {
    static std::set<std::string> textos;
    return *textos.insert(AnsiDeUtf8({utf8, longitud})).first;
}

}  // namespace analizador

#pragma once

#include <cstddef>

namespace analizador {

// Where in a text a fact was read: its first character, counted from 0, and how many. Length 0: nowhere.
struct Tramo {
    std::size_t Primera = 0;
    std::size_t Longitud = 0;
    bool operator==(const Tramo&) const = default;
};

// A stretch of one paragraph of the document, the paragraphs being counted from 1.
struct TOrigen {
    int Parrafo = 0;
    Tramo Donde;
    bool operator==(const TOrigen&) const = default;
};

// A value and where it was read.
template <class T>
struct THallazgo {
    T Valor{};
    Tramo Donde;
    bool operator==(const THallazgo&) const = default;
};

}  // namespace analizador

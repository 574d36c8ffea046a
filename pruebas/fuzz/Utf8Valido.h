#pragma once

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>

#include "plataforma/Ansi.h"
#include "pruebas/fuzz/Fuzzers.h"

namespace analizador {

// The library of JSON refuses to write what is no valid UTF-8.
inline bool EsUtf8(const std::string& texto) {
    try {
        static_cast<void>(nlohmann::json(texto).dump());
        return true;
    } catch (const nlohmann::json::type_error&) {
        return false;
    }
}

inline void ExigeUtf8(const std::string& texto) {
    Exige(EsUtf8(texto), "not valid UTF-8");
}

// No control character, and none of the two of Unicode that end a line.
inline bool EsUnaLinea(const std::string& texto) {
    return std::ranges::none_of(Utf16DeUtf8(texto), [](char16_t unidad) {
        return unidad < u' ' || (unidad >= 0x7F && unidad <= 0x9F) || unidad == 0x2028 || unidad == 0x2029;
    });
}

}  // namespace analizador

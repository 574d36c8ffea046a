#pragma once

#include <nlohmann/json.hpp>
#include <string>

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

}  // namespace analizador

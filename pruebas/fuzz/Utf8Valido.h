#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "pruebas/fuzz/Fuzzers.h"

namespace analizador {

// The library of JSON refuses to write what is no valid UTF-8.
inline void ExigeUtf8(const std::string& texto) {
    try {
        static_cast<void>(nlohmann::json(texto).dump());
    } catch (const nlohmann::json::type_error&) {
        throw FalloFuzz("not valid UTF-8");
    }
}

}  // namespace analizador

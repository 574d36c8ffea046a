#pragma once

// Stops a program at every border of its system calls, where all that others can see of it happens.

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "pruebas/ataques/Proceso.h"

namespace analizador::pruebas {

enum class TPaso { Sigue, Mata };

// Called at stop number `parada` (from 0), when a call is about to begin or has just ended.
using TAlParar = std::function<TPaso(std::uint64_t parada)>;

// Runs `programa` to its end or until `alParar` has it killed. Throws std::runtime_error where the system
// lets no process be traced.
[[nodiscard]] TFinal Rastrea(const TBanco& banco, const std::filesystem::path& programa,
                             const std::vector<std::string>& argumentos, const TAlParar& alParar);

// Whether this system lets processes be traced.
[[nodiscard]] bool SePuedeRastrear();

}  // namespace analizador::pruebas

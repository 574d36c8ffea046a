#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace analizador {

// What `analiza FICHERO...` was asked for.
struct TOpcionesAnaliza {
    std::vector<std::string> Ficheros;
    std::optional<std::filesystem::path> Config;
    std::optional<std::filesystem::path> Tablas;
    std::optional<std::filesystem::path> Salida;
    std::optional<std::filesystem::path> Resultados;
    std::optional<unsigned> Hilos;
    bool Json = false;
    bool Origen = false;
    bool Guarda = false;
    bool Forzar = false;
    bool Revisa = false;
    bool Continua = false;
    bool Nulos = false;
};

}  // namespace analizador

#pragma once

#include <filesystem>
#include <optional>

namespace analizador {

// The folders that a session asks for, absolute; none: those in use, else the default.
struct TCarpetas {
    std::optional<std::filesystem::path> Vocabularios;
    std::optional<std::filesystem::path> Tablas;
};

// One session's share of the settings and tables of the process: installed with the first one, gone with the
// last. May be made and ended on any thread.
class TAjustesCompartidos {
  public:
    // Throws ErrorConfiguracion, also when others are using other folders.
    explicit TAjustesCompartidos(const TCarpetas& carpetas);
    ~TAjustesCompartidos();
    TAjustesCompartidos(const TAjustesCompartidos&) = delete;
    TAjustesCompartidos& operator=(const TAjustesCompartidos&) = delete;
};

}  // namespace analizador

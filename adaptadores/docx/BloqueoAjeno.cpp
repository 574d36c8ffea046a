#include "adaptadores/docx/BloqueoAjeno.h"

#include <string>
#include <system_error>
#include <vector>

namespace analizador {

namespace {

bool EsContinuacionUtf8(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80;
}

// The name without its first two characters.
std::u8string SinDosPrimeros(std::u8string nombre) {
    for (int i = 0; i < 2 && !nombre.empty(); ++i) {
        nombre.erase(0, 1);
        while (!nombre.empty() && EsContinuacionUtf8(static_cast<char>(nombre.front()))) nombre.erase(0, 1);
    }
    return nombre;
}

}  // namespace

std::optional<std::filesystem::path> FicheroDeBloqueo(const std::filesystem::path& documento) {
    const auto nombre = documento.filename().u8string();
    std::vector<std::u8string> posibles = {u8"~$" + nombre, u8".~lock." + nombre + u8"#"};
    if (documento.stem().u8string().size() > 2) posibles.push_back(u8"~$" + SinDosPrimeros(nombre));
    for (const auto& posible : posibles) {
        const auto ruta = documento.parent_path() / std::filesystem::path(posible);
        std::error_code error;
        const auto estado = std::filesystem::symlink_status(ruta, error);
        if (std::filesystem::exists(estado)) return ruta;
    }
    return std::nullopt;
}

}  // namespace analizador

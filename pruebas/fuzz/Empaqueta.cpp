#include "pruebas/fuzz/Empaqueta.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "pruebas/docx/ConstruyeDocx.h"

namespace analizador {

namespace {

constexpr auto TABLA_CRC = [] {
    std::array<std::uint32_t, 256> tabla{};
    for (std::uint32_t i = 0; i < tabla.size(); ++i) {
        std::uint32_t resto = i;
        for (int bit = 0; bit < 8; ++bit) resto = resto >> 1U ^ ((resto & 1U) != 0 ? 0xEDB88320U : 0U);
        tabla[i] = resto;
    }
    return tabla;
}();

std::uint32_t Crc(std::string_view bytes) {
    std::uint32_t resto = 0xFFFFFFFFU;
    for (const char c : bytes)
        resto = resto >> 8U ^ TABLA_CRC[(resto ^ static_cast<unsigned char>(c)) & 0xFFU];
    return ~resto;
}

std::string Bajo(std::size_t valor, int bytes) {
    std::string texto;
    for (int i = 0; i < bytes; ++i, valor >>= 8U) texto += static_cast<char>(valor & 0xFFU);
    return texto;
}

pruebas::TParte Parte(std::string_view nombre, std::string_view contenido) {
    if (nombre == "cuerpo") return {"word/document.xml", pruebas::DocumentoXml(contenido)};
    if (nombre == "estilos") return {"word/styles.xml", pruebas::EstilosXml(contenido)};
    if (nombre == "ajustes") return {"word/settings.xml", pruebas::AjustesXml(contenido)};
    return {std::string(nombre), std::string(contenido)};
}

std::vector<pruebas::TParte> PartesDeTexto(std::string_view texto) {
    std::vector<pruebas::TParte> partes;
    std::string_view nombre = "cuerpo";
    while (true) {
        const std::size_t fin = texto.find("\n@@");
        if (fin != 0 || nombre != "cuerpo") partes.push_back(Parte(nombre, texto.substr(0, fin)));
        if (fin == std::string_view::npos) return partes;
        texto.remove_prefix(fin + 3);
        const std::size_t linea = std::min(texto.find('\n'), texto.size());
        nombre = texto.substr(0, linea);
        texto.remove_prefix(std::min(linea + 1, texto.size()));
    }
}

}  // namespace

std::string Empaqueta(const std::vector<std::pair<std::string, std::string>>& partes) {
    std::string bytes, directorio;
    for (const auto& [nombre, contenido] : partes) {
        // Version 2.0, names in UTF-8, stored, the first day that a date can be.
        const std::string comun = Bajo(20, 2) + Bajo(0x800, 2) + Bajo(0, 2) + Bajo(0x00210000, 4) +
                                  Bajo(Crc(contenido), 4) + Bajo(contenido.size(), 4) +
                                  Bajo(contenido.size(), 4) + Bajo(nombre.size(), 2) + Bajo(0, 2);
        directorio += "PK\1\2" + Bajo(20, 2) + comun + std::string(10, '\0') + Bajo(bytes.size(), 4) + nombre;
        bytes += "PK\3\4" + comun + nombre + contenido;
    }
    return bytes + directorio + "PK\5\6" + Bajo(0, 4) + Bajo(partes.size(), 2) + Bajo(partes.size(), 2) +
           Bajo(directorio.size(), 4) + Bajo(bytes.size(), 4) + Bajo(0, 2);
}

std::string DocumentoDeTexto(std::string_view bytes) {
    if (bytes.starts_with("PK")) return std::string(bytes);
    std::vector<pruebas::TParte> partes = PartesDeTexto(bytes);
    static const auto HABITUALES = pruebas::PartesDocumento(pruebas::DocumentoXml(""));
    for (const auto& habitual : HABITUALES)
        if (std::ranges::none_of(partes, [&](const auto& parte) { return parte.first == habitual.first; }))
            partes.push_back(habitual);
    return Empaqueta(partes);
}

}  // namespace analizador

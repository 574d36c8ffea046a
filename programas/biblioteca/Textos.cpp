#include "programas/biblioteca/Textos.h"

#include <utility>

#include "plataforma/Ansi.h"
#include "programas/biblioteca/ErrorInterfaz.h"

namespace analizador {

namespace {

void AnnadePunto(std::string& utf8, char32_t punto) {
    const auto pon = [&](char32_t byte) { utf8 += static_cast<char>(byte); };
    const auto ponSeguidor = [&](unsigned bits) { pon(0x80 | (punto >> bits & 0x3F)); };
    if (punto < 0x80) {
        pon(punto);
    } else if (punto < 0x800) {
        pon(0xC0 | punto >> 6);
        ponSeguidor(0);
    } else if (punto < 0x10000) {
        pon(0xE0 | punto >> 12);
        ponSeguidor(6);
        ponSeguidor(0);
    } else {
        pon(0xF0 | punto >> 18);
        ponSeguidor(12);
        ponSeguidor(6);
        ponSeguidor(0);
    }
}

bool EsAlto(char16_t unidad) {
    return unidad >= 0xD800 && unidad < 0xDC00;
}
bool EsBajo(char16_t unidad) {
    return unidad >= 0xDC00 && unidad < 0xE000;
}

// Nothing when half of a surrogate pair stands alone.
std::optional<std::string> Utf8DeUtf16(std::u16string_view texto) {
    std::string utf8;
    utf8.reserve(texto.size());
    for (std::size_t i = 0; i < texto.size(); ++i) {
        char32_t punto = texto[i];
        if (EsAlto(texto[i]) && i + 1 < texto.size() && EsBajo(texto[i + 1])) {
            punto = 0x10000 + ((punto - 0xD800) << 10) + (texto[++i] - 0xDC00U);
        } else if (EsAlto(texto[i]) || EsBajo(texto[i])) {
            return std::nullopt;
        }
        AnnadePunto(utf8, punto);
    }
    return utf8;
}

void ExigeTexto(const void* texto) {
    if (texto == nullptr) throw ErrorInterfaz(ANALIZADOR_MAL_USO, "falta un texto: es nulo");
}

}  // namespace

std::string TextoDe(const char* utf8) {
    ExigeTexto(utf8);
    std::string texto(utf8);
    // Malformed bytes become another character on the way.
    if (Utf8DeUtf16(Utf16DeUtf8(texto)) != texto)
        throw ErrorInterfaz(ANALIZADOR_MAL_TEXTO, "un texto no está en UTF-8");
    return texto;
}

std::string TextoDe(const analizador_utf16* utf16) {
    ExigeTexto(utf16);
    std::u16string unidades;
    for (; *utf16 != 0; ++utf16) unidades += static_cast<char16_t>(*utf16);
    auto texto = Utf8DeUtf16(unidades);
    if (!texto) throw ErrorInterfaz(ANALIZADOR_MAL_TEXTO, "un texto no está en UTF-16");
    return *std::move(texto);
}

std::filesystem::path RutaDe(const std::string& utf8) {
    if (utf8.empty()) throw ErrorInterfaz(ANALIZADOR_MAL_USO, "el nombre de un fichero o carpeta está vacío");
    return std::filesystem::absolute(std::u8string(utf8.begin(), utf8.end()));
}

std::vector<analizador_utf16> UnidadesDe(std::string_view utf8) {
    const std::u16string unidades = Utf16DeUtf8(utf8);
    std::vector<analizador_utf16> texto(unidades.begin(), unidades.end());
    texto.push_back(0);
    return texto;
}

}  // namespace analizador

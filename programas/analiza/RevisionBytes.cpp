#include <algorithm>
#include <set>

#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "programas/analiza/RevisionVocabulario.h"

namespace analizador {

namespace {

constexpr std::string_view MARCA_UTF8 = "\xEF\xBB\xBF";
constexpr std::string_view SIN_CARACTER = "\x81\x8D\x8F\x90\x9D";  // bytes that the code page does not use

std::vector<std::string_view> EnLineas(std::string_view bytes) {
    std::vector<std::string_view> lineas;
    while (!bytes.empty()) {
        const std::size_t fin = std::min(bytes.find('\n'), bytes.size());
        lineas.push_back(bytes.substr(0, fin));
        bytes.remove_prefix(std::min(fin + 1, bytes.size()));
    }
    return lineas;
}

bool EsAscii(std::string_view texto) {
    return std::ranges::none_of(texto, [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
}

bool TieneControl(std::string_view texto) {
    return std::ranges::any_of(texto, [](char c) {
        return (static_cast<unsigned char>(c) < ' ' && c != '\t' && c != '\r') || c == '\x7F';
    });
}

// Well-formed and all of it in the code page.
bool EsUtf8(std::string_view texto) {
    return Utf8DeAnsi(AnsiDeUtf8(texto)) == texto;
}

bool EsUtf16(std::string_view bytes) {
    return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
}

std::vector<TReparo> RevisaUtf8(const std::vector<std::string_view>& lineas) {
    std::vector<TReparo> reparos;
    for (std::size_t i = 0; i < lineas.size(); ++i)
        if (!EsUtf8(lineas[i]))
            reparos.push_back({true, static_cast<int>(i) + 1,
                               "tiene bytes que no son UTF-8, o caracteres que la página de códigos "
                               "Windows-1252 no tiene"});
    return reparos;
}

// Where every line with accents reads as UTF-8, that is what the file is.
bool EsUtf8SinMarca(const std::vector<std::string_view>& lineas) {
    return std::ranges::all_of(lineas, EsUtf8) && !std::ranges::all_of(lineas, EsAscii);
}

std::vector<TReparo> RevisaAnsi(const std::vector<std::string_view>& lineas) {
    std::vector<TReparo> reparos;
    if (EsUtf8SinMarca(lineas)) {
        const auto primera = std::ranges::find_if_not(lineas, EsAscii) - lineas.begin();
        reparos.push_back({true, static_cast<int>(primera) + 1,
                           "el fichero está en UTF-8 sin marca y sus letras con acento, eñe o cedilla no se "
                           "encuentran: guárdelo como ANSI (Windows-1252) o como UTF-8 con marca"});
        return reparos;
    }
    for (std::size_t i = 0; i < lineas.size(); ++i)
        if (lineas[i].find_first_of(SIN_CARACTER) != std::string_view::npos)
            reparos.push_back({true, static_cast<int>(i) + 1,
                               "tiene bytes que no son de la página de códigos Windows-1252"});
    return reparos;
}

std::vector<TReparo> LineasQueNoSeLeen(const TVocabulario& vocabulario,
                                       const std::vector<std::string_view>& lineas) {
    std::set<int> leidas;
    for (const auto& seccion : vocabulario.Ini.Secciones()) {
        leidas.insert(seccion.Linea);
        for (const auto& clave : seccion.Claves) leidas.insert(clave.Linea);
    }
    std::vector<TReparo> reparos;
    for (std::size_t i = 0; i < lineas.size(); ++i) {
        const std::string_view linea = Recorta(lineas[i]);
        const int numero = static_cast<int>(i) + 1;
        if (TieneControl(lineas[i])) reparos.push_back({true, numero, "tiene un carácter de control"});
        if (!linea.empty() && linea.front() != ';' && !leidas.contains(numero))
            reparos.push_back(
                {false, numero, "la línea no se lee: no es una sección, una clave ni un comentario"});
    }
    return reparos;
}

}  // namespace

std::vector<TReparo> RevisaBytes(const TVocabulario& vocabulario) {
    std::string_view bytes = vocabulario.Bytes;
    if (EsUtf16(bytes))
        return {{true, 1,
                 "el fichero está en UTF-16 y no se lee: guárdelo como ANSI (Windows-1252) o como UTF-8 con "
                 "marca"}};
    const bool utf8 = bytes.starts_with(MARCA_UTF8);
    if (utf8) bytes.remove_prefix(MARCA_UTF8.size());
    const auto lineas = EnLineas(bytes);
    std::vector<TReparo> reparos = utf8 ? RevisaUtf8(lineas) : RevisaAnsi(lineas);
    const auto sobran = LineasQueNoSeLeen(vocabulario, lineas);
    reparos.insert(reparos.end(), sobran.begin(), sobran.end());
    return reparos;
}

}  // namespace analizador

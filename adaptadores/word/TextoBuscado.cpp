#include "adaptadores/word/TextoBuscado.h"

#include "plataforma/Ansi.h"
#include "plataforma/VrkWord.h"

namespace analizador {

namespace {

constexpr std::size_t LONGITUD_MAXIMA = 255;

std::string Notacion(char caracter) {
    switch (caracter) {
        case '^':
            return "^^";
        case '\r':
            return "^p";
        case '\t':
            return "^t";
        case '\v':
            return "^l";
        case '\f':
            return "^m";
        case '\x0E':
            return "^n";
        case '\x1E':
            return "^~";
        case '\x1F':
        case '\xAD':
            return "";
        default:
            return {caracter};
    }
}

}  // namespace

std::optional<std::u16string> TextoBuscado(std::string_view literal) {
    std::string escrito;
    for (const char caracter : literal) escrito += Notacion(caracter);
    if (escrito.size() > LONGITUD_MAXIMA)
        throw ErrorWord("El texto que se busca tiene demasiados caracteres para Word (255)");
    if (escrito.empty()) return std::nullopt;
    return Utf16DeUtf8(Utf8DeAnsi(escrito));
}

}  // namespace analizador

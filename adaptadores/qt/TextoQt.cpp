#include "adaptadores/qt/TextoQt.h"

#include <cstddef>

#include "plataforma/Ansi.h"

namespace analizador {

namespace {

constexpr char SIN_ANCHO = 31;  // what AnsiDeUtf16 leaves in the place of a character without width

// The five bytes without a character.
bool EsByteSinCaracter(char16_t unidad) {
    return unidad >= 0x80 && unidad <= 0x9F && interno::PUNTOS_80_9F[unidad - 0x80U] == 0;
}

}  // namespace

QString QtDeAnsi(std::string_view texto) {
    QString resultado;
    resultado.reserve(static_cast<qsizetype>(texto.size()));
    for (const char c : texto) {
        const auto byte = static_cast<unsigned char>(c);
        const char16_t punto =
            byte >= 0x80 && byte <= 0x9F ? interno::PUNTOS_80_9F[byte - 0x80U] : static_cast<char16_t>(byte);
        resultado.append(QChar(punto == 0 ? static_cast<char16_t>(byte) : punto));
    }
    return resultado;
}

std::string AnsiDeQt(const QString& texto) {
    const std::u16string unidades = texto.normalized(QString::NormalizationForm_C).toStdU16String();
    const std::string bytes = AnsiDeUtf16(unidades);
    std::string resultado;
    resultado.reserve(bytes.size());
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (EsByteSinCaracter(unidades[i]))
            resultado += static_cast<char>(unidades[i]);
        else if (bytes[i] != SIN_ANCHO || unidades[i] == SIN_ANCHO)
            resultado += bytes[i];
    }
    return resultado;
}

}  // namespace analizador

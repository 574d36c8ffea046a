#include "programas/biblioteca/Llamada.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "programas/biblioteca/Textos.h"

namespace analizador {

namespace {

constexpr analizador_utf16 SIN_MEMORIA[] = {'s', 'i', 'n', ' ', 'm', 'e', 'm', 'o', 'r', 'i', 'a', 0};

// At most `maximo` bytes, and no part of a letter.
std::string_view Cabeza(std::string_view utf8, std::size_t maximo) {
    if (utf8.size() <= maximo) return utf8;
    const auto esSeguidor = [&](std::size_t i) {
        return (static_cast<unsigned char>(utf8[i]) & 0xC0) == 0x80;
    };
    while (maximo > 0 && esSeguidor(maximo)) --maximo;
    return utf8.substr(0, maximo);
}

}  // namespace

void TMotivo::Olvida() noexcept {
    FTexto.front() = 0;
    FTexto16.front() = 0;
}

void TMotivo::Pon(const char* motivo) noexcept {
    const std::string_view texto = Cabeza(motivo, MAXIMO - 1);
    *std::copy(texto.begin(), texto.end(), FTexto.begin()) = 0;
    try {
        const auto unidades = UnidadesDe(texto);
        std::copy(unidades.begin(), unidades.end(), FTexto16.begin());
    } catch (...) {
        std::copy(std::begin(SIN_MEMORIA), std::end(SIN_MEMORIA), FTexto16.begin());
    }
}

TMotivo& MotivoDelHilo() {
    thread_local TMotivo motivo;
    return motivo;
}

}  // namespace analizador

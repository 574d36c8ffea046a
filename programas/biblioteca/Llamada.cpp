#include "programas/biblioteca/Llamada.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "plataforma/Utf8.h"
#include "programas/biblioteca/Textos.h"

namespace analizador {

namespace {

constexpr char SIN_MEMORIA[] = "sin memoria";

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
    try {
        const std::string linea = EnUnaLinea(motivo);
        const std::string_view texto = Cabeza(linea, MAXIMO - 1);
        const auto unidades = UnidadesDe(texto);
        *std::copy(texto.begin(), texto.end(), FTexto.begin()) = 0;
        std::copy(unidades.begin(), unidades.end(), FTexto16.begin());
    } catch (...) {
        std::copy(std::begin(SIN_MEMORIA), std::end(SIN_MEMORIA), FTexto.begin());
        std::copy(std::begin(SIN_MEMORIA), std::end(SIN_MEMORIA), FTexto16.begin());
    }
}

TMotivo& MotivoDelHilo() {
    thread_local TMotivo motivo;
    return motivo;
}

}  // namespace analizador

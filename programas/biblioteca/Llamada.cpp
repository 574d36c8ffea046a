#include "programas/biblioteca/Llamada.h"

#include "plataforma/Utf8.h"
#include "programas/biblioteca/Textos.h"

namespace analizador {

void TMotivo::Olvida() noexcept {
    FTexto.clear();
    FTexto16.clear();
}

void TMotivo::Pon(const char* motivo) noexcept {
    try {
        FTexto = EnUnaLinea(motivo);
        FTexto16 = UnidadesDe(FTexto);
    } catch (...) {
        FTexto = "sin memoria";  // short enough to need none
        FTexto16.clear();
    }
}

const analizador_utf16* TMotivo::Texto16() const {
    static constexpr analizador_utf16 NINGUNO[] = {0};
    static constexpr analizador_utf16 SIN_MEMORIA[] = {'s', 'i', 'n', ' ', 'm', 'e',
                                                       'm', 'o', 'r', 'i', 'a', 0};
    if (!FTexto16.empty()) return FTexto16.data();
    return FTexto.empty() ? NINGUNO : SIN_MEMORIA;
}

TMotivo& MotivoDelHilo() {
    thread_local TMotivo motivo;
    return motivo;
}

}  // namespace analizador

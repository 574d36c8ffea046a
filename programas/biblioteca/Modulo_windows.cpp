#include "programas/biblioteca/Modulo_windows.h"

#include <windows.h>

#include <string>

namespace analizador {

namespace {

HMODULE Modulo(DWORD como) {
    HMODULE modulo = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | como,
                       reinterpret_cast<const wchar_t*>(&FijaModulo), &modulo);
    return modulo;
}

}  // namespace

std::filesystem::path RutaModulo() {
    std::wstring ruta(MAX_PATH, L'\0');
    for (;;) {
        const auto longitud = GetModuleFileNameW(Modulo(GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT),
                                                 ruta.data(), static_cast<DWORD>(ruta.size()));
        if (longitud < ruta.size()) return ruta.substr(0, longitud);
        ruta.resize(2 * ruta.size());
    }
}

void FijaModulo() {
    (void)Modulo(GET_MODULE_HANDLE_EX_FLAG_PIN);
}

}  // namespace analizador

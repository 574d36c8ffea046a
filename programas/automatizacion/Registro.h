#pragma once

// The class as the system knows it.

#include <windows.h>

namespace analizador {

inline constexpr CLSID CLASE_ESCRITURA = {
    0x174ae529, 0xff7c, 0x496e, {0xb3, 0xfc, 0x56, 0xdd, 0x41, 0x65, 0x77, 0x5b}};

// Registers the class with this file as its server. `raiz`: HKEY_CURRENT_USER for this user alone, who needs
// no permission; HKEY_LOCAL_MACHINE for all. False, and nothing registered, when the system refuses.
[[nodiscard]] bool Registra(HKEY raiz);

// Takes all of it away again. False when the system refuses.
[[nodiscard]] bool QuitaRegistro(HKEY raiz);

}  // namespace analizador

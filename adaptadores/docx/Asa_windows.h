#pragma once

#include <windows.h>

#include <filesystem>
#include <memory>

namespace analizador {

struct TCierraAsa {
    void operator()(void* asa) const { CloseHandle(asa); }
};

// A file that is open; none when it could not be opened, and GetLastError() says why.
using TAsa = std::unique_ptr<void, TCierraAsa>;

constexpr DWORD CON_TODOS = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD CON_NADIE = 0;

// The arguments of CreateFileW that are not always the same.
[[nodiscard]] inline TAsa AbreFichero(const std::filesystem::path& fichero, DWORD acceso, DWORD compartido,
                                      DWORD creacion, DWORD atributos) {
    void* asa = CreateFileW(fichero.c_str(), acceso, compartido, nullptr, creacion, atributos, nullptr);
    return TAsa(asa == INVALID_HANDLE_VALUE ? nullptr : asa);
}

}  // namespace analizador

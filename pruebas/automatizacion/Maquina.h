#pragma once

// What the tests do to the machine: programs that are run and what is in its registry.

#include <windows.h>

#include <filesystem>
#include <string>

namespace analizador::pruebas {

struct TEjecucion {
    DWORD Codigo = 0;
    std::string Salida;  // both outputs, UTF-8, lines ended by LF
};

// Runs a program of the system and waits for it, for five minutes at most. Throws std::runtime_error when it
// does not start or does not end.
[[nodiscard]] TEjecucion Ejecuta(std::wstring orden);

// A path as the system's programs want it, between quotes.
[[nodiscard]] std::wstring Entrecomilla(std::filesystem::path ruta);

// The text of a value, `nombre` empty the key's own; empty when there is none.
[[nodiscard]] std::wstring ValorDelRegistro(HKEY raiz, const std::wstring& clave,
                                            const std::wstring& nombre = {});

[[nodiscard]] bool EstaEnElRegistro(HKEY raiz, const std::wstring& clave);

}  // namespace analizador::pruebas

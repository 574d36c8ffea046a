#include "programas/automatizacion/Registro.h"

#include <objbase.h>

#include <array>
#include <iterator>
#include <string>

#include "programas/biblioteca/Modulo_windows.h"

namespace analizador {

namespace {

constexpr const wchar_t* NOMBRE = L"Analizador.Escritura";
constexpr const wchar_t* QUE_ES = L"Análisis de la escritura abierta en Word";

std::wstring Identificador() {
    wchar_t texto[64] = {};
    StringFromGUID2(CLASE_ESCRITURA, texto, static_cast<int>(std::size(texto)));
    return texto;
}

std::wstring ClaveDelNombre() {
    return std::wstring(L"Software\\Classes\\") + NOMBRE;
}

std::wstring ClaveDeLaClase() {
    return L"Software\\Classes\\CLSID\\" + Identificador();
}

// `nombre` null: the key's own value.
bool Pon(HKEY raiz, const std::wstring& clave, const wchar_t* nombre, const std::wstring& valor) {
    const auto bytes = static_cast<DWORD>((valor.size() + 1) * sizeof(wchar_t));
    return RegSetKeyValueW(raiz, clave.c_str(), nombre, REG_SZ, valor.c_str(), bytes) == ERROR_SUCCESS;
}

bool Quita(HKEY raiz, const std::wstring& clave) {
    const auto resultado = RegDeleteTreeW(raiz, clave.c_str());
    return resultado == ERROR_SUCCESS || resultado == ERROR_FILE_NOT_FOUND;
}

}  // namespace

bool Registra(HKEY raiz) {
    const auto servidor = ClaveDeLaClase() + L"\\InprocServer32";
    const bool hecho = Pon(raiz, ClaveDeLaClase(), nullptr, QUE_ES) &&
                       Pon(raiz, servidor, nullptr, RutaModulo().native()) &&
                       Pon(raiz, servidor, L"ThreadingModel", L"Apartment") &&
                       Pon(raiz, ClaveDeLaClase() + L"\\ProgID", nullptr, NOMBRE) &&
                       Pon(raiz, ClaveDelNombre(), nullptr, QUE_ES) &&
                       Pon(raiz, ClaveDelNombre() + L"\\CLSID", nullptr, Identificador());
    if (!hecho) (void)QuitaRegistro(raiz);
    return hecho;
}

bool QuitaRegistro(HKEY raiz) {
    const bool sinNombre = Quita(raiz, ClaveDelNombre());
    return Quita(raiz, ClaveDeLaClase()) && sinNombre;
}

}  // namespace analizador

#include "pruebas/automatizacion/Maquina.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <utility>

#include "plataforma/Rficheros.h"

namespace analizador::pruebas {

namespace {

struct TAsaPropia {
    HANDLE Asa;
    explicit TAsaPropia(HANDLE asa) : Asa(asa) {}
    ~TAsaPropia() { CloseHandle(Asa); }
    TAsaPropia(const TAsaPropia&) = delete;
    TAsaPropia& operator=(const TAsaPropia&) = delete;
};

HANDLE FicheroHeredable(const std::filesystem::path& fichero) {
    SECURITY_ATTRIBUTES heredable{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    return CreateFileW(fichero.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &heredable,
                       TRUNCATE_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
}

// The system's programs write in the code page of consoles.
std::string Utf8DeConsola(const std::string& texto) {
    std::wstring ancho(texto.size(), L'\0');
    const int longitud = static_cast<int>(texto.size());
    const int unidades = MultiByteToWideChar(CP_OEMCP, 0, texto.data(), longitud, ancho.data(), longitud);
    ancho.resize(static_cast<std::size_t>(unidades));
    const std::u8string utf8 = std::filesystem::path(ancho).u8string();
    return {utf8.begin(), utf8.end()};
}

std::string Contenido(const std::filesystem::path& fichero) {
    std::ifstream entrada(fichero, std::ios::binary);
    std::string texto{std::istreambuf_iterator<char>(entrada), {}};
    std::erase(texto, '\r');
    return Utf8DeConsola(texto);
}

DWORD Espera(HANDLE proceso) {
    constexpr DWORD CINCO_MINUTOS = 300'000;
    DWORD codigo = 0;
    if (WaitForSingleObject(proceso, CINCO_MINUTOS) != WAIT_OBJECT_0) {
        TerminateProcess(proceso, 1);
        throw std::runtime_error("the program does not end");
    }
    GetExitCodeProcess(proceso, &codigo);
    return codigo;
}

// To a file: what the program starts would keep a pipe open.
DWORD Ejecuta(std::wstring orden, const std::filesystem::path& fichero) {
    const TAsaPropia salida(FicheroHeredable(fichero));
    STARTUPINFOW como{};
    como.cb = sizeof como;
    como.dwFlags = STARTF_USESTDHANDLES;
    como.hStdOutput = como.hStdError = salida.Asa;
    PROCESS_INFORMATION hecho{};
    if (!CreateProcessW(nullptr, orden.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &como, &hecho))
        throw std::runtime_error("the program does not start");
    const TAsaPropia hilo(hecho.hThread);
    const TAsaPropia proceso(hecho.hProcess);
    return Espera(proceso.Asa);
}

}  // namespace

TEjecucion Ejecuta(std::wstring orden) {
    const auto fichero = FicheroTemporal_({}, "salida", "txt");
    const DWORD codigo = Ejecuta(std::move(orden), fichero);
    TEjecucion ejecucion{codigo, Contenido(fichero)};
    std::filesystem::remove(fichero);
    return ejecucion;
}

std::wstring Entrecomilla(std::filesystem::path ruta) {
    return L"\"" + std::filesystem::absolute(ruta).make_preferred().native() + L"\"";
}

std::wstring ValorDelRegistro(HKEY raiz, const std::wstring& clave, const std::wstring& nombre) {
    wchar_t texto[1024] = {};
    DWORD bytes = sizeof texto - sizeof *texto;
    RegGetValueW(raiz, clave.c_str(), nombre.empty() ? nullptr : nombre.c_str(), RRF_RT_REG_SZ, nullptr,
                 texto, &bytes);
    return texto;
}

bool EstaEnElRegistro(HKEY raiz, const std::wstring& clave) {
    HKEY abierta = nullptr;
    const bool esta = RegOpenKeyExW(raiz, clave.c_str(), 0, KEY_READ, &abierta) == ERROR_SUCCESS;
    if (esta) RegCloseKey(abierta);
    return esta;
}

}  // namespace analizador::pruebas

// What the system alone knows, for Windows.

#include <windows.h>
// The others need the first.
#include <sddl.h>

#include <chrono>
#include <cstddef>
#include <memory>
#include <random>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "plataforma/CarpetaPrivada.h"
#include "plataforma/Rficheros.h"
#include "plataforma/Sistema.h"

namespace analizador {

namespace {

std::error_code UltimoError() {
    return {static_cast<int>(GetLastError()), std::system_category()};
}

// An open file or other object of the system's, closed with it.
class TAsa {
  public:
    explicit TAsa(HANDLE asa = INVALID_HANDLE_VALUE) : FAsa(asa) {}
    TAsa(TAsa&& otra) noexcept : FAsa(std::exchange(otra.FAsa, INVALID_HANDLE_VALUE)) {}
    ~TAsa() {
        if (Vale()) CloseHandle(FAsa);
    }
    TAsa(const TAsa&) = delete;
    TAsa& operator=(const TAsa&) = delete;
    TAsa& operator=(TAsa&&) = delete;
    [[nodiscard]] bool Vale() const { return FAsa != INVALID_HANDLE_VALUE && FAsa != nullptr; }
    [[nodiscard]] HANDLE Asa() const { return FAsa; }

  private:
    HANDLE FAsa;
};

struct TLiberaLocal {
    void operator()(void* memoria) const { LocalFree(memoria); }
};

// 160 bits of the system's source of randomness, as letters and digits.
std::wstring NombreAlAzar() {
    static constexpr std::wstring_view SIGNOS = L"abcdefghijklmnopqrstuvwxyz234567";
    static constexpr std::size_t LONGITUD = 32;
    std::random_device azar;
    std::wstring nombre;
    while (nombre.size() < LONGITUD) nombre += SIGNOS[azar() % SIGNOS.size()];
    return nombre;
}

// The user's identity as text; empty when the system does not tell.
std::wstring Usuario() {
    HANDLE abierta = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &abierta)) return {};
    const TAsa credencial(abierta);
    DWORD longitud = 0;
    GetTokenInformation(credencial.Asa(), TokenUser, nullptr, 0, &longitud);
    std::vector<std::max_align_t> datos(longitud / sizeof(std::max_align_t) + 1);
    if (!GetTokenInformation(credencial.Asa(), TokenUser, datos.data(), longitud, &longitud)) return {};
    wchar_t* texto = nullptr;
    if (!ConvertSidToStringSidW(static_cast<const TOKEN_USER*>(static_cast<void*>(datos.data()))->User.Sid,
                                &texto))
        return {};
    const std::unique_ptr<wchar_t, TLiberaLocal> dueno(texto);
    return texto;
}

// What lets this user in and nobody else, inherited by all that a folder comes to hold.
class TSoloElUsuario {
  public:
    TSoloElUsuario() {
        const std::wstring regla = L"D:P(A;OICI;FA;;;" + Usuario() + L")";
        void* descriptor = nullptr;
        if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(regla.c_str(), SDDL_REVISION_1, &descriptor,
                                                                  nullptr))
            throw std::system_error(UltimoError(), "No se puede saber qué usuario es");
        FDescriptor.reset(descriptor);
        FAtributos = {sizeof FAtributos, descriptor, FALSE};
    }
    [[nodiscard]] SECURITY_ATTRIBUTES* Atributos() { return &FAtributos; }

  private:
    std::unique_ptr<void, TLiberaLocal> FDescriptor;
    SECURITY_ATTRIBUTES FAtributos{};
};

class TCerrojoWindows : public TCerrojo {
  public:
    explicit TCerrojoWindows(TAsa asa) : FAsa(std::move(asa)) {}

  private:
    TAsa FAsa;
};

bool EsCarpeta(const std::filesystem::path& ruta) {
    const DWORD atributos = GetFileAttributesW(ruta.c_str());
    return atributos != INVALID_FILE_ATTRIBUTES && (atributos & FILE_ATTRIBUTE_DIRECTORY) != 0 &&
           (atributos & FILE_ATTRIBUTE_REPARSE_POINT) == 0;
}

// 100 ns steps since 1601 as nanoseconds since 1970.
std::int64_t Nanosegundos(std::int64_t pasos) {
    constexpr std::int64_t PASOS_HASTA_1970 = 116'444'736'000'000'000;
    return (pasos - PASOS_HASTA_1970) * 100;
}

std::int64_t NanosegundosDeAhora() {
    const auto desde1970 = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(desde1970).count();
}

std::uint64_t Junta(DWORD alta, DWORD baja) {
    return std::uint64_t{alta} << 32 | baja;
}

}  // namespace

std::filesystem::path CreaCarpetaSecreta(const std::filesystem::path& donde, std::string_view prefijo) {
    TSoloElUsuario permiso;
    for (;;) {
        auto carpeta = donde / prefijo;
        carpeta += NombreAlAzar();
        if (CreateDirectoryW(carpeta.c_str(), permiso.Atributos())) return carpeta;
        const std::error_code error = UltimoError();
        if (error.value() != ERROR_ALREADY_EXISTS)
            throw std::filesystem::filesystem_error("No se puede crear una carpeta temporal", carpeta, error);
    }
}

// The lock is a file beside the folder, so that the folder can be removed while it is held; the system
// removes it when the process that opened it ends in whatever way.
std::unique_ptr<TCerrojo> BloqueaCarpeta(const std::filesystem::path& carpeta, TEspera espera) {
    constexpr DWORD TURNO = 20;  // milliseconds
    constexpr DWORD NADIE_MAS = 0;
    if (!EsCarpeta(carpeta)) return nullptr;
    auto fichero = carpeta;
    fichero += L".cerrojo";
    for (;;) {
        TAsa asa(CreateFileW(fichero.c_str(), GENERIC_WRITE | DELETE, NADIE_MAS, nullptr, OPEN_ALWAYS,
                             FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr));
        // Looked at once locked: until then another process may have removed it.
        if (asa.Vale())
            return EsCarpeta(carpeta) ? std::make_unique<TCerrojoWindows>(std::move(asa)) : nullptr;
        const DWORD error = GetLastError();
        const bool ajeno = error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;  // or going away
        if (!ajeno || espera == TEspera::No || !EsCarpeta(carpeta)) return nullptr;
        Sleep(TURNO);
    }
}

std::filesystem::path RutaPrograma() {
    std::wstring ruta(MAX_PATH, L'\0');
    for (;;) {
        const auto longitud = GetModuleFileNameW(nullptr, ruta.data(), static_cast<DWORD>(ruta.size()));
        if (longitud < ruta.size()) return ruta.substr(0, longitud);
        ruta.resize(2 * ruta.size());
    }
}

std::filesystem::path FicheroTemporal_(const std::filesystem::path& carpeta, std::string_view prefijo,
                                       std::string_view extension) {
    const auto donde = carpeta.empty() ? CarpetaPrivada() : carpeta;
    TSoloElUsuario permiso;
    for (;;) {
        auto fichero = donde / prefijo;
        ((fichero += NombreAlAzar()) += L".") += extension;
        const TAsa abierto(CreateFileW(fichero.c_str(), GENERIC_WRITE, 0, permiso.Atributos(), CREATE_NEW,
                                       FILE_ATTRIBUTE_NORMAL, nullptr));
        if (abierto.Vale()) return fichero;
        const std::error_code error = UltimoError();
        if (error.value() != ERROR_FILE_EXISTS)
            throw std::filesystem::filesystem_error("No se puede crear un fichero temporal", fichero, error);
    }
}

TMarcaFichero MarcaDeFichero(const std::filesystem::path& fichero) {
    constexpr DWORD TODOS = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    // The clock is read first: what changes after that counts as recent, never the other way round.
    const std::int64_t ahora = NanosegundosDeAhora();
    const TAsa abierto(CreateFileW(fichero.c_str(), FILE_READ_ATTRIBUTES, TODOS, nullptr, OPEN_EXISTING,
                                   FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    BY_HANDLE_FILE_INFORMATION datos{};
    FILE_BASIC_INFO tiempos{};
    if (!abierto.Vale() || !GetFileInformationByHandle(abierto.Asa(), &datos) ||
        !GetFileInformationByHandleEx(abierto.Asa(), FileBasicInfo, &tiempos, sizeof tiempos))
        return {};
    TMarcaFichero marca;
    marca.Existe = true;
    marca.Dispositivo = datos.dwVolumeSerialNumber;
    marca.Identidad = Junta(datos.nFileIndexHigh, datos.nFileIndexLow);
    marca.Longitud = Junta(datos.nFileSizeHigh, datos.nFileSizeLow);
    marca.Modificado = Nanosegundos(tiempos.LastWriteTime.QuadPart);
    // Some file systems keep no time of change.
    marca.Cambiado =
        tiempos.ChangeTime.QuadPart > 0 ? Nanosegundos(tiempos.ChangeTime.QuadPart) : marca.Modificado;
    marca.Reciente = EsMarcaReciente(marca.Modificado, marca.Cambiado, ahora);
    return marca;
}

}  // namespace analizador

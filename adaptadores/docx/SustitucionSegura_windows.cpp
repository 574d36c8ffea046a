#include "adaptadores/docx/FalloDocx.h"
#include "adaptadores/docx/FicheroProvisional_windows.h"
#include "adaptadores/docx/NombresProvisionales.h"
#include "adaptadores/docx/SustitucionSegura.h"

namespace analizador {

namespace {

constexpr DWORD RUTA_MAXIMA = 32768;

// What a document keeps when it is saved.
constexpr DWORD ATRIBUTOS_QUE_QUEDAN =
    FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

bool Existe(DWORD atributos) {
    return atributos != INVALID_FILE_ATTRIBUTES;
}

// Those of a file that does not exist are none.
DWORD AtributosDe(const std::filesystem::path& fichero) {
    const DWORD atributos = GetFileAttributesW(fichero.c_str());
    if (!Existe(atributos) && GetLastError() != ERROR_FILE_NOT_FOUND) FallaAlGuardar(GetLastError());
    return atributos;
}

void ExigeSustituible(const std::filesystem::path& fichero, DWORD atributos) {
    if ((atributos & FILE_ATTRIBUTE_DIRECTORY) != 0) throw FalloDocx("no se puede guardar: es una carpeta");
    if ((atributos & FILE_ATTRIBUTE_READONLY) != 0)
        throw FalloDocx("no se puede guardar: el fichero es de solo lectura");
    TAsa abierto;
    const DWORD error = Insiste([&] {
        abierto = AbreFichero(fichero, GENERIC_WRITE | DELETE, CON_TODOS, OPEN_EXISTING, 0);
        return abierto != nullptr;
    });
    if (!abierto) FallaAlGuardar(error);
    if (GetFileType(abierto.get()) != FILE_TYPE_DISK)
        throw FalloDocx("no se puede guardar: no es un fichero normal");
}

// The prefix of a long name is for the system, not for people; those of the network have another one.
std::filesystem::path SinPrefijo(const std::wstring& ruta) {
    static constexpr std::wstring_view PREFIJO = L"\\\\?\\";
    const bool deUnDisco =
        ruta.starts_with(PREFIJO) && ruta.size() > PREFIJO.size() + 1 && ruta[PREFIJO.size() + 1] == L':';
    return deUnDisco ? ruta.substr(PREFIJO.size()) : ruta;
}

}  // namespace

std::string CausaDelSistema(int error) {
    switch (error) {
        case ERROR_ACCESS_DENIED:
        case ERROR_PRIVILEGE_NOT_HELD:
            return "no hay permiso para escribir en la carpeta";
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_USER_MAPPED_FILE:
            return "otro programa lo tiene abierto; ciérrelo antes de guardar";
        case ERROR_WRITE_PROTECT:
            return "el disco es de solo lectura";
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
            return "no queda sitio en el disco";
        case ERROR_FILE_TOO_LARGE:
            return "el fichero pasa del tamaño que el sistema permite";
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_DRIVE:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
            return "la carpeta no existe";
        case ERROR_INVALID_NAME:
        case ERROR_FILENAME_EXCED_RANGE:
            return "el sistema no admite ese nombre de fichero";
        case ERROR_CRC:
        case ERROR_WRITE_FAULT:
        case ERROR_IO_DEVICE:
        case ERROR_NOT_READY:
            return "el disco falla al escribir";
        default:
            return "error " + std::to_string(error) + " del sistema";
    }
}

std::filesystem::path FicheroReal(const std::filesystem::path& ruta) {
    const DWORD atributos = GetFileAttributesW(ruta.c_str());
    if (!Existe(atributos) || (atributos & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return ruta;
    const TAsa abierto =
        AbreFichero(ruta, FILE_READ_ATTRIBUTES, CON_TODOS, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
    std::wstring real(RUTA_MAXIMA, L'\0');
    const DWORD longitud =
        abierto ? GetFinalPathNameByHandleW(abierto.get(), real.data(), RUTA_MAXIMA, FILE_NAME_NORMALIZED)
                : 0;
    if (longitud == 0 || longitud >= RUTA_MAXIMA)
        throw FalloDocx("el enlace simbólico no lleva a ningún fichero");
    real.resize(longitud);
    return SinPrefijo(real);
}

void SustituyeFichero(const std::filesystem::path& fichero, std::string_view bytes,
                      const std::function<void()>& justoAntes) {
    const DWORD anterior = AtributosDe(fichero);
    if (Existe(anterior)) ExigeSustituible(fichero, anterior);
    const auto carpeta = fichero.has_parent_path() ? fichero.parent_path() : std::filesystem::path(".");
    LimpiaProvisionales(carpeta);
    TFicheroProvisional nuevo(carpeta, Existe(anterior) && (anterior & FILE_ATTRIBUTE_ENCRYPTED) != 0);
    nuevo.Escribe(bytes);
    if (Existe(anterior)) nuevo.TomaDe(fichero);
    nuevo.LlevaAlDisco();
    justoAntes();
    nuevo.OcupaElSitioDe(fichero,
                         FILE_ATTRIBUTE_ARCHIVE | (Existe(anterior) ? anterior & ATRIBUTOS_QUE_QUEDAN : 0U));
}

}  // namespace analizador

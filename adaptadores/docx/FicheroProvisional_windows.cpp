#include "adaptadores/docx/FicheroProvisional_windows.h"

// After windows.h.
#include <aclapi.h>

#include <algorithm>

#include "adaptadores/docx/FalloDocx.h"
#include "adaptadores/docx/NombresProvisionales.h"
#include "adaptadores/docx/SustitucionSegura.h"

namespace analizador {

namespace {

constexpr int INTENTOS = 100;
constexpr std::size_t TROZO_MAXIMO = 1U << 30;
constexpr int ESPERAS = 20;
constexpr DWORD ESPERA = 50;  // milliseconds

struct TLiberaLocal {
    void operator()(void* memoria) const { LocalFree(memoria); }
};

// None when somebody else has it.
TAsa Bloquea(const std::filesystem::path& fichero) {
    auto cerrojo = fichero;
    cerrojo += L".cerrojo";
    return AbreFichero(cerrojo, GENERIC_WRITE | DELETE, CON_NADIE, OPEN_ALWAYS,
                       FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE);
}

bool AlguienLoTieneAbierto(const std::filesystem::path& fichero) {
    const TAsa solo = AbreFichero(fichero, DELETE, CON_NADIE, OPEN_EXISTING, 0);
    return !solo && GetLastError() == ERROR_SHARING_VIOLATION;
}

// A file system without permissions has nothing to copy.
void CopiaPermisos(const std::filesystem::path& de, const std::filesystem::path& a) {
    ACL* lista = nullptr;
    void* leido = nullptr;
    if (GetNamedSecurityInfoW(de.c_str(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, &lista,
                              nullptr, &leido) != ERROR_SUCCESS)
        return;
    const std::unique_ptr<void, TLiberaLocal> descriptor(leido);
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD version = 0;
    if (lista == nullptr || !GetSecurityDescriptorControl(descriptor.get(), &control, &version)) return;
    const bool propia = (control & SE_DACL_PROTECTED) != 0;
    const SECURITY_INFORMATION que =
        DACL_SECURITY_INFORMATION |
        (propia ? PROTECTED_DACL_SECURITY_INFORMATION : UNPROTECTED_DACL_SECURITY_INFORMATION);
    auto destino = a.native();
    const DWORD error =
        SetNamedSecurityInfoW(destino.data(), SE_FILE_OBJECT, que, nullptr, nullptr, lista, nullptr);
    if (error != ERROR_SUCCESS) FallaAlGuardar(error);
}

// Where a file came from, by which Word decides whether to trust it. Most have none.
void CopiaProcedencia(std::filesystem::path de, std::filesystem::path a) {
    static constexpr auto PROCEDENCIA = L":Zone.Identifier";
    CopyFileW((de += PROCEDENCIA).c_str(), (a += PROCEDENCIA).c_str(), FALSE);
}

}  // namespace

DWORD Insiste(const std::function<bool()>& accion) {
    for (int i = 0;; ++i) {
        if (accion()) return ERROR_SUCCESS;
        const DWORD error = GetLastError();
        const bool quizaAbierto = error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;
        if (!quizaAbierto || i == ESPERAS) return error;
        Sleep(ESPERA);
    }
}

void FallaAlGuardar(DWORD error) {
    throw FalloDocx("no se puede guardar: " + CausaDelSistema(static_cast<int>(error)));
}

TFicheroProvisional::TFicheroProvisional(const std::filesystem::path& carpeta, bool cifrado) {
    for (int i = 0; i < INTENTOS; ++i) {
        Ruta = carpeta / NombreProvisional();
        if (Crea(FILE_ATTRIBUTE_HIDDEN | (cifrado ? FILE_ATTRIBUTE_ENCRYPTED : 0U))) return;
    }
    FallaAlGuardar(ERROR_FILE_EXISTS);
}

bool TFicheroProvisional::Crea(DWORD atributos) {
    Cerrojo = Bloquea(Ruta);
    if (Cerrojo) Abierto = AbreFichero(Ruta, GENERIC_WRITE, CON_NADIE, CREATE_NEW, atributos);
    if (Abierto) return true;
    const DWORD error = GetLastError();
    if (error != ERROR_FILE_EXISTS && error != ERROR_SHARING_VIOLATION) FallaAlGuardar(error);
    return false;
}

TFicheroProvisional::~TFicheroProvisional() {
    Abierto.reset();
    if (!Colocado) DeleteFileW(Ruta.c_str());
}

void TFicheroProvisional::Escribe(std::string_view bytes) {
    while (!bytes.empty()) {
        const auto trozo = static_cast<DWORD>(std::min(bytes.size(), TROZO_MAXIMO));
        DWORD escritos = 0;
        if (!WriteFile(Abierto.get(), bytes.data(), trozo, &escritos, nullptr))
            FallaAlGuardar(GetLastError());
        if (escritos == 0) FallaAlGuardar(ERROR_DISK_FULL);
        bytes.remove_prefix(escritos);
    }
}

void TFicheroProvisional::TomaDe(const std::filesystem::path& anterior) {
    CopiaPermisos(anterior, Ruta);
    CopiaProcedencia(anterior, Ruta);
    WIN32_FILE_ATTRIBUTE_DATA datos{};
    if (GetFileAttributesExW(anterior.c_str(), GetFileExInfoStandard, &datos))
        SetFileTime(Abierto.get(), &datos.ftCreationTime, nullptr, nullptr);
}

void TFicheroProvisional::LlevaAlDisco() {
    if (!FlushFileBuffers(Abierto.get())) FallaAlGuardar(GetLastError());
    Abierto.reset();
}

// (ReplaceFileW would keep the old one's rights by itself, but in two steps, between which the document is
// not there.)
void TFicheroProvisional::OcupaElSitioDe(const std::filesystem::path& fichero, DWORD atributos) {
    if (!SetFileAttributesW(Ruta.c_str(), atributos)) FallaAlGuardar(GetLastError());
    const DWORD error = Insiste([&] {
        return MoveFileExW(Ruta.c_str(), fichero.c_str(),
                           MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
    });
    Colocado = error == ERROR_SUCCESS;
    if (!Colocado) FallaAlGuardar(AlguienLoTieneAbierto(fichero) ? DWORD{ERROR_SHARING_VIOLATION} : error);
}

void QuitaSiNadieLoEscribe(const std::filesystem::path& fichero) {
    constexpr DWORD NO_ES_UN_FICHERO = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    const DWORD atributos = GetFileAttributesW(fichero.c_str());
    if (atributos == INVALID_FILE_ATTRIBUTES || (atributos & NO_ES_UN_FICHERO) != 0) return;
    if (const TAsa cerrojo = Bloquea(fichero)) DeleteFileW(fichero.c_str());
}

}  // namespace analizador

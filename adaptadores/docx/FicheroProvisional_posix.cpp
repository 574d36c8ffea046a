#include "adaptadores/docx/FicheroProvisional_posix.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <string>

#include "adaptadores/docx/FalloDocx.h"
#include "adaptadores/docx/NombresProvisionales.h"
#include "adaptadores/docx/SustitucionSegura.h"

namespace analizador {

namespace {

constexpr int INTENTOS = 100;
constexpr std::size_t TROZO_MAXIMO = 1U << 30;

// True when nobody else holds the lock, also where the file system has no locks: nobody cleans there.
bool Bloquea(int descriptor) {
    return ::flock(descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

bool TieneNombre(int descriptor) {
    struct stat estado {};
    return ::fstat(descriptor, &estado) == 0 && estado.st_nlink > 0;
}

}  // namespace

void FallaAlGuardar(int error) {
    throw FalloDocx("no se puede guardar: " + CausaDelSistema(error));
}

TFicheroProvisional::TFicheroProvisional(const std::filesystem::path& carpeta, mode_t modo) {
    for (int i = 0; i < INTENTOS; ++i) {
        Ruta = carpeta / NombreProvisional();
        if (Crea(modo)) return;
    }
    FallaAlGuardar(EEXIST);
}

// Between its making and its locking another process may take it for an abandoned one: then it is none.
bool TFicheroProvisional::Crea(mode_t modo) {
    Descriptor = ::open(Ruta.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, modo);
    if (Descriptor < 0 && errno == EEXIST) return false;
    if (Descriptor < 0) FallaAlGuardar(errno);
    if (Bloquea(Descriptor) && TieneNombre(Descriptor)) return true;
    ::close(Descriptor);
    return false;
}

TFicheroProvisional::~TFicheroProvisional() {
    if (!Colocado) ::unlink(Ruta.c_str());
    ::close(Descriptor);
}

void TFicheroProvisional::Escribe(std::string_view bytes) {
    while (!bytes.empty()) {
        const auto escritos = ::write(Descriptor, bytes.data(), std::min(bytes.size(), TROZO_MAXIMO));
        if (escritos < 0 && errno == EINTR) continue;
        if (escritos <= 0) FallaAlGuardar(escritos < 0 ? errno : ENOSPC);
        bytes.remove_prefix(static_cast<std::size_t>(escritos));
    }
}

// The owner first, because changing it may take bits of the mode away. Someone else's file that this user
// may replace becomes this user's.
void TFicheroProvisional::TomaDe(const struct stat& anterior) {
    if (::fchown(Descriptor, anterior.st_uid, anterior.st_gid) != 0)
        static_cast<void>(::fchown(Descriptor, static_cast<uid_t>(-1), anterior.st_gid) == 0);
    if (::fchmod(Descriptor, anterior.st_mode & 07777) != 0) FallaAlGuardar(errno);
}

// It stays open, and so locked, until it has taken its place.
void TFicheroProvisional::LlevaAlDisco() {
    if (::fsync(Descriptor) != 0) FallaAlGuardar(errno);
}

void TFicheroProvisional::OcupaElSitioDe(const std::filesystem::path& fichero) {
    if (::rename(Ruta.c_str(), fichero.c_str()) != 0) FallaAlGuardar(errno);
    Colocado = true;
}

void QuitaSiNadieLoEscribe(const std::filesystem::path& fichero) {
    const int descriptor = ::open(fichero.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) return;
    struct stat estado {};
    const bool normal = ::fstat(descriptor, &estado) == 0 && S_ISREG(estado.st_mode);
    if (normal && ::flock(descriptor, LOCK_EX | LOCK_NB) == 0) ::unlink(fichero.c_str());
    ::close(descriptor);
}

}  // namespace analizador

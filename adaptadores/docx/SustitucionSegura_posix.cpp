#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <optional>
#include <system_error>

#include "adaptadores/docx/FalloDocx.h"
#include "adaptadores/docx/FicheroProvisional_posix.h"
#include "adaptadores/docx/NombresProvisionales.h"
#include "adaptadores/docx/SustitucionSegura.h"

namespace analizador {

namespace {

std::optional<struct stat> EstadoDe(const std::filesystem::path& fichero) {
    struct stat estado {};
    if (::stat(fichero.c_str(), &estado) == 0) return estado;
    if (errno != ENOENT) FallaAlGuardar(errno);
    return std::nullopt;
}

// The new name is on the disk once its folder is. By now the file is in place and whole, so a system that
// cannot do this for folders makes no failure of the saving.
void LlevaCarpetaAlDisco(const std::filesystem::path& carpeta) {
    const int descriptor = ::open(carpeta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    static_cast<void>(::fsync(descriptor) == 0);
    ::close(descriptor);
}

void ExigeSustituible(const std::filesystem::path& fichero, const struct stat& anterior) {
    if (S_ISDIR(anterior.st_mode)) throw FalloDocx("no se puede guardar: es una carpeta");
    if (!S_ISREG(anterior.st_mode)) throw FalloDocx("no se puede guardar: no es un fichero normal");
    if (::access(fichero.c_str(), W_OK) != 0)
        throw FalloDocx("no se puede guardar: el fichero es de solo lectura");
}

}  // namespace

std::string CausaDelSistema(int error) {
    switch (error) {
        case EACCES:
        case EPERM:
            return "no hay permiso para escribir en la carpeta";
        case EROFS:
            return "el disco es de solo lectura";
        case ENOSPC:
        case EDQUOT:
            return "no queda sitio en el disco";
        case EFBIG:
            return "el fichero pasa del tamaño que el sistema permite";
        case ENOENT:
        case ENOTDIR:
            return "la carpeta no existe";
        case EIO:
            return "el disco falla al escribir";
        default:
            return "error del sistema (" + std::system_category().message(error) + ")";
    }
}

std::filesystem::path FicheroReal(const std::filesystem::path& ruta) {
    constexpr int ENLACES_MAXIMOS = 40;
    auto real = ruta;
    std::error_code error;
    for (int i = 0; i < ENLACES_MAXIMOS; ++i) {
        if (!std::filesystem::is_symlink(std::filesystem::symlink_status(real, error))) return real;
        const auto destino = std::filesystem::read_symlink(real, error);
        if (error) break;
        real = destino.is_absolute() ? destino : real.parent_path() / destino;
    }
    throw FalloDocx("el enlace simbólico no lleva a ningún fichero");
}

void SustituyeFichero(const std::filesystem::path& fichero, std::string_view bytes,
                      const std::function<void()>& justoAntes) {
    const auto anterior = EstadoDe(fichero);
    if (anterior) ExigeSustituible(fichero, *anterior);
    const auto carpeta = fichero.has_parent_path() ? fichero.parent_path() : std::filesystem::path(".");
    LimpiaProvisionales(carpeta);
    TFicheroProvisional nuevo(carpeta, anterior ? 0600 : 0666);
    nuevo.Escribe(bytes);
    if (anterior) nuevo.TomaDe(*anterior);
    nuevo.LlevaAlDisco();
    justoAntes();
    nuevo.OcupaElSitioDe(fichero);
    LlevaCarpetaAlDisco(carpeta);
}

}  // namespace analizador

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <optional>
#include <random>
#include <string>
#include <system_error>

#include "adaptadores/docx/FalloDocx.h"
#include "adaptadores/docx/SustitucionSegura.h"

namespace analizador {

namespace {

constexpr int INTENTOS = 100;
constexpr std::size_t TROZO_MAXIMO = 1U << 30;

[[noreturn]] void Falla(int error) {
    throw FalloDocx("no se puede guardar: " + CausaDeErrno(error));
}

std::optional<struct stat> EstadoDe(const std::filesystem::path& fichero) {
    struct stat estado {};
    if (::stat(fichero.c_str(), &estado) == 0) return estado;
    if (errno != ENOENT) Falla(errno);
    return std::nullopt;
}

std::string SufijoAlAzar() {
    static constexpr std::string_view CIFRAS = "0123456789abcdefghijklmnopqrstuvwxyz";
    std::random_device azar;
    std::uniform_int_distribution<std::size_t> cual(0, CIFRAS.size() - 1);
    std::string sufijo;
    for (int i = 0; i < 12; ++i) sufijo += CIFRAS[cual(azar)];
    return sufijo;
}

// A new file that goes with the object unless it has taken its place.
class TFicheroProvisional {
  public:
    TFicheroProvisional(const std::filesystem::path& carpeta, mode_t modo) {
        for (int i = 0; i < INTENTOS && Descriptor < 0; ++i) {
            Ruta = carpeta / (".~docx-" + SufijoAlAzar() + ".tmp");
            Descriptor = ::open(Ruta.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, modo);
            if (Descriptor < 0 && errno != EEXIST) break;
        }
        if (Descriptor < 0) Falla(errno);
    }

    ~TFicheroProvisional() {
        if (Descriptor >= 0) ::close(Descriptor);
        if (!Colocado) ::unlink(Ruta.c_str());
    }

    TFicheroProvisional(const TFicheroProvisional&) = delete;
    TFicheroProvisional& operator=(const TFicheroProvisional&) = delete;

    void Escribe(std::string_view bytes) {
        while (!bytes.empty()) {
            const auto escritos = ::write(Descriptor, bytes.data(), std::min(bytes.size(), TROZO_MAXIMO));
            if (escritos < 0 && errno == EINTR) continue;
            if (escritos <= 0) Falla(escritos < 0 ? errno : ENOSPC);
            bytes.remove_prefix(static_cast<std::size_t>(escritos));
        }
    }

    // The owner first, because changing it may take bits of the mode away. Someone else's file that this user
    // may replace becomes this user's.
    void TomaDe(const struct stat& anterior) {
        if (::fchown(Descriptor, anterior.st_uid, anterior.st_gid) != 0)
            static_cast<void>(::fchown(Descriptor, static_cast<uid_t>(-1), anterior.st_gid) == 0);
        if (::fchmod(Descriptor, anterior.st_mode & 07777) != 0) Falla(errno);
    }

    void LlevaAlDisco() {
        if (::fsync(Descriptor) != 0) Falla(errno);
        const int descriptor = Descriptor;
        Descriptor = -1;
        if (::close(descriptor) != 0) Falla(errno);
    }

    void OcupaElSitioDe(const std::filesystem::path& fichero) {
        if (::rename(Ruta.c_str(), fichero.c_str()) != 0) Falla(errno);
        Colocado = true;
    }

  private:
    std::filesystem::path Ruta;
    int Descriptor = -1;
    bool Colocado = false;
};

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

std::string CausaDeErrno(int error) {
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
        default:
            return std::system_category().message(error);
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
    TFicheroProvisional nuevo(carpeta, anterior ? 0600 : 0666);
    nuevo.Escribe(bytes);
    if (anterior) nuevo.TomaDe(*anterior);
    nuevo.LlevaAlDisco();
    justoAntes();
    nuevo.OcupaElSitioDe(fichero);
    LlevaCarpetaAlDisco(carpeta);
}

}  // namespace analizador

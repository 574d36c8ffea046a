// What the system alone knows, for systems with POSIX files.

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <memory>
#include <random>
#include <string>
#include <system_error>
#include <utility>

#include "plataforma/CarpetaPrivada.h"
#include "plataforma/Rficheros.h"
#include "plataforma/Sistema.h"

namespace analizador {

namespace {

std::int64_t Nanosegundos(const timespec& momento) {
    return std::int64_t{momento.tv_sec} * 1'000'000'000 + momento.tv_nsec;
}

std::int64_t NanosegundosDeAhora() {
    const auto desde1970 = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(desde1970).count();
}

// 160 bits of the system's source of randomness, as letters and digits.
std::string NombreAlAzar() {
    static constexpr std::string_view SIGNOS = "abcdefghijklmnopqrstuvwxyz234567";
    static constexpr std::size_t LONGITUD = 32;
    std::random_device azar;
    std::string nombre;
    while (nombre.size() < LONGITUD) nombre += SIGNOS[azar() % SIGNOS.size()];
    return nombre;
}

class TCerrojoPosix : public TCerrojo {
  public:
    explicit TCerrojoPosix(int abierta) : FAbierta(abierta) {}
    ~TCerrojoPosix() override { close(FAbierta); }
    TCerrojoPosix(const TCerrojoPosix&) = delete;
    TCerrojoPosix& operator=(const TCerrojoPosix&) = delete;

    [[nodiscard]] bool Cierra(int modo) const {
        int hecho = 0;
        do hecho = flock(FAbierta, modo);
        while (hecho != 0 && errno == EINTR);
        return hecho == 0;
    }
    // True when the path leads to what was opened, and it is this user's.
    [[nodiscard]] bool EsPropia(const std::filesystem::path& carpeta) const {
        struct stat abierta {};
        struct stat ahora {};
        return fstat(FAbierta, &abierta) == 0 && lstat(carpeta.c_str(), &ahora) == 0 &&
               abierta.st_dev == ahora.st_dev && abierta.st_ino == ahora.st_ino &&
               abierta.st_uid == geteuid();
    }

  private:
    int FAbierta;
};

}  // namespace

std::filesystem::path CreaCarpetaSecreta(const std::filesystem::path& donde, std::string_view prefijo) {
    for (;;) {
        auto carpeta = donde / std::string(prefijo).append(NombreAlAzar());
        if (mkdir(carpeta.c_str(), S_IRWXU) == 0) return carpeta;
        const std::error_code error(errno, std::generic_category());
        if (error != std::errc::file_exists)
            throw std::filesystem::filesystem_error("No se puede crear una carpeta temporal", carpeta, error);
    }
}

std::unique_ptr<TCerrojo> BloqueaCarpeta(const std::filesystem::path& carpeta, TEspera espera) {
    const int abierta = open(carpeta.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (abierta < 0) return nullptr;
    auto cerrojo = std::make_unique<TCerrojoPosix>(abierta);
    // Looked at once locked: until then another process may have removed it.
    if (!cerrojo->Cierra(espera == TEspera::Si ? LOCK_EX : LOCK_EX | LOCK_NB)) return nullptr;
    return cerrojo->EsPropia(carpeta) ? std::move(cerrojo) : nullptr;
}

std::filesystem::path RutaPrograma() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error);
}

std::filesystem::path FicheroTemporal_(const std::filesystem::path& carpeta, std::string_view prefijo,
                                       std::string_view extension) {
    const auto donde = carpeta.empty() ? CarpetaPrivada() : carpeta;
    for (;;) {
        std::string nombre(prefijo);
        nombre.append(NombreAlAzar()).append(".").append(extension);
        auto fichero = donde / nombre;
        const int abierto =
            open(fichero.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
        if (abierto >= 0) {
            close(abierto);
            return fichero;
        }
        const std::error_code error(errno, std::generic_category());
        if (error != std::errc::file_exists && error != std::errc::interrupted)
            throw std::filesystem::filesystem_error("No se puede crear un fichero temporal", fichero, error);
    }
}

TMarcaFichero MarcaDeFichero(const std::filesystem::path& fichero) {
    // The clock is read first: what changes after that counts as recent, never the other way round.
    const std::int64_t ahora = NanosegundosDeAhora();
    struct stat datos {};
    if (stat(fichero.c_str(), &datos) != 0) return {};
    TMarcaFichero marca;
    marca.Existe = true;
    marca.Dispositivo = datos.st_dev;
    marca.Identidad = datos.st_ino;
    marca.Longitud = static_cast<std::uint64_t>(datos.st_size);
    marca.Modificado = Nanosegundos(datos.st_mtim);
    marca.Cambiado = Nanosegundos(datos.st_ctim);
    marca.Reciente = EsMarcaReciente(marca.Modificado, marca.Cambiado, ahora);
    return marca;
}

}  // namespace analizador

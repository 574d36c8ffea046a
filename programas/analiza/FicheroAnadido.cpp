#include "programas/analiza/FicheroAnadido.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <system_error>

#include "adaptadores/docx/SustitucionSegura.h"
#include "plataforma/Rficheros.h"

namespace analizador {

namespace {

namespace fs = std::filesystem;

constexpr std::uint64_t BLOQUE = 1U << 18;
constexpr mode_t MODO_NUEVO = 0666;  // less what the user's mask takes away

// The system's own message for a failed call. What throws it is told as a failure of the file.
void Exige(bool bien) {
    if (!bien) throw std::system_error(errno, std::generic_category());
}

void EscribeTodo(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto escritos = ::write(descriptor, bytes.data(), bytes.size());
        if (escritos < 0 && errno == EINTR) continue;
        Exige(escritos > 0);
        bytes.remove_prefix(static_cast<std::size_t>(escritos));
    }
}

void CopiaTrozo(int de, TTrozo trozo, int a) {
    std::string bloque;
    while (trozo.Longitud > 0) {
        bloque.resize(std::min(trozo.Longitud, BLOQUE));
        const auto leidos = ::pread(de, bloque.data(), bloque.size(), static_cast<off_t>(trozo.Primero));
        if (leidos < 0 && errno == EINTR) continue;
        Exige(leidos > 0);
        const auto cuantos = static_cast<std::size_t>(leidos);
        EscribeTodo(a, std::string_view(bloque).substr(0, cuantos));
        trozo.Primero += cuantos;
        trozo.Longitud -= cuantos;
    }
}

struct stat EstadoDe(int descriptor) {
    struct stat estado {};
    Exige(::fstat(descriptor, &estado) == 0);
    return estado;
}

// Not when another process has put a new file in its place.
bool SigueAhi(const fs::path& fichero, const struct stat& abierto) {
    struct stat ahora {};
    return ::stat(fichero.c_str(), &ahora) == 0 && ahora.st_dev == abierto.st_dev &&
           ahora.st_ino == abierto.st_ino;
}

// Where the file is composed anew. Whoever has the file is the only one to use it.
fs::path Provisional(const fs::path& fichero) {
    return fichero.parent_path() / ("." + fichero.filename().string() + ".orden");
}

// A new file that goes with the object unless it has taken another's place.
class TProvisional {
  public:
    TProvisional(const fs::path& fichero, mode_t modo) : FRuta(Provisional(fichero)) {
        FDescriptor = ::open(FRuta.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, modo);
        Exige(FDescriptor >= 0);
    }
    ~TProvisional() {
        ::close(FDescriptor);
        if (!FColocado) ::unlink(FRuta.c_str());
    }
    TProvisional(const TProvisional&) = delete;
    TProvisional& operator=(const TProvisional&) = delete;

    [[nodiscard]] int Descriptor() const { return FDescriptor; }

    void Coloca(const fs::path& fichero) {
        Exige(::fsync(FDescriptor) == 0);
        Exige(::rename(FRuta.c_str(), fichero.c_str()) == 0);
        FColocado = true;
    }

  private:
    fs::path FRuta;
    int FDescriptor;
    bool FColocado = false;
};

}  // namespace

TFicheroAnadido::TFicheroAnadido(const fs::path& fichero) : FRuta(fichero) {
    try {
        Intenta([&] { Abre(); });
    } catch (const ErrorResultados&) {
        if (FDescriptor >= 0) ::close(FDescriptor);
        throw;
    }
}

TFicheroAnadido::~TFicheroAnadido() {
    ::close(FDescriptor);
}

void TFicheroAnadido::Abre() {
    FDescriptor = ::open(FRuta.c_str(), O_RDWR | O_CREAT | O_APPEND | O_CLOEXEC | O_NONBLOCK, MODO_NUEVO);
    Exige(FDescriptor >= 0);
    FRuta = fs::canonical(FRuta);
    const auto estado = EstadoDe(FDescriptor);
    if (!S_ISREG(estado.st_mode)) throw Fallo("no es un fichero corriente");
    if (::flock(FDescriptor, LOCK_EX | LOCK_NB) != 0 || !SigueAhi(FRuta, estado))
        throw Fallo("otro proceso está escribiendo en él");
    FLongitud = static_cast<std::uint64_t>(EstadoDe(FDescriptor).st_size);
    // What a process that was killed left.
    ::unlink(Provisional(FRuta).c_str());
}

void TFicheroAnadido::Anade(std::string_view bytes) {
    try {
        Intenta([&] { EscribeTodo(FDescriptor, bytes); });
    } catch (const ErrorResultados&) {
        static_cast<void>(::ftruncate(FDescriptor, static_cast<off_t>(FLongitud)) == 0);
        throw;
    }
    FLongitud += bytes.size();
}

void TFicheroAnadido::Corta(std::uint64_t longitud) {
    Intenta([&] { Exige(::ftruncate(FDescriptor, static_cast<off_t>(longitud)) == 0); });
    FLongitud = longitud;
}

void TFicheroAnadido::Recompone(const std::vector<TTrozo>& trozos) {
    Intenta([&] {
        TProvisional nuevo(FRuta, EstadoDe(FDescriptor).st_mode & 07777);
        for (const auto& trozo : trozos) CopiaTrozo(FDescriptor, trozo, nuevo.Descriptor());
        nuevo.Coloca(FRuta);
    });
}

void TFicheroAnadido::Asegura() {
    Intenta([&] { Exige(::fsync(FDescriptor) == 0); });
}

ErrorResultados TFicheroAnadido::Fallo(const std::string& causa) const {
    return ErrorResultados(Utf8DeRuta(FRuta) + ": " + causa);
}

void TFicheroAnadido::Intenta(const std::function<void()>& accion) const {
    try {
        accion();
    } catch (const std::system_error& error) {
        throw Fallo("no se puede escribir: " + CausaDelSistema(error.code().value()));
    }
}

}  // namespace analizador

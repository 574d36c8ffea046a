#include "plataforma/CarpetaPrivada.h"

#include <memory>
#include <string_view>
#include <system_error>

#include "plataforma/Sistema.h"

namespace analizador {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view PREFIJO = "analizador-";

// The process's folder; it stays locked as long as the process lives, which is how others tell it from an
// abandoned one.
class TCarpetaPrivada {
  public:
    TCarpetaPrivada() {
        while (!FCerrojo) {
            FRuta = CreaCarpetaSecreta(fs::temp_directory_path(), PREFIJO);
            FCerrojo = BloqueaCarpeta(FRuta, TEspera::Si);
            // Until it is locked, another process's cleaning may take it for an abandoned one: then once
            // more.
            if (!FCerrojo && fs::remove(FRuta))
                throw fs::filesystem_error("No se puede reservar una carpeta temporal", FRuta,
                                           std::make_error_code(std::errc::no_lock_available));
        }
    }
    ~TCarpetaPrivada() {
        std::error_code error;
        fs::remove_all(FRuta, error);
    }
    TCarpetaPrivada(const TCarpetaPrivada&) = delete;
    TCarpetaPrivada& operator=(const TCarpetaPrivada&) = delete;
    [[nodiscard]] const fs::path& Ruta() const { return FRuta; }

  private:
    fs::path FRuta;
    std::unique_ptr<TCerrojo> FCerrojo;
};

}  // namespace

const fs::path& CarpetaPrivada() {
    static const TCarpetaPrivada carpeta = [] {
        LimpiaCarpetasAbandonadas();
        return TCarpetaPrivada();
    }();
    return carpeta.Ruta();
}

void LimpiaCarpetasAbandonadas() {
    std::error_code error;
    for (const auto& entrada : fs::directory_iterator(fs::temp_directory_path(error), error)) {
        if (!entrada.path().filename().native().starts_with(fs::path(PREFIJO).native())) continue;
        // Locked by nobody: its process is gone.
        if (const auto cerrojo = BloqueaCarpeta(entrada.path(), TEspera::No))
            fs::remove_all(entrada.path(), error);
    }
}

}  // namespace analizador

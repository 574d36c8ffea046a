#pragma once

// A file that only grows.

#include <cstdint>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace analizador {

// A file of results that cannot be used or written. One line of Castilian in UTF-8 that names file and cause.
class ErrorResultados : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// A stretch of a file, in bytes.
struct TTrozo {
    std::uint64_t Primero = 0;
    std::uint64_t Longitud = 0;
};

// A file open for adding to its end, by this process alone. All that fails throws ErrorResultados.
class TFicheroAnadido {
  public:
    // Opens it, or makes it; a symbolic link is followed. Fails when another process has it so.
    explicit TFicheroAnadido(const std::filesystem::path& fichero);
    ~TFicheroAnadido();
    TFicheroAnadido(const TFicheroAnadido&) = delete;
    TFicheroAnadido& operator=(const TFicheroAnadido&) = delete;

    [[nodiscard]] const std::filesystem::path& Ruta() const { return FRuta; }
    [[nodiscard]] std::uint64_t Longitud() const { return FLongitud; }

    // After a failure the file is as it was.
    void Anade(std::string_view bytes);
    // Takes away what is beyond that length.
    void Corta(std::uint64_t longitud);
    // In one step, makes these stretches of the file the whole of it, in that order. After a failure the file
    // is as it was. Only once, and the last thing done with it.
    void Recompone(const std::vector<TTrozo>& trozos);
    // Brings it to the disk.
    void Asegura();

    [[nodiscard]] ErrorResultados Fallo(const std::string& causa) const;

  private:
    void Intenta(const std::function<void()>& accion) const;
    void Abre();

    std::filesystem::path FRuta;
    int FDescriptor = -1;
    std::uint64_t FLongitud = 0;
};

}  // namespace analizador

#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <string_view>

namespace analizador {

// The file that a document is written to before it takes its place: hidden, of the same folder, locked as
// long as the object lives, and gone with it unless it took its place. All functions throw FalloDocx.
class TFicheroProvisional {
  public:
    // `modo` as a new file gets it, less the process's mask.
    TFicheroProvisional(const std::filesystem::path& carpeta, mode_t modo);
    ~TFicheroProvisional();
    TFicheroProvisional(const TFicheroProvisional&) = delete;
    TFicheroProvisional& operator=(const TFicheroProvisional&) = delete;

    void Escribe(std::string_view bytes);

    // Takes the mode of another file and, where the system allows, its owner.
    void TomaDe(const struct stat& anterior);

    void LlevaAlDisco();

    // In one step; from then on it is that file.
    void OcupaElSitioDe(const std::filesystem::path& fichero);

  private:
    [[nodiscard]] bool Crea(mode_t modo);

    std::filesystem::path Ruta;
    int Descriptor = -1;
    bool Colocado = false;
};

// The failure to save for an error that the system gives.
[[noreturn]] void FallaAlGuardar(int error);

}  // namespace analizador

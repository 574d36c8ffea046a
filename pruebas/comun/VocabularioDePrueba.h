#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace analizador {

enum class TIdioma { Castellano, Catalan };

// Sections of a token file: name and entries "1" to "n". An empty entry is a key that is missing from the
// file.
using TSeccionesDePrueba = std::vector<std::pair<std::string_view, std::vector<std::string_view>>>;

// A pair of token files in a folder of their own, which is the application's folder for as long as the object
// lives; then the folder is removed and the former one put back. One at a time. The thread that creates it
// reads the Castilian file until it chooses another; Windows-1252 texts.
class TVocabularioDePrueba {
  public:
    explicit TVocabularioDePrueba(const TSeccionesDePrueba& castellano,
                                  const TSeccionesDePrueba& catalan = {});
    ~TVocabularioDePrueba();
    TVocabularioDePrueba(const TVocabularioDePrueba&) = delete;
    TVocabularioDePrueba& operator=(const TVocabularioDePrueba&) = delete;

    // Makes the language's file the current one of this thread.
    void Elige(TIdioma idioma) const;

    // Replace a language's file: by sections, by its bytes.
    void Pon(TIdioma idioma, const TSeccionesDePrueba& secciones) const;
    void PonBytes(TIdioma idioma, std::string_view bytes) const;
    // Leaves the language without a file.
    void Quita(TIdioma idioma) const;

    [[nodiscard]] const std::filesystem::path& Carpeta() const { return carpeta_; }

  private:
    std::filesystem::path anterior_;
    std::filesystem::path carpeta_;
};

}  // namespace analizador

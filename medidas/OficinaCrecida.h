#pragma once

// An office whose vocabularies and tables hold many times what the shipped ones do.

#include <filesystem>

namespace analizador {

// Its files lie in the private folder of the process.
class TOficinaCrecida {
  public:
    // Copies of the entries and rows of `config` and `tablas`, which no deed names, come after the real ones:
    // 1 leaves as many as there are. Throws as the readers and the writer of tables do.
    TOficinaCrecida(const std::filesystem::path& config, const std::filesystem::path& tablas,
                    int vecesVocabulario, int vecesTablas);

    [[nodiscard]] std::filesystem::path Config() const { return carpeta_ / "CONFIG"; }
    [[nodiscard]] std::filesystem::path Tablas() const { return carpeta_ / "TABLAS"; }

  private:
    std::filesystem::path carpeta_;
};

}  // namespace analizador

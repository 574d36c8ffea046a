#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "adaptadores/docx/FicheroDocx.h"
#include "programas/analiza/AnalisisEscritura.h"

namespace analizador {

struct TOpcionesAnalisis {
    std::optional<std::filesystem::path>
        Salida;           // where to save the document with its section bookmarks; none: nowhere
    bool Forzar = false;  // save even a document that another program has open
    bool Revisa = false;  // windows are installed: the user reviews, and only what was accepted is saved
};

// The deed of a document file, analysed.
class TAnalisisFichero : public TAnalisisEscritura {
  public:
    // Never throws for what is wrong with the file or the tables: see Error().
    TAnalisisFichero(const std::filesystem::path& fichero, const TOpcionesAnalisis& opciones);

    // The file as it was read. Only without an error; until the next Guarda.
    [[nodiscard]] std::string_view Bytes() const { return FDocx->BytesLeidos(); }

    // Saves the file that was analysed with the bookmarks of its sections, as TFicheroDocx::Guarda. Only
    // without an error. Throws ErrorDocumento.
    void Guarda(const std::filesystem::path& destino, bool forzar);

  private:
    std::optional<TFicheroDocx> FDocx;
};

}  // namespace analizador

#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "analizador/ClaseAnalizadorAbierto.h"
#include "plataforma/VrkWord.h"

namespace analizador {

struct TOpcionesAnalisis {
    std::optional<std::filesystem::path>
        Salida;           // where to save the document with its section bookmarks; none: nowhere
    bool Forzar = false;  // save even a document that another program has open
    bool Revisa = false;  // windows are installed: the user reviews, and only what was accepted is saved
};

// A deed file analysed: the session with its results, or why it could not be.
class TAnalisisFichero {
  public:
    // Never throws for what is wrong with the file or the tables: see Error().
    TAnalisisFichero(const std::filesystem::path& fichero, const TOpcionesAnalisis& opciones);

    // One line of Castilian in UTF-8 that names file and cause; empty when all went well.
    [[nodiscard]] const std::string& Error() const { return FError; }

    // The session, only without an error. The current token file of this thread is that of the deed until the
    // next analysis.
    [[nodiscard]] const TClassAnalizadorAbierto& Sesion() const { return *FSesion; }

    // The deed as it was analysed, for where facts were read. Only without an error.
    [[nodiscard]] const TWordDocumentoCustom& Documento() const { return *FSesion->GetDocumento(); }

  private:
    void Analiza(const std::filesystem::path& fichero, const TOpcionesAnalisis& opciones);

    std::string FError;
    std::unique_ptr<TWordApplicationConDocumentos> FAplicacion;
    std::unique_ptr<TClassAnalizadorAbierto> FSesion;
};

}  // namespace analizador

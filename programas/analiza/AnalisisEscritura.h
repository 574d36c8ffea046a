#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "analizador/ClaseAnalizadorAbierto.h"
#include "plataforma/VrkWord.h"

namespace analizador {

// A deed analysed: the session with its results, or why it could not be.
class TAnalisisEscritura {
  public:
    // A deed that is in no file. `revisa`: windows are installed and the user reviews. Never throws for what
    // is wrong with the deed or the tables: see Error().
    TAnalisisEscritura(TContenidoDocumento contenido, bool revisa);

    // The same of the document that is active in a word processor.
    TAnalisisEscritura(std::unique_ptr<TWordApplicationConDocumentos> word, bool revisa);

    virtual ~TAnalisisEscritura() = default;
    TAnalisisEscritura(const TAnalisisEscritura&) = delete;
    TAnalisisEscritura& operator=(const TAnalisisEscritura&) = delete;

    // One line of Castilian in UTF-8 that names file and cause; empty when all went well.
    [[nodiscard]] const std::string& Error() const { return FError; }

    // The session, only without an error. The current token file of this thread is that of the deed until the
    // next analysis.
    [[nodiscard]] const TClassAnalizadorAbierto& Sesion() const { return *FSesion; }

    // The deed as it was analysed, for where facts were read. Only without an error, and not of a deed in a
    // word processor, where another one may be active by now.
    [[nodiscard]] const TWordDocumentoCustom& Documento() const { return *FSesion->GetDocumento(); }

  protected:
    TAnalisisEscritura() = default;

    // Does it; what it throws becomes the error. `deQue`: the file's name, or what stands for it; may be
    // empty.
    void Intenta(const std::string& deQue, const std::function<void()>& accion);
    void Analiza(TContenidoDocumento contenido, bool revisa);

  private:
    void Analiza(std::unique_ptr<TWordApplicationConDocumentos> word, bool revisa);

    std::string FError;
    std::unique_ptr<TWordApplicationConDocumentos> FAplicacion;
    std::unique_ptr<TClassAnalizadorAbierto> FSesion;
};

}  // namespace analizador

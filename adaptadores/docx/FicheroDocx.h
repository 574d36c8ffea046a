#pragma once

// The document files of the word processor: .docx, .docm, .dotx and .dotm.

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "plataforma/Rficheros.h"
#include "plataforma/VrkWord.h"

namespace analizador {

// A document file that cannot be read or saved. The message is one line of Castilian in UTF-8 that names the
// file and the cause.
class ErrorDocumento : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

struct TOpcionesGuardado {
    // Saves even when another program has the document open, when the file changed on disk since it was read
    // (what was read then wins), or when a digital signature is broken by saving. Default: refuse.
    bool Forzar = false;
};

// A document file, read whole at construction: nothing of the file stays open. Not for use from several
// threads at once; different objects are independent.
class TFicheroDocx {
  public:
    // Throws ErrorDocumento when the file is missing, unreadable, not a document of the word processor,
    // encrypted, damaged or out of all proportion.
    explicit TFicheroDocx(const std::filesystem::path& fichero);

    // The text of the main story as the final view shows it (revisions accepted, hidden text out), one byte
    // a UTF-16 unit, its bookmarks in the order of their starts (the hidden ones, whose name begins with
    // "_", included) and the document variables. Lives as long as this object, until the next Guarda.
    [[nodiscard]] const TContenidoDocumento& Contenido() const { return Leido; }

    // The file as it was read. Lives as long as this object, until the next Guarda.
    [[nodiscard]] std::string_view BytesLeidos() const { return Bytes; }

    // Writes the document with `marcadores` added, or replaced where the document has one of that name in any
    // case (of two equal names in `marcadores` the last counts). All else stays: the other parts byte by
    // byte, and the main part but for the places of the bookmarks. A bookmark that the document already has,
    // equal in name and place, is left as it is. Positions index into Contenido().Texto; the two characters
    // of a cell or row mark are one position, so a start between them falls before the mark and an end after
    // it, and likewise with surrogate pairs.
    //
    // `destino` may be the file itself, another one that is replaced, or a new one; a symbolic link is
    // followed. The new file is read back and compared before it takes the place of the old one, in one
    // step: after a failure the old file is whole and no other is left behind. Mode and, where the system
    // allows, owner stay; in Windows permissions and attributes. After saving onto the file that was read,
    // Contenido() has the new bookmarks.
    //
    // Throws ErrorDocumento when the document is open in another program, when `destino` is the file that
    // was read and its content changed meanwhile, when the document is signed (these three unless
    // opciones.Forzar), when a name is empty, longer than 40 characters or has control characters, when a
    // position lies outside the text or the bounds are out of order, and when writing fails.
    void Guarda(const std::vector<TMarcador>& marcadores, const std::filesystem::path& destino,
                const TOpcionesGuardado& opciones = {});

  private:
    void ExigeSinCambios() const;
    void ExigeSinFirma() const;
    void Adopta(std::string nuevo);

    std::filesystem::path Fichero;
    std::string Bytes;
    TMarcaFichero Marca;
    TContenidoDocumento Leido;
};

}  // namespace analizador

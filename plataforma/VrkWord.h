#pragma once

// What the analysis needs of the word processor. Positions count from 0 and are compared and handed back,
// never used as an index into a text: they are the word processor's own. Texts are Windows-1252.
//
// Everything here is called from one thread, the one that runs the analysis. Failures of the word processor
// are thrown as ErrorWord.

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace analizador {

class ErrorWord : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// A stretch of the document, [Inicio, Fin).
struct TIntervalo {
    int Inicio = 0;
    int Fin = 0;
    bool operator==(const TIntervalo&) const = default;
};

struct TMarcador {
    std::string Nombre;
    TIntervalo Intervalo;
    bool operator==(const TMarcador&) const = default;
};

struct TVariable {
    std::string Nombre;
    std::string Valor;
    bool operator==(const TVariable&) const = default;
};

// What a document file holds, as far as the analysis is concerned: the word processor's main story (every
// paragraph ends in CR, a table cell and a row in CR and 7, a manual line break is 11, a page break 12, a
// column break 14, a non-breaking hyphen 30, an optional hyphen 31, a no-break space 160), its bookmarks,
// with positions into Texto, and its variables. Never without a last CR.
struct TContenidoDocumento {
    std::string Texto;
    std::vector<TMarcador> Marcadores;
    std::vector<TVariable> Variables;
};

// The eight options of a search, in the wrapper's order.
struct TOpcionesBusqueda {
    bool DistingueMayusculas = false;
    bool PalabrasCompletas = false;
    bool Comodines = false;
    bool SuenaComo = false;
    bool TodasLasFormas = false;
    bool Adelante = false;
    bool Continua = false;  // go on from the start of the document to where the search began
    bool Formato = false;
};

// A paragraph of the document and where it is. The text need not be as long as the stretch.
struct TParrafoDocumento {
    TIntervalo Intervalo;
    std::string Texto;
};

class TSeleccion {
  public:
    virtual ~TSeleccion() = default;

    [[nodiscard]] virtual TIntervalo GetIntervalo() const = 0;

    // Sets the start, then the end. A start beyond the end takes the end along, an end before the start the
    // start: bounds out of order leave an empty selection at `intervalo.Fin`. Bounds outside the document are
    // brought to its first and last position.
    virtual void PonIntervalo(TIntervalo intervalo) = 0;

    // Moves the start up by one paragraph: to the start of its own paragraph, or of the one before when it
    // already stands at a start. Without `extiende` the selection collapses there; one that was not empty
    // collapses to its start first and so goes no further than the start of the paragraph that holds it:
    // SubeParrafo(false) and BajaParrafo(true) after a search select the paragraph of the match. With
    // `extiende` only the start moves. At the start of the document it stays.
    virtual void SubeParrafo(bool extiende) = 0;

    // Moves the end down by one paragraph, to the start of the next one; in the last paragraph, behind its
    // CR. Without `extiende` the selection collapses there, or before the last CR.
    virtual void BajaParrafo(bool extiende) = 0;

    // The paragraph that holds the selection's start, its CR included.
    [[nodiscard]] virtual TParrafoDocumento GetPrimerParrafo() const = 0;
    [[nodiscard]] std::string GetTextoPrimerParrafo() const { return GetPrimerParrafo().Texto; }
};

class TWordDocumentoCustom {
  public:
    virtual ~TWordDocumentoCustom() = default;

    // The whole text of the main story.
    [[nodiscard]] virtual std::string GetTexto() const = 0;

    // The selection that the analysis moves; belongs to the document.
    [[nodiscard]] virtual TSeleccion& GetSeleccion() = 0;
    virtual void IrAlInicioDocumento() = 0;
    // The end of a document stands before its last CR.
    virtual void IrAlFinalDocumento() = 0;

    // Looks for a literal text from the selection on (after its end when it is not empty; backward, before
    // its start), selects the match and returns true; otherwise the selection stays and the answer is false.
    // With `Continua` the search goes on from the other end of the document to where it began, matches that
    // straddle that point and the selection itself included. Straight and curly quotes and apostrophes are
    // equal, a blank finds a no-break space, optional hyphens of the document are passed over; accents count.
    // An empty text is never found. One of more than 255 characters and the options that have no meaning for
    // a literal text (wildcards, sounds like, all word forms, format) throw.
    virtual bool Busca(std::string_view texto, const TOpcionesBusqueda& opciones) = 0;

    // The text of a stretch, and the texts of the paragraphs that it touches, whole, in order. An empty
    // stretch touches the paragraph in which it stands.
    [[nodiscard]] virtual std::string GetTexto(TIntervalo intervalo) const = 0;
    [[nodiscard]] virtual std::vector<std::string> GetParrafos(TIntervalo intervalo) const = 0;

    // The 1-based number in the document of the paragraph that holds `posicion`.
    [[nodiscard]] virtual int GetNumeroParrafo(int posicion) const = 0;

    // The value of a document variable; empty when there is none. Names are compared without regard to case.
    [[nodiscard]] virtual std::string VariableValor(std::string_view nombre) const = 0;

    // Adds a bookmark over the selection. One of the same name (in any case) is replaced when `reemplaza` is
    // true; otherwise it stays and is returned. A name is a letter or "_" and then letters, digits and "_",
    // 40 characters at most; others throw.
    virtual TMarcador NuevoMarcador(std::string_view nombre, bool reemplaza) = 0;

    // The document's bookmarks by name, ignoring case; those whose name begins with "_" are hidden and left
    // out.
    [[nodiscard]] virtual std::vector<TMarcador> GetMarcadores() const = 0;
};

// An analysis that has begun and not ended; destroying it ends it, in whatever way.
class TAnalisisEnCurso {
  public:
    virtual ~TAnalisisEnCurso() = default;

    // Makes the selection as the analysis leaves it the user's.
    virtual void MuestraSeleccion() = 0;
};

class TWordApplicationConDocumentos {
  public:
    virtual ~TWordApplicationConDocumentos() = default;

    // Called when an analysis begins: where the user can go to another document meanwhile or move the
    // selection, both are kept until the result is destroyed, before the application. Nullptr where nobody
    // else touches the document.
    [[nodiscard]] virtual std::unique_ptr<TAnalisisEnCurso> EmpiezaAnalisis() { return nullptr; }

    // The active document, or nullptr. It belongs to the application.
    [[nodiscard]] virtual TWordDocumentoCustom* GetDocumentoActivo() = 0;
};

}  // namespace analizador

#pragma once

// The fuzzers: each takes any bytes as the input of one part of the system and throws FalloFuzz when what
// must always hold does not. Anything else that goes wrong (another exception, a crash, a leak, a hang) is a
// finding too. The same bytes always do the same.

#include <stdexcept>
#include <string>
#include <string_view>

namespace analizador {

class FalloFuzz : public std::logic_error {
  public:
    using std::logic_error::logic_error;
};

inline void Exige(bool cierto, std::string_view que) {
    if (!cierto) throw FalloFuzz(std::string(que));
}

// An INI file. Every value found is the one that a plain scan of its lines finds.
void FuzzIni(std::string_view bytes);

// A dBASE table, after a first byte that says which table and whether it is read from a file in its index's
// order. What the cursor finds is what a look at every row finds.
void FuzzDbase(std::string_view bytes);

// A document file: an archive, or the text of its parts (Empaqueta.h). It is read or refused with one line.
void FuzzDocumento(std::string_view bytes);

// Four bytes that place two bookmarks, and a document as above. Saved in a new file and then over itself it
// reads as before but for the bookmarks; the original stays untouched and no other file is left.
void FuzzGuardado(std::string_view bytes);

// A paragraph, after a byte that chooses the office and one that chooses the recognisers: of words, persons,
// circumstances, interventions, the operation or the heading. All places told lie in it.
void FuzzReconocedores(std::string_view bytes);

// A deed, after a byte that chooses the office. The whole analysis; its report is text and its JSON is JSON.
void FuzzSesion(std::string_view bytes);

// Conversions of texts, numbers, dates and identity numbers; XML between text and file.
void FuzzTextos(std::string_view bytes);

}  // namespace analizador

#pragma once

// The text of Word's main story, read without changing what the user sees.

#include <string>
#include <string_view>
#include <vector>

#include "adaptadores/word/ObjetoWord.h"
#include "plataforma/VrkWord.h"

namespace analizador {

// The paragraphs of a text: each ends after its CR, or after the 7 that follows it; the last one may lack it.
[[nodiscard]] std::vector<std::string> ParteParrafos(std::string_view texto);

// Reads stretches of one document. Hidden text, the codes of fields and what a tracked change deleted are
// left out, so a position is no index into what is read.
class TTextoWord {
  public:
    // Asks for the deletions once; the document outlives this.
    explicit TTextoWord(const TObjetoWord& documento);

    // The text between two positions, Windows-1252. Its number of calls depends on the deletions inside only.
    [[nodiscard]] std::string Lee(TIntervalo intervalo) const;

  private:
    const TObjetoWord& FDocumento;
    std::vector<TIntervalo> FBorrados;  // in order
};

}  // namespace analizador

#pragma once

// What is wrong in a token file, told to the person who keeps it.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "programas/analiza/Vocabulario.h"

namespace analizador {

struct TReparo {
    bool Error = false;  // else a warning: it works, but perhaps not as intended
    int Linea = 0;       // of the file, from 1; 0 when it is about none
    std::string Texto;   // one line of Castilian in UTF-8
    bool operator==(const TReparo&) const = default;
};

// Common words, folded, in which an entry may hide.
struct TPalabrasCorrientes {
    std::vector<std::string> Castellano;
    std::vector<std::string> Catalan;
};

// Reads a list of words (UTF-8): those of each language under [CASTELLANO] and [CATALAN], with blanks or line
// ends between them; lines that begin with ";" are comments.
[[nodiscard]] TPalabrasCorrientes LeePalabrasCorrientes(std::string_view utf8);

// All that is wrong in a file, by line. `corrientes`: the common words of its language.
[[nodiscard]] std::vector<TReparo> RevisaVocabulario(const TVocabulario& vocabulario,
                                                     const std::vector<std::string>& corrientes);

// The parts of it, each in its own order.

// Bytes that are neither Windows-1252 nor UTF-8 with its mark, and lines that are not read.
[[nodiscard]] std::vector<TReparo> RevisaBytes(const TVocabulario& vocabulario);
// Sections and keys: missing, repeated, unknown, numbered with holes, counted wrong.
[[nodiscard]] std::vector<TReparo> RevisaSecciones(const TVocabulario& vocabulario);
// Entries that are written so that they are not found.
[[nodiscard]] std::vector<TReparo> RevisaEntradas(const TVocabulario& vocabulario);
// Entries that never win, because another one that comes before them always does.
[[nodiscard]] std::vector<TReparo> RevisaTapadas(const TVocabulario& vocabulario);
// Entries that common words contain, in the sections that are searched inside words, but for the words that
// the entry's mark says are known; and marks that say more than is needed. Nothing when there are no common
// words.
[[nodiscard]] std::vector<TReparo> RevisaCorrientes(const TVocabulario& vocabulario,
                                                    const std::vector<std::string>& corrientes);

// "CASTELLANO.INI:12: error: ..."
[[nodiscard]] std::string LineaDeReparo(const TVocabulario& vocabulario, const TReparo& reparo);

}  // namespace analizador

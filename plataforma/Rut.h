#pragma once

// The suite's routines on words: folding, numbers written out, and the descriptions of the single index's
// codes.

#include <string>
#include <string_view>

namespace analizador {

class TTabla;

// The text without acute, grave and circumflex accents and without the tilde of A and O, in the case it had.
// The dieresis, Ñ, Ç and the middle dot stay: they are letters of their own. The no-break space and the line
// break (11) become a blank, curly apostrophes a straight one. Same length.
[[nodiscard]] std::string QuitaAcentoMayMin(std::string_view texto);

// The folded text: QuitaAcentoMayMin and capitals. Same length, so positions in it hold in `texto`.
[[nodiscard]] std::string Pliega(std::string_view texto);

// The whole number that `texto` writes in words, Castilian or Catalan, cardinals from 0 to 999.999.999.999 in
// every accepted spelling (with or without accents, joined or not, feminine too; PRIMERO and PRIMER are 1),
// or in digits with or without points. A bracket or a run of two or more fill signs (- = * _ . ~) ends the
// number. 0 for anything else and for a value beyond 32 bits.
[[nodiscard]] int ConvierteNumeroDeCadenaAEnteroNvx(std::string_view texto, bool catalan);

// The description of an intervention code of the single index, from the table TIPO_INT ("CODIGO",
// "DESCRIPCIO"). `tabla`: that table, open on its index CODIGO, or nullptr to have it opened here. A code
// without a description gives its number. Throws ErrorTabla.
[[nodiscard]] std::string Actuacion_INTI(int codigo, TTabla* tabla = nullptr);

}  // namespace analizador

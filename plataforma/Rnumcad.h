#pragma once

// The suite's conversions between texts and numbers, and its small text routines. Positions are 1-based, 0
// means not found, as everywhere in the suite; texts are Windows-1252.

#include <optional>
#include <string>
#include <string_view>

namespace analizador {

// Replaces what is peculiar to the word processor by plain characters: curly and angle quotes by ", curly
// apostrophes, primes and an acute or grave accent standing alone (180, 96) by ', every dash, the
// non-breaking hyphen (30) and the minus sign by
// -, TAB, the no-break space and the line, page and column breaks (11, 12, 14) by a blank, the ellipsis by a
// full stop; removes the optional hyphen (31, 173), the cell mark (7) and the anchors of notes and objects
// (1, 2, 5, 8). CR stays.
[[nodiscard]] std::string TraduceCaracteresExtranosDeWord(std::string_view texto);

// The text without any of the characters of `quitados`.
[[nodiscard]] std::string QuitaCaracteres(std::string_view texto, std::string_view quitados);
[[nodiscard]] std::string QuitaCaracter(std::string_view texto, char caracter);

// How many times the character stands in the text.
[[nodiscard]] int CuentaCaracter(std::string_view texto, char caracter);

// The first / last n characters: all when n exceeds the length, none when n is 0 or less. A view into
// `texto`.
[[nodiscard]] std::string_view StrLeft(std::string_view texto, int n);
[[nodiscard]] std::string_view StrRight(std::string_view texto, int n);

// Position of the first / last occurrence; 0 when absent or when `buscado` is empty.
[[nodiscard]] int Pos(std::string_view buscado, std::string_view texto);
[[nodiscard]] int RightPos(std::string_view buscado, std::string_view texto);

// The text without the blanks, TAB, CR and LF at its left end, its right end, both. A view into `texto`.
[[nodiscard]] std::string_view RecortaIzquierda(std::string_view texto);
[[nodiscard]] std::string_view RecortaDerecha(std::string_view texto);
[[nodiscard]] std::string_view Recorta(std::string_view texto);

// The whole number that the text is: an optional sign and decimal digits, blanks allowed at both ends, 32
// bits.
[[nodiscard]] std::optional<int> EnteroDeCadena(std::string_view texto);
// The same with 0 for a text that is none.
[[nodiscard]] int Cad_Int(std::string_view texto);
[[nodiscard]] std::string Int_Cad(int numero);

// Padded on the left with "0" to n characters; what is longer stays as it is. A negative number counts its
// sign: StrCeros(-1, 2) is "-1".
[[nodiscard]] std::string StrCeros(std::string_view texto, int n);
[[nodiscard]] std::string StrCeros(int numero, int n);

// The number that the text is, the decimal sign being a comma or a point ("1234," and ",5" are numbers),
// blanks allowed at both ends; no exponent, no hexadecimal, never an infinity.
[[nodiscard]] std::optional<double> RealDeCadena(std::string_view texto);
// The same with 0 for a text that is none.
[[nodiscard]] double Cad_Float(std::string_view texto);
// The shortest text that reads back equal, never with an exponent, the decimal sign a comma.
[[nodiscard]] std::string Float_Cad(double numero);

}  // namespace analizador

#pragma once

// What a UTF-16 unit becomes where Windows-1252 lacks it. Private to the border conversions of Ansi.h.

namespace analizador::interno {

// The plain byte that stands for a character the code page lacks; '?' when there is none.
[[nodiscard]] unsigned char ByteEquivalente(char16_t unidad);

// True for combining accents: they join the letter before them.
[[nodiscard]] bool EsAcentoCombinable(char16_t unidad);

// True for characters that take no room: joiners, direction marks, variation selectors, byte-order mark.
[[nodiscard]] bool EsDeAnchuraNula(char16_t unidad);

// The byte of the letter with the accent on it; the letter itself when the code page has no such letter.
[[nodiscard]] unsigned char UneAcento(unsigned char letra, char16_t acento);

}  // namespace analizador::interno

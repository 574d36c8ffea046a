#include "plataforma/AnsiEquivalentes.h"

#include <array>
#include <cstddef>
#include <string_view>

#include "plataforma/Ansi.h"

namespace analizador::interno {

namespace {

// Plain letters of the foreign ones, one character a code point from `Primero` on; '.' where there is none.
struct TBloqueLetras {
    char16_t Primero;
    std::string_view Llanas;
};

constexpr std::array BLOQUES = {
    // Latin Extended-A
    TBloqueLetras{0x0100,
                  "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIi..JjKkkLlLlLlL"
                  "lLlNnNnNnnNnOoOoOo..RrRrRrSsSsSs..TtTtTtUuUuUuUuUuUuWwYy.ZzZz..s"},
    // Latin Extended-B
    TBloqueLetras{0x0180,
                  "bBBb...CcDDDd....F.G...IKkl..NnOOo..PpR....tTtTUuUVYyZz........."
                  "........"
                  "....."
                  "AaIiOoUuUuUuUuUu.AaAa..GgGgKkOoOo..j...Gg..NnAa...."
                  "AaAaEeEeIiIiOoOoRrRrUuUuSsTt..HhNd..ZzAaEeOoOoOoOoYylntj..ACcLTs"
                  "z..BU.EeJj.qRrYy"},
    // Latin Extended Additional
    TBloqueLetras{0x1E00,
                  "AaBbBbBbCcDdDdDdDdDdEeEeEeEeEeFfGgHhHhHhHhHhIiIiKkKkKkLlLlLlLlMm"
                  "MmMmNnNnNnNnOoOoOoOoPpPpRrRrRrRrSsSsSsSsSsTtTtTtTtUuUuUuUuUuVvVv"
                  "WwWwWwWwWwXxXxYyZzZzZzhtwyas....AaAaAaAaAaAaAaAaAaAaAaAaEeEeEeEe"
                  "EeEeEeEeIiIiOoOoOoOoOoOoOoOoOoOoOoOoUuUuUuUuUuUuUuYyYyYyYy....Yy"},
    // Superscript and subscript digits
    TBloqueLetras{0x2070,
                  "0i..456789+-=()n"
                  "0123456789+-=()."},
};
static_assert(BLOQUES[0].Llanas.size() == 0x80);
static_assert(BLOQUES[1].Llanas.size() == 0xD0);
static_assert(BLOQUES[2].Llanas.size() == 0x100);

struct TEquivalencia {
    char16_t Desde;
    char16_t Hasta;
    unsigned char Byte;
};

constexpr std::array EQUIVALENCIAS = {
    TEquivalencia{0x01E2, 0x01E2, 0xC6},
    TEquivalencia{0x01E3, 0x01E3, 0xE6},  // AE with an accent
    TEquivalencia{0x01FC, 0x01FC, 0xC6},
    TEquivalencia{0x01FD, 0x01FD, 0xE6},
    TEquivalencia{0x01FE, 0x01FE, 0xD8},
    TEquivalencia{0x01FF, 0x01FF, 0xF8},  // O with a stroke and accent
    TEquivalencia{0x1E9E, 0x1E9E, 0xDF},  // capital sharp s
    TEquivalencia{0x212A, 0x212A, 'K'},
    TEquivalencia{0x212B, 0x212B, 0xC5},
    // Blanks
    TEquivalencia{0x1680, 0x1680, ' '},
    TEquivalencia{0x2000, 0x200A, ' '},
    TEquivalencia{0x2028, 0x2029, ' '},
    TEquivalencia{0x202F, 0x202F, ' '},
    TEquivalencia{0x205F, 0x205F, ' '},
    TEquivalencia{0x3000, 0x3000, ' '},
    // Hyphens, dashes and the minus sign
    TEquivalencia{0x02D7, 0x02D7, '-'},
    TEquivalencia{0x2010, 0x2012, '-'},
    TEquivalencia{0x2015, 0x2015, '-'},
    TEquivalencia{0x2043, 0x2043, '-'},
    TEquivalencia{0x2212, 0x2212, '-'},
    TEquivalencia{0x2500, 0x2501, '-'},
    TEquivalencia{0x2E3A, 0x2E3B, '-'},
    TEquivalencia{0xFE58, 0xFE58, '-'},
    TEquivalencia{0xFE63, 0xFE63, '-'},
    // Apostrophes, primes and double primes
    TEquivalencia{0x02B9, 0x02B9, '\''},
    TEquivalencia{0x02BA, 0x02BA, '"'},
    TEquivalencia{0x02BB, 0x02BD, '\''},
    TEquivalencia{0x02CA, 0x02CB, '\''},
    TEquivalencia{0x201B, 0x201B, '\''},
    TEquivalencia{0x201F, 0x201F, '"'},
    TEquivalencia{0x2032, 0x2032, '\''},
    TEquivalencia{0x2033, 0x2034, '"'},
    TEquivalencia{0x2035, 0x2035, '\''},
    TEquivalencia{0x2036, 0x2037, '"'},
    TEquivalencia{0x301D, 0x301F, '"'},
    // Dots: the middle dot of the Catalan geminated l in its several encodings, and the leader
    TEquivalencia{0x2027, 0x2027, 0xB7},
    TEquivalencia{0x2219, 0x2219, 0xB7},
    TEquivalencia{0x22C5, 0x22C5, 0xB7},
    TEquivalencia{0x30FB, 0x30FB, 0xB7},
    TEquivalencia{0x2024, 0x2024, '.'},
    // Strokes and tildes
    TEquivalencia{0x2044, 0x2044, '/'},
    TEquivalencia{0x2215, 0x2215, '/'},
    TEquivalencia{0x223C, 0x223C, '~'},
};

struct TCompuesta {
    char16_t Acento;
    std::string_view Letras;
    std::string_view Compuestas;
};

constexpr std::array COMPUESTAS = {
    TCompuesta{0x0300, "AEIOUaeiou", "ÀÈÌÒÙàèìòù"_ansi},
    TCompuesta{0x0340, "AEIOUaeiou", "ÀÈÌÒÙàèìòù"_ansi},
    TCompuesta{0x0301, "AEIOUYaeiouy", "ÁÉÍÓÚÝáéíóúý"_ansi},
    TCompuesta{0x0341, "AEIOUYaeiouy", "ÁÉÍÓÚÝáéíóúý"_ansi},
    TCompuesta{0x0302, "AEIOUaeiou", "ÂÊÎÔÛâêîôû"_ansi},
    TCompuesta{0x0303, "ANOano", "ÃÑÕãñõ"_ansi},
    TCompuesta{0x0308, "AEIOUYaeiouy", "ÄËÏÖÜŸäëïöüÿ"_ansi},
    TCompuesta{0x030A, "Aa", "Åå"_ansi},
    TCompuesta{0x030C, "SZsz", "ŠŽšž"_ansi},
    TCompuesta{0x0327, "Cc", "Çç"_ansi},
};

constexpr bool Entre(char16_t unidad, char16_t desde, char16_t hasta) {
    return unidad >= desde && unidad <= hasta;
}

constexpr char16_t PRIMERO_ANCHO = 0xFF01;  // full-width forms of "!" to "~"
constexpr char16_t ULTIMO_ANCHO = 0xFF5E;

}  // namespace

unsigned char ByteEquivalente(char16_t unidad) {
    for (const auto& equivalencia : EQUIVALENCIAS)
        if (Entre(unidad, equivalencia.Desde, equivalencia.Hasta)) return equivalencia.Byte;
    if (Entre(unidad, PRIMERO_ANCHO, ULTIMO_ANCHO))
        return static_cast<unsigned char>(unidad - PRIMERO_ANCHO + '!');
    for (const auto& [primero, llanas] : BLOQUES) {
        const std::size_t sitio = static_cast<std::size_t>(unidad) - primero;
        if (unidad >= primero && sitio < llanas.size() && llanas[sitio] != '.')
            return static_cast<unsigned char>(llanas[sitio]);
    }
    return '?';
}

bool EsAcentoCombinable(char16_t unidad) {
    return Entre(unidad, 0x0300, 0x036F) || Entre(unidad, 0x1AB0, 0x1AFF) || Entre(unidad, 0x1DC0, 0x1DFF) ||
           Entre(unidad, 0x20D0, 0x20FF) || Entre(unidad, 0xFE20, 0xFE2F);
}

bool EsDeAnchuraNula(char16_t unidad) {
    return Entre(unidad, 0x200B, 0x200F) || Entre(unidad, 0x202A, 0x202E) || Entre(unidad, 0x2060, 0x206F) ||
           Entre(unidad, 0xFE00, 0xFE0F) || unidad == 0x180E || unidad == 0xFEFF;
}

unsigned char UneAcento(unsigned char letra, char16_t acento) {
    for (const auto& [signo, letras, compuestas] : COMPUESTAS) {
        if (signo != acento) continue;
        const auto sitio = letras.find(static_cast<char>(letra));
        if (sitio != std::string_view::npos) return static_cast<unsigned char>(compuestas[sitio]);
    }
    return letra;
}

}  // namespace analizador::interno

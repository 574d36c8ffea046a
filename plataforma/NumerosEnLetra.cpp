// Whole numbers written out in Castilian or Catalan. The reader goes once over the folded text, from the
// greatest scale to the units; between two parts of a number a blank is never required, because deeds write
// DOS-CENTS, DOS CENTS and DOSCENTS alike and callers take hyphens out of words.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "plataforma/PalabrasNumero.h"
#include "plataforma/Rut.h"

namespace analizador {

namespace {

using interno::TDecena;
using interno::TIdioma;
using interno::TPalabra;
using interno::Union;
using TValor = std::int64_t;

constexpr std::string_view CONJUNCIONES[] = {"Y", "I"};
constexpr std::string_view CEROS[] = {"CERO", "ZERO"};
constexpr std::string_view PRIMEROS[] = {"PRIMERO", "PRIMER"};

constexpr TValor MIL = 1'000;
constexpr TValor MILLON = 1'000'000;
constexpr TValor MILLARDO = 1'000'000'000;

// Reads the number that the whole of a text is. Each Lee... takes what it reads off the front of the text and
// leaves the text as it was when it reads nothing.
class TLectorNumero {
  public:
    TLectorNumero(std::string_view texto, const TIdioma& idioma) : resto_(texto), idioma_(idioma) {}

    // Nothing when the text is no number, or more than one.
    std::optional<TValor> Lee() {
        const auto numero = LeeConMillones();
        return numero && resto_.empty() ? numero : std::nullopt;
    }

  private:
    // The next word, after the blank that may stand before it.
    bool Lee(std::string_view palabra) {
        const std::size_t blanco = !resto_.empty() && resto_[0] == ' ' ? 1 : 0;
        if (resto_.size() == blanco || resto_[blanco] != palabra[0]) return false;
        if (resto_.compare(blanco, palabra.size(), palabra) != 0) return false;
        resto_.remove_prefix(blanco + palabra.size());
        return true;
    }

    bool LeeUna(std::span<const std::string_view> palabras) {
        return std::any_of(palabras.begin(), palabras.end(), [this](auto palabra) { return Lee(palabra); });
    }

    std::optional<TValor> LeeUna(std::span<const TPalabra> palabras) {
        const auto leida = std::find_if(palabras.begin(), palabras.end(),
                                        [this](const TPalabra& palabra) { return Lee(palabra.Texto); });
        return leida == palabras.end() ? std::nullopt : std::optional<TValor>(leida->Valor);
    }

    // What `lee` reads, with the conjunction before it or without.
    template <class Lector>
    std::optional<TValor> LeeTrasConjuncion(Lector lee) {
        const auto antes = resto_;
        LeeUna(CONJUNCIONES);
        const auto numero = (this->*lee)();
        if (!numero) resto_ = antes;
        return numero;
    }

    std::optional<TValor> LeeUnidad() { return LeeUna(idioma_.Unidades); }

    std::optional<TValor> LeeUnidadDe(const TDecena& decena) {
        if (decena.Une == Union::Ninguna) return std::nullopt;
        const auto antes = resto_;
        const bool conjuncion = decena.Une != Union::Pegada && LeeUna(CONJUNCIONES);
        const bool bienUnida = conjuncion || decena.Une != Union::Conjuncion;
        const auto unidad = bienUnida ? LeeUnidad() : std::nullopt;
        if (unidad && *unidad >= decena.UnidadMinima) return unidad;
        resto_ = antes;
        return std::nullopt;
    }

    std::optional<TValor> LeeMenorDeCien() {
        for (const auto& decena : idioma_.Decenas) {
            const auto antes = resto_;
            if (!Lee(decena.Texto)) continue;
            const auto unidad = LeeUnidadDe(decena);
            if (unidad || decena.Une != Union::Pegada) return decena.Valor + unidad.value_or(0);
            resto_ = antes;
        }
        return LeeUnidad();
    }

    // The hundreds that may have more after them.
    std::optional<TValor> LeeCentenas() {
        const auto antes = resto_;
        for (const auto& multiplo : idioma_.Multiplos) {
            if (Lee(multiplo.Texto) && LeeUna(idioma_.Cientos)) return multiplo.Valor * 100;
            resto_ = antes;
        }
        const auto entera = LeeUna(idioma_.CentenasEnteras);
        return entera ? std::optional(*entera * 100) : std::nullopt;
    }

    std::optional<TValor> LeeMenorDeMil() {
        if (const auto centenas = LeeCentenas())
            return *centenas + LeeTrasConjuncion(&TLectorNumero::LeeMenorDeCien).value_or(0);
        if (LeeUna(idioma_.CienJusto)) return 100;
        return LeeMenorDeCien();
    }

    // MIL as a word of its own, not the beginning of MILLON.
    bool LeeMil() {
        const auto antes = resto_;
        const bool escala = LeeUna(idioma_.Millon) || LeeUna(idioma_.Millardo);
        resto_ = antes;
        return !escala && Lee("MIL");
    }

    std::optional<TValor> LeeMenorDeUnMillon() {
        const auto primero = LeeMenorDeMil();
        if (!LeeMil()) return primero;
        Lee(",");
        return primero.value_or(1) * MIL + LeeTrasConjuncion(&TLectorNumero::LeeMenorDeMil).value_or(0);
    }

    // UN MILLON, MILLON, DOS MILLONES: how many; `menores` is the number already read before the word.
    std::optional<TValor> LeeEscala(std::optional<TValor> menores, std::span<const std::string_view> plural,
                                    std::span<const std::string_view> singular) {
        const bool uno = menores.value_or(1) == 1;
        if (uno ? !LeeUna(singular) : !LeeUna(plural)) return std::nullopt;
        Lee(",");
        return menores.value_or(1);
    }

    std::optional<TValor> LeeConMillones() {
        auto menores = LeeMenorDeUnMillon();
        TValor numero = 0;
        const auto millardos = LeeEscala(menores, idioma_.Millardos, idioma_.Millardo);
        if (millardos) {
            if (*millardos >= MIL) return std::nullopt;
            numero = *millardos * MILLARDO;
            menores = LeeTrasConjuncion(&TLectorNumero::LeeMenorDeUnMillon);
        }
        const auto millones = LeeEscala(menores, idioma_.Millones, idioma_.Millon);
        if (millones) {
            if (millardos && *millones >= MIL) return std::nullopt;
            numero += *millones * MILLON;
            menores = LeeTrasConjuncion(&TLectorNumero::LeeMenorDeUnMillon);
        }
        if (!menores && !millardos && !millones) return std::nullopt;
        return numero + menores.value_or(0);
    }

    std::string_view resto_;
    const TIdioma& idioma_;
};

constexpr bool EsEspacio(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}
constexpr bool EsRelleno(char c) {
    return c == '-' || c == '=' || c == '*' || c == '_' || c == '.' || c == '~';
}
constexpr bool EsParentesis(char c) {
    return c == '(' || c == ')' || c == '[' || c == ']' || c == '{' || c == '}';
}
constexpr bool EsSeparador(char c) {
    return EsEspacio(c) || EsRelleno(c);
}
constexpr bool EsSignoFinal(char c) {
    return EsSeparador(c) || std::string_view(",;:/\"'").find(c) != std::string_view::npos;
}
constexpr bool EsCifra(char c) {
    return c >= '0' && c <= '9';
}

// The part of the text that holds the number: after the fill signs that precede it, if any, and before the
// first bracket, run of fill signs or closing punctuation.
std::string_view ParteConNumero(std::string_view texto) {
    const auto hayRelleno = [&](std::size_t i) {
        return EsRelleno(texto[i]) && i + 1 < texto.size() && EsRelleno(texto[i + 1]);
    };
    std::size_t inicio = 0;
    while (inicio < texto.size() && EsSeparador(texto[inicio])) ++inicio;
    const bool signoSuelto =
        inicio > 0 && EsRelleno(texto[inicio - 1]) && (inicio == 1 || EsEspacio(texto[inicio - 2]));
    if (signoSuelto) --inicio;
    std::size_t fin = inicio;
    while (fin < texto.size() && !EsParentesis(texto[fin]) && !hayRelleno(fin)) ++fin;
    while (fin > inicio && EsSignoFinal(texto[fin - 1])) --fin;
    return texto.substr(inicio, fin - inicio);
}

// Words with one blank between them, however they were separated: a single hyphen joins words as a blank
// does.
std::string ConUnSoloEspacio(std::string_view texto) {
    std::string junto;
    for (const char c : texto) {
        const bool separa = EsEspacio(c) || c == '-';
        if (!separa)
            junto += c;
        else if (!junto.empty() && junto.back() != ' ')
            junto += ' ';
    }
    return junto;
}

// Digits, in one piece or in groups of three with points between them.
std::optional<TValor> NumeroEnCifras(std::string_view texto) {
    TValor numero = 0;
    std::size_t cifras = 0;  // of the group being read
    bool agrupado = false;
    for (const char c : texto) {
        if (c == '.') {
            if (cifras == 0 || cifras > 3 || (agrupado && cifras != 3)) return std::nullopt;
            agrupado = true;
            cifras = 0;
        } else if (EsCifra(c)) {
            numero = std::min(numero * 10 + (c - '0'), MILLON * MILLON);
            ++cifras;
        } else {
            return std::nullopt;
        }
    }
    if (cifras == 0 || (agrupado && cifras != 3)) return std::nullopt;
    return numero;
}

bool EsUnaDe(std::string_view texto, std::span<const std::string_view> palabras) {
    return std::find(palabras.begin(), palabras.end(), texto) != palabras.end();
}

std::optional<TValor> NumeroEnLetra(std::string_view texto, bool catalan) {
    const std::string palabras = ConUnSoloEspacio(texto);
    if (EsUnaDe(palabras, CEROS)) return 0;
    if (EsUnaDe(palabras, PRIMEROS)) return 1;
    return TLectorNumero(palabras, catalan ? interno::PalabrasCatalanas() : interno::PalabrasCastellanas())
        .Lee();
}

}  // namespace

int ConvierteNumeroDeCadenaAEnteroNvx(std::string_view texto, bool catalan) {
    const std::string plegado = Pliega(texto);
    const auto parte = ParteConNumero(plegado);
    const auto cifras = NumeroEnCifras(parte);
    const TValor numero = cifras ? *cifras : NumeroEnLetra(parte, catalan).value_or(0);
    return numero <= std::numeric_limits<int>::max() ? static_cast<int>(numero) : 0;
}

}  // namespace analizador

#include "plataforma/Rvarias.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>

#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"

namespace analizador {

namespace {

constexpr std::size_t LONGITUD = 9;  // of every complete identity number
constexpr int CIFRAS_DNI = 8;

bool EsCifra(char c) {
    return c >= '0' && c <= '9';
}

// `cifras`: one to eight decimal digits.
char LetraDeControl(std::string_view cifras) {
    static constexpr std::string_view LETRAS = "TRWAGMYFPDXBNJZSQVHLCKE";
    return LETRAS[static_cast<std::size_t>(Cad_Int(cifras)) % LETRAS.size()];
}

// True when `cifras` are only digits, at least one, and the control letter is theirs.
bool TieneSuLetra(std::string_view cifras, char letra) {
    return !cifras.empty() && std::all_of(cifras.begin(), cifras.end(), EsCifra) &&
           LetraDeControl(cifras) == letra;
}

// A letter of `iniciales` and seven digits, with one more character behind.
bool EsLetraYSieteCifras(std::string_view numero, std::string_view iniciales) {
    return numero.size() == LONGITUD && iniciales.find(numero.front()) != std::string_view::npos &&
           std::all_of(numero.begin() + 1, numero.end() - 1, EsCifra);
}

// The control digit of a company's seven: those in odd places count double, as the sum of their two digits.
int ControlDeSociedad(std::string_view cifras) {
    int suma = 0;
    for (std::size_t i = 0; i < cifras.size(); ++i) {
        const int cifra = cifras[i] - '0';
        suma += i % 2 == 1 ? cifra : cifra * 2 / 10 + cifra * 2 % 10;
    }
    return (10 - suma % 10) % 10;
}

}  // namespace

bool EsNif(std::string_view numero, [[maybe_unused]] bool aviso) {
    const std::string nif = AnsiUpperCase(numero);
    if (nif.empty() || nif.size() > LONGITUD) return false;
    const std::string_view cifras = std::string_view(nif).substr(0, nif.size() - 1);
    if (EsLetraYSieteCifras(nif, "KLM")) return TieneSuLetra(cifras.substr(1), nif.back());
    return TieneSuLetra(cifras, nif.back());
}

bool EsUnNie(std::string_view numero, [[maybe_unused]] bool aviso) {
    static constexpr std::string_view INICIALES = "XYZ";  // they stand for 0, 1 and 2
    std::string nie = AnsiUpperCase(numero);
    if (!EsLetraYSieteCifras(nie, INICIALES)) return false;
    nie.front() = static_cast<char>('0' + Pos(nie.substr(0, 1), INICIALES) - 1);
    return TieneSuLetra(std::string_view(nie).substr(0, LONGITUD - 1), nie.back());
}

bool EsUnCif(std::string_view numero, [[maybe_unused]] bool aviso) {
    static constexpr std::string_view CON_CIFRA = "ABEH";
    static constexpr std::string_view CON_LETRA = "KPQSNRW";
    static constexpr std::string_view INICIALES = "ABEHKPQSNRWCDFGJUV";
    const std::string cif = AnsiUpperCase(numero);
    if (!EsLetraYSieteCifras(cif, INICIALES)) return false;
    const int control = ControlDeSociedad(std::string_view(cif).substr(1, LONGITUD - 2));
    const bool suCifra = cif.back() == static_cast<char>('0' + control);
    const bool suLetra = cif.back() == "JABCDEFGHI"[control];
    if (CON_CIFRA.find(cif.front()) != std::string_view::npos) return suCifra;
    if (CON_LETRA.find(cif.front()) != std::string_view::npos) return suLetra;
    return suCifra || suLetra;
}

std::string FormateaDNI(std::string_view numero) {
    const std::string dni = QuitaCaracteres(AnsiUpperCase(numero), " .,-/\t\r\n\xA0");
    return EsNif(dni, false) ? StrCeros(dni, CIFRAS_DNI + 1) : dni;
}

bool EsFechaValida(int dia, int mes, int anno) {
    if (anno < 1 || anno > 9999 || mes < 1 || mes > 12 || dia < 1 || dia > 31) return false;
    return std::chrono::year_month_day(std::chrono::year(anno),
                                       std::chrono::month(static_cast<unsigned>(mes)),
                                       std::chrono::day(static_cast<unsigned>(dia)))
        .ok();
}

}  // namespace analizador

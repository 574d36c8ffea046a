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

// The number that `cifras` is, when they are digits alone and `minimo` to `maximo` of them.
std::optional<int> Cifras(std::string_view cifras, std::size_t minimo, std::size_t maximo) {
    if (cifras.size() < minimo || cifras.size() > maximo ||
        !std::all_of(cifras.begin(), cifras.end(), EsCifra))
        return std::nullopt;
    return Cad_Int(cifras);
}

// The latest year not after `actual` that ends in the two digits.
int AnnoDeDosCifras(int cifras, int actual) {
    const int anno = actual / 100 * 100 + cifras;
    return anno > actual ? anno - 100 : anno;
}

std::chrono::year_month_day Dia(int dia, int mes, int anno) {
    return {std::chrono::year(anno), std::chrono::month(static_cast<unsigned>(mes)),
            std::chrono::day(static_cast<unsigned>(dia))};
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
    return Dia(dia, mes, anno).ok();
}

std::optional<std::chrono::year_month_day> VerificaFecha(std::string_view texto,
                                                         std::chrono::year_month_day hoy) {
    constexpr int PRIMER_ANNO = 1900;
    const std::string fecha = QuitaCaracter(texto, ' ');
    const std::size_t barra1 = fecha.find('/');
    const std::size_t barra2 = fecha.find('/', barra1 + 1);
    if (barra1 == std::string::npos || barra2 == std::string::npos) return std::nullopt;
    const std::string_view partes = fecha;
    const auto dia = Cifras(partes.substr(0, barra1), 1, 2);
    const auto mes = Cifras(partes.substr(barra1 + 1, barra2 - barra1 - 1), 1, 2);
    const std::string_view cifrasAnno = partes.substr(barra2 + 1);
    auto anno = Cifras(cifrasAnno, 2, 4);
    if (!dia || !mes || !anno || cifrasAnno.size() == 3) return std::nullopt;
    if (cifrasAnno.size() == 2) anno = AnnoDeDosCifras(*anno, static_cast<int>(hoy.year()));
    if (*anno < PRIMER_ANNO || !EsFechaValida(*dia, *mes, *anno)) return std::nullopt;
    return Dia(*dia, *mes, *anno);
}

std::string Fecha_Cad(std::chrono::year_month_day fecha) {
    return StrCeros(static_cast<int>(static_cast<unsigned>(fecha.day())), 2) + "/" +
           StrCeros(static_cast<int>(static_cast<unsigned>(fecha.month())), 2) + "/" +
           StrCeros(static_cast<int>(fecha.year()), 4);
}

std::chrono::year_month_day Hoy() {
    return std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
}

}  // namespace analizador

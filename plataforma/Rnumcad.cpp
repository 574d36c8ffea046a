#include "plataforma/Rnumcad.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <system_error>

#include "plataforma/Ansi.h"
#include "plataforma/Encuentra.h"

namespace analizador {

namespace {

bool EsBlanco(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool EsCifra(char c) {
    return c >= '0' && c <= '9';
}

// The character that stands for `c` in plain text; nothing when it is removed.
constexpr std::optional<char> CaracterLlano(char c) {
    constexpr std::string_view COMILLAS = "“”„«»‹›"_ansi;
    constexpr std::string_view APOSTROFOS = "‘’‚´`"_ansi;
    constexpr std::string_view GUIONES = "–—\x1E"_ansi;
    constexpr std::string_view ESPACIOS = "\t\u00A0\v\f\x0E"_ansi;
    constexpr std::string_view QUITADOS = "\x1F\u00AD\x07\x01\x02\x05\x08"_ansi;
    if (QUITADOS.find(c) != std::string_view::npos) return std::nullopt;
    if (COMILLAS.find(c) != std::string_view::npos) return '"';
    if (APOSTROFOS.find(c) != std::string_view::npos) return '\'';
    if (GUIONES.find(c) != std::string_view::npos) return '-';
    if (ESPACIOS.find(c) != std::string_view::npos) return ' ';
    return c == "…"_ansi.front() ? '.' : c;
}

constexpr std::array<std::optional<char>, 256> CARACTERES_LLANOS = [] {
    std::array<std::optional<char>, 256> llanos{};
    for (std::size_t i = 0; i < llanos.size(); ++i) llanos[i] = CaracterLlano(static_cast<char>(i));
    return llanos;
}();

std::string_view SinEspacios(std::string_view texto) {
    const auto primero = texto.find_first_not_of(' ');
    if (primero == std::string_view::npos) return {};
    return texto.substr(primero, texto.find_last_not_of(' ') - primero + 1);
}

// The text without a leading "+", that the standard readers do not take; nothing when a second sign follows.
std::optional<std::string_view> SinMas(std::string_view texto) {
    if (!texto.starts_with('+')) return texto;
    texto.remove_prefix(1);
    if (texto.starts_with('-')) return std::nullopt;
    return texto;
}

// Digits with at most one decimal point among them, and at least one digit.
bool EsFormaDeReal(std::string_view cifras) {
    const auto puntos = std::count(cifras.begin(), cifras.end(), '.');
    const auto numericas = std::count_if(cifras.begin(), cifras.end(), EsCifra);
    return puntos <= 1 && numericas >= 1 && static_cast<std::size_t>(puntos + numericas) == cifras.size();
}

}  // namespace

std::string TraduceCaracteresExtranosDeWord(std::string_view texto) {
    std::string llano(texto.size(), '\0');
    std::size_t letras = 0;
    for (const char c : texto)
        if (const auto traducido = CARACTERES_LLANOS[static_cast<unsigned char>(c)])
            llano[letras++] = *traducido;
    llano.resize(letras);
    return llano;
}

std::string QuitaCaracteres(std::string_view texto, std::string_view quitados) {
    std::string resto(texto);
    std::erase_if(resto, [&](char c) { return quitados.find(c) != std::string_view::npos; });
    return resto;
}

std::string QuitaCaracter(std::string_view texto, char caracter) {
    return QuitaCaracteres(texto, std::string_view(&caracter, 1));
}

int CuentaCaracter(std::string_view texto, char caracter) {
    return static_cast<int>(std::count(texto.begin(), texto.end(), caracter));
}

std::string_view StrLeft(std::string_view texto, int n) {
    return n <= 0 ? std::string_view{} : texto.substr(0, static_cast<std::size_t>(n));
}

std::string_view StrRight(std::string_view texto, int n) {
    if (n <= 0) return {};
    return texto.substr(texto.size() - std::min(texto.size(), static_cast<std::size_t>(n)));
}

int Pos(std::string_view buscado, std::string_view texto) {
    const auto sitio = buscado.empty() ? std::string_view::npos : Encuentra(texto, buscado);
    return sitio == std::string_view::npos ? 0 : static_cast<int>(sitio + 1);
}

int RightPos(std::string_view buscado, std::string_view texto) {
    const auto sitio = buscado.empty() ? std::string_view::npos : texto.rfind(buscado);
    return sitio == std::string_view::npos ? 0 : static_cast<int>(sitio + 1);
}

std::string_view RecortaIzquierda(std::string_view texto) {
    while (!texto.empty() && EsBlanco(texto.front())) texto.remove_prefix(1);
    return texto;
}

std::string_view RecortaDerecha(std::string_view texto) {
    while (!texto.empty() && EsBlanco(texto.back())) texto.remove_suffix(1);
    return texto;
}

std::string_view Recorta(std::string_view texto) {
    return RecortaDerecha(RecortaIzquierda(texto));
}

std::optional<int> EnteroDeCadena(std::string_view texto) {
    const auto cifras = SinMas(SinEspacios(texto));
    if (!cifras) return std::nullopt;
    int numero = 0;
    const char* const fin = cifras->data() + cifras->size();
    const auto leido = std::from_chars(cifras->data(), fin, numero);
    if (leido.ec != std::errc{} || leido.ptr != fin) return std::nullopt;
    return numero;
}

int Cad_Int(std::string_view texto) {
    return EnteroDeCadena(texto).value_or(0);
}

std::string Int_Cad(int numero) {
    return std::to_string(numero);
}

std::string StrCeros(std::string_view texto, int n) {
    const auto longitud = static_cast<std::size_t>(std::max(n, 0));
    std::string ceros(longitud > texto.size() ? longitud - texto.size() : 0, '0');
    return ceros.append(texto);
}

std::string StrCeros(int numero, int n) {
    return StrCeros(Int_Cad(numero), n);
}

std::optional<double> RealDeCadena(std::string_view texto) {
    const auto sinMas = SinMas(SinEspacios(texto));
    if (!sinMas) return std::nullopt;
    std::string cifras(*sinMas);
    std::replace(cifras.begin(), cifras.end(), ',', '.');
    const bool negativo = cifras.starts_with('-');
    if (!EsFormaDeReal(std::string_view(cifras).substr(negativo ? 1 : 0))) return std::nullopt;
    double numero = 0;
    const auto leido = std::from_chars(cifras.data(), cifras.data() + cifras.size(), numero);
    if (leido.ec == std::errc{}) return numero;
    // Out of range: beyond the greatest number, or so small that it is nothing.
    const bool nada = cifras.substr(0, cifras.find('.')).find_first_of("123456789") == std::string::npos;
    return nada ? std::optional(0.0) : std::nullopt;
}

double Cad_Float(std::string_view texto) {
    return RealDeCadena(texto).value_or(0.0);
}

std::string Float_Cad(double numero) {
    std::array<char, 512> cifras;  // the longest number without exponent takes some 330
    const auto escrito =
        std::to_chars(cifras.data(), cifras.data() + cifras.size(), numero, std::chars_format::fixed);
    std::string texto(cifras.data(), escrito.ptr);
    std::replace(texto.begin(), texto.end(), '.', ',');
    return texto;
}

}  // namespace analizador

#include "adaptadores/dbase/ValoresDbf.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <numeric>

namespace analizador {

namespace {

constexpr std::string_view VERDADERO = "TtYy";
constexpr std::string_view FALSO = "FfNn";

template <class Entero>
Entero DeBytesBajos(std::string_view bytes) {
    Entero valor = 0;
    for (std::size_t i = sizeof(Entero); i > 0; --i)
        valor = static_cast<Entero>(valor << 8U | static_cast<unsigned char>(bytes[i - 1]));
    return valor;
}

template <class Entero>
Entero DeBytesAltos(std::string_view bytes) {
    Entero valor = 0;
    for (const char byte : bytes.substr(0, sizeof(Entero)))
        valor = static_cast<Entero>(valor << 8U | static_cast<unsigned char>(byte));
    return valor;
}

double RealAlto(std::string_view bytes) {
    constexpr std::uint64_t SIGNO = std::uint64_t{1} << 63U;
    const auto guardado = DeBytesAltos<std::uint64_t>(bytes);
    return std::bit_cast<double>((guardado & SIGNO) != 0 ? guardado & ~SIGNO : ~guardado);
}

std::optional<double> SiFinito(double valor) {
    return std::isfinite(valor) ? std::optional(valor) : std::nullopt;
}

bool EsDigito(char c) {
    return c >= '0' && c <= '9';
}

std::string DigitosDe(std::optional<double> valor) {
    if (!valor) return {};
    std::array<char, 32> digitos{};
    const auto fin = std::to_chars(digitos.data(), digitos.data() + digitos.size(), *valor);
    return {digitos.data(), fin.ptr};
}

}  // namespace

std::string_view SinBlancosDerecha(std::string_view texto) {
    constexpr std::string_view BLANCOS = "        ";
    while (texto.ends_with(BLANCOS)) texto.remove_suffix(BLANCOS.size());
    return texto.substr(0, texto.find_last_not_of(' ') + 1);
}

std::string_view SinBlancos(std::string_view texto) {
    texto = SinBlancosDerecha(texto);
    return texto.substr(std::min(texto.find_first_not_of(' '), texto.size()));
}

std::optional<double> NumeroDeDigitos(std::string_view texto) {
    constexpr std::size_t EXACTAS = 15;  // a double holds so many digits
    const std::string_view escrito = SinBlancos(texto.substr(0, texto.find('\0')));
    if (escrito.empty()) return std::nullopt;
    if (escrito.size() <= EXACTAS && std::all_of(escrito.begin(), escrito.end(), EsDigito))
        return static_cast<double>(
            std::accumulate(escrito.begin(), escrito.end(), std::int64_t{0},
                            [](std::int64_t valor, char digito) { return valor * 10 + (digito - '0'); }));
    std::string digitos(escrito);
    std::replace(digitos.begin(), digitos.end(), ',', '.');
    if (digitos.starts_with('+')) digitos.erase(0, 1);
    if (std::none_of(digitos.begin(), digitos.end(), EsDigito)) return std::nullopt;
    double valor = 0;
    const auto leido = std::from_chars(digitos.data(), digitos.data() + digitos.size(), valor);
    if (leido.ec != std::errc() || leido.ptr != digitos.data() + digitos.size()) return std::nullopt;
    return SiFinito(valor);
}

std::optional<double> EnteroDeDigitos(std::string_view texto) {
    const std::string_view digitos = SinBlancos(texto);
    const bool conSigno = digitos.starts_with('-') || digitos.starts_with('+');
    const std::string_view sinSigno = digitos.substr(conSigno ? 1 : 0);
    if (!std::all_of(sinSigno.begin(), sinSigno.end(), EsDigito)) return std::nullopt;
    return NumeroDeDigitos(digitos);
}

std::string TextoDeBytes(std::string_view bytes, TClaseCampo clase) {
    switch (clase) {
        case TClaseCampo::Texto:
            return std::string(SinBlancosDerecha(bytes));
        case TClaseCampo::Numero:
            return std::string(SinBlancos(bytes.substr(0, bytes.find('\0'))));
        case TClaseCampo::Logico:
            if (VERDADERO.find(bytes[0]) != std::string_view::npos) return "T";
            return FALSO.find(bytes[0]) != std::string_view::npos ? "F" : "";
        case TClaseCampo::Vacio:
            return {};
        default:
            return DigitosDe(NumeroDeBytes(bytes, clase));
    }
}

std::optional<double> NumeroDeBytes(std::string_view bytes, TClaseCampo clase) {
    switch (clase) {
        case TClaseCampo::Texto:
            return EnteroDeDigitos(bytes);
        case TClaseCampo::Numero:
            return NumeroDeDigitos(bytes);
        case TClaseCampo::EnteroBajo:
            return static_cast<std::int32_t>(DeBytesBajos<std::uint32_t>(bytes));
        case TClaseCampo::EnteroAlto:
            return static_cast<std::int32_t>(DeBytesAltos<std::uint32_t>(bytes) ^ 0x80000000U);
        case TClaseCampo::RealBajo:
            return SiFinito(std::bit_cast<double>(DeBytesBajos<std::uint64_t>(bytes)));
        case TClaseCampo::RealAlto:
            return SiFinito(RealAlto(bytes));
        default:
            return std::nullopt;
    }
}

std::uint64_t LeeBajo(std::string_view bytes, std::size_t posicion, std::size_t cuantos) {
    std::uint64_t valor = 0;
    for (std::size_t i = cuantos; i > 0; --i)
        valor = valor << 8U | static_cast<unsigned char>(bytes[posicion + i - 1]);
    return valor;
}

}  // namespace analizador

// The search over prepared texts against the plainest one that follows the rules letter by letter.

#include "adaptadores/memoria/Buscador.h"

#include <gtest/gtest.h>

#include <cctype>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace analizador {
namespace {

constexpr std::string_view LETRAS = "aA \x1F";

bool EsGuion(char c) {
    return c == '\x1F';
}
bool EsLetraSencilla(char c) {
    return c == 'a' || c == 'A';
}

// The match that begins exactly at `inicio`.
std::optional<TIntervalo> EnPosicion(std::string_view texto, std::string_view buscado, std::size_t inicio,
                                     bool mayusculas) {
    if (EsGuion(texto[inicio])) return std::nullopt;
    auto i = inicio;
    for (std::size_t k = 0; k < buscado.size(); ++k, ++i) {
        while (i < texto.size() && EsGuion(texto[i])) ++i;
        if (i == texto.size()) return std::nullopt;
        const bool igual =
            mayusculas ? texto[i] == buscado[k] : std::tolower(texto[i]) == std::tolower(buscado[k]);
        if (!igual) return std::nullopt;
    }
    return TIntervalo{static_cast<int>(inicio), static_cast<int>(i)};
}

bool SonPalabras(std::string_view texto, TIntervalo hallado) {
    auto antes = static_cast<std::size_t>(hallado.Inicio);
    auto despues = static_cast<std::size_t>(hallado.Fin);
    const bool letraPrimera = EsLetraSencilla(texto[antes]);
    const bool letraUltima = EsLetraSencilla(texto[despues - 1]);
    while (antes > 0 && EsGuion(texto[antes - 1])) --antes;
    while (despues < texto.size() && EsGuion(texto[despues])) ++despues;
    const bool sigueAntes = antes > 0 && EsLetraSencilla(texto[antes - 1]);
    const bool sigueDespues = despues < texto.size() && EsLetraSencilla(texto[despues]);
    return !(letraPrimera && sigueAntes) && !(letraUltima && sigueDespues);
}

std::optional<TIntervalo> BuscaSencilla(std::string_view texto, std::string_view buscado,
                                        const TOpcionesBusqueda& opciones, TIntervalo desde) {
    std::vector<TIntervalo> todos;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const auto uno = EnPosicion(texto, buscado, i, opciones.DistingueMayusculas);
        if (uno && (!opciones.PalabrasCompletas || SonPalabras(texto, *uno))) todos.push_back(*uno);
    }
    if (todos.empty()) return std::nullopt;
    std::optional<TIntervalo> hallado;
    for (const auto& uno : todos) {
        if (opciones.Adelante && !hallado && uno.Inicio >= desde.Fin) hallado = uno;
        if (!opciones.Adelante && uno.Fin <= desde.Inicio) hallado = uno;
    }
    if (!hallado && opciones.Continua) hallado = opciones.Adelante ? todos.front() : todos.back();
    return hallado;
}

std::string Texto(unsigned numero, std::size_t longitud) {
    std::string texto;
    for (std::size_t i = 0; i < longitud; ++i, numero /= 4) texto.push_back(LETRAS[numero % 4]);
    return texto;
}

TOpcionesBusqueda Opciones(unsigned bits) {
    return {(bits & 1) != 0, (bits & 2) != 0, false, false, false, (bits & 4) != 0, (bits & 8) != 0, false};
}

void ComparaTodo(const std::string& texto, std::string_view buscado) {
    const TBuscador buscador(texto);
    for (unsigned bits = 0; bits < 16; ++bits)
        for (int inicio = 0; inicio <= 5; ++inicio)
            for (const int fin : {inicio, 5})
                ASSERT_EQ(buscador.Busca(buscado, Opciones(bits), {inicio, fin}),
                          BuscaSencilla(texto, buscado, Opciones(bits), {inicio, fin}))
                    << testing::PrintToString(texto) << " / " << testing::PrintToString(buscado) << " "
                    << bits << " " << inicio << "-" << fin;
}

TEST(Buscador, DaLoMismoQueLaBusquedaSencilla) {
    for (unsigned numero = 0; numero < 1024; ++numero)
        for (const auto* const buscado : {"a", "A", " ", "aa", "a ", " A", "aAa"}) {
            ComparaTodo(Texto(numero, 5), buscado);
            if (HasFatalFailure()) return;
        }
}

TEST(Buscador, LosGuionesOpcionalesDeLoBuscadoNoCuentan) {
    const TBuscador buscador("casa\r");
    const auto opciones = Opciones(4);
    EXPECT_EQ(buscador.Busca("ca\x1Fsa\xAD", opciones, {0, 0}), (TIntervalo{0, 4}));
    EXPECT_EQ(buscador.Busca("\x1F\xAD", opciones, {0, 0}), std::nullopt);
}

}  // namespace
}  // namespace analizador

// The reader of numbers against writers that know nothing of it: ICU's for Castilian, our own for Catalan
// (ICU's Catalan forms are not those of the norm). Every number to a million, then samples to the last one.

#include <gtest/gtest.h>
#include <unicode/rbnf.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>

#include "plataforma/Ansi.h"
#include "plataforma/Rut.h"
#include "pruebas/plataforma/DeletreaCatalan.h"

namespace analizador {
namespace {

constexpr std::int64_t ULTIMO = std::numeric_limits<int>::max();
constexpr std::int64_t MAYOR = 999'999'999'999;
constexpr std::int64_t HASTA = 1'000'000;
constexpr std::int64_t PASO_MUESTRA = 1'299'709;  // prime: every ending comes up

// Writes a number in one of its forms (gender, hyphens, capitals), counted from 0.
using TEscritor = std::function<std::string(std::int64_t numero, std::size_t forma)>;

struct TPrueba {
    TEscritor Escribe;
    std::size_t Formas;
    bool Catalan;

    void Compara(std::int64_t numero, std::size_t forma) const {
        const std::string texto = Escribe(numero, forma);
        const std::int64_t esperado = numero <= ULTIMO ? numero : 0;
        ASSERT_EQ(ConvierteNumeroDeCadenaAEnteroNvx(texto, Catalan), esperado) << Utf8DeAnsi(texto);
    }

    // Every number of [desde, hasta), each in one form: so that each ending takes every form, the form
    // changes from one number to the next and from one thousand to the next.
    void ComparaTramo(std::int64_t desde, std::int64_t hasta) const {
        for (std::int64_t n = desde; n < hasta && !testing::Test::HasFatalFailure(); ++n)
            Compara(n, static_cast<std::size_t>(n + n / 1000) % Formas);
    }

    // In every form: the numbers that a greater one is made of, and samples to the end of the range and
    // beyond.
    void ComparaTodasLasFormas() const {
        for (std::size_t forma = 0; forma < Formas && !testing::Test::HasFatalFailure(); ++forma) {
            for (std::int64_t n = 0; n <= 2000; ++n) Compara(n, forma);
            for (std::int64_t n = 0; n <= HASTA; n += 1000) Compara(n, forma);
            for (std::int64_t n = HASTA; n <= ULTIMO; n += PASO_MUESTRA) Compara(n, forma);
            for (const std::int64_t n : {ULTIMO, ULTIMO + 1, std::int64_t{10'000'000'000}, MAYOR})
                Compara(n, forma);
        }
    }
};

class TEscritorCastellano {
  public:
    explicit TEscritorCastellano(const char* reglas) : reglas_(reglas) {
        formato_ =
            std::make_unique<icu::RuleBasedNumberFormat>(icu::URBNF_SPELLOUT, icu::Locale("es"), estado_);
    }
    // Small letters with accents.
    [[nodiscard]] std::string Escribe(std::int64_t numero) {
        icu::UnicodeString texto;
        icu::FieldPosition sitio;
        formato_->format(numero, reglas_, texto, sitio, estado_);
        if (U_FAILURE(estado_)) throw std::runtime_error(u_errorName(estado_));
        std::u16string unidades(texto.getBuffer(), static_cast<std::size_t>(texto.length()));
        std::erase(unidades, u'\u00AD');
        return AnsiDeUtf16(unidades);
    }

  private:
    icu::UnicodeString reglas_;
    UErrorCode estado_ = U_ZERO_ERROR;
    std::unique_ptr<icu::RuleBasedNumberFormat> formato_;
};

TPrueba Castellano() {
    using TEscritores = std::array<TEscritorCastellano, 3>;
    const auto escritores = std::make_shared<TEscritores>(TEscritores{
        TEscritorCastellano("%spellout-cardinal-masculine"),
        TEscritorCastellano("%spellout-cardinal-feminine"), TEscritorCastellano("%spellout-numbering")});
    const auto escribe = [escritores](std::int64_t numero, std::size_t forma) {
        const std::string texto = (*escritores)[forma % 3].Escribe(numero);
        return forma < 3 ? texto : AnsiUpperCase(texto);
    };
    return {escribe, 6, false};
}

TPrueba Catalan() {
    const auto escribe = [](std::int64_t numero, std::size_t forma) {
        constexpr std::array GUIONES = {Guion::Guion, Guion::Espacio, Guion::Nada};
        const Genero genero = forma % 2 == 0 ? Genero::Masculino : Genero::Femenino;
        const std::string texto = DeletreaCatalan(numero, genero, GUIONES[forma / 2 % 3]);
        return forma < 6 ? texto : Pliega(texto);
    };
    return {escribe, 12, true};
}

// The range in parts, that run side by side.
class CastellanoHastaUnMillon : public testing::TestWithParam<std::int64_t> {};
TEST_P(CastellanoHastaUnMillon, CadaNumero) {
    Castellano().ComparaTramo(GetParam(), GetParam() + HASTA / 4);
}
INSTANTIATE_TEST_SUITE_P(Tramos, CastellanoHastaUnMillon, testing::Range<std::int64_t>(0, HASTA, HASTA / 4));
TEST(NumerosEnteros, CastellanoEnTodasLasFormas) {
    Castellano().ComparaTodasLasFormas();
}

class CatalanHastaUnMillon : public testing::TestWithParam<std::int64_t> {};
TEST_P(CatalanHastaUnMillon, CadaNumero) {
    Catalan().ComparaTramo(GetParam(), GetParam() + HASTA / 4);
}
INSTANTIATE_TEST_SUITE_P(Tramos, CatalanHastaUnMillon, testing::Range<std::int64_t>(0, HASTA, HASTA / 4));
TEST(NumerosEnteros, CatalanEnTodasLasFormas) {
    Catalan().ComparaTodasLasFormas();
}

}  // namespace
}  // namespace analizador

#include "pruebas/plataforma/DeletreaCatalan.h"

#include <array>

#include "plataforma/Ansi.h"

namespace analizador {

namespace {

constexpr std::array<const char*, 20> HASTA_DINOU = {
    "zero", "un",   "dos",   "tres",   "quatre",  "cinc",   "sis",   "set",    "vuit",   "nou",
    "deu",  "onze", "dotze", "tretze", "catorze", "quinze", "setze", "disset", "divuit", "dinou"};
constexpr std::array<const char*, 10> DECENAS = {"",          "",         "vint",    "trenta",   "quaranta",
                                                 "cinquanta", "seixanta", "setanta", "vuitanta", "noranta"};

class TDeletreador {
  public:
    TDeletreador(Genero genero, Guion guion)
        : femenino_(genero == Genero::Femenino),
          guion_(guion == Guion::Guion     ? "-"
                 : guion == Guion::Espacio ? " "
                                           : "") {}

    [[nodiscard]] std::string MenorDeMil(int n) const {
        if (n < 20) return Sencillo(n);
        if (n < 30) return n == 20 ? "vint" : std::string("vint") + guion_ + "i" + guion_ + Sencillo(n - 20);
        if (n < 100) {
            const std::string decena = DECENAS[static_cast<std::size_t>(n / 10)];
            return n % 10 == 0 ? decena : decena + guion_ + Sencillo(n % 10);
        }
        const std::string cientos =
            n < 200 ? "cent" : Sencillo(n / 100) + guion_ + (femenino_ ? "centes" : "cents");
        return n % 100 == 0 ? cientos : cientos + " " + MenorDeMil(n % 100);
    }

    [[nodiscard]] std::string MenorDeUnMillon(int n) const {
        if (n < 1000) return MenorDeMil(n);
        const std::string miles = n < 2000 ? "mil" : MenorDeMil(n / 1000) + " mil";
        return n % 1000 == 0 ? miles : miles + " " + MenorDeMil(n % 1000);
    }

  private:
    [[nodiscard]] std::string Sencillo(int n) const {
        if (femenino_ && n == 1) return "una";
        if (femenino_ && n == 2) return "dues";
        return HASTA_DINOU[static_cast<std::size_t>(n)];
    }

    bool femenino_;
    const char* guion_;
};

}  // namespace

std::string DeletreaCatalan(long long numero, Genero genero, Guion guion) {
    constexpr long long MILLON = 1'000'000;
    const auto menores = static_cast<int>(numero % MILLON);
    const auto millones = static_cast<int>(numero / MILLON);
    const TDeletreador delSuyo(genero, guion);
    if (millones == 0) return delSuyo.MenorDeUnMillon(menores);
    const TDeletreador masculino(Genero::Masculino, guion);  // the million is masculine whatever is counted
    std::string texto = masculino.MenorDeUnMillon(millones);
    texto += millones == 1 ? " milió"_ansi : " milions"_ansi;
    return menores == 0 ? texto : texto + " " + delSuyo.MenorDeUnMillon(menores);
}

}  // namespace analizador

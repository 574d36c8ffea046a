#include "plataforma/Encuentra.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "pruebas/comun/Literales.h"

namespace analizador {

namespace {

// What the standard library finds is what it must find, from every place and beyond the end.
void EsperaLoMismo(std::string_view texto, std::string_view buscado) {
    for (std::size_t desde = 0; desde <= texto.size() + 2; ++desde)
        ASSERT_EQ(Encuentra(texto, buscado, desde), texto.find(buscado, desde))
            << '"' << texto << "\" \"" << buscado << "\" " << desde;
}

TEST(Encuentra, LoMismoQueLaBibliotecaComun) {
    const std::vector<std::string_view> textos = {"",
                                                  "A",
                                                  "AA",
                                                  "AXA",
                                                  "COMPARECEN DON JUAN Y DON PEDRO",
                                                  "------- EXPONEN -------",
                                                  "D.N.I. 12-A",
                                                  "WWWWKWWWW",
                                                  std::string_view("con \0 dentro", 12),
                                                  "Otorgan: ÁÉÍ áéí ç"_a};
    const std::vector<std::string_view> buscados = {"",
                                                    "A",
                                                    "AA",
                                                    "AXA",
                                                    "DON",
                                                    "JUAN",
                                                    "N",
                                                    "-",
                                                    "---",
                                                    " EXPONEN ",
                                                    "D.N.I.",
                                                    "WK",
                                                    "KW",
                                                    "Z",
                                                    "PEDRO",
                                                    "PEDROS",
                                                    std::string_view("\0", 1),
                                                    "É"_a,
                                                    "é"_a,
                                                    "Otorgan:"};
    for (const std::string_view texto : textos)
        for (const std::string_view buscado : buscados) EsperaLoMismo(texto, buscado);
}

TEST(Encuentra, TambienEnTextosAlAzarDePocasLetras) {
    std::mt19937 azar(7);
    const auto texto = [&](std::size_t hasta) {
        std::string letras(azar() % (hasta + 1), ' ');
        for (char& c : letras) c = "AKW-\xC9"[azar() % 5];
        return letras;
    };
    for (int i = 0; i < 2000; ++i) EsperaLoMismo(texto(40), texto(4));
}

}  // namespace

}  // namespace analizador

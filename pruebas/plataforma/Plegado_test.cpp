#include <gtest/gtest.h>

#include <string>

#include "plataforma/Ansi.h"
#include "plataforma/Rut.h"

namespace analizador {
namespace {

std::string TodosLosBytes() {
    std::string todos;
    for (int c = 0; c < 256; ++c) todos += static_cast<char>(c);
    return todos;
}

std::string ConCambios(std::string_view desde, std::string_view hacia) {
    std::string todos = TodosLosBytes();
    for (std::size_t i = 0; i < desde.size(); ++i) todos[static_cast<unsigned char>(desde[i])] = hacia[i];
    return todos;
}

TEST(QuitaAcentoMayMin, QuitaSoloLosAcentosYConservaLaCaja) {
    EXPECT_EQ(QuitaAcentoMayMin(TodosLosBytes()),
              ConCambios("ÁÀÂÃÉÈÊÍÌÎÓÒÔÕÚÙÛÝáàâãéèêíìîóòôõúùûý\u00A0\v‘’"_ansi,
                         "AAAAEEEIIIOOOOUUUYaaaaeeeiiioooouuuy  ''"));
}

TEST(Pliega, LosBytesDeMasDe127) {
    std::string altos;
    for (int c = 0xC0; c < 0x100; ++c) altos += static_cast<char>(c);
    EXPECT_EQ(Pliega(altos), "AAAAÄÅÆÇEEEËIIIÏÐÑOOOOÖ×ØUUUÜYÞßAAAAÄÅÆÇEEEËIIIÏÐÑOOOOÖ÷ØUUUÜYÞŸ"_ansi);
}

TEST(Pliega, Palabras) {
    const struct {
        std::string_view Texto;
        std::string_view Plegado;
    } casos[] = {{"Doña María Muñoz"_ansi, "DOÑA MARIA MUÑOZ"_ansi},
                 {"l'Hospitalet, plaça Güell"_ansi, "L'HOSPITALET, PLAÇA GÜELL"_ansi},
                 {"cancel·lació d’hipoteca"_ansi, "CANCEL·LACIO D'HIPOTECA"_ansi},
                 {"D.\u00A0José\vPérez"_ansi, "D. JOSE PEREZ"}};
    for (const auto& [texto, plegado] : casos) {
        EXPECT_EQ(Pliega(texto), plegado);
        EXPECT_EQ(Pliega(plegado), plegado);
    }
}

TEST(Pliega, ConservaLaLongitud) {
    EXPECT_EQ(Pliega(TodosLosBytes()).size(), 256U);
    EXPECT_EQ(Pliega(""), "");
}

}  // namespace
}  // namespace analizador

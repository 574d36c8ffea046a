// What holds of every entry, and of the order of the entries where the search depends on it.

#include <algorithm>
#include <array>
#include <set>

#include "plataforma/Ansi.h"
#include "plataforma/Rut.h"
#include "pruebas/vocabulario/Vocabularios.h"

namespace analizador::vocabulario {
namespace {

using Entradas = EnCadaVocabulario;
INSTANTIATE_TEST_SUITE_P(Vocabulario, Entradas, testing::Values(0, 1), NombreDeCaso);

TEST_P(Entradas, EstanPlegadas) {
    for (const auto nombre : SeccionesLeidas())
        for (const auto& entrada : Actual().Ini.Palabras(nombre))
            EXPECT_EQ(Utf8DeAnsi(Pliega(entrada)), Utf8DeAnsi(entrada)) << Sitio(Actual(), nombre);
}

TEST_P(Entradas, NoSeRepitenEnSuSeccion) {
    for (const auto nombre : SeccionesLeidas()) {
        std::set<std::string> vistas;
        for (const auto& entrada : Actual().Ini.Palabras(nombre))
            EXPECT_TRUE(vistas.insert(entrada).second) << Sitio(Actual(), nombre, entrada);
    }
}

TEST_P(Entradas, NoLlevanDobleBlancoNiTabulador) {
    for (const auto nombre : SeccionesLeidas())
        for (const auto& entrada : Actual().Ini.Palabras(nombre)) {
            EXPECT_EQ(entrada.find("  "), std::string::npos) << Sitio(Actual(), nombre, entrada);
            EXPECT_EQ(entrada.find('\t'), std::string::npos) << Sitio(Actual(), nombre, entrada);
        }
}

// The search adds the blank after a form of address, and skips one character after these others: with a
// blank at its end an entry would never be found, or would swallow the first letter of what follows.
TEST_P(Entradas, NoAcabanEnBlancoDondeLaBusquedaYaLoCuenta) {
    constexpr std::array<std::string_view, 17> secciones = {
        "HOMBRE",   "MUJER",   "NUMERO",    "VECINDAD",     "ANTE MI", "CALLE",
        "PLAZA",    "AVENIDA", "TRAVESIA",  "URBANIZACION", "RONDA",   "PASEO",
        "GLORIETA", "FINCA",   "CARRETERA", "COLONIA",      "RAMBLA"};
    for (const auto nombre : secciones)
        for (const auto& entrada : Actual().Ini.Palabras(nombre))
            EXPECT_NE(entrada.back(), ' ') << Sitio(Actual(), nombre, entrada);
}

// A form of address counts only after a blank or at the start of the text.
TEST_P(Entradas, LosTratamientosNoEmpiezanEnBlanco) {
    for (const auto nombre : {"HOMBRE", "MUJER"})
        for (const auto& entrada : Actual().Ini.Palabras(nombre))
            EXPECT_NE(entrada.front(), ' ') << Sitio(Actual(), nombre, entrada);
}

// A representation paragraph is told by an entry with a blank before it.
TEST_P(Entradas, LasDeRepresentacionNoEmpiezanEnBlanco) {
    for (const auto& entrada : Actual().Ini.Palabras("REPRESENTACION"))
        EXPECT_NE(entrada.front(), ' ') << Sitio(Actual(), "REPRESENTACION", entrada);
}

// Every mention counts and the first entry in the file's order wins: a longer entry placed first would jump
// over the mentions of the shorter one.
TEST_P(Entradas, LaContenidaEnOtraVaAntesEnMesYPorcentaje) {
    for (const auto nombre : {"MES", "PORCENTAJE"}) {
        const auto& lista = Actual().Ini.Palabras(nombre);
        for (std::size_t i = 0; i < lista.size(); ++i)
            for (std::size_t j = i + 1; j < lista.size(); ++j)
                EXPECT_EQ(lista[i].find(lista[j]), std::string::npos)
                    << Sitio(Actual(), nombre, lista[j]) << " va detrás de " << Utf8DeAnsi(lista[i]);
    }
}

// The leftmost wins, and of two that begin together the first: the shorter one placed first would leave the
// rest of the longer one in the text that follows.
TEST_P(Entradas, LaLargaVaAntesDondeGanaLaDeMasALaIzquierda) {
    constexpr std::array<std::string_view, 15> secciones = {
        "NUMERO", "EURO",  "ANTE MI", "CALLE",    "PLAZA",   "AVENIDA",   "TRAVESIA", "URBANIZACION",
        "RONDA",  "PASEO", "FINCA",   "GLORIETA", "COLONIA", "CARRETERA", "RAMBLA"};
    for (const auto nombre : secciones) {
        const auto& lista = Actual().Ini.Palabras(nombre);
        for (std::size_t i = 0; i < lista.size(); ++i)
            for (std::size_t j = i + 1; j < lista.size(); ++j)
                EXPECT_FALSE(lista[j].starts_with(lista[i]))
                    << Sitio(Actual(), nombre, lista[j]) << " va detrás de " << Utf8DeAnsi(lista[i]);
    }
}

// Where the first entry in the file's order wins, whatever holds a later one holds also what that contains:
// an entry behind one that it contains is never reached.
TEST_P(Entradas, TodasSeAlcanzanDondeGanaLaPrimeraDeLaLista) {
    for (const auto nombre : {"NOTARIO DE", "DOMICILIO", "VECINDAD", "TRANSMISION"}) {
        const auto& lista = Actual().Ini.Palabras(nombre);
        for (std::size_t i = 0; i < lista.size(); ++i)
            for (std::size_t j = i + 1; j < lista.size(); ++j)
                EXPECT_EQ(lista[j].find(lista[i]), std::string::npos)
                    << Sitio(Actual(), nombre, lista[j]) << " va detrás de " << Utf8DeAnsi(lista[i]);
    }
}

}  // namespace
}  // namespace analizador::vocabulario

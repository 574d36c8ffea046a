#include <gtest/gtest.h>

#include "plataforma/Ansi.h"
#include "pruebas/comun/Literales.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

struct TParte {
    std::string_view Nombre;
    std::string_view Apellidos;
    std::string_view NumDocumento;
};

// A line without a party between them, as a list may have.
ListaTextos<TROtorgante> Lista(const std::vector<TParte>& partes) {
    ListaTextos<TROtorgante> lista;
    for (const TParte& parte : partes) {
        lista.Anade("sin objeto", nullptr);
        auto otorgante = std::make_unique<TROtorgante>();
        otorgante->Nombre = parte.Nombre;
        otorgante->Apellidos = parte.Apellidos;
        otorgante->NumDocumento = parte.NumDocumento;
        std::string texto = otorgante->NombreOtorgante();
        lista.Anade(std::move(texto), std::move(otorgante));
    }
    return lista;
}

const std::vector<TParte> PARTES = {
    {"", "", ""},
    {"JUAN", "PÉREZ GIL"_a, "12345678Z"},
    {"JUAN", "GIL", "X1234567L"},
    {"", "ESTEL, S.L.", "B12345674"},
    {"ANA", "GIL", "12345678Z"},
};

struct TCaso {
    std::string_view Texto;
    std::string_view Apellidos;  // of the party found
    bool EsDocumento;
};

const std::vector<TCaso> CASOS = {
    {"", "", false},
    {"sin objeto", "", false},
    {"COMPARECE DON JUAN PÉREZ GIL, MAYOR"_a, "PÉREZ GIL"_a, false},
    // Exactly: neither accents nor capitals are forgiven.
    {"COMPARECE DON JUAN PEREZ GIL, MAYOR", "", false},
    {"comparece don juan gil", "", false},
    // The first of the list, not of the text.
    {"JUAN GIL Y JUAN PÉREZ GIL"_a, "PÉREZ GIL"_a, false},
    {"JUAN GIL", "GIL", false},
    // Anywhere, inside another word too; by the whole name only.
    {"SANJUAN GILABERT", "GIL", false},
    {"PÉREZ GIL, JUAN"_a, "", false},
    {"LA ENTIDAD \"ESTEL, S.L.\"", "ESTEL, S.L.", false},
    // Documents, as they are written.
    {"CON N.I.F. 12345678Z Y N.I.E. X1234567L", "", true},
    {"N.I.E. X1234567L", "", true},
    {"C.I.F. B12345674.", "", true},
    {"12.345.678-Z", "", false},
    {"12345678z", "", false},
};

}  // namespace

TEST(OtorgantesConocidos, PorNombreYPorDocumento) {
    auto lista = Lista(PARTES);
    for (const TCaso& caso : CASOS) {
        SCOPED_TRACE(Utf8DeAnsi(caso.Texto));
        const TROtorgante* const hallado = Otorgante(caso.Texto, lista);
        EXPECT_EQ(hallado == nullptr ? "" : hallado->Apellidos, caso.Apellidos);
        EXPECT_EQ(EsUnOtorgante(caso.Texto, lista), !caso.Apellidos.empty());
        EXPECT_EQ(EsUnDocumentoDeOtorgante(caso.Texto, lista), caso.EsDocumento);
    }
}

TEST(OtorgantesConocidos, ListaVacia) {
    ListaTextos<TROtorgante> lista;
    EXPECT_EQ(Otorgante("JUAN GIL", lista), nullptr);
    EXPECT_FALSE(EsUnOtorgante("JUAN GIL", lista));
    EXPECT_FALSE(EsUnDocumentoDeOtorgante("12345678Z", lista));
}

// The party found is the list's own, not a copy.
TEST(OtorgantesConocidos, ElDeLaLista) {
    auto lista = Lista({{"JUAN", "GIL", ""}});
    EXPECT_EQ(Otorgante("JUAN GIL", lista), lista[1].Objeto.get());
}

}  // namespace analizador

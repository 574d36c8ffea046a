#include "programas/analiza/Explicacion.h"

#include <gtest/gtest.h>

#include "plataforma/Ansi.h"
#include "pruebas/comun/VocabularioDePrueba.h"

namespace analizador {
namespace {

// What counted: section, number of the entry, the words, and who wins instead.
struct TVista {
    std::string Seccion;
    int Numero = 0;
    std::string Palabras;
    std::string Gana;
    bool operator==(const TVista&) const = default;
};

void PrintTo(const TVista& vista, std::ostream* salida) {
    *salida << vista.Seccion << " " << vista.Numero << " [" << vista.Palabras << "] " << vista.Gana;
}

std::vector<TVista> Casan(std::string_view utf8) {
    const std::string parrafo = ParrafoDeTexto(utf8);
    std::vector<TVista> vistas;
    for (const auto& c : SeccionesQueCasan(parrafo))
        vistas.push_back({std::string(c.Seccion->Nombre), c.Numero,
                          Utf8DeAnsi(parrafo.substr(c.Donde.Primera, c.Donde.Longitud)),
                          std::string(c.Gana)});
    return vistas;
}

TEST(ParrafoDeTexto, EsUnoSoloYLlevaSuMarca) {
    EXPECT_EQ(ParrafoDeTexto("  uno\ndos\r\n\n"), "uno dos\r");
    EXPECT_EQ(ParrafoDeTexto("«año»"), "\"a\xF1o\"\r");
    EXPECT_EQ(ParrafoDeTexto(""), "\r");
}

TEST(SeccionesQueCasan, CadaUnaComoSeBusca) {
    const TVocabularioDePrueba vocabulario({{"COMPARECIENTES", {"COMPARECEN"}},
                                            {"NUMEROS", {"DOS", "MIL"}},
                                            {"NIF", {"NIF", "DNI"}},
                                            {"HOMBRE", {"DON", "SR. DON"}},
                                            {"MUJER", {"SRA."}},
                                            {"DOMICILIO", {"DOMICILIO EN LA ", "DOMICILIO EN "}},
                                            {"NUMERO", {"NUM.", "NUMERO"}},
                                            {"CALLE", {"CALLE"}},
                                            {"PLAZA", {"PLAZA"}},
                                            {"SOLTERO", {"SOLTER"}},
                                            {"CASADO", {"CASAD"}},
                                            {"EURO", {"EURO"}},
                                            {"PORCENTAJE", {"POR CIENTO", "%"}}});
    struct TCaso {
        const char* Parrafo;
        std::vector<TVista> Vistas;
    };
    const std::vector<TCaso> casos = {
        {"nada", {}},
        {"-- COMPARECEN", {{"COMPARECIENTES", 1, "COMPARECEN", ""}}},
        {"Allí COMPARECEN", {}},  // too far from the start
        {"COMPARECENCIA", {}},    // not whole
        {"Comparecen", {}},       // not as it is written
        {"Dos, MIL y dosmil", {{"NUMEROS", 1, "Dos,", ""}, {"NUMEROS", 2, "MIL", ""}}},
        // of the last occurrences the leftmost
        {"dni nif dni nif", {{"NIF", 2, "dni", ""}}},
        {"Sr. don Juan, la sra. Ana y el cordon", {{"HOMBRE", 2, "Sr. don", ""}, {"MUJER", 1, "sra.", ""}}},
        // the class of street is looked for behind the address's words
        {"calle; domicilio en la plaza y calle",
         {{"DOMICILIO", 1, "domicilio en la ", ""},
          {"CALLE", 1, "calle", "PLAZA"},
          {"PLAZA", 1, "plaza", ""}}},
        {"numero, num.", {{"NUMERO", 2, "numero", ""}}},
        {"casado y soltero", {{"SOLTERO", 1, "solter", ""}, {"CASADO", 1, "casad", "SOLTERO"}}},
        {"1 euro y 2 euros", {{"EURO", 1, "euro", ""}, {"EURO", 1, "euro", ""}}},
        // the mention before the one found is jumped over
        {"2 %, 3 por ciento, 4 %", {{"PORCENTAJE", 1, "por ciento", ""}, {"PORCENTAJE", 2, "%", ""}}},
    };
    for (const auto& caso : casos) EXPECT_EQ(Casan(caso.Parrafo), caso.Vistas) << caso.Parrafo;
}

}  // namespace
}  // namespace analizador

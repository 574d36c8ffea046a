// Bookmarks.

#include <string>
#include <vector>

#include "plataforma/Ansi.h"
#include "pruebas/documentos/ContratoDocumento.h"

namespace analizador {
namespace {

// The names and texts of the listed bookmarks.
using Listados = std::vector<std::pair<std::string, std::string>>;

Listados Lista(const TWordDocumentoCustom& documento) {
    Listados listados;
    for (const auto& [nombre, intervalo] : documento.GetMarcadores())
        listados.emplace_back(nombre, documento.GetTexto(intervalo));
    return listados;
}

TEST_P(ContratoDocumento, DaLosMarcadoresPorNombreSinLosOcultos) {
    const auto documento = Abre({"La finca uno y la dos.\r",
                                 {{"XFINCA_1", {9, 12}},
                                  {"finca_2", {15, 21}},
                                  {"_Toc123", {0, 2}},
                                  {"FINCA_12_B", {0, 8}},
                                  {"Anexo", {3, 3}}},
                                 {}});
    EXPECT_EQ(
        Lista(*documento),
        (Listados{{"Anexo", ""}, {"FINCA_12_B", "La finca"}, {"finca_2", "la dos"}, {"XFINCA_1", "uno"}}));
    EXPECT_TRUE(Lista(*Abre("\r")).empty());
}

TEST_P(ContratoDocumento, PoneUnMarcadorSobreLaSeleccion) {
    const auto documento = Abre("Uno\rDos\rTres\r");
    const auto dos = Selecciona(*documento, "Dos\r");
    EXPECT_EQ(documento->NuevoMarcador("EXPONEN", true), (TMarcador{"EXPONEN", dos}));
    EXPECT_EQ(documento->GetSeleccion().GetIntervalo(), dos);
    EXPECT_EQ(Lista(*documento), (Listados{{"EXPONEN", "Dos\r"}}));

    documento->IrAlFinalDocumento();
    const auto fin = documento->GetSeleccion().GetIntervalo();
    EXPECT_EQ(documento->NuevoMarcador("CABECERA", true), (TMarcador{"CABECERA", fin}));
    EXPECT_EQ(Lista(*documento), (Listados{{"CABECERA", ""}, {"EXPONEN", "Dos\r"}}));
}

TEST_P(ContratoDocumento, UnMarcadorPuedeLlegarAlUltimoCR) {
    const auto documento = Abre("Uno\rDos\r");
    Selecciona(*documento, "Dos\r");
    documento->NuevoMarcador("TRANSMISION", true);
    EXPECT_EQ(Lista(*documento), (Listados{{"TRANSMISION", "Dos\r"}}));
}

TEST_P(ContratoDocumento, SustituyeElMarcadorDelMismoNombre) {
    const auto documento = Abre({"Uno Dos Tres\r", {{"Cabecera", {0, 3}}, {"ZETA", {0, 3}}}, {}});
    const auto dos = Selecciona(*documento, "Dos");
    EXPECT_EQ(documento->NuevoMarcador("CABECERA", true), (TMarcador{"CABECERA", dos}));
    EXPECT_EQ(Lista(*documento), (Listados{{"CABECERA", "Dos"}, {"ZETA", "Uno"}}));

    Selecciona(*documento, "Tres");
    const auto anterior = documento->NuevoMarcador("cabecera", false);
    EXPECT_EQ(anterior, (TMarcador{"CABECERA", dos}));
    EXPECT_EQ(Lista(*documento), (Listados{{"CABECERA", "Dos"}, {"ZETA", "Uno"}}));
}

TEST_P(ContratoDocumento, SinSustituirTambienPoneElQueNoHabia) {
    const auto documento = Abre("Uno Dos\r");
    Selecciona(*documento, "Dos");
    documento->NuevoMarcador("FINCA_1", false);
    EXPECT_EQ(Lista(*documento), (Listados{{"FINCA_1", "Dos"}}));
}

TEST_P(ContratoDocumento, RechazaNombresDeMarcadorQueNoValen) {
    const auto documento = Abre("Uno\r");
    documento->IrAlInicioDocumento();
    constexpr std::string_view CON_ACENTO = "Sección_1"_ansi;
    const std::vector<std::string> buenos = {"A", "_oculto", "FINCA_12_B", std::string(CON_ACENTO),
                                             std::string(40, 'x')};
    const std::vector<std::string> malos = {"",   "1A",  "PARTE DEUDORA",     "A-B",
                                            "A.", "A\r", std::string(41, 'x')};
    for (const auto& nombre : buenos) EXPECT_EQ(documento->NuevoMarcador(nombre, true).Nombre, nombre);
    for (const auto& nombre : malos)
        EXPECT_THROW(documento->NuevoMarcador(nombre, true), ErrorWord) << nombre;
    EXPECT_EQ(documento->GetMarcadores().size(), buenos.size() - 1);
}

}  // namespace
}  // namespace analizador

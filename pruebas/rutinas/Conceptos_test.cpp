#include <gtest/gtest.h>

#include "pruebas/comun/Literales.h"
#include "pruebas/comun/TablasDePrueba.h"
#include "pruebas/comun/Tramos.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

class Conceptos : public testing::Test {
  protected:
    void SetUp() override {
        tablas_.Pon("TIPOS.DBF", {{"NOMBRE", "NUMEROTIPO", "COD_OFICIA", "PRESTAMO"},
                                  {{"PRESTAMO HIPOTECARIO", "12", "0201", "T"},
                                   {"COMPRAVENTA", "7", "0101", "F"},
                                   {std::string("Cesión de créditos"_a), "3", "0301", "F"},
                                   {"VENTA CON HIPOTECA ESCRITURA", "1", "0102", "F"},
                                   {"HIPOTECA", "2", "0202", "F"},
                                   {"ACTA DE FIN DE OBRA POR", "9", "0401", "F"}}});
    }

    TTablasDePrueba tablas_;
    InstalaTablas instala_{tablas_};
};

TEST_F(Conceptos, BuscaConceptos) {
    struct TCaso {
        std::string_view Texto;
        std::vector<std::string> Nombres;
        std::vector<std::string> Leidos;
    };
    const std::vector<TCaso> casos = {
        {"", {}, {}},
        {"PERMUTA", {}, {}},
        {"ESCRITURA DE COMPRAVENTA\r", {"COMPRAVENTA"}, {"COMPRAVENTA"}},
        // The word for deed selects nothing, though a name holds it.
        {"ESCRITURA", {}, {}},
        {"ESCRITURAS", {}, {}},
        // Three letters are too few, four are enough.
        {"FIN POR", {}, {}},
        {"OBRA", {"ACTA DE FIN DE OBRA POR"}, {"OBRA"}},
        // Whole words, folded on both sides.
        {"COMPRAVENTAS", {}, {}},
        {"compraventa", {"COMPRAVENTA"}, {"compraventa"}},
        {"CESION", {std::string("Cesión de créditos"_a)}, {"CESION"}},
        {"crédito y créditos"_a, {std::string("Cesión de créditos"_a)}, {std::string("créditos"_a)}},
        // The first row of the table that has the word.
        {"HIPOTECA", {"VENTA CON HIPOTECA ESCRITURA"}, {"HIPOTECA"}},
        // In the order of the paragraph's words, each type once.
        {"COMPRAVENTA Y PRESTAMO HIPOTECARIO, PRESTAMO",
         {"COMPRAVENTA", "PRESTAMO HIPOTECARIO"},
         {"COMPRAVENTA", "PRESTAMO"}},
        // Points, tabs and CR go, hyphens part words, other signs stay.
        {"C.OMPRA\tVEN\rTA.", {"COMPRAVENTA"}, {"C.OMPRA\tVEN\rTA"}},
        {"-COMPRAVENTA-HIPOTECA-",
         {"COMPRAVENTA", "VENTA CON HIPOTECA ESCRITURA"},
         {"COMPRAVENTA", "HIPOTECA"}},
        {"COMPRAVENTA, HIPOTECA;", {}, {}},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.Texto);
        ListaTextos<TRConcepto> lista;
        const std::vector<Tramo> tramos = BuscaConceptos(caso.Texto, lista);
        std::vector<std::string> nombres;
        std::vector<std::string> leidos;
        for (const auto& linea : lista) {
            nombres.push_back(linea.Texto);
            EXPECT_EQ(linea.Objeto->Nombre, linea.Texto);
        }
        for (const Tramo tramo : tramos) leidos.push_back(EnTramo(caso.Texto, tramo));
        EXPECT_EQ(nombres, caso.Nombres);
        EXPECT_EQ(leidos, caso.Leidos);
    }
}

TEST_F(Conceptos, LosCamposSonLosDeLaFila) {
    ListaTextos<TRConcepto> lista;
    (void)BuscaConceptos("PRESTAMO", lista);
    ASSERT_EQ(lista.Cuenta(), 1U);
    EXPECT_EQ(*lista[0].Objeto, (TRConcepto{12, "PRESTAMO HIPOTECARIO", "0201", true}));
}

TEST_F(Conceptos, LoQueLaListaYaTieneNoSeRepite) {
    ListaTextos<TRConcepto> lista;
    lista.Anade("COMPRAVENTA", nullptr);
    EXPECT_TRUE(BuscaConceptos("COMPRAVENTA", lista).empty());
    EXPECT_EQ(lista.Cuenta(), 1U);
    EXPECT_EQ(BuscaConceptos("PRESTAMO", lista).size(), 1U);
    EXPECT_EQ(lista.Cuenta(), 2U);
}

TEST_F(Conceptos, UnaTablaCambiadaCuentaDesdeElParrafoSiguiente) {
    ListaTextos<TRConcepto> antes;
    (void)BuscaConceptos("HIPOTECA COMPRAVENTA", antes);
    ASSERT_EQ(antes.Cuenta(), 2U);
    tablas_.Pon("TIPOS.DBF",
                {{"NOMBRE", "NUMEROTIPO", "COD_OFICIA", "PRESTAMO"}, {{"HIPOTECA", "2", "0202", "F"}}});
    ListaTextos<TRConcepto> despues;
    (void)BuscaConceptos("HIPOTECA COMPRAVENTA", despues);
    ASSERT_EQ(despues.Cuenta(), 1U);
    EXPECT_EQ(despues[0].Texto, "HIPOTECA");
}

TEST_F(Conceptos, UnaTablaQueFaltaEsUnError) {
    tablas_.Quita("TIPOS.DBF");
    ListaTextos<TRConcepto> lista;
    EXPECT_THROW((void)BuscaConceptos("COMPRAVENTA", lista), ErrorTabla);
}

}  // namespace

}  // namespace analizador

// Concepts moved between the lists and the grid.

#include <gtest/gtest.h>

#include <algorithm>

#include "pruebas/dialogos/EscenaPreseleccion.h"

namespace analizador {
namespace {

using TControl = TControlPreseleccion;

TEST(Conceptos, PasanDeUnaListaAOtraAlFinalYNadaQuedaSeleccionado) {
    const TEscenaPreseleccion escena;
    const auto dialogo = escena.Crea({"A", "B", "C", "D"});
    dialogo->LBPosiblesConceptos.Selecciona({0, 2});
    dialogo->Pulsa(TControl::BMas);
    EXPECT_EQ(Textos(dialogo->LBPosiblesConceptos), (TTextos{"B", "D"}));
    EXPECT_EQ(Textos(dialogo->LBConceptos), (TTextos{"A", "C"}));
    EXPECT_EQ(dialogo->LBPosiblesConceptos.Actual(), 1U);
    EXPECT_EQ(dialogo->LBPosiblesConceptos.Seleccionadas(), TPosiciones{});
    EXPECT_EQ(*dialogo->LBConceptos.Objeto(1), (TRConcepto{7, "C", "01", true})) << "with all it had";

    dialogo->LBPosiblesConceptos.Selecciona({1});
    dialogo->LBConceptos.Selecciona({0});
    dialogo->Pulsa(TControl::BMenos);
    EXPECT_EQ(Textos(dialogo->LBPosiblesConceptos), (TTextos{"B", "D", "A"}));
    EXPECT_EQ(Textos(dialogo->LBConceptos), (TTextos{"C"}));
    EXPECT_EQ(dialogo->LBConceptos.Actual(), 0U);
    EXPECT_EQ(dialogo->LBPosiblesConceptos.Seleccionadas(), TPosiciones{});
}

TEST(Conceptos, SinSeleccionNoSeMueveNada) {
    const TEscenaPreseleccion escena;
    const auto dialogo = escena.Crea({"A"});
    dialogo->LBPosiblesConceptos.PonActual(0);
    dialogo->Pulsa(TControl::BMas);
    dialogo->Pulsa(TControl::BMenos);
    EXPECT_EQ(Textos(dialogo->LBPosiblesConceptos), (TTextos{"A"}));
    EXPECT_EQ(dialogo->LBPosiblesConceptos.Actual(), 0U);
    EXPECT_EQ(dialogo->LBConceptos.Cuenta(), 0U);
}

TEST(Conceptos, LosTiposDeLaRejillaSeAnadenConTodosSusValores) {
    const TEscenaPreseleccion escena;
    const auto dialogo = escena.Crea({});
    dialogo->dbgTipos.Selecciona({1, 3});
    dialogo->Pulsa(TControl::BMasBD);
    EXPECT_EQ(Textos(dialogo->LBConceptos), (TTextos{"Personal", "Venta de finca"}));
    EXPECT_EQ(*dialogo->LBConceptos.Objeto(0), (TRConcepto{4, "Personal", "05002", true}));
    EXPECT_EQ(*dialogo->LBConceptos.Objeto(1), (TRConcepto{10, "Venta de finca", "01001", false}));
    EXPECT_FALSE(dialogo->dbgTipos.Seleccionada(1));
    EXPECT_FALSE(dialogo->dbgTipos.Seleccionada(3));
    EXPECT_EQ(dialogo->dbgTipos.Filas().size(), 4U);

    dialogo->dbgTipos.PonActual(2);  // none selected: the current one
    dialogo->LBConceptos.SeleccionaTodo();
    dialogo->Pulsa(TControl::BMasBD);
    EXPECT_EQ(dialogo->LBConceptos.Seleccionadas(), TPosiciones{});
    EXPECT_EQ(Textos(dialogo->LBConceptos), (TTextos{"Personal", "Venta de finca", "Hipoteca"}));
    EXPECT_EQ(dialogo->dbgTipos.Actual(), 2U);
    dialogo->Pulsa(TControl::BMasBD);
    EXPECT_EQ(dialogo->LBConceptos.Cuenta(), 3U) << "it stands there already";
}

TEST(Conceptos, ElQueYaEstaDejaSuListaSinRepetirse) {
    const TEscenaPreseleccion escena;
    const auto dialogo = escena.Crea({"Poder", "Venta de finca"});
    dialogo->dbgTipos.PonActual(0);
    dialogo->Pulsa(TControl::BMasBD);
    dialogo->LBPosiblesConceptos.SeleccionaTodo();
    dialogo->Pulsa(TControl::BMas);
    EXPECT_EQ(Textos(dialogo->LBConceptos), (TTextos{"Poder", "Venta de finca"}));
    EXPECT_EQ(dialogo->LBConceptos.Objeto(0)->NumeroTipo, 30) << "the one that was there";
    EXPECT_EQ(dialogo->LBPosiblesConceptos.Cuenta(), 0U);
}

TEST(Conceptos, DosListasCruzadasNoRepitenAlVolver) {
    const TEscenaPreseleccion escena;
    const auto dialogo = escena.Crea({"Poder"});
    dialogo->dbgTipos.PonActual(0);
    dialogo->Pulsa(TControl::BMasBD);
    dialogo->LBConceptos.SeleccionaTodo();
    dialogo->Pulsa(TControl::BMenos);
    EXPECT_EQ(Textos(dialogo->LBPosiblesConceptos), (TTextos{"Poder"}));
    EXPECT_EQ(dialogo->LBPosiblesConceptos.Objeto(0)->NumeroTipo, 7);
    EXPECT_EQ(dialogo->LBConceptos.Cuenta(), 0U);
}

// ---- Drags

TEST(Arrastre, SoloSeAdmiteDeLaListaDeLaMismaClase) {
    const std::vector<std::pair<TControl, TControl>> admitidos = {
        {TControl::LBPosiblesConceptos, TControl::LBConceptos},
        {TControl::dbgTipos, TControl::LBConceptos},
        {TControl::LBConceptos, TControl::LBPosiblesConceptos},
        {TControl::LBConceptos, TControl::dbgTipos},
        {TControl::LBPosiblesOtorgantes, TControl::LBOtorgantes},
        {TControl::LBOtorgantes, TControl::LBPosiblesOtorgantes},
    };
    for (int origen = 0; origen <= static_cast<int>(TControl::BCancelar); ++origen)
        for (int destino = 0; destino <= static_cast<int>(TControl::BCancelar); ++destino) {
            const std::pair par(static_cast<TControl>(origen), static_cast<TControl>(destino));
            const bool esperado = std::find(admitidos.begin(), admitidos.end(), par) != admitidos.end();
            EXPECT_EQ(TFListaConceptosPreseleccionados::AdmiteSoltar(par.first, par.second), esperado)
                << origen << " a " << destino;
        }
}

TEST(Arrastre, SoltarMueveLoSeleccionado) {
    const TEscenaPreseleccion escena;
    const auto dialogo = escena.Crea({"A", "B", "C"});
    dialogo->LBPosiblesConceptos.Selecciona({0, 1, 2});
    dialogo->Suelta(TControl::LBPosiblesConceptos, TControl::LBOtorgantes);
    EXPECT_EQ(dialogo->LBPosiblesConceptos.Cuenta(), 3U) << "not of its kind";
    dialogo->Suelta(TControl::LBPosiblesConceptos, TControl::LBConceptos);
    EXPECT_EQ(Textos(dialogo->LBConceptos), (TTextos{"A", "B", "C"}));
    dialogo->dbgTipos.Selecciona({3});
    dialogo->Suelta(TControl::dbgTipos, TControl::LBConceptos);
    EXPECT_EQ(Textos(dialogo->LBConceptos), (TTextos{"A", "B", "C", "Venta de finca"}));
    dialogo->LBConceptos.Selecciona({1});
    dialogo->Suelta(TControl::LBConceptos, TControl::LBPosiblesConceptos);
    EXPECT_EQ(Textos(dialogo->LBPosiblesConceptos), (TTextos{"B"}));
    EXPECT_EQ(Textos(dialogo->LBConceptos), (TTextos{"A", "C", "Venta de finca"}));
}

TEST(Arrastre, LoSoltadoEnLaRejillaSeBorra) {
    const TEscenaPreseleccion escena;
    const auto dialogo = escena.Crea({"A", "B"});
    dialogo->LBPosiblesConceptos.SeleccionaTodo();
    dialogo->Pulsa(TControl::BMas);
    dialogo->LBConceptos.Selecciona({0});
    dialogo->Suelta(TControl::LBConceptos, TControl::dbgTipos);
    EXPECT_EQ(Textos(dialogo->LBConceptos), (TTextos{"B"}));
    EXPECT_EQ(dialogo->LBPosiblesConceptos.Cuenta(), 0U);
    EXPECT_EQ(dialogo->dbgTipos.Filas().size(), 4U);
}

TEST(Arrastre, LosOtorgantesSePreguntanComoConElBoton) {
    TEscenaPreseleccion escena;
    const auto dialogo = escena.Crea({}, {PersonaEnXml("ANA", "1"), Persona("LUIS", "2")});
    dialogo->LBPosiblesOtorgantes.SeleccionaTodo();
    dialogo->Suelta(TControl::LBPosiblesOtorgantes, TControl::LBOtorgantes);
    EXPECT_EQ(escena.Mensajes.Preguntas.size(), 1U);
    EXPECT_EQ(Textos(dialogo->LBOtorgantes), (TTextos{"GIL, LUIS - 2"}));
    dialogo->LBOtorgantes.SeleccionaTodo();
    dialogo->Suelta(TControl::LBOtorgantes, TControl::LBPosiblesOtorgantes);
    EXPECT_EQ(Textos(dialogo->LBPosiblesOtorgantes), (TTextos{"GIL, ANA - 1", "GIL, LUIS - 2"}));
}

}  // namespace
}  // namespace analizador

// Keys, buttons, the focus, the titles of the grid and the search box.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iterator>

#include "plataforma/Ansi.h"
#include "pruebas/comun/Literales.h"
#include "pruebas/dialogos/EscenaPreseleccion.h"

namespace analizador {
namespace {

using TControl = TControlPreseleccion;

constexpr TTecla TECLAS[] = {TTecla::Intro, TTecla::Escape, TTecla::Arriba,   TTecla::Abajo,
                             TTecla::RePag, TTecla::AvPag,  TTecla::Insertar, TTecla::Suprimir};

std::vector<TControl> Controles() {
    std::vector<TControl> controles;
    for (int i = 0; i <= static_cast<int>(TControl::BCancelar); ++i)
        controles.push_back(static_cast<TControl>(i));
    return controles;
}

// Two concepts and two parties found and as many chosen, all selected.
std::unique_ptr<TFListaConceptosPreseleccionados> DialogoLleno() {
    auto dialogo = TEscenaPreseleccion::Crea(
        {"A", "B", "C", "D"}, {Persona("ANA", "1"), Persona("EVA", "2"), Persona("LUIS", "3")});
    dialogo->LBPosiblesConceptos.Selecciona({0, 1});
    dialogo->Pulsa(TControl::BMas);
    dialogo->LBPosiblesOtorgantes.Selecciona({0});
    dialogo->Pulsa(TControl::BMasOtor);
    dialogo->LBPosiblesConceptos.SeleccionaTodo();
    dialogo->LBConceptos.SeleccionaTodo();
    dialogo->LBPosiblesOtorgantes.SeleccionaTodo();
    dialogo->LBOtorgantes.SeleccionaTodo();
    dialogo->dbgTipos.Selecciona({0});
    dialogo->PonFoco(TControl::LBPosiblesConceptos);
    return dialogo;
}

using TCuentas = std::array<std::size_t, 4>;

TCuentas Cuentas(const TFListaConceptosPreseleccionados& dialogo) {
    return {dialogo.LBPosiblesConceptos.Cuenta(), dialogo.LBConceptos.Cuenta(),
            dialogo.LBPosiblesOtorgantes.Cuenta(), dialogo.LBOtorgantes.Cuenta()};
}

TEST(Teclas, CadaListaTieneLasSuyas) {
    struct TCaso {
        TControl Control;
        TTecla Tecla;
        TCuentas Cuentas;
    };
    const TCaso tomadas[] = {
        {TControl::LBPosiblesConceptos, TTecla::Intro, {0, 4, 2, 1}},
        {TControl::LBPosiblesConceptos, TTecla::Insertar, {0, 4, 2, 1}},
        {TControl::LBConceptos, TTecla::Suprimir, {4, 0, 2, 1}},
        {TControl::dbgTipos, TTecla::Intro, {2, 3, 2, 1}},
        {TControl::dbgTipos, TTecla::Insertar, {2, 3, 2, 1}},
        {TControl::LBPosiblesOtorgantes, TTecla::Intro, {2, 2, 0, 3}},
        {TControl::LBPosiblesOtorgantes, TTecla::Insertar, {2, 2, 0, 3}},
        {TControl::LBOtorgantes, TTecla::Suprimir, {2, 2, 3, 0}},
    };
    const TEscenaPreseleccion escena;
    for (const TControl control : Controles()) {
        if (control == TControl::eBusca) continue;
        for (const TTecla tecla : TECLAS) {
            if (tecla == TTecla::Escape) continue;
            const auto dialogo = DialogoLleno();
            const auto* const caso = std::find_if(
                std::begin(tomadas), std::end(tomadas),
                [&](const TCaso& otro) { return otro.Control == control && otro.Tecla == tecla; });
            const bool esSuya = caso != std::end(tomadas);
            EXPECT_EQ(dialogo->Tecla(control, tecla), esSuya)
                << static_cast<int>(control) << " " << static_cast<int>(tecla);
            EXPECT_EQ(Cuentas(*dialogo), esSuya ? caso->Cuentas : (TCuentas{2, 2, 2, 1}))
                << static_cast<int>(control) << " " << static_cast<int>(tecla);
            EXPECT_EQ(dialogo->Foco(), TControl::LBPosiblesConceptos);
            EXPECT_EQ(dialogo->Resultado(), std::nullopt);
        }
    }
}

TEST(Teclas, EscapeCancelaMenosEnLaCajaDeBusqueda) {
    const TEscenaPreseleccion escena;
    for (const TControl control : Controles()) {
        const auto dialogo = DialogoLleno();
        EXPECT_TRUE(dialogo->Tecla(control, TTecla::Escape));
        const bool esCaja = control == TControl::eBusca;
        EXPECT_EQ(dialogo->Resultado(), esCaja ? std::nullopt : std::optional(false));
        EXPECT_EQ(dialogo->Foco(), esCaja ? TControl::LBConceptos : TControl::LBPosiblesConceptos);
    }
}

TEST(Teclas, ConUnaListaOUnMenuAbiertosSonSuyas) {
    const TEscenaPreseleccion escena;
    for (const TControl control : Controles())
        for (const TTecla tecla : TECLAS) {
            const auto dialogo = DialogoLleno();
            EXPECT_FALSE(dialogo->Tecla(control, tecla, true));
            EXPECT_EQ(Cuentas(*dialogo), (TCuentas{2, 2, 2, 1}));
            EXPECT_EQ(dialogo->Foco(), TControl::LBPosiblesConceptos);
            EXPECT_EQ(dialogo->Resultado(), std::nullopt);
        }
}

TEST(Botones, ContinuarAceptaYCancelarNo) {
    const TEscenaPreseleccion escena;
    for (const TControl control : Controles()) {
        const auto dialogo = escena.Crea({});
        EXPECT_EQ(dialogo->Resultado(), std::nullopt);
        dialogo->Pulsa(control);
        const std::optional<bool> esperado = control == TControl::BContinuar  ? std::optional(true)
                                             : control == TControl::BCancelar ? std::optional(false)
                                                                              : std::nullopt;
        EXPECT_EQ(dialogo->Resultado(), esperado);
    }
}

TEST(Botones, ElPulsadoTieneElFoco) {
    const TEscenaPreseleccion escena;
    const auto dialogo = escena.Crea({"A"});
    EXPECT_EQ(dialogo->Foco(), TControl::LBPosiblesConceptos);
    dialogo->Pulsa(TControl::BMas);
    EXPECT_EQ(dialogo->Foco(), TControl::BMas);
    dialogo->Pulsa(TControl::SPXML);  // disabled: there is no XML
    EXPECT_EQ(dialogo->Foco(), TControl::BMas);
}

TEST(Titulos, CadaUnoOrdenaYLlevaElFoco) {
    struct TCaso {
        TColumnaTipos Columna;
        TColumnaTipos Orden;
        TControl Foco;
    };
    const TCaso casos[] = {
        {TColumnaTipos::NUMEROTIPO, TColumnaTipos::NUMEROTIPO, TControl::eBusca},
        {TColumnaTipos::CLAVE_INTI, TColumnaTipos::CLAVE_INTI, TControl::dbgTipos},
        {TColumnaTipos::NOMBRE, TColumnaTipos::CLAVE_INTI, TControl::dbgTipos},
        {TColumnaTipos::TIPO, TColumnaTipos::TIPO, TControl::eBusca},
    };
    const TEscenaPreseleccion escena;
    const auto dialogo = escena.Crea({});
    for (const auto& caso : casos) {
        dialogo->PonFoco(TControl::BMas);
        dialogo->ClicTitulo(caso.Columna);
        EXPECT_EQ(dialogo->dbgTipos.Orden(), caso.Orden);
        EXPECT_EQ(dialogo->Foco(), caso.Foco);
    }
}

TEST(Titulos, UnaTablaQueFallaSeAvisaYTodoQuedaIgual) {
    TEscenaPreseleccion escena;
    const auto dialogo = escena.Crea({});
    escena.Tablas.Quita("TIPOS.DBF");
    dialogo->dbgTipos.PonActual(2);
    dialogo->ClicTitulo(TColumnaTipos::NUMEROTIPO);
    dialogo->eBuscaChange("10");
    const std::pair aviso(std::string(" ATENCIÓN:"_ansi), std::string("La tabla TIPOS.DBF no existe"));
    EXPECT_EQ(escena.Mensajes.Mostrados, (std::vector{aviso, aviso}));
    EXPECT_EQ(dialogo->dbgTipos.Orden(), TColumnaTipos::TIPO);
    EXPECT_EQ(TipoActual(dialogo->dbgTipos), "PRESTAMO HIPOTECARIO");
    EXPECT_EQ(dialogo->Foco(), TControl::LBPosiblesConceptos);
    EXPECT_EQ(dialogo->TextoBusca(), "10");
}

// ---- The search box

TEST(Busca, LoEscritoOrdenaYBusca) {
    struct TCaso {
        std::string_view Texto;
        TColumnaTipos Orden;
        const char* Actual;
    };
    const auto numero = TColumnaTipos::NUMEROTIPO;
    const auto tipo = TColumnaTipos::TIPO;
    // From the row PRESTAMO, in the order of CLAVE_INTI, to which nothing belongs.
    const TCaso casos[] = {
        {"10", numero, "VENTA"},
        {" 10 ", numero, "VENTA"},
        {"+10", numero, "VENTA"},
        {"1", numero, "PRESTAMO"},  // no such number: the row stays
        {"v", tipo, "VENTA"},
        {"Pó"_a, tipo, "PODER"},
        {"PRESTAMO ", tipo, "PRESTAMO HIPOTECARIO"},
        {"", tipo, "PODER"},  // every type begins with it
        {"HIPO", tipo, "PRESTAMO"},
        {"10a", tipo, "PRESTAMO"},
        {"99999999999", tipo, "PRESTAMO"},  // no whole number of 32 bits
    };
    const TEscenaPreseleccion escena;
    for (const auto& caso : casos) {
        const auto dialogo = escena.Crea({});
        dialogo->ClicTitulo(TColumnaTipos::CLAVE_INTI);
        ASSERT_TRUE(dialogo->dbgTipos.BuscaTipo("PRESTAMO"));
        dialogo->PonFoco(TControl::eBusca);
        dialogo->eBuscaChange(std::string(caso.Texto));
        EXPECT_EQ(dialogo->TextoBusca(), caso.Texto);
        EXPECT_EQ(dialogo->dbgTipos.Orden(), caso.Orden) << caso.Texto;
        EXPECT_EQ(TipoActual(dialogo->dbgTipos), caso.Actual) << caso.Texto;
        EXPECT_EQ(dialogo->Foco(), TControl::eBusca);
    }
}

TEST(Busca, UnaBusquedaFallidaEnElMismoOrdenNoTocaNada) {
    const TEscenaPreseleccion escena;
    const auto dialogo = escena.Crea({});
    dialogo->dbgTipos.PonActual(2);
    dialogo->dbgTipos.Selecciona({0, 1});
    const unsigned revision = dialogo->dbgTipos.Revision();
    dialogo->eBuscaChange("NADA");
    EXPECT_EQ(dialogo->dbgTipos.Actual(), 2U);
    EXPECT_EQ(dialogo->dbgTipos.Seleccionadas(), (TPosiciones{0, 1}));
    EXPECT_EQ(dialogo->dbgTipos.Revision(), revision) << "the table is not read for every letter";
}

TEST(Teclas, SinFilasSeleccionadasVanUnaAUnaDesdeLaActual) {
    const TEscenaPreseleccion escena;
    const auto dialogo = TEscenaPreseleccion::Crea({"A", "B", "C"}, {});
    dialogo->LBPosiblesConceptos.PonActual(1);
    dialogo->Tecla(TControl::LBPosiblesConceptos, TTecla::Intro);
    dialogo->Tecla(TControl::LBPosiblesConceptos, TTecla::Insertar);
    EXPECT_EQ(Textos(dialogo->LBConceptos.Lineas()), (std::vector<std::string>{"B", "C"}));
    dialogo->LBConceptos.PonActual(0);
    dialogo->Tecla(TControl::LBConceptos, TTecla::Suprimir);
    dialogo->Tecla(TControl::LBConceptos, TTecla::Suprimir);
    EXPECT_EQ(Textos(dialogo->LBPosiblesConceptos.Lineas()), (std::vector<std::string>{"A", "B", "C"}));
    // Buttons move only what is selected.
    dialogo->Pulsa(TControl::BMas);
    EXPECT_EQ(dialogo->LBConceptos.Cuenta(), 0U);
}

TEST(Busca, IntroVaALosElegidosSiEstaDesdeElSegundo) {
    struct TCaso {
        std::string_view Texto;
        TControl Foco;
    };
    const TCaso casos[] = {
        {"Ávila"_a, TControl::LBConceptos},
        {"áVILA"_a, TControl::LBConceptos},  // ignoring case
        {"avila", TControl::dbgTipos},       // not accents
        {"C", TControl::LBConceptos},
        {"A", TControl::dbgTipos},  // the first row is never compared
        {"D", TControl::dbgTipos},  // found but not chosen
        {"Ávil"_a, TControl::dbgTipos},
        {" ", TControl::dbgTipos},
        {"", TControl::eBusca},  // nothing happens
    };
    const TEscenaPreseleccion escena;
    for (const auto& caso : casos) {
        const auto dialogo = escena.Crea({"A", std::string("ÁVILA"_a), "C", "D"});
        dialogo->LBPosiblesConceptos.Selecciona({0, 1, 2});
        dialogo->Pulsa(TControl::BMas);
        dialogo->PonFoco(TControl::eBusca);
        dialogo->eBuscaChange(std::string(caso.Texto));
        EXPECT_TRUE(dialogo->Tecla(TControl::eBusca, TTecla::Intro));
        EXPECT_EQ(dialogo->Foco(), caso.Foco) << caso.Texto;
    }
}

TEST(Busca, LasOtrasTeclas) {
    const TEscenaPreseleccion escena;
    const auto dialogo = escena.Crea({});
    for (const TTecla pagina : {TTecla::RePag, TTecla::AvPag}) {
        dialogo->PonFoco(TControl::eBusca);
        EXPECT_TRUE(dialogo->Tecla(TControl::eBusca, pagina));
        EXPECT_EQ(dialogo->Foco(), TControl::dbgTipos);
        EXPECT_EQ(dialogo->dbgTipos.Actual(), 0U);
    }
    dialogo->PonFoco(TControl::eBusca);
    EXPECT_TRUE(dialogo->Tecla(TControl::eBusca, TTecla::Abajo));
    EXPECT_TRUE(dialogo->Tecla(TControl::eBusca, TTecla::Abajo));
    EXPECT_EQ(dialogo->dbgTipos.Actual(), 2U);
    EXPECT_TRUE(dialogo->Tecla(TControl::eBusca, TTecla::Arriba));
    EXPECT_EQ(dialogo->dbgTipos.Actual(), 1U);
    for (const TTecla tecla : {TTecla::Insertar, TTecla::Suprimir})
        EXPECT_FALSE(dialogo->Tecla(TControl::eBusca, tecla)) << "left to the box";
    EXPECT_EQ(dialogo->Foco(), TControl::eBusca);
    EXPECT_EQ(dialogo->LBConceptos.Cuenta(), 0U);
}

}  // namespace
}  // namespace analizador

#include "dialogos/RejillaTipos.h"

#include <gtest/gtest.h>

#include "plataforma/Ruttb.h"
#include "pruebas/comun/Literales.h"
#include "pruebas/dialogos/EscenaPreseleccion.h"

namespace analizador {
namespace {

TEST(RejillaTipos, SeAbreEnElOrdenDelTipoConTodosLosCampos) {
    const TEscenaPreseleccion escena;
    const TRejillaTipos rejilla;
    EXPECT_EQ(Tipos(rejilla), (TTextos{"PODER", "PRESTAMO", "PRESTAMO HIPOTECARIO", "VENTA"}));
    EXPECT_EQ(rejilla.Filas()[2], (TFilaTipo{2, "Hipoteca", "C", "PRESTAMO HIPOTECARIO", "05001", true}));
    EXPECT_EQ(rejilla.Filas()[3], (TFilaTipo{10, "Venta de finca", "D", "VENTA", "01001", false}));
    EXPECT_EQ(rejilla.Orden(), TColumnaTipos::TIPO);
    EXPECT_EQ(rejilla.Actual(), 0U);
}

TEST(RejillaTipos, CadaTituloTieneSuOrden) {
    struct TCaso {
        TColumnaTipos Columna;
        TTextos Tipos;
        TColumnaTipos Orden;
    };
    const TTextos porTipo = {"PODER", "PRESTAMO", "PRESTAMO HIPOTECARIO", "VENTA"};
    const TCaso casos[] = {
        {TColumnaTipos::NUMEROTIPO,
         {"PRESTAMO HIPOTECARIO", "PRESTAMO", "VENTA", "PODER"},
         TColumnaTipos::NUMEROTIPO},
        {TColumnaTipos::CLAVE_INTI,
         {"PODER", "PRESTAMO", "PRESTAMO HIPOTECARIO", "VENTA"},
         TColumnaTipos::CLAVE_INTI},
        {TColumnaTipos::TIPO, porTipo, TColumnaTipos::TIPO},
        {TColumnaTipos::NOMBRE, porTipo, TColumnaTipos::TIPO},  // has no order
    };
    const TEscenaPreseleccion escena;
    for (const auto& caso : casos) {
        TRejillaTipos rejilla;
        rejilla.PonActual(3);
        rejilla.Selecciona({1, 2});
        const unsigned revision = rejilla.Revision();
        rejilla.Ordena(caso.Columna);
        EXPECT_EQ(Tipos(rejilla), caso.Tipos);
        EXPECT_EQ(rejilla.Orden(), caso.Orden);
        const bool ordenada = caso.Columna != TColumnaTipos::NOMBRE;
        EXPECT_EQ(rejilla.Revision() != revision, ordenada);
        EXPECT_EQ(rejilla.Actual(), ordenada ? 0U : 3U);
        EXPECT_EQ(rejilla.Seleccionadas(), ordenada ? TPosiciones{0} : (TPosiciones{1, 2}));
    }
}

TEST(RejillaTipos, OrdenarLeeLaTablaComoEstaAhora) {
    TEscenaPreseleccion escena;
    TRejillaTipos rejilla;
    escena.Tablas.Pon("TIPOS.DBF", {{"NOMBRE", "NUMEROTIPO", "COD_OFICIA", "PRESTAMO", "CLAVE_INTI", "TIPO"},
                                    {{"Nueva", "1", "", "F", "", "NUEVA"}}});
    rejilla.Ordena(TColumnaTipos::TIPO);
    EXPECT_EQ(Tipos(rejilla), (TTextos{"NUEVA"}));
    escena.Tablas.Pon("TIPOS.DBF",
                      {{"NOMBRE", "NUMEROTIPO", "COD_OFICIA", "PRESTAMO", "CLAVE_INTI", "TIPO"}, {}});
    rejilla.Ordena(TColumnaTipos::TIPO);
    EXPECT_EQ(rejilla.Actual(), std::nullopt);
    EXPECT_EQ(rejilla.Seleccionadas(), TPosiciones{});
    rejilla.Anterior();
    rejilla.Siguiente();
    EXPECT_EQ(rejilla.Actual(), std::nullopt);
}

TEST(RejillaTipos, SiLaTablaFallaQuedaComoEstaba) {
    TEscenaPreseleccion escena;
    TRejillaTipos rejilla;
    rejilla.PonActual(2);
    rejilla.Selecciona({0, 3});
    const unsigned revision = rejilla.Revision();
    const TTextos antes = Tipos(rejilla);
    // Gone, and then without the field that its last column shows.
    escena.Tablas.Quita("TIPOS.DBF");
    EXPECT_THROW(rejilla.Ordena(TColumnaTipos::NUMEROTIPO), ErrorTabla);
    escena.Tablas.Pon("TIPOS.DBF", {{"NUMEROTIPO", "NOMBRE", "CLAVE_INTI", "TIPO"}, {{"1", "X", "X", "X"}}});
    EXPECT_THROW(rejilla.Ordena(TColumnaTipos::NUMEROTIPO), ErrorTabla);
    EXPECT_EQ(Tipos(rejilla), antes);
    EXPECT_EQ(rejilla.Orden(), TColumnaTipos::TIPO);
    EXPECT_EQ(rejilla.Revision(), revision);
    EXPECT_EQ(rejilla.Actual(), 2U);
    EXPECT_EQ(rejilla.Seleccionadas(), (TPosiciones{0, 3}));
}

TEST(RejillaTipos, BuscarPoneActualLaPrimeraQueCuadraONoCambiaNada) {
    struct TCaso {
        const char* Que;
        bool (*Busca)(TRejillaTipos&);
        const char* Hallada;  // nullptr: none
    };
    const TCaso casos[] = {
        {"tipo", [](TRejillaTipos& r) { return r.BuscaTipo("PRESTAMO"); }, "PRESTAMO"},
        {"tipo plegado", [](TRejillaTipos& r) { return r.BuscaTipo("préstamo"_a); }, "PRESTAMO"},
        {"blancos finales", [](TRejillaTipos& r) { return r.BuscaTipo("VENTA  "); }, "VENTA"},
        {"blanco inicial", [](TRejillaTipos& r) { return r.BuscaTipo(" VENTA"); }, nullptr},
        {"solo el comienzo", [](TRejillaTipos& r) { return r.BuscaTipo("VENT"); }, nullptr},
        {"vacio", [](TRejillaTipos& r) { return r.BuscaTipo(""); }, nullptr},
        {"numero", [](TRejillaTipos& r) { return r.BuscaNumero(10); }, "VENTA"},
        {"otro numero", [](TRejillaTipos& r) { return r.BuscaNumero(1); }, nullptr},
        {"comienzo", [](TRejillaTipos& r) { return r.BuscaComienzo("pré"_a); }, "PRESTAMO"},
        {"comienzo largo", [](TRejillaTipos& r) { return r.BuscaComienzo("Préstamo h"_a); },
         "PRESTAMO HIPOTECARIO"},
        {"en medio", [](TRejillaTipos& r) { return r.BuscaComienzo("HIPO"); }, nullptr},
        {"mas largo", [](TRejillaTipos& r) { return r.BuscaComienzo("VENTAS"); }, nullptr},
    };
    const TEscenaPreseleccion escena;
    for (const auto& caso : casos) {
        TRejillaTipos rejilla;
        rejilla.PonActual(0);
        rejilla.Selecciona({0, 1});
        EXPECT_EQ(caso.Busca(rejilla), caso.Hallada != nullptr) << caso.Que;
        EXPECT_EQ(TipoActual(rejilla), caso.Hallada != nullptr ? caso.Hallada : "PODER") << caso.Que;
        // What is added after finding a row is that row.
        EXPECT_EQ(rejilla.Seleccionadas(),
                  caso.Hallada != nullptr ? TPosiciones{*rejilla.Actual()} : (TPosiciones{0, 1}))
            << caso.Que;
    }
}

TEST(RejillaTipos, LasFlechasSeParanEnLosExtremos) {
    const TEscenaPreseleccion escena;
    TRejillaTipos rejilla;
    rejilla.Selecciona({2, 3});
    rejilla.Anterior();
    EXPECT_EQ(rejilla.Actual(), 0U);
    EXPECT_EQ(rejilla.Seleccionadas(), (TPosiciones{0}));
    for (const std::size_t esperada : {1U, 2U, 3U, 3U}) {
        rejilla.Siguiente();
        EXPECT_EQ(rejilla.Actual(), esperada);
    }
    rejilla.Anterior();
    EXPECT_EQ(rejilla.Actual(), 2U);
}

TEST(RejillaTipos, SinSeleccionCuentaLaFilaActual) {
    const TEscenaPreseleccion escena;
    TRejillaTipos rejilla;
    rejilla.PonActual(2);
    EXPECT_EQ(rejilla.Seleccionadas(), (TPosiciones{2}));
    EXPECT_FALSE(rejilla.Seleccionada(2));
    rejilla.Selecciona({3, 1, 9});
    EXPECT_EQ(rejilla.Seleccionadas(), (TPosiciones{1, 3}));
    rejilla.SeleccionaNada();
    rejilla.PonActual(8);
    EXPECT_EQ(rejilla.Actual(), 2U);
    rejilla.PonActual(std::nullopt);
    EXPECT_EQ(rejilla.Seleccionadas(), TPosiciones{});
}

}  // namespace
}  // namespace analizador

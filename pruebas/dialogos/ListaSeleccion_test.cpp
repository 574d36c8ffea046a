#include "dialogos/ListaSeleccion.h"

#include <gtest/gtest.h>

#include <optional>

#include "pruebas/dialogos/EscenaPreseleccion.h"

namespace analizador {
namespace {

using TLista = TListaSeleccion<int>;

TLista Lista(const TTextos& textos) {
    TLista lista;
    int numero = 0;
    for (const auto& texto : textos) lista.Anade({texto, std::make_unique<int>(numero++)});
    return lista;
}

TEST(ListaSeleccion, NingunTextoEstaDosVeces) {
    TLista lista = Lista({"A", "B", "A", "a", "A "});
    EXPECT_EQ(Textos(lista), (TTextos{"A", "B", "a", "A "}));
    EXPECT_EQ(*lista.Objeto(0), 0) << "the first one's record stays";
    EXPECT_EQ(*lista.Objeto(2), 3);
    EXPECT_TRUE(lista.Contiene("a"));
    EXPECT_FALSE(lista.Contiene("C"));
}

TEST(ListaSeleccion, LoSeleccionadoYLaFilaActualSonPosicionesQueExisten) {
    TLista lista = Lista({"A", "B", "C"});
    EXPECT_EQ(lista.Seleccionadas(), TPosiciones{});
    EXPECT_EQ(lista.Actual(), std::nullopt);
    lista.Selecciona({2, 0, 7});
    EXPECT_EQ(lista.Seleccionadas(), (TPosiciones{0, 2}));
    EXPECT_TRUE(lista.Seleccionada(2));
    EXPECT_FALSE(lista.Seleccionada(1));
    lista.Selecciona(1, true);
    lista.Selecciona(0, false);
    lista.Selecciona(3, true);
    EXPECT_EQ(lista.Seleccionadas(), (TPosiciones{1, 2}));
    lista.Selecciona({0});
    EXPECT_EQ(lista.Seleccionadas(), (TPosiciones{0}));
    lista.SeleccionaTodo();
    EXPECT_EQ(lista.Seleccionadas(), (TPosiciones{0, 1, 2}));
    lista.SeleccionaNada();
    EXPECT_EQ(lista.Seleccionadas(), TPosiciones{});

    lista.PonActual(2);
    lista.PonActual(3);
    EXPECT_EQ(lista.Actual(), 2U);
    lista.PonActual(std::nullopt);
    EXPECT_EQ(lista.Actual(), std::nullopt);
}

TEST(ListaSeleccion, LoAnadidoNoQuedaSeleccionado) {
    TLista lista = Lista({"A"});
    lista.SeleccionaTodo();
    lista.Anade({"B", nullptr});
    EXPECT_EQ(lista.Seleccionadas(), (TPosiciones{0}));
}

TEST(ListaSeleccion, AlSacarQuedaActualLaFilaQueSigue) {
    struct TCaso {
        TPosiciones Seleccion;
        TTextos Sacadas, Quedan;
        std::optional<std::size_t> Actual;
    };
    const TCaso casos[] = {
        {{0}, {"A"}, {"B", "C", "D"}, 0},    {{1}, {"B"}, {"A", "C", "D"}, 1},
        {{3}, {"D"}, {"A", "B", "C"}, 2},  // nothing follows: the last one
        {{0, 2}, {"A", "C"}, {"B", "D"}, 1}, {{0, 3}, {"A", "D"}, {"B", "C"}, 1},
        {{1, 2}, {"B", "C"}, {"A", "D"}, 1}, {{0, 1, 2, 3}, {"A", "B", "C", "D"}, {}, std::nullopt},
        {{}, {}, {"A", "B", "C", "D"}, 3},  // as it was
    };
    for (const auto& caso : casos) {
        TLista lista = Lista({"A", "B", "C", "D"});
        lista.PonActual(3);
        lista.Selecciona(caso.Seleccion);
        TTextos sacadas;
        for (const auto& linea : lista.SacaSeleccionadas()) {
            sacadas.push_back(linea.Texto);
            EXPECT_EQ(*linea.Objeto, linea.Texto[0] - 'A');
        }
        EXPECT_EQ(sacadas, caso.Sacadas);
        EXPECT_EQ(Textos(lista), caso.Quedan);
        EXPECT_EQ(lista.Seleccionadas(), TPosiciones{});
        EXPECT_EQ(lista.Actual(), caso.Actual) << testing::PrintToString(caso.Seleccion);
        for (std::size_t i = 0; i < lista.Cuenta(); ++i)
            EXPECT_EQ(*lista.Objeto(i), lista.Lineas()[i].Texto[0] - 'A');
    }
}

TEST(ListaSeleccion, LoSacadoPuedeVolver) {
    TLista lista = Lista({"A", "B"});
    lista.Selecciona({0});
    auto sacadas = lista.SacaSeleccionadas();
    EXPECT_FALSE(lista.Contiene("A"));
    lista.Anade(std::move(sacadas.at(0)));
    EXPECT_EQ(Textos(lista), (TTextos{"B", "A"}));
}

TEST(ListaSeleccion, UnTextoCambiadoNoPierdeSuFila) {
    TLista lista = Lista({"A", "B"});
    lista.PonActual(1);
    lista.Selecciona({1});
    lista.CambiaTexto(1, "A");
    lista.CambiaTexto(5, "Z");
    EXPECT_EQ(Textos(lista), (TTextos{"A", "A"}));
    EXPECT_EQ(lista.Seleccionadas(), (TPosiciones{1}));
    EXPECT_EQ(lista.Actual(), 1U);
    EXPECT_FALSE(lista.Contiene("B"));
    (void)lista.SacaSeleccionadas();
    EXPECT_TRUE(lista.Contiene("A")) << "the other one is still there";
    lista.CambiaTexto(0, "C");
    EXPECT_FALSE(lista.Contiene("A"));
    lista.Anade({"A", nullptr});
    EXPECT_EQ(Textos(lista), (TTextos{"C", "A"}));
}

TEST(ListaSeleccion, LaRevisionSoloCreceCuandoCambianLasFilas) {
    TLista lista = Lista({"A", "B"});
    unsigned anterior = lista.Revision();
    const auto cambio = [&] { return std::exchange(anterior, lista.Revision()) != lista.Revision(); };
    lista.SeleccionaTodo();
    lista.PonActual(1);
    lista.CambiaTexto(0, "A");
    lista.Anade({"B", nullptr});
    EXPECT_FALSE(cambio());
    lista.CambiaTexto(0, "C");
    EXPECT_TRUE(cambio());
    lista.Anade({"D", nullptr});
    EXPECT_TRUE(cambio());
    lista.Selecciona({0});
    (void)lista.SacaSeleccionadas();
    EXPECT_TRUE(cambio());
    (void)lista.SacaSeleccionadas();
    EXPECT_FALSE(cambio());
}

}  // namespace
}  // namespace analizador

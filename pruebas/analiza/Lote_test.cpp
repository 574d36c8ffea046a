// Many at once, delivered in order: with work that the test itself holds back and lets go.

#include "programas/analiza/Lote.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace analizador {
namespace {

using TRuta = std::filesystem::path;

// The deeds "0", "1"... as far as `cuantas`.
class TNumeros {
  public:
    explicit TNumeros(int cuantas) : FCuantas(cuantas) {}
    std::optional<TRuta> operator()() {
        return FSiguiente == FCuantas ? std::nullopt : std::optional<TRuta>(std::to_string(FSiguiente++));
    }

  private:
    int FCuantas;
    int FSiguiente = 0;
};

int Numero(const TRuta& ruta) {
    return std::stoi(ruta.string());
}

std::vector<int> Hasta(int cuantas) {
    std::vector<int> numeros;
    for (int i = 0; i < cuantas; ++i) numeros.push_back(i);
    return numeros;
}

TEST(Lote, EntregaTodoEnSuOrdenConCualquierNumeroDeHilos) {
    for (const unsigned hilos : {1U, 2U, 3U, 8U, 64U})
        for (const int cuantas : {0, 1, 2, 500}) {
            SCOPED_TRACE(std::to_string(hilos) + " threads, " + std::to_string(cuantas) + " deeds");
            std::vector<int> entregadas;
            EjecutaLote(
                {.Siguiente = TNumeros(cuantas),
                 .Analiza = [](const TRuta& ruta) { return TResultado{.Salida = "s" + ruta.string()}; },
                 .Entrega =
                     [&](const TRuta& ruta, const TResultado& resultado) {
                         EXPECT_EQ(resultado.Salida, "s" + ruta.string());
                         entregadas.push_back(Numero(ruta));
                     }},
                hilos);
            EXPECT_EQ(entregadas, Hasta(cuantas));
        }
}

// The first deed waits until the others can go no further: its results must not be overtaken, and no more
// than the window may be taken meanwhile.
TEST(Lote, UnaLentaNiSeAdelantaNiLlenaLaMemoria) {
    constexpr unsigned HILOS = 3;
    constexpr int CABIDA = 4 * HILOS;
    std::mutex cerrojo;
    std::condition_variable cambia;
    int acabadas = 0;
    std::vector<int> entregadas;
    int tomadas = 0;
    int masTomadas = 0;
    TNumeros numeros(100);
    EjecutaLote({.Siguiente =
                     [&] {
                         const std::lock_guard turno(cerrojo);
                         masTomadas = std::max(masTomadas, ++tomadas - static_cast<int>(entregadas.size()));
                         return numeros();
                     },
                 .Analiza =
                     [&](const TRuta& ruta) {
                         std::unique_lock turno(cerrojo);
                         if (Numero(ruta) == 0) cambia.wait(turno, [&] { return acabadas >= CABIDA - 1; });
                         ++acabadas;
                         cambia.notify_all();
                         return TResultado{};
                     },
                 .Entrega =
                     [&](const TRuta& ruta, const TResultado&) {
                         const std::lock_guard turno(cerrojo);
                         if (Numero(ruta) == 0) {
                             EXPECT_GE(acabadas, CABIDA);
                         }
                         entregadas.push_back(Numero(ruta));
                     }},
                HILOS);
    EXPECT_EQ(entregadas, Hasta(100));
    EXPECT_LE(masTomadas, CABIDA + 2)
        << "one more is in the hand that waits for room, another being delivered";
}

TEST(Lote, LosHilosTrabajanALaVez) {
    std::mutex cerrojo;
    std::condition_variable cambia;
    int dentro = 0;
    // Each of the two waits for the other: with one thread this would never end.
    EjecutaLote({.Siguiente = TNumeros(2),
                 .Analiza =
                     [&](const TRuta&) {
                         std::unique_lock turno(cerrojo);
                         ++dentro;
                         cambia.notify_all();
                         cambia.wait(turno, [&] { return dentro == 2; });
                         return TResultado{};
                     },
                 .Entrega = [](const TRuta&, const TResultado&) {}},
                2);
    EXPECT_EQ(dentro, 2);
}

// What is done is delivered although the list has not ended.
TEST(Lote, EntregaSinEsperarALaSiguiente) {
    std::mutex cerrojo;
    std::condition_variable cambia;
    int entregadas = 0;
    int pedidas = 0;
    EjecutaLote({.Siguiente = [&]() -> std::optional<TRuta> {
                     std::unique_lock turno(cerrojo);
                     cambia.wait(turno, [&] { return entregadas == pedidas; });
                     if (pedidas == 5) return std::nullopt;
                     return std::to_string(pedidas++);
                 },
                 .Analiza = [](const TRuta&) { return TResultado{}; },
                 .Entrega =
                     [&](const TRuta&, const TResultado&) {
                         const std::lock_guard turno(cerrojo);
                         ++entregadas;
                         cambia.notify_all();
                     }},
                2);
    EXPECT_EQ(entregadas, 5);
}

TEST(Lote, LoQueLanzaUnaParteAcabaElLote) {
    const auto falla = [] { throw std::runtime_error("se acabó"); };
    for (const std::string parte : {"Siguiente", "Analiza", "Entrega"})
        for (const unsigned hilos : {1U, 4U}) {
            SCOPED_TRACE(parte + ", " + std::to_string(hilos) + " threads");
            TNumeros numeros(1000);
            std::vector<int> entregadas;
            const TLote lote{.Siguiente =
                                 [&] {
                                     auto numero = numeros();
                                     if (parte == "Siguiente" && *numero == "50") falla();
                                     return numero;
                                 },
                             .Analiza =
                                 [&](const TRuta& ruta) {
                                     if (parte == "Analiza" && Numero(ruta) == 50) falla();
                                     return TResultado{};
                                 },
                             .Entrega =
                                 [&](const TRuta& ruta, const TResultado&) {
                                     if (parte == "Entrega" && Numero(ruta) == 50) falla();
                                     entregadas.push_back(Numero(ruta));
                                 }};
            EXPECT_THROW(EjecutaLote(lote, hilos), std::runtime_error);
            EXPECT_LE(entregadas.size(), 50U);
            EXPECT_EQ(entregadas, Hasta(static_cast<int>(entregadas.size()))) << "without a gap";
        }
}

}  // namespace
}  // namespace analizador

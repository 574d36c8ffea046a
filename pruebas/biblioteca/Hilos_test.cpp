// Sessions side by side.

#include <gtest/gtest.h>

#include <array>
#include <thread>

#include "pruebas/biblioteca/SesionDePrueba.h"

namespace analizador {
namespace {

constexpr std::array<const char*, 4> EJEMPLOS = {"compravenda.docx", "compraventa.docx", "testament.docx",
                                                 "prestamo_hipotecario.docx"};
constexpr int VUELTAS = 5;

std::string Json(const TSesion& sesion, const char* ejemplo) {
    if (analizador_analiza_fichero(sesion.get(), Ejemplo(ejemplo).c_str(), 0) != ANALIZADOR_BIEN)
        return Error(sesion);
    return Texto(sesion, "");
}

std::array<std::string, EJEMPLOS.size()> DeUnaEnUna() {
    const TSesion sesion = Abierta();
    std::array<std::string, EJEMPLOS.size()> esperados;
    for (std::size_t i = 0; i < EJEMPLOS.size(); ++i) esperados[i] = Json(sesion, EJEMPLOS[i]);
    return esperados;
}

// Both languages at once, each thread opening and closing its own sessions.
TEST(HilosBiblioteca, CadaHiloConSuSesion) {
    const auto esperados = DeUnaEnUna();
    std::array<std::string, EJEMPLOS.size()> faltas;
    std::vector<std::thread> hilos;
    for (std::size_t i = 0; i < EJEMPLOS.size(); ++i)
        hilos.emplace_back([&, i] {
            for (int vuelta = 0; vuelta < VUELTAS; ++vuelta) {
                const TSesion sesion = Abierta();
                if (Json(sesion, EJEMPLOS[i]) != esperados[i]) faltas[i] = Texto(sesion, "");
            }
        });
    for (auto& hilo : hilos) hilo.join();
    for (std::size_t i = 0; i < EJEMPLOS.size(); ++i) EXPECT_EQ(faltas[i], "") << EJEMPLOS[i];
}

// The language is the deed's, whichever session of the thread was used last.
TEST(HilosBiblioteca, DosSesionesDeUnHiloNoSeMezclan) {
    const TSesion una = Abierta();
    const TSesion otra = Abierta();
    ASSERT_NE(Json(una, "compravenda.docx"), Json(otra, "compraventa.docx"));
    EXPECT_EQ(Texto(una, "/idioma"), "catalan");
    EXPECT_EQ(Texto(otra, "/idioma"), "castellano");
    EXPECT_EQ(Texto(una, "/Cabecera/NumeroProtocolo"), "742");
}

TEST(HilosBiblioteca, UnaSesionPasaDeHiloAHilo) {
    const auto esperados = DeUnaEnUna();
    const TSesion sesion = Abierta();
    std::string json;
    std::thread([&] { json = Json(sesion, EJEMPLOS[0]); }).join();
    EXPECT_EQ(json, esperados[0]);
    EXPECT_EQ(Texto(sesion, ""), esperados[0]);
}

// What one thread's failure says is not shown to another.
TEST(HilosBiblioteca, ElMotivoSinSesionEsDelHilo) {
    EXPECT_EQ(analizador_comprueba(99), ANALIZADOR_OTRA_INTERFAZ);
    std::string otro = "?";
    std::thread([&] { otro = analizador_error(nullptr); }).join();
    EXPECT_EQ(otro, "");
    EXPECT_STRNE(analizador_error(nullptr), "");
}

}  // namespace
}  // namespace analizador

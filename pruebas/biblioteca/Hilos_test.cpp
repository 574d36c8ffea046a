// Sessions side by side.

#include <gtest/gtest.h>

#include <array>
#include <atomic>
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

// Asks the session for something again and again until the analysis of another thread is done; whether it
// was refused once.
bool EsRechazada(const TSesion& sesion, const std::atomic<bool>& acabado) {
    bool rechazada = false;
    while (!acabado)
        if (analizador_cuenta(sesion.get(), "/Otorgantes") == -1)
            rechazada |= std::string(analizador_error(nullptr)) == "la sesión está ocupada con otra llamada";
    return rechazada;
}

TEST(HilosBiblioteca, UnaSesionOcupadaRechazaLoQueSeLePida) {
    std::string larga = "NUMERO DOS MIL CINCO.\r";
    for (int i = 0; i < 400; ++i) larga += "DON JUAN PEREZ GIL vende la finca por MIL EUROS.\r";
    const TSesion sesion = Abierta();
    int resultado = ANALIZADOR_MAL_USO;
    bool rechazada = false;
    // Again when nothing was asked while it ran.
    for (int intento = 0; intento < 100 && !rechazada; ++intento) {
        std::atomic<bool> acabado = false;
        std::thread analisis([&] {
            // Refused itself as long as the other call has the turn.
            int veces = 0;
            do resultado = analizador_analiza_texto(sesion.get(), larga.c_str(), 0);
            while (resultado == ANALIZADOR_MAL_USO && ++veces < 100'000);
            acabado = true;
        });
        rechazada = EsRechazada(sesion, acabado);
        analisis.join();
    }
    EXPECT_TRUE(rechazada);
    EXPECT_EQ(resultado, ANALIZADOR_BIEN);
    EXPECT_EQ(Texto(sesion, "/Cabecera/NumeroProtocolo"), "2005");
    EXPECT_EQ(Error(sesion), "");
}

}  // namespace
}  // namespace analizador

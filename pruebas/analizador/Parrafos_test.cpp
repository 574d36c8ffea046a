#include "analizador/Parrafos.h"

#include <gtest/gtest.h>

#include "adaptadores/memoria/DocumentoMemoria.h"

namespace analizador {
namespace {

struct TCasoPosicion {
    std::string_view Texto;
    int Primero;
    std::size_t Desplazamiento;
    Tramo EnTexto;
    TOrigen Esperado;
};

TEST(PosicionesPorParrafo, CuentaDesdeElPrincipioDeCadaParrafoSinLosCaracteresQueDesaparecen) {
    const TCasoPosicion casos[] = {
        {"uno\rdos\r", 1, 0, {0, 3}, {1, {0, 3}}},
        {"uno\rdos\r", 1, 0, {4, 3}, {2, {0, 3}}},
        {"uno\rdos\r", 7, 0, {5, 2}, {8, {1, 2}}},
        // The text begins after five characters of its first paragraph, and of that one alone.
        {"uno\rdos\r", 7, 5, {1, 2}, {7, {6, 2}}},
        {"uno\rdos\r", 7, 5, {4, 3}, {8, {0, 3}}},
        // A cell mark and an optional hyphen are gone from the plain text; the cell's line end begins a
        // paragraph.
        {"u\x1Fno\r\x07"
         "dos\r",
         1,
         0,
         {2, 2},
         {1, {1, 2}}},
        {"u\x1Fno\r\x07"
         "dos\r",
         1,
         0,
         {0, 4},
         {1, {0, 3}}},
        {"uno\r\x07"
         "dos\r",
         1,
         0,
         {5, 3},
         {2, {0, 3}}},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(TPosicionesPorParrafo(caso.Texto, caso.Primero, caso.Desplazamiento).Origen(caso.EnTexto),
                  caso.Esperado)
            << caso.Texto << " " << caso.EnTexto.Primera;
}

TEST(ParrafosDe, SonLlanosYLlevanSuNumero) {
    const TDocumentoMemoria documento({"uno\rd\x1Fos\xA0y\rtres\r", {}, {}});
    const auto parrafos = ParrafosDe(documento, {5, 13});
    ASSERT_EQ(parrafos.size(), 2U);
    EXPECT_EQ(parrafos[0].Numero, 2);
    EXPECT_EQ(parrafos[0].Texto, "dos y\r");
    EXPECT_EQ(parrafos[1].Numero, 3);
    EXPECT_EQ(parrafos[1].Texto, "tres\r");
}

// What a section's text holds at a position is what its paragraph holds at the origin, wherever the section
// begins and ends.
TEST(PosicionesDeSeccion, ValenTambienCuandoLaSeccionEmpiezaOAcabaDentroDeUnParrafo) {
    const TDocumentoMemoria documento(
        {"cabeza\r== TITULO\rcelda\r\x07otra\r\x07"
         "fi\x1Fn del texto\r",
         {},
         {}});
    const std::string entero = documento.GetTexto();
    const int largo = static_cast<int>(entero.size());
    const auto todos = ParrafosDe(documento, {0, largo});
    for (int inicio = 0; inicio < largo - 1; ++inicio) {
        if (entero[static_cast<std::size_t>(inicio)] == '\x07')
            continue;  // the inside of a mark is no position
        for (const int fin : {largo - 1, std::min(inicio + 4, largo - 1)}) {
            const TIntervalo intervalo{inicio, fin};
            const std::string texto = documento.GetTexto(intervalo);
            const auto posiciones = PosicionesDeSeccion(documento, intervalo, texto);
            for (std::size_t i = 0; i < texto.size(); ++i) {
                if (!std::isalnum(static_cast<unsigned char>(texto[i]))) continue;
                if (texto.find('\r') == std::string::npos && fin != largo - 1)
                    continue;  // sections reach a line end
                const TOrigen origen = posiciones.Origen({i, 1});
                const auto& parrafo = todos.at(static_cast<std::size_t>(origen.Parrafo) - 1).Texto;
                ASSERT_EQ(parrafo.at(origen.Donde.Primera), texto[i]) << inicio << "-" << fin << " at " << i;
            }
        }
    }
}

}  // namespace
}  // namespace analizador

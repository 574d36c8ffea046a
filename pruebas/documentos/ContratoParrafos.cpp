// Paragraphs: those of a stretch, their numbers, and the selection's movement by them.

#include <limits>
#include <string>
#include <vector>

#include "plataforma/Ansi.h"
#include "pruebas/documentos/ContratoDocumento.h"

namespace analizador {
namespace {

using Textos = std::vector<std::string>;

constexpr std::string_view TEXTO = "Primero, uno.\r\rTercero, tres.\rCuarto\r";
constexpr std::string_view TABLA = "Antes\rNombre\rapellido\r\aNIF\r\a\r\aMarta\r\a1234\r\a\r\aLuego\r";

struct TCasoTramo {
    std::string_view Desde;  // the stretch begins with this text
    std::string_view Hasta;  // and ends with this one; empty: where it begins
    Textos Parrafos;
};

void CompruebaTramo(TWordDocumentoCustom& documento, TIntervalo tramo, const Textos& parrafos) {
    EXPECT_EQ(documento.GetParrafos(tramo), parrafos);
    auto& seleccion = documento.GetSeleccion();
    seleccion.PonIntervalo(tramo);
    EXPECT_EQ(seleccion.GetTextoPrimerParrafo(), parrafos.front());
}

TEST_P(ContratoDocumento, DaLosParrafosDeUnTramo) {
    const std::vector<TCasoTramo> casos = {
        {"Primero", "", {"Primero, uno.\r"}},
        {"uno", "", {"Primero, uno.\r"}},
        {"uno", "uno", {"Primero, uno.\r"}},
        {"Primero", "uno.", {"Primero, uno.\r"}},
        {"Primero", "uno.\r", {"Primero, uno.\r"}},
        {"Primero", "uno.\r\r", {"Primero, uno.\r", "\r"}},
        {"\r\r", "\r\r", {"Primero, uno.\r", "\r"}},
        {"uno", "Tercero", {"Primero, uno.\r", "\r", "Tercero, tres.\r"}},
        {"tres", "Cuarto", {"Tercero, tres.\r", "Cuarto\r"}},
        {"Cuarto", "", {"Cuarto\r"}},
        {"Cuarto", "Cuarto\r", {"Cuarto\r"}},
    };
    const auto documento = Abre(TEXTO);
    for (const auto& [desde, hasta, parrafos] : casos) {
        SCOPED_TRACE(std::string(desde) + " - " + std::string(hasta));
        const int inicio = Selecciona(*documento, desde).Inicio;
        CompruebaTramo(*documento, {inicio, hasta.empty() ? inicio : Selecciona(*documento, hasta).Fin},
                       parrafos);
    }
}

TEST_P(ContratoDocumento, UnaCeldaAcabaEnSuMarca) {
    const std::vector<TCasoTramo> casos = {
        {"Nombre", "", {"Nombre\r"}},
        {"apellido", "apellido", {"apellido\r\a"}},
        {"NIF", "", {"NIF\r\a"}},
        {"Nombre", "apellido", {"Nombre\r", "apellido\r\a"}},
        {"NIF", "Marta", {"NIF\r\a", "\r\a", "Marta\r\a"}},
        {"1234", "Luego", {"1234\r\a", "\r\a", "Luego\r"}},
    };
    const auto documento = Abre(TABLA);
    for (const auto& [desde, hasta, parrafos] : casos) {
        SCOPED_TRACE(std::string(desde) + " - " + std::string(hasta));
        const int inicio = Selecciona(*documento, desde).Inicio;
        CompruebaTramo(*documento, {inicio, hasta.empty() ? inicio : Selecciona(*documento, hasta).Fin},
                       parrafos);
    }
}

TEST_P(ContratoDocumento, ElFinalEstaEnElUltimoParrafo) {
    const auto documento = Abre(TEXTO);
    documento->IrAlFinalDocumento();
    const int fin = documento->GetSeleccion().GetIntervalo().Inicio;
    EXPECT_EQ(documento->GetParrafos({fin, fin}), Textos{"Cuarto\r"});
    EXPECT_EQ(documento->GetParrafos({0, fin}),
              (Textos{"Primero, uno.\r", "\r", "Tercero, tres.\r", "Cuarto\r"}));
    EXPECT_EQ(documento->GetSeleccion().GetTextoPrimerParrafo(), "Cuarto\r");
}

TEST_P(ContratoDocumento, UnDocumentoVacioTieneUnParrafo) {
    const auto documento = Abre("\r");
    EXPECT_EQ(documento->GetParrafos({0, 0}), Textos{"\r"});
    EXPECT_EQ(documento->GetParrafos({0, std::numeric_limits<int>::max()}), Textos{"\r"});
    EXPECT_EQ(documento->GetNumeroParrafo(0), 1);
}

TEST_P(ContratoDocumento, NumeraLosParrafos) {
    const std::vector<std::pair<std::string_view, int>> casos = {
        {"Antes", 1}, {"tes", 1},   {"Nombre", 2}, {"apellido", 3}, {"ido", 3},
        {"NIF", 4},   {"Marta", 6}, {"1234", 7},   {"Luego", 9},
    };
    const auto documento = Abre(TABLA);
    for (const auto& [texto, numero] : casos)
        EXPECT_EQ(documento->GetNumeroParrafo(SituaAnte(*documento, texto)), numero) << texto;
    documento->IrAlFinalDocumento();
    EXPECT_EQ(documento->GetNumeroParrafo(documento->GetSeleccion().GetIntervalo().Inicio), 9);
}

TEST_P(ContratoDocumento, NumeraLosParrafosDeUnDocumentoLargo) {
    constexpr int CUANTOS = 3000;
    std::string texto;
    for (int i = 1; i <= CUANTOS; ++i)
        texto += "Parrafo " + std::to_string(i) + "." + (i % 3 ? "\r" : "\r\r");
    const auto documento = Abre(texto);

    const auto parrafos = documento->GetParrafos({0, std::numeric_limits<int>::max()});
    ASSERT_EQ(parrafos.size(), 4000U);
    std::string juntos;
    for (const auto& parrafo : parrafos) juntos += parrafo;
    EXPECT_EQ(juntos, texto);
    for (const int i : {1, 2, 3, 4, 999, 1000, 2999, 3000}) {
        const auto linea = "Parrafo " + std::to_string(i) + ".";
        const int numero = i + (i - 1) / 3;
        EXPECT_EQ(documento->GetNumeroParrafo(SituaAnte(*documento, linea)), numero);
        EXPECT_EQ(documento->GetSeleccion().GetTextoPrimerParrafo(), linea + "\r");
        EXPECT_EQ(parrafos[static_cast<std::size_t>(numero - 1)], linea + "\r");
    }
}

enum class TMovimiento { Sube, Baja };

struct TCasoMovimiento {
    std::string_view Parte;  // selected before
    bool Vacia;              // only where it begins
    TMovimiento Movimiento;
    bool Extiende;
    TLugar Lugar;
};

TEST_P(ContratoDocumento, MueveLaSeleccionPorParrafos) {
    constexpr auto SUBE = TMovimiento::Sube;
    constexpr auto BAJA = TMovimiento::Baja;
    const std::vector<TCasoMovimiento> casos = {
        // Up, from inside a paragraph and from its start.
        {"tres", true, SUBE, false, {"Primero, uno.\r\r", ""}},
        {"Tercero", true, SUBE, false, {"Primero, uno.\r", ""}},
        {"\rTercero", true, SUBE, false, {"", ""}},
        {"Primero", true, SUBE, false, {"", ""}},
        {"uno", true, SUBE, false, {"", ""}},
        // One that is not empty goes to the start of the paragraph in which it begins.
        {"tres", false, SUBE, false, {"Primero, uno.\r\r", ""}},
        {"Tercero", false, SUBE, false, {"Primero, uno.\r\r", ""}},
        {"tres.\rCuarto", false, SUBE, false, {"Primero, uno.\r\r", ""}},
        {"Primero", false, SUBE, false, {"", ""}},
        // Up, the end staying.
        {"tres", true, SUBE, true, {"Primero, uno.\r\r", "Tercero, "}},
        {"tres", false, SUBE, true, {"Primero, uno.\r\r", "Tercero, tres"}},
        {"Tercero", false, SUBE, true, {"Primero, uno.\r", "\rTercero"}},
        {"Primero", false, SUBE, true, {"", "Primero"}},
        // Down.
        {"uno", true, BAJA, false, {"Primero, uno.\r", ""}},
        {"Primero", true, BAJA, false, {"Primero, uno.\r", ""}},
        {"\rTercero", true, BAJA, false, {"Primero, uno.\r\r", ""}},
        {"uno", false, BAJA, false, {"Primero, uno.\r", ""}},
        {"uno.\r", false, BAJA, false, {"Primero, uno.\r\r", ""}},
        {"Cuarto", true, BAJA, false, {"Primero, uno.\r\rTercero, tres.\rCuarto", ""}},
        // Down, the start staying.
        {"uno", true, BAJA, true, {"Primero, ", "uno.\r"}},
        {"uno", false, BAJA, true, {"Primero, ", "uno.\r"}},
        {"uno.\r", false, BAJA, true, {"Primero, ", "uno.\r\r"}},
        {"uno.\r\rTer", false, BAJA, true, {"Primero, ", "uno.\r\rTercero, tres.\r"}},
        {"Cuarto", true, BAJA, true, {"Primero, uno.\r\rTercero, tres.\r", "Cuarto\r"}},
        {"Cuarto\r", false, BAJA, true, {"Primero, uno.\r\rTercero, tres.\r", "Cuarto\r"}},
    };
    const auto documento = Abre(TEXTO);
    auto& seleccion = documento->GetSeleccion();
    for (const auto& [parte, vacia, movimiento, extiende, lugar] : casos) {
        SCOPED_TRACE(testing::PrintToString(parte) + (movimiento == SUBE ? " sube" : " baja") +
                     (vacia ? " vacia" : "") + (extiende ? " extiende" : ""));
        Situa(*documento, parte, vacia);
        if (movimiento == SUBE)
            seleccion.SubeParrafo(extiende);
        else
            seleccion.BajaParrafo(extiende);
        EXPECT_EQ(Lugar(*documento), lugar);
    }
}

struct TCasoParrafoHallado {
    std::string_view Texto;
    std::string_view Buscado;
    TLugar Lugar;
};

TEST_P(ContratoDocumento, EnsanchaLoHalladoASuParrafo) {
    const std::vector<TCasoParrafoHallado> casos = {
        {"Uno\rDon Juan VENDE la finca.\rTres\r", "vende", {"Uno\r", "Don Juan VENDE la finca.\r"}},
        {"Uno\rVENDE la finca.\rTres\r", "vende", {"Uno\r", "VENDE la finca.\r"}},
        {"Uno\rVENDE\rTres\r", "vende", {"Uno\r", "VENDE\r"}},
        {"\r\rVENDE\r\r", "vende", {"\r\r", "VENDE\r"}},
        {"VENDE la finca.\rDos\r", "vende", {"", "VENDE la finca.\r"}},
        {"Uno\rla VENDE\r", "vende", {"Uno\r", "la VENDE\r"}},
        {"VENDE\r", "vende", {"", "VENDE\r"}},
        {"Uno\rDos\vVENDE\fTres\rCuatro\r", "vende", {"Uno\r", "Dos\vVENDE\fTres\r"}},
        {"Uno\rla VENDE\r\aDos\r\a\r\aTres\r", "vende", {"Uno\r", "la VENDE\r\a"}},
        {"Uno\rCelda\rVENDE\r\aDos\r\a\r\aTres\r", "vende", {"Uno\rCelda\r", "VENDE\r\a"}},
    };
    for (const auto& [texto, buscado, lugar] : casos) {
        SCOPED_TRACE(testing::PrintToString(texto));
        const auto documento = Abre(texto);
        documento->IrAlInicioDocumento();
        ASSERT_TRUE(documento->Busca(buscado, BUSCA_PARRAFO));
        documento->GetSeleccion().SubeParrafo(false);
        documento->GetSeleccion().BajaParrafo(true);
        EXPECT_EQ(Lugar(*documento), lugar);
        EXPECT_EQ(documento->GetParrafos(documento->GetSeleccion().GetIntervalo()),
                  Textos{lugar.Seleccionado});
    }
}

}  // namespace
}  // namespace analizador

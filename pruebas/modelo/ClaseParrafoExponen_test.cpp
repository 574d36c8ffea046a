#include "modelo/ClaseParrafoExponen.h"

#include <gtest/gtest.h>

#include <chrono>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "plataforma/Ansi.h"
#include "pruebas/modelo/EscenaClientes.h"

namespace analizador {
namespace {

using namespace std::chrono_literals;
using TTextos = std::vector<std::string>;

class IntervaloTestamento : public EscenaClientes {};
class IntervaloPrestamo : public EscenaClientes {
  protected:
    TClassOperacion operacion_;
};

std::string Trozo(std::string_view texto, Tramo tramo) {
    return Utf8DeAnsi(texto.substr(tramo.Primera, tramo.Longitud));
}

TEST_F(IntervaloTestamento, ElTestadorLoEsDesdeElPrincipio) {
    TROtorgante testador, esperado;
    testador.IntervencionVRK = esperado.IntervencionVRK = 5;
    esperado.IntervencionINTI = 12;
    for (const int antes : {99, 4, 0}) {
        testador.IntervencionINTI = antes;
        const TClassIntervaloTestamento intervalo("", testador);
        EXPECT_EQ(testador, esperado) << antes;
        EXPECT_EQ(intervalo.Tramos, (std::map<std::string, Tramo, std::less<>>{{"IntervencionINTI", {}}}));
    }
}

TEST_F(IntervaloTestamento, NacimientoYPadres) {
    constexpr std::string_view TEXTO =
        "PRIMERO.- Nacida el día dos de mayo de 1970, natural de Getafe (Madrid).\rSEGUNDO.- Es hija de DON PEDRO GIL SANZ y DOÑA MARTA ROIG, ambos fallecidos.\r"_ansi;
    TROtorgante testador;
    testador.Nombre = "ANA";
    testador.Apellidos = "GIL ROIG";
    TClassIntervaloTestamento intervalo(TEXTO, testador);
    intervalo.Desglosa();
    TROtorgante esperado;
    esperado.Nombre = "ANA";
    esperado.Apellidos = "GIL ROIG";
    esperado.IntervencionINTI = 12;
    esperado.LugarNacimiento = "GETAFE";
    esperado.ProvinciaNacimiento = "MADRID";
    esperado.FechaNacimiento = 1970y / 5 / 2;
    esperado.Padre = "PEDRO GIL SANZ";
    esperado.Madre = "MARTA ROIG";
    EXPECT_EQ(testador, esperado);

    EXPECT_EQ(Trozo(TEXTO, intervalo.Tramos["LugarNacimiento"]), "Getafe");
    EXPECT_EQ(Trozo(TEXTO, intervalo.Tramos["ProvinciaNacimiento"]), "Madrid");
    EXPECT_EQ(intervalo.Tramos["PaisNacimiento"], Tramo{});
    EXPECT_EQ(Trozo(TEXTO, intervalo.Tramos["Padre"]), "PEDRO GIL SANZ");
    EXPECT_EQ(Trozo(TEXTO, intervalo.Tramos["Madre"]), "MARTA ROIG");
    EXPECT_TRUE(Trozo(TEXTO, intervalo.Tramos["FechaNacimiento"]).starts_with("dos de mayo de 1970"));
}

TEST_F(IntervaloTestamento, LoQueElTextoNoDiceSeBorra) {
    TROtorgante testador;
    testador.LugarNacimiento = "ROMA";
    testador.ProvinciaNacimiento = "SORIA";
    testador.PaisNacimiento = "ITALIA";
    testador.FechaNacimiento = 1970y / 5 / 2;
    testador.Padre = "PEDRO";
    testador.Madre = "MARTA";
    testador.Vecindad = "TOLEDO";
    TClassIntervaloTestamento intervalo("Que carece de herederos forzosos.\r", testador);
    intervalo.Desglosa();
    TROtorgante esperado;
    esperado.IntervencionINTI = 12;
    esperado.Vecindad = "TOLEDO";
    EXPECT_EQ(testador, esperado);
    EXPECT_EQ(intervalo.Tramos.size(), 7U);
    for (const auto& [campo, tramo] : intervalo.Tramos) EXPECT_EQ(tramo, Tramo{}) << campo;
}

TEST_F(IntervaloPrestamo, PlazosTiposEIndice) {
    constexpr std::string_view TEXTO =
        "El plazo es de 240 meses, con un tipo del 3,5 % y T.A.E. del 4,25 por ciento,\rrevisable según el Euríbor cada 12 meses.\r"_ansi;
    TClassIntervaloPrestamo intervalo(TEXTO, operacion_);
    EXPECT_TRUE(operacion_.Plazos.empty());
    intervalo.Desglosa();
    EXPECT_EQ(operacion_.Plazos, (TTextos{"240", "12"}));
    EXPECT_EQ(operacion_.TAEs, (TTextos{"3,5", "4,25"}));
    EXPECT_EQ(operacion_.TipoInteres, 2);
    ASSERT_EQ(intervalo.TramosPlazos.size(), 2U);
    EXPECT_EQ(Trozo(TEXTO, intervalo.TramosPlazos[0]), "240");
    EXPECT_EQ(Trozo(TEXTO, intervalo.TramosPlazos[1]), "12");
    ASSERT_EQ(intervalo.TramosTAEs.size(), 2U);
    EXPECT_EQ(Trozo(TEXTO, intervalo.TramosTAEs[0]), "3,5");
    EXPECT_EQ(Trozo(TEXTO, intervalo.TramosTAEs[1]), "4,25");
    EXPECT_EQ(Trozo(TEXTO, intervalo.TramoTipoInteres), "Euríbor");
}

TEST_F(IntervaloPrestamo, VariosSumanPlazosYElUltimoDecideElIndice) {
    TClassIntervaloPrestamo("En 240 meses, al 3 %, según el Euríbor.\r"_ansi, operacion_).Desglosa();
    EXPECT_EQ(operacion_.TipoInteres, 2);
    TClassIntervaloPrestamo segundo("En 240 meses o en 60 meses, al 2 %.\r"_ansi, operacion_);
    segundo.Desglosa();
    EXPECT_EQ(operacion_.Plazos, (TTextos{"240", "60"}));
    EXPECT_EQ(operacion_.TAEs, (TTextos{"3", "2"}));
    EXPECT_EQ(operacion_.TipoInteres, 0);
    EXPECT_EQ(segundo.TramosPlazos.size(), 1U);  // the one that it added
    EXPECT_EQ(segundo.TramoTipoInteres, Tramo{});
}

TEST_F(IntervaloPrestamo, LimpiaLoDejaComoAlPrincipio) {
    operacion_.Limpia();
    EXPECT_EQ(operacion_.TipoInteres, 0);
    TClassIntervaloPrestamo("En 240 meses, al 3 %, según el Euríbor.\r"_ansi, operacion_).Desglosa();
    operacion_.Limpia();
    EXPECT_TRUE(operacion_.Plazos.empty());
    EXPECT_TRUE(operacion_.TAEs.empty());
    EXPECT_EQ(operacion_.TipoInteres, 0);
}

}  // namespace
}  // namespace analizador

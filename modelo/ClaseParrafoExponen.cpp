#include "modelo/ClaseParrafoExponen.h"

#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

TClassIntervaloTestamento::TClassIntervaloTestamento(std::string_view texto, TROtorgante& otorgante)
    : Texto(texto), Otorgante(otorgante) {
    constexpr int TESTADOR = 12;
    Otorgante.IntervencionINTI = TESTADOR;
    Tramos["IntervencionINTI"] = {};
}

void TClassIntervaloTestamento::Desglosa() {
    const auto pon = [&](std::string TROtorgante::*campo, const char* nombre,
                         const THallazgo<std::string>& hallado) {
        Otorgante.*campo = Recorta(hallado.Valor);
        Tramos[nombre] = hallado.Donde;
    };
    const TNacimiento nacimiento = BuscaLugaryFechaNacimiento(Texto);
    pon(&TROtorgante::LugarNacimiento, "LugarNacimiento", nacimiento.Lugar);
    pon(&TROtorgante::ProvinciaNacimiento, "ProvinciaNacimiento", nacimiento.Provincia);
    pon(&TROtorgante::PaisNacimiento, "PaisNacimiento", nacimiento.Pais);
    Otorgante.FechaNacimiento = nacimiento.Fecha.Valor;
    Tramos["FechaNacimiento"] = nacimiento.Fecha.Donde;
    const TPadres padres = BuscaPadres(Texto);
    pon(&TROtorgante::Padre, "Padre", padres.Padre);
    pon(&TROtorgante::Madre, "Madre", padres.Madre);
}

TClassIntervaloPrestamo::TClassIntervaloPrestamo(std::string_view texto, TClassOperacion& operacion)
    : Texto(texto), Operacion(operacion) {}

void TClassIntervaloPrestamo::Desglosa() {
    TramosPlazos = BuscaPlazo(Texto, Operacion.Plazos);
    TramosTAEs = BuscaTAE(Texto, Operacion.TAEs);
    const auto indice = BuscaTipoInteres(Pliega(Texto));
    Operacion.TipoInteres = indice.Valor;
    TramoTipoInteres = indice.Donde;
}

}  // namespace analizador

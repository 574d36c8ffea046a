#include <optional>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Rut.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

// The first of the sections, in their order, that has an entry in the folded text: its place in the table,
// and where the entry stands.
template <class TSecciones>
std::optional<THallazgo<std::size_t>> PrimeraSeccion(const TSecciones& secciones, std::string_view plegado) {
    for (std::size_t s = 0; s < secciones.size(); ++s) {
        const TToken token = ContieneToken(secciones[s], plegado, {.Plegado = false, .PrimeraEntrada = true});
        if (token.Posicion != 0)
            return THallazgo<std::size_t>{
                s, {static_cast<std::size_t>(token.Posicion) - 1, token.Entrada.size()}};
    }
    return std::nullopt;
}

THallazgo<int> Regimen(std::string_view plegado) {
    const auto seccion = PrimeraSeccion(CONST_SECCION_REGIMEN_MATRIMONIAL, plegado);
    if (!seccion) return {CONST_REGIMEN_MATRIMONIAL.back(), {}};
    return {CONST_REGIMEN_MATRIMONIAL.at(seccion->Valor), seccion->Donde};
}

bool EsDeCasados(std::string_view seccion) {
    return seccion == "CASADO EN SEGUNDAS NUPCIAS" || seccion == "CASADO";
}

}  // namespace

TEstadoCivil BuscaEstadoCivil(std::string_view texto) {
    const std::string plegado = Pliega(texto);
    const auto seccion = PrimeraSeccion(CONST_SECCION_ESTADO_CIVIl, plegado);
    if (!seccion) return {};
    TEstadoCivil estado{{CONST_ESTADO_CIVIL.at(seccion->Valor), seccion->Donde}, {}};
    if (EsDeCasados(CONST_SECCION_ESTADO_CIVIl.at(seccion->Valor))) estado.Regimen = Regimen(plegado);
    return estado;
}

THallazgo<int> BuscaRegimenMatrimonial(std::string_view texto) {
    return Regimen(Pliega(texto));
}

}  // namespace analizador

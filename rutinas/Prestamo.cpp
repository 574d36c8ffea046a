#include <algorithm>
#include <unordered_set>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "rutinas/Buscador.h"
#include "rutinas/RutAnalizador.h"
#include "rutinas/TextoSin.h"

namespace analizador {

namespace {

constexpr std::string_view SALTOS = "\t\n\r";

// Calls `lee` with the text between each mention of the section and the one before it.
template <class TLee>
void RecorreMenciones(std::string_view seccion, std::string_view plegado, TLee lee) {
    TBuscadorEntradas entradas(seccion, plegado);
    std::size_t desde = 0;
    while (const auto mencion = entradas.PrimeraEntrada(desde)) {
        lee(plegado.substr(desde, mencion->Posicion - desde), desde);
        desde = mencion->Fin();
    }
}

double TasaDe(std::string_view palabra) {
    std::string tasa(palabra);
    std::replace(tasa.begin(), tasa.end(), '.', ',');
    std::replace(tasa.begin(), tasa.end(), '\'', ',');
    return Cad_Float(tasa);
}

}  // namespace

std::vector<Tramo> BuscaPlazo(std::string_view parrafo, std::vector<std::string>& plazos) {
    const TTextoSin limpio(parrafo, SALTOS);
    const std::string plegado = Pliega(limpio.Texto());
    std::unordered_set<int> vistos;
    for (const std::string& plazo : plazos) vistos.insert(Cad_Int(plazo));
    std::vector<Tramo> tramos;
    RecorreMenciones("MES", plegado, [&](std::string_view antes, std::size_t desde) {
        const TNumeroLeido leido = NumeroFinal(antes);
        if (leido.Numero == -1 || !vistos.insert(leido.Numero).second) return;
        plazos.push_back(Int_Cad(leido.Numero));
        tramos.push_back(limpio.Original(Tramo{desde + leido.Donde.Primera, leido.Donde.Longitud}));
    });
    return tramos;
}

std::vector<Tramo> BuscaTAE(std::string_view parrafo, std::vector<std::string>& taes) {
    const TTextoSin limpio(parrafo, SALTOS);
    const std::string plegado = Pliega(limpio.Texto());
    std::unordered_set<double> vistas;
    for (const std::string& tae : taes) vistas.insert(Cad_Float(tae));
    std::vector<Tramo> tramos;
    RecorreMenciones("PORCENTAJE", plegado, [&](std::string_view antes, std::size_t /*desde*/) {
        const std::string_view palabra = UltimaPalabra(antes).Palabra;
        const double tasa = TasaDe(palabra);
        if (tasa <= 0 || !vistas.insert(tasa).second) return;
        taes.push_back(Float_Cad(tasa));
        const auto primera = static_cast<std::size_t>(palabra.data() - plegado.data());
        tramos.push_back(limpio.Original(Tramo{primera, palabra.size()}));
    });
    return tramos;
}

THallazgo<int> BuscaTipoInteres(std::string_view parrafo) {
    for (std::size_t s = 0; s < CONST_SECCION_TIPO_INTERES.size(); ++s) {
        const TToken indice = ContieneToken(CONST_SECCION_TIPO_INTERES.at(s), parrafo,
                                            {.Plegado = false, .PrimeraEntrada = true});
        if (indice.Posicion != 0)
            return {CONST_TIPO_INTERES.at(s),
                    {static_cast<std::size_t>(indice.Posicion) - 1, indice.Entrada.size()}};
    }
    return {};
}

}  // namespace analizador

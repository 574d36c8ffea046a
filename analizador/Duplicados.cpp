#include "analizador/Duplicados.h"

#include <array>
#include <cstddef>
#include <string>
#include <utility>

#include "rutinas/IndiceNombres.h"

namespace analizador {

namespace {

// The origins of a party after ActualizaValores: those of the later mention, but for the fields whose value
// that leaves alone. `propio` is the party before it.
TOrigenes UneOrigenes(const TROtorgante& propio, const TOrigenes& propios, const TOrigenes& otros) {
    constexpr int OTRO_DOCUMENTO = 5;
    const std::array<std::pair<const char*, bool>, 17> conservados = {{
        {"TipoDocumento", propio.TipoDocumento != 0 && propio.TipoDocumento != OTRO_DOCUMENTO},
        {"NumDocumento", !propio.NumDocumento.empty()},
        {"Sexo", !propio.Sexo.empty()},
        {"Nombre", !propio.Nombre.empty()},
        {"Apellidos", !propio.Apellidos.empty()},
        {"EstadoCivil", propio.EstadoCivil != 0},
        {"Regimen", propio.Regimen != 0},
        {"Conyuge", !propio.Conyuge.empty()},
        {"Vecindad", !propio.Vecindad.empty()},
        {"Provincia", !propio.Provincia.empty()},
        {"TipoVia", !propio.TipoVia.empty()},
        {"Domicilio", !propio.Domicilio.empty()},
        {"Numero", !propio.Numero.empty()},
        {"CodPostal", !propio.CodPostal.empty()},
        {"CodINE", !propio.CodINE.empty()},
        {"CodPais", propio.CodPais != 0},
        {"Pais", !propio.Pais.empty()},
    }};
    TOrigenes unidos = otros;
    for (const auto& [campo, conserva] : conservados) {
        if (!conserva) continue;
        unidos.erase(campo);
        if (const auto origen = propios.find(campo); origen != propios.end()) unidos.insert(*origen);
    }
    return unidos;
}

}  // namespace

TListaOtorgantes UneOtorgantesDuplicados(const TListaOtorgantes& encontrados) {
    TListaOtorgantes unidos;
    TIndiceNombres nombres;
    for (std::size_t i = 0; i < encontrados.Lista.Cuenta(); ++i) {
        const TROtorgante* const hallado = encontrados.Lista[i].Objeto.get();
        if (hallado == nullptr) continue;
        const TOrigenes& origenes = encontrados.Origenes[i];
        const std::string nombre = hallado->NombreOtorgante();
        const auto linea = nombres.PrimeraEn(nombre);
        if (!linea) {
            nombres.Pon(nombre, unidos.Lista.Cuenta());
            unidos.Anade({*hallado, origenes});
            continue;
        }
        TROtorgante& conocido = *unidos.Lista[*linea].Objeto;
        TOrigenes& suyos = unidos.Origenes[*linea];
        suyos = UneOrigenes(conocido, suyos, origenes);
        nombres.Quita(conocido.NombreOtorgante(), *linea);
        conocido.ActualizaValores(*hallado);
        nombres.Pon(conocido.NombreOtorgante(), *linea);
    }
    return unidos;
}

}  // namespace analizador

#include "modelo/ListaOtorgantes.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace analizador {

namespace {

template <auto Campo>
bool Iguales(const TROtorgante& a, const TROtorgante& b) {
    return a.*Campo == b.*Campo;
}

struct TComparacion {
    std::string_view Campo;
    bool (*Iguales)(const TROtorgante&, const TROtorgante&);
};

// The fields that can have an origin.
constexpr std::array<TComparacion, 27> COMPARACIONES = {{
    {"TipoDocumento", Iguales<&TROtorgante::TipoDocumento>},
    {"NumDocumento", Iguales<&TROtorgante::NumDocumento>},
    {"Sexo", Iguales<&TROtorgante::Sexo>},
    {"Nombre", Iguales<&TROtorgante::Nombre>},
    {"Apellidos", Iguales<&TROtorgante::Apellidos>},
    {"EstadoCivil", Iguales<&TROtorgante::EstadoCivil>},
    {"Regimen", Iguales<&TROtorgante::Regimen>},
    {"Conyuge", Iguales<&TROtorgante::Conyuge>},
    {"Vecindad", Iguales<&TROtorgante::Vecindad>},
    {"Provincia", Iguales<&TROtorgante::Provincia>},
    {"TipoVia", Iguales<&TROtorgante::TipoVia>},
    {"Domicilio", Iguales<&TROtorgante::Domicilio>},
    {"Numero", Iguales<&TROtorgante::Numero>},
    {"CodPostal", Iguales<&TROtorgante::CodPostal>},
    {"CodINE", Iguales<&TROtorgante::CodINE>},
    {"IntervencionINTI", Iguales<&TROtorgante::IntervencionINTI>},
    {"IntervencionVRK", Iguales<&TROtorgante::IntervencionVRK>},
    {"Residente", Iguales<&TROtorgante::Residente>},
    {"CodPais", Iguales<&TROtorgante::CodPais>},
    {"Pais", Iguales<&TROtorgante::Pais>},
    {"Nacionalidad", Iguales<&TROtorgante::Nacionalidad>},
    {"LugarNacimiento", Iguales<&TROtorgante::LugarNacimiento>},
    {"PaisNacimiento", Iguales<&TROtorgante::PaisNacimiento>},
    {"ProvinciaNacimiento", Iguales<&TROtorgante::ProvinciaNacimiento>},
    {"FechaNacimiento", Iguales<&TROtorgante::FechaNacimiento>},
    {"Padre", Iguales<&TROtorgante::Padre>},
    {"Madre", Iguales<&TROtorgante::Madre>},
}};

TOrigenes DeLosCamposIguales(TOrigenes origenes, const TROtorgante& antes, const TROtorgante& ahora) {
    for (const auto& [campo, iguales] : COMPARACIONES)
        if (const auto origen = origenes.find(campo); origen != origenes.end() && !iguales(antes, ahora))
            origenes.erase(origen);
    return origenes;
}

// The line of the party that a reviewed record was; the number of lines when it is a new one.
std::size_t LineaDe(const TROtorgante& revisado, const ListaTextos<TROtorgante>& lista) {
    const auto primera = [&](auto condicion) {
        const auto linea = std::find_if(lista.begin(), lista.end(), condicion);
        return static_cast<std::size_t>(linea - lista.begin());
    };
    const std::size_t linea = primera([&, nombre = revisado.NombreOtorgante()](const auto& l) {
        return l.Objeto && l.Objeto->NombreOtorgante() == nombre;
    });
    if (linea < lista.Cuenta() || revisado.NumDocumento.empty()) return linea;
    return primera(
        [&](const auto& l) { return l.Objeto && l.Objeto->NumDocumento == revisado.NumDocumento; });
}

}  // namespace

void TListaOtorgantes::Anade(TOtorganteHallado hallado) {
    std::string nombre = hallado.Otorgante.NombreOtorgante();
    Lista.Anade(std::move(nombre), std::make_unique<TROtorgante>(std::move(hallado.Otorgante)));
    Origenes.push_back(std::move(hallado.Origenes));
}

void TListaOtorgantes::Limpia() {
    Lista.Limpia();
    Origenes.clear();
}

TOrigenes& TListaOtorgantes::OrigenesDe(const TROtorgante& otorgante) {
    std::size_t linea = 0;
    while (Lista[linea].Objeto.get() != &otorgante) ++linea;
    return Origenes[linea];
}

void TListaOtorgantes::Sustituye(ListaTextos<TROtorgante> otros) {
    std::vector<TOrigenes> origenes(otros.Cuenta());
    for (std::size_t i = 0; i < otros.Cuenta(); ++i) {
        if (!otros[i].Objeto) continue;
        const std::size_t linea = LineaDe(*otros[i].Objeto, Lista);
        if (linea < Lista.Cuenta())
            origenes[i] = DeLosCamposIguales(Origenes[linea], *Lista[linea].Objeto, *otros[i].Objeto);
    }
    Lista = std::move(otros);
    Origenes = std::move(origenes);
}

}  // namespace analizador

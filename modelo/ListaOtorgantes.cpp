#include "modelo/ListaOtorgantes.h"

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
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

// The first line of each name and of each document.
class TLineasPorClave {
  public:
    explicit TLineasPorClave(const ListaTextos<TROtorgante>& lista) {
        for (std::size_t i = 0; i < lista.Cuenta(); ++i) {
            if (!lista[i].Objeto) continue;
            FPorNombre.try_emplace(lista[i].Objeto->NombreOtorgante(), i);
            if (!lista[i].Objeto->NumDocumento.empty())
                FPorDocumento.try_emplace(lista[i].Objeto->NumDocumento, i);
        }
    }
    // That of the party that a reviewed record was.
    [[nodiscard]] std::optional<std::size_t> De(const TROtorgante& revisado) const {
        if (const auto linea = FPorNombre.find(revisado.NombreOtorgante()); linea != FPorNombre.end())
            return linea->second;
        if (const auto linea = FPorDocumento.find(revisado.NumDocumento); linea != FPorDocumento.end())
            return linea->second;
        return std::nullopt;
    }

  private:
    std::unordered_map<std::string, std::size_t> FPorNombre;
    std::unordered_map<std::string, std::size_t> FPorDocumento;
};

}  // namespace

void TListaOtorgantes::Anade(TOtorganteHallado hallado) {
    std::string nombre = hallado.Otorgante.NombreOtorgante();
    Lista.Anade(std::move(nombre), std::make_unique<TROtorgante>(std::move(hallado.Otorgante)));
    Origenes.push_back(std::move(hallado.Origenes));
}

void TListaOtorgantes::Limpia() {
    *this = {};
}

TOrigenes& TListaOtorgantes::OrigenesDe(const TROtorgante& otorgante) {
    std::size_t linea = 0;
    while (Lista[linea].Objeto.get() != &otorgante) ++linea;
    return Origenes[linea];
}

void TListaOtorgantes::Sustituye(ListaTextos<TROtorgante> otros) {
    const TLineasPorClave lineas(Lista);
    std::vector<TOrigenes> origenes(otros.Cuenta());
    for (std::size_t i = 0; i < otros.Cuenta(); ++i) {
        if (!otros[i].Objeto) continue;
        if (const auto linea = lineas.De(*otros[i].Objeto))
            origenes[i] = DeLosCamposIguales(Origenes[*linea], *Lista[*linea].Objeto, *otros[i].Objeto);
    }
    Limpia();
    Lista = std::move(otros);
    Origenes = std::move(origenes);
}

void TListaOtorgantes::IndexaNuevos() {
    for (; FIndexados < Lista.Cuenta(); ++FIndexados) {
        const TROtorgante* const otorgante = Lista[FIndexados].Objeto.get();
        if (otorgante == nullptr) continue;
        FNombres.Pon(otorgante->NombreOtorgante(), FIndexados);
        FDocumentos.Pon(otorgante->NumDocumento, FIndexados);
    }
}

std::optional<std::size_t> TListaOtorgantes::LineaNombradaEn(std::string_view texto) {
    IndexaNuevos();
    return FNombres.PrimeraEn(texto);
}

bool TListaOtorgantes::HayDocumentoEn(std::string_view texto) {
    IndexaNuevos();
    return FDocumentos.PrimeraEn(texto).has_value();
}

}  // namespace analizador

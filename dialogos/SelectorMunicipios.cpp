#include "dialogos/SelectorMunicipios.h"

#include <algorithm>
#include <map>
#include <memory>
#include <tuple>
#include <utility>

#include "plataforma/Confnvx.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "plataforma/Ruttb.h"

namespace analizador {

namespace {

constexpr int CIFRAS_PROVINCIA = 2;

std::unique_ptr<TTabla> Abre(std::string_view fichero) {
    return CreaTabla(Config().GetAliasNorvex(), fichero, "", true, false);
}

std::map<std::string, std::string, std::less<>> NombresDeProvincias() {
    constexpr int PROVINCIA = 1;
    std::map<std::string, std::string, std::less<>> nombres;
    const auto tabla = Abre("PROVIN.DBF");
    for (; !tabla->Fin(); tabla->Siguiente())
        if (tabla->Entero("GRUPO") == PROVINCIA)
            nombres.emplace(StrRight(tabla->Texto("CODIGO"), CIFRAS_PROVINCIA), tabla->Texto("PROVINCIA"));
    return nombres;
}

std::vector<std::string> Palabras(std::string_view texto) {
    std::vector<std::string> palabras;
    for (texto = Recorta(texto); !texto.empty(); texto = RecortaIzquierda(texto)) {
        const std::size_t fin = std::min(texto.find(' '), texto.size());
        palabras.emplace_back(texto.substr(0, fin));
        texto.remove_prefix(fin);
    }
    return palabras;
}

}  // namespace

TSelectorMunicipios::TSelectorMunicipios(const TSemillasMunicipio& semillas) {
    Carga();
    Filtra("");
    actual_ = MejorFila(semillas);
}

// Rows that differ only in the form of the name by which a deed may call the municipality are one row here,
// found by any of those forms.
void TSelectorMunicipios::Carga() {
    const auto provincias = NombresDeProvincias();
    using TOrden = std::tuple<std::string, std::string, std::string, std::string, std::string>;
    std::map<TOrden, TFilaMunicipio> filas;
    const auto tabla = Abre("MUNICIPI.DBF");
    for (; !tabla->Fin(); tabla->Siguiente()) {
        TMunicipio municipio{tabla->Texto("NOMBRE"), "", tabla->Texto("COD_PROV"), tabla->Texto("CODPOSTAL"),
                             tabla->Texto("COD_INE")};
        const auto provincia = provincias.find(StrRight(municipio.CodProvincia, CIFRAS_PROVINCIA));
        if (provincia != provincias.end()) municipio.Provincia = provincia->second;
        TOrden orden{Pliega(municipio.Nombre), municipio.Nombre, municipio.Provincia, municipio.CodPostal,
                     municipio.CodINE};
        auto& fila = filas[std::move(orden)];
        if (fila.Nombres.empty()) fila.Nombres.push_back(Pliega(municipio.Nombre));
        if (std::string forma = Pliega(tabla->Texto("NOM_MUNICI"));
            !forma.empty() && forma != fila.Nombres[0])
            fila.Nombres.push_back(std::move(forma));
        fila.Provincia = Pliega(municipio.Provincia);
        fila.Municipio = std::move(municipio);
    }
    for (auto& [orden, fila] : filas) todos_.push_back(std::move(fila));
}

bool TSelectorMunicipios::TFilaMunicipio::Contiene(std::string_view palabra) const {
    const auto esta = [&](std::string_view texto) { return texto.find(palabra) != std::string_view::npos; };
    return std::any_of(Nombres.begin(), Nombres.end(), esta) || esta(Provincia) ||
           esta(Municipio.CodPostal) || esta(Municipio.CodINE);
}

bool TSelectorMunicipios::TFilaMunicipio::Empieza(std::string_view principio) const {
    return std::any_of(Nombres.begin(), Nombres.end(), [&](std::string_view nombre) {
        return nombre.substr(0, principio.size()) == principio;
    });
}

void TSelectorMunicipios::Filtra(std::string texto) {
    filtro_ = std::move(texto);
    const std::string buscado = Pliega(Recorta(filtro_));
    const std::vector<std::string> palabras = Palabras(buscado);
    visibles_.clear();
    for (std::size_t i = 0; i < todos_.size(); ++i)
        if (std::all_of(palabras.begin(), palabras.end(),
                        [&](const std::string& palabra) { return todos_[i].Contiene(palabra); }))
            visibles_.push_back(i);
    std::stable_partition(visibles_.begin(), visibles_.end(),
                          [&](std::size_t i) { return todos_[i].Empieza(buscado); });
    PonActual(0);
}

void TSelectorMunicipios::PonActual(std::optional<std::size_t> donde) {
    actual_ = donde && *donde < visibles_.size() ? donde : std::nullopt;
}

// Two seeds that fit weigh more than any one; of single ones the statistics code most, the postal code least,
// since many municipalities may share it. The beginning of a name only decides among rows that are equal.
int TSelectorMunicipios::TFilaMunicipio::Encaje(const TSemillasMunicipio& semillas) const {
    constexpr int INE = 8;
    constexpr int NOMBRE = 6;
    constexpr int POSTAL = 4;
    constexpr int PRINCIPIO = 1;
    int encaje = 0;
    if (!semillas.CodINE.empty() && semillas.CodINE == Municipio.CodINE) encaje += INE;
    if (!semillas.CodPostal.empty() && semillas.CodPostal == Municipio.CodPostal) encaje += POSTAL;
    if (semillas.Nombre.empty()) return encaje;
    if (std::find(Nombres.begin(), Nombres.end(), semillas.Nombre) != Nombres.end()) return encaje + NOMBRE;
    return encaje + (Empieza(semillas.Nombre) ? PRINCIPIO : 0);
}

std::optional<std::size_t> TSelectorMunicipios::MejorFila(const TSemillasMunicipio& semillas) const {
    const TSemillasMunicipio plegadas{std::string(Recorta(semillas.CodPostal)),
                                      std::string(Recorta(semillas.CodINE)),
                                      Pliega(Recorta(semillas.Nombre))};
    std::optional<std::size_t> mejor;
    int encaje = -1;
    for (std::size_t i = 0; i < todos_.size(); ++i)
        if (const int este = todos_[i].Encaje(plegadas); este > encaje) {
            mejor = i;
            encaje = este;
        }
    return mejor;
}

std::optional<TMunicipio> IMunicipios(const TSemillasMunicipio& semillas) {
    TSelectorMunicipios selector(semillas);
    auto* const vista = InstalaVistaMunicipios::Actual();
    if (vista == nullptr || !vista->MuestraModal(selector) || !selector.Actual()) return std::nullopt;
    return selector.Fila(*selector.Actual());
}

}  // namespace analizador

#include "adaptadores/dbase/TablaOrdenadaDbf.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "plataforma/Ansi.h"

namespace analizador {

TTablaOrdenadaDbf::TTablaOrdenadaDbf(std::shared_ptr<TTablaEnFichero> tabla, std::string_view indice,
                                     TAbreEntera abreEntera)
    : tabla_(std::move(tabla)), indice_(indice), abreEntera_(std::move(abreEntera)) {}

TTabla& TTablaOrdenadaDbf::Entera() const {
    tramo_.reset();
    if (entera_ == nullptr) {
        entera_ = abreEntera_();
        entera_->Filtra(filtro_);
    }
    return *entera_;
}

std::unique_ptr<TTabla> TTablaOrdenadaDbf::CursorSobre(TDatosDbf datos, std::string_view indice) const {
    return std::make_unique<TTablaDbase>(
        std::make_shared<const TTablaEnMemoria>(tabla_->Nombre(), std::move(datos)), indice);
}

void TTablaOrdenadaDbf::Primero() {
    fila_.reset();
    Actual().Primero();
}

// In the whole table, to the row found without it: what follows is then of the same content as that row.
void TTablaOrdenadaDbf::VaALaFila() {
    TTabla& entera = Entera();
    const std::vector<TCampoDbf>& campos = tabla_->Estructura().Campos();
    const auto esLaFila = [&] {
        return std::ranges::all_of(campos, [&](const TCampoDbf& campo) {
            return entera.Texto(campo.Nombre) == fila_->Texto(campo.Nombre);
        });
    };
    for (entera.Primero(); !entera.Fin() && !esLaFila();) entera.Siguiente();
    if (entera.Fin())
        throw ErrorTabla("La tabla " + tabla_->Estructura().Fichero() +
                         std::string(" está cambiando mientras se lee"_ansi));
    fila_.reset();
}

void TTablaOrdenadaDbf::Siguiente() {
    if (fila_ && fila_->Fin()) return;
    if (fila_) VaALaFila();
    Actual().Siguiente();
}

void TTablaOrdenadaDbf::Indexa(std::string_view indice) {
    Entera().Indexa(indice);
    fila_.reset();
}

bool TTablaOrdenadaDbf::HallaFila(TClave clave) {
    std::optional<TDatosDbf> hallada = tabla_->Primera(indice_, clave);
    if (hallada) fila_ = CursorSobre(*std::move(hallada), "");
    return hallada.has_value();
}

bool TTablaOrdenadaDbf::Busca(TClave clave) {
    if (entera_ == nullptr && tramo_ == nullptr && filtro_.empty() && HallaFila(clave)) return !fila_->Fin();
    const bool hallada = Actual().Busca(clave);
    fila_.reset();
    return hallada;
}

bool TTablaOrdenadaDbf::HallaTramo(TClave desde, TClave hasta) {
    std::optional<TDatosDbf> hallado = tabla_->Tramo(indice_, desde, hasta);
    if (!hallado) return false;
    tramo_ = CursorSobre(*std::move(hallado), indice_);
    tramo_->Filtra(filtro_);
    return true;
}

bool TTablaOrdenadaDbf::Rango(TClave desde, TClave hasta) {
    const bool hayIndice = (entera_ == nullptr && HallaTramo(desde, hasta)) || Entera().Rango(desde, hasta);
    fila_.reset();
    return hayIndice;
}

void TTablaOrdenadaDbf::CancelaRango() {
    tramo_.reset();
    fila_.reset();
    if (entera_ != nullptr) entera_->CancelaRango();
}

void TTablaOrdenadaDbf::Filtra(std::string_view condicion) {
    filtro_.clear();
    Actual().Filtra(condicion);
    filtro_ = condicion;
    fila_.reset();
}

}  // namespace analizador

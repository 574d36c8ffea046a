#include "dialogos/ListaConceptosPreseleccionados.h"

#include <memory>
#include <utility>

namespace analizador {

bool SeProponeOtorgante(const TROtorgante& otorgante) {
    constexpr int OTRO_DOCUMENTO = 5;
    return !otorgante.NumDocumento.empty() && otorgante.TipoDocumento != OTRO_DOCUMENTO &&
           !otorgante.Domicilio.empty() && !otorgante.EnXML;
}

TFListaConceptosPreseleccionados::TFListaConceptosPreseleccionados(std::string informe, std::string xml)
    : Informe(std::move(informe)), Xml(std::move(xml)) {}

void TFListaConceptosPreseleccionados::CargaListaPosiblesConceptos(const ListaTextos<TRConcepto>& lista) {
    for (const auto& [texto, concepto] : lista)
        if (concepto) LBPosiblesConceptos.Anade(concepto->Nombre, std::make_unique<TRConcepto>(*concepto));
}

void TFListaConceptosPreseleccionados::CargaListaPosiblesOtorgantes(const ListaTextos<TROtorgante>& lista) {
    for (const auto& [texto, otorgante] : lista)
        if (otorgante)
            LBPosiblesOtorgantes.Anade(otorgante->MuestraOtorgante(),
                                       std::make_unique<TROtorgante>(*otorgante));
}

void TFListaConceptosPreseleccionados::SeleccionaTodosLosOtorgantesValidos() {
    ListaTextos<TROtorgante> quedan;
    for (auto& [texto, otorgante] : LBPosiblesOtorgantes) {
        if (!SeProponeOtorgante(*otorgante))
            quedan.Anade(std::move(texto), std::move(otorgante));
        else if (!LBOtorgantes.Contiene(texto))
            LBOtorgantes.Anade(std::move(texto), std::move(otorgante));
    }
    LBPosiblesOtorgantes = std::move(quedan);
}

void TFListaConceptosPreseleccionados::RecogeListaConceptosValidos(ListaTextos<TRConcepto>& lista) const {
    for (const auto& [texto, concepto] : LBConceptos) {
        auto elegido = std::make_unique<TRConcepto>();
        elegido->NumeroTipo = concepto->NumeroTipo;
        elegido->Nombre = concepto->Nombre;
        lista.Anade(concepto->Nombre, std::move(elegido));
    }
}

void TFListaConceptosPreseleccionados::RecogeListaOtorgantesValidos(ListaTextos<TROtorgante>& lista) const {
    for (const auto& [texto, otorgante] : LBOtorgantes) {
        auto elegido = std::make_unique<TROtorgante>(*otorgante);
        elegido->EnXML = false;
        std::string nombre = elegido->NombreOtorgante();
        lista.Anade(std::move(nombre), std::move(elegido));
    }
}

bool TFListaConceptosPreseleccionados::MuestraModal(TComponente* propietario) {
    auto* const vista = InstalaVistaPreseleccion::Actual();
    return vista != nullptr && vista->MuestraModal(*this, propietario);
}

}  // namespace analizador

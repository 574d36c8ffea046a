#include "dialogos/ListaConceptosPreseleccionados.h"

#include <memory>
#include <system_error>
#include <utility>

#include "plataforma/Ansi.h"
#include "plataforma/Mensaje.h"
#include "plataforma/Rnumcad.h"

namespace analizador {

namespace {

// Moves the selected lines to the end of another list; afterwards nothing is selected in either.
template <class T>
void Mueve(TListaSeleccion<T>& origen, TListaSeleccion<T>& destino) {
    for (auto& linea : origen.SacaSeleccionadas()) destino.Anade(std::move(linea));
    destino.SeleccionaNada();
}

bool ConfirmaOtorgante(const TROtorgante& otorgante) {
    std::string texto(Recorta(otorgante.Nombre + " " + otorgante.Apellidos));
    texto += " se encuentra en el XML, No hace falta añadirlo"_ansi;
    return Mensaje_NoSi(TITULO_ATENCION, texto, "¿Desea de todas formas añadirlo?"_ansi);
}

}  // namespace

bool SeProponeOtorgante(const TROtorgante& otorgante) {
    constexpr int OTRO_DOCUMENTO = 5;
    return !otorgante.NumDocumento.empty() && otorgante.TipoDocumento != OTRO_DOCUMENTO &&
           !otorgante.Domicilio.empty() && !otorgante.EnXML;
}

TFListaConceptosPreseleccionados::TFListaConceptosPreseleccionados(std::string informe, std::string xml)
    : informe_(std::move(informe)), xml_(std::move(xml)) {}

TFListaConceptosPreseleccionados::~TFListaConceptosPreseleccionados() {
    std::error_code nada;
    if (!ficheroXml_.empty()) std::filesystem::remove(ficheroXml_, nada);
}

void TFListaConceptosPreseleccionados::CargaListaPosiblesConceptos(const ListaTextos<TRConcepto>& lista) {
    bool primero = true;
    for (const auto& [texto, concepto] : lista) {
        if (!concepto) continue;
        if (std::exchange(primero, false)) dbgTipos.BuscaTipo(concepto->Nombre);
        LBPosiblesConceptos.Anade({concepto->Nombre, std::make_unique<TRConcepto>(*concepto)});
    }
}

void TFListaConceptosPreseleccionados::CargaListaPosiblesOtorgantes(const ListaTextos<TROtorgante>& lista) {
    for (const auto& [texto, otorgante] : lista)
        if (otorgante)
            LBPosiblesOtorgantes.Anade(
                {otorgante->MuestraOtorgante(), std::make_unique<TROtorgante>(*otorgante)});
}

void TFListaConceptosPreseleccionados::SeleccionaTodosLosOtorgantesValidos() {
    for (std::size_t i = 0; i < LBPosiblesOtorgantes.Cuenta(); ++i)
        LBPosiblesOtorgantes.Selecciona(i, SeProponeOtorgante(*LBPosiblesOtorgantes.Objeto(i)));
    AnadeOtorgantes();
}

bool TFListaConceptosPreseleccionados::MuestraModal(TComponente* propietario) {
    auto* const vista = InstalaVistaPreseleccion::Actual();
    propietario_ = propietario;
    return vista != nullptr && vista->MuestraModal(*this, propietario);
}

void TFListaConceptosPreseleccionados::RecogeListaConceptosValidos(ListaTextos<TRConcepto>& lista) const {
    for (const auto& [texto, concepto] : LBConceptos.Lineas()) {
        auto elegido = std::make_unique<TRConcepto>();
        elegido->NumeroTipo = concepto->NumeroTipo;
        elegido->Nombre = concepto->Nombre;
        lista.Anade(concepto->Nombre, std::move(elegido));
    }
}

void TFListaConceptosPreseleccionados::RecogeListaOtorgantesValidos(ListaTextos<TROtorgante>& lista) const {
    for (const auto& [texto, otorgante] : LBOtorgantes.Lineas()) {
        auto elegido = std::make_unique<TROtorgante>(*otorgante);
        elegido->EnXML = false;
        std::string nombre = elegido->NombreOtorgante();
        lista.Anade(std::move(nombre), std::move(elegido));
    }
}

bool TFListaConceptosPreseleccionados::EnCursiva(const ListaTextos<TROtorgante>::Linea& linea) {
    return linea.Objeto && linea.Objeto->EnXML;
}

void TFListaConceptosPreseleccionados::AnadeConceptos() {
    Mueve(LBPosiblesConceptos, LBConceptos);
}

void TFListaConceptosPreseleccionados::AnadeConceptosBD() {
    for (const std::size_t donde : dbgTipos.Seleccionadas()) {
        const TFilaTipo& fila = dbgTipos.Filas()[donde];
        LBConceptos.Anade({fila.Nombre, std::make_unique<TRConcepto>(TRConcepto{
                                            fila.NumeroTipo, fila.Nombre, fila.CodOficial, fila.Prestamo})});
    }
    LBConceptos.SeleccionaNada();
    dbgTipos.SeleccionaNada();
}

void TFListaConceptosPreseleccionados::AnadeOtorgantes() {
    for (const std::size_t donde : LBPosiblesOtorgantes.Seleccionadas()) {
        const TROtorgante& otorgante = *LBPosiblesOtorgantes.Objeto(donde);
        if (otorgante.EnXML && !ConfirmaOtorgante(otorgante)) LBPosiblesOtorgantes.Selecciona(donde, false);
    }
    Mueve(LBPosiblesOtorgantes, LBOtorgantes);
}

void TFListaConceptosPreseleccionados::EliminaConceptos() {
    Mueve(LBConceptos, LBPosiblesConceptos);
}

void TFListaConceptosPreseleccionados::EliminaConceptosBD() {
    (void)LBConceptos.SacaSeleccionadas();
}

void TFListaConceptosPreseleccionados::EliminaOtorgantes() {
    Mueve(LBOtorgantes, LBPosiblesOtorgantes);
}

}  // namespace analizador

// What the user does in the preselection dialog: keys, buttons, drags, the search box and the views.

#include <system_error>
#include <utility>

#include "dialogos/CodificacionXml.h"
#include "dialogos/FicherosParaVer.h"
#include "dialogos/InformacionOtorgante.h"
#include "dialogos/ListaConceptosPreseleccionados.h"
#include "plataforma/Ansi.h"
#include "plataforma/Confnvx.h"
#include "plataforma/Mensaje.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Ruttb.h"
#include "plataforma/Visor.h"

namespace analizador {

namespace {

using TControl = TControlPreseleccion;

// Runs what reads a table; a failure is told. True when there was none.
template <class TAccion>
bool Avisando(TAccion accion) {
    try {
        accion();
        return true;
    } catch (const ErrorTabla& error) {
        Mensajes(TITULO_ATENCION, error.what());
        return false;
    }
}

void AvisaFichero(std::string_view que, const std::filesystem::filesystem_error& error) {
    std::string texto(que);
    texto.append(": ").append(AnsiDeUtf8(error.path1().string()));
    texto.append(": ").append(AnsiDeUtf8(error.code().message()));
    Mensajes(TITULO_ATENCION, texto);
}

// The file of a report that is shown stays: the viewer may read it at any time.
bool AbreInforme(std::string_view informe) {
    auto* const visores = InstalaVisores::Actual();
    if (visores == nullptr) return false;
    const auto fichero = EscribeFicheroTemporal("PIZ", "TXT", BytesDeTexto(informe));
    if (visores->AbreTexto(fichero)) return true;
    std::error_code nada;
    std::filesystem::remove(fichero, nada);
    return false;
}

}  // namespace

void TFListaConceptosPreseleccionados::FormActivate() {
    if (!primeraActivacion_) return;
    primeraActivacion_ = false;
    pagina_ = TPaginaPreseleccion::XML;
    xmlVisible_ = !xml_.empty() && !Config().GetbAnalWordSoloAnalizadorSinXML();
    if (xmlVisible_) (void)EscribeXML();
    pagina_ = TPaginaPreseleccion::Informacion;
}

void TFListaConceptosPreseleccionados::PonFoco(TControlPreseleccion control) {
    foco_ = control;
    if (control == TControl::LBOtorgantes || control == TControl::LBPosiblesOtorgantes)
        listaConFoco_ = control;
}

void TFListaConceptosPreseleccionados::PonPagina(TPaginaPreseleccion pagina) {
    if (pagina == TPaginaPreseleccion::Informacion || xmlVisible_) pagina_ = pagina;
}

void TFListaConceptosPreseleccionados::Pulsa(TControlPreseleccion boton) {
    if (boton == TControl::SPXML && !xmlVisible_) return;
    PonFoco(boton);
    switch (boton) {
        case TControl::BMas:
            return AnadeConceptos();
        case TControl::BMenos:
            return EliminaConceptos();
        case TControl::BMasBD:
            return AnadeConceptosBD();
        case TControl::BMasOtor:
            return AnadeOtorgantes();
        case TControl::BMenosOtor:
            return EliminaOtorgantes();
        case TControl::BDetallesOtorgante:
            return VerOtorgante(listaConFoco_);
        case TControl::SBPizarra:
            return MuestraPizarra();
        case TControl::SPXML:
            return MuestraXML();
        case TControl::BContinuar:
            resultado_ = true;
            return;
        case TControl::BCancelar:
            resultado_ = false;
            return;
        default:
            return;
    }
}

// ---- Keys

bool TFListaConceptosPreseleccionados::Tecla(TControlPreseleccion control, TTecla tecla, bool desplegado) {
    if (desplegado) return false;
    if (control == TControl::eBusca) return TeclaBusca(tecla);
    if (tecla != TTecla::Escape) return TeclaLista(control, tecla);
    resultado_ = false;
    return true;
}

bool TFListaConceptosPreseleccionados::TeclaBusca(TTecla tecla) {
    switch (tecla) {
        case TTecla::Intro:
            if (!eBusca_.empty()) PonFoco(BuscaTipo() ? TControl::LBConceptos : TControl::dbgTipos);
            return true;
        case TTecla::Escape:
            PonFoco(TControl::LBConceptos);
            return true;
        case TTecla::RePag:
        case TTecla::AvPag:
            PonFoco(TControl::dbgTipos);
            return true;
        case TTecla::Arriba:
            dbgTipos.Anterior();
            return true;
        case TTecla::Abajo:
            dbgTipos.Siguiente();
            return true;
        default:
            return false;
    }
}

bool TFListaConceptosPreseleccionados::TeclaLista(TControlPreseleccion lista, TTecla tecla) {
    const bool anade = tecla == TTecla::Intro || tecla == TTecla::Insertar;
    const bool elimina = tecla == TTecla::Suprimir;
    if (anade && lista == TControl::LBPosiblesConceptos) return AnadeConceptos(), true;
    if (anade && lista == TControl::LBPosiblesOtorgantes) return AnadeOtorgantes(), true;
    if (anade && lista == TControl::dbgTipos) return AnadeConceptosBD(), true;
    if (elimina && lista == TControl::LBConceptos) return EliminaConceptos(), true;
    if (elimina && lista == TControl::LBOtorgantes) return EliminaOtorgantes(), true;
    return false;
}

// ---- Deed types

// The first chosen concept is never compared.
bool TFListaConceptosPreseleccionados::BuscaTipo() const {
    const std::string buscado = AnsiUpperCase(eBusca_);
    for (std::size_t i = 1; i < LBConceptos.Cuenta(); ++i)
        if (AnsiUpperCase(LBConceptos.Lineas()[i].Texto) == buscado) return true;
    return false;
}

void TFListaConceptosPreseleccionados::eBuscaChange(std::string texto) {
    eBusca_ = std::move(texto);
    (void)Avisando([&] { BuscaEnTipos(); });
}

void TFListaConceptosPreseleccionados::BuscaEnTipos() {
    const auto numero = EnteroDeCadena(eBusca_);
    const auto orden = numero ? TColumnaTipos::NUMEROTIPO : TColumnaTipos::TIPO;
    std::optional<TFilaTipo> anterior;
    if (dbgTipos.Orden() != orden) {
        if (dbgTipos.Actual()) anterior = dbgTipos.Filas()[*dbgTipos.Actual()];
        dbgTipos.Ordena(orden);
    }
    const bool hallado = numero ? dbgTipos.BuscaNumero(*numero) : dbgTipos.BuscaComienzo(eBusca_);
    if (!hallado && anterior) dbgTipos.BuscaFila(*anterior);
}

void TFListaConceptosPreseleccionados::ClicTitulo(TColumnaTipos columna) {
    if (!Avisando([&] { dbgTipos.Ordena(columna); })) return;
    const bool seBusca = columna == TColumnaTipos::TIPO || columna == TColumnaTipos::NUMEROTIPO;
    PonFoco(seBusca ? TControl::eBusca : TControl::dbgTipos);
}

// ---- Drags

bool TFListaConceptosPreseleccionados::AdmiteSoltar(TControlPreseleccion origen,
                                                    TControlPreseleccion destino) {
    switch (origen) {
        case TControl::LBPosiblesConceptos:
        case TControl::dbgTipos:
            return destino == TControl::LBConceptos;
        case TControl::LBConceptos:
            return destino == TControl::LBPosiblesConceptos || destino == TControl::dbgTipos;
        case TControl::LBPosiblesOtorgantes:
            return destino == TControl::LBOtorgantes;
        case TControl::LBOtorgantes:
            return destino == TControl::LBPosiblesOtorgantes;
        default:
            return false;
    }
}

void TFListaConceptosPreseleccionados::Suelta(TControlPreseleccion origen, TControlPreseleccion destino) {
    if (!AdmiteSoltar(origen, destino)) return;
    switch (origen) {
        case TControl::LBPosiblesConceptos:
            return AnadeConceptos();
        case TControl::dbgTipos:
            return AnadeConceptosBD();
        case TControl::LBConceptos:
            return destino == TControl::dbgTipos ? EliminaConceptosBD() : EliminaConceptos();
        case TControl::LBPosiblesOtorgantes:
            return AnadeOtorgantes();
        default:
            return EliminaOtorgantes();
    }
}

// ---- Views

void TFListaConceptosPreseleccionados::VerOtorgante(TControlPreseleccion lista) {
    auto& otorgantes = lista == TControl::LBPosiblesOtorgantes ? LBPosiblesOtorgantes : LBOtorgantes;
    const auto actual = otorgantes.Actual();
    if (!actual) return;
    (void)Avisando([&] {
        TROtorgante& otorgante = *otorgantes.Objeto(*actual);
        if (MuestraInformacionOtorgante(propietario_, otorgante))
            otorgantes.CambiaTexto(*actual, otorgante.MuestraOtorgante());
    });
}

bool TFListaConceptosPreseleccionados::EscribeXML() {
    try {
        if (ficheroXml_.empty()) ficheroXml_ = EscribeFicheroTemporal("NUM", "xml", BytesDeXml(xml_));
        return true;
    } catch (const std::filesystem::filesystem_error& error) {
        AvisaFichero("No se pueden mostrar los datos actuales del documento", error);
        return false;
    }
}

// The file may be missing because it could not be written before.
void TFListaConceptosPreseleccionados::MuestraXML() {
    auto* const visores = InstalaVisores::Actual();
    if (visores == nullptr || !EscribeXML()) return;
    visores->CreateVisorEmbeddedWB(propietario_, ficheroXml_, "Datos actuales del documento");
}

void TFListaConceptosPreseleccionados::MuestraPizarra() {
    if (informe_.empty()) return;
    try {
        if (!AbreInforme(informe_))
            Mensajes(TITULO_ATENCION, "No se puede mostrar el informe: no hay programa que abra textos");
    } catch (const std::filesystem::filesystem_error& error) {
        AvisaFichero("No se puede mostrar el informe", error);
    }
}

}  // namespace analizador

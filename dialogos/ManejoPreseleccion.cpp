// What the user does in the preselection dialog: keys, buttons, drags, the search box, details.

#include <utility>

#include "dialogos/InformacionOtorgante.h"
#include "dialogos/ListaConceptosPreseleccionados.h"
#include "plataforma/Ansi.h"
#include "plataforma/Mensaje.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Ruttb.h"

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

}  // namespace

void TFListaConceptosPreseleccionados::PonFoco(TControlPreseleccion control) {
    foco_ = control;
    if (control == TControl::LBOtorgantes || control == TControl::LBPosiblesOtorgantes)
        listaConFoco_ = control;
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

// A key acts on the current row where none is selected, so that row after row goes with the same key.
bool TFListaConceptosPreseleccionados::TeclaLista(TControlPreseleccion lista, TTecla tecla) {
    const bool anade = tecla == TTecla::Intro || tecla == TTecla::Insertar;
    const bool elimina = tecla == TTecla::Suprimir;
    if (anade && lista == TControl::LBPosiblesConceptos) {
        LBPosiblesConceptos.SeleccionaAlMenosActual();
        AnadeConceptos();
    } else if (anade && lista == TControl::LBPosiblesOtorgantes) {
        LBPosiblesOtorgantes.SeleccionaAlMenosActual();
        AnadeOtorgantes();
    } else if (anade && lista == TControl::dbgTipos) {
        AnadeConceptosBD();
    } else if (elimina && lista == TControl::LBConceptos) {
        LBConceptos.SeleccionaAlMenosActual();
        EliminaConceptos();
    } else if (elimina && lista == TControl::LBOtorgantes) {
        LBOtorgantes.SeleccionaAlMenosActual();
        EliminaOtorgantes();
    } else {
        return false;
    }
    return true;
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

// ---- Details of a party

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

}  // namespace analizador

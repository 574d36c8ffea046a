// What the session asks of the dialog: loading, proposing, collecting.

#include "dialogos/ListaConceptosPreseleccionados.h"

#include <gtest/gtest.h>

#include "plataforma/Ruttb.h"
#include "pruebas/dialogos/EscenaPreseleccion.h"

namespace analizador {
namespace {

struct TCasoPropuesta {
    const char* Motivo;
    void (*Cambia)(TROtorgante&);
    bool SePropone;
};

const TCasoPropuesta PROPUESTAS[] = {
    {"todo", [](TROtorgante&) {}, true},
    {"sin documento", [](TROtorgante& o) { o.NumDocumento.clear(); }, false},
    {"otro documento", [](TROtorgante& o) { o.TipoDocumento = 5; }, false},
    {"sin tipo de documento", [](TROtorgante& o) { o.TipoDocumento = 0; }, true},
    {"pasaporte", [](TROtorgante& o) { o.TipoDocumento = 4; }, true},
    {"sin domicilio", [](TROtorgante& o) { o.Domicilio.clear(); }, false},
    {"en el XML", [](TROtorgante& o) { o.EnXML = true; }, false},
};

TEST(SeProponeOtorgante, SoloCuandoTieneDocumentoYDomicilioYNoEstaEnElXml) {
    for (const auto& caso : PROPUESTAS) {
        TROtorgante otorgante = Persona("ANA", "12345678Z");
        caso.Cambia(otorgante);
        EXPECT_EQ(SeProponeOtorgante(otorgante), caso.SePropone) << caso.Motivo;
    }
}

// Whoever is not proposed can still be added by hand; only one in the XML asks before.
TEST(Preseleccion, QuienNoSeProponePuedeAnadirseAMano) {
    for (const auto& caso : PROPUESTAS) {
        TEscenaPreseleccion escena;
        escena.Mensajes.Respuestas = {true};
        TROtorgante otorgante = Persona("ANA", "12345678Z");
        caso.Cambia(otorgante);
        const auto dialogo = escena.Crea({}, {otorgante});
        dialogo->SeleccionaTodosLosOtorgantesValidos();
        EXPECT_EQ(dialogo->LBOtorgantes.Cuenta(), caso.SePropone ? 1U : 0U) << caso.Motivo;
        EXPECT_TRUE(escena.Mensajes.Preguntas.empty()) << caso.Motivo;
        dialogo->LBPosiblesOtorgantes.SeleccionaTodo();
        dialogo->Pulsa(TControlPreseleccion::BMasOtor);
        EXPECT_EQ(dialogo->LBOtorgantes.Cuenta(), 1U) << caso.Motivo;
        EXPECT_EQ(dialogo->LBPosiblesOtorgantes.Cuenta(), 0U) << caso.Motivo;
        EXPECT_EQ(escena.Mensajes.Preguntas.size(), otorgante.EnXML ? 1U : 0U) << caso.Motivo;
    }
}

TEST(Preseleccion, LosPropuestosPasanALosValidosEnSuOrden) {
    TEscenaPreseleccion escena;
    const auto dialogo = escena.Crea({}, {Persona("ANA", "1"), Persona("LUIS", ""), Persona("EVA", "3")});
    EXPECT_EQ(Textos(dialogo->LBPosiblesOtorgantes), (TTextos{"GIL, ANA - 1", "GIL, LUIS", "GIL, EVA - 3"}));
    dialogo->LBPosiblesOtorgantes.Selecciona(1, true);  // what was selected before does not count
    dialogo->SeleccionaTodosLosOtorgantesValidos();
    EXPECT_EQ(Textos(dialogo->LBOtorgantes), (TTextos{"GIL, ANA - 1", "GIL, EVA - 3"}));
    EXPECT_EQ(Textos(dialogo->LBPosiblesOtorgantes), (TTextos{"GIL, LUIS"}));
}

TEST(Preseleccion, LoQueNoTieneRegistroNoSeCarga) {
    TEscenaPreseleccion escena;
    TFListaConceptosPreseleccionados dialogo("", "");
    ListaTextos<TRConcepto> conceptos;
    conceptos.Anade("VENTA", nullptr);
    conceptos.Anade("otro texto", std::make_unique<TRConcepto>(TRConcepto{4, "PRESTAMO", "05", true}));
    dialogo.CargaListaPosiblesConceptos(conceptos);
    EXPECT_EQ(Textos(dialogo.LBPosiblesConceptos), (TTextos{"PRESTAMO"}));
    EXPECT_EQ(*dialogo.LBPosiblesConceptos.Objeto(0), (TRConcepto{4, "PRESTAMO", "05", true}));
    EXPECT_EQ(TipoActual(dialogo.dbgTipos), "PRESTAMO") << "the first that has a record";
    ListaTextos<TROtorgante> otorgantes;
    otorgantes.Anade("nadie", nullptr);
    dialogo.CargaListaPosiblesOtorgantes(otorgantes);
    EXPECT_EQ(dialogo.LBPosiblesOtorgantes.Cuenta(), 0U);
}

TEST(Preseleccion, LaRejillaVaAlPrimerConcepto) {
    struct TCaso {
        TTextos Conceptos;
        const char* Actual;
    };
    const TCaso casos[] = {
        {{"VENTA", "PODER"}, "VENTA"},
        {{"venta"}, "VENTA"},
        {{"NADA", "VENTA"}, "PODER"},  // only the first counts: the row stays
        {{}, "PODER"},
    };
    TEscenaPreseleccion escena;
    for (const auto& caso : casos)
        EXPECT_EQ(TipoActual(escena.Crea(caso.Conceptos)->dbgTipos), caso.Actual)
            << (caso.Conceptos.empty() ? "" : caso.Conceptos.front());
}

TEST(Preseleccion, LasFilasSonCopiasConTodo) {
    TEscenaPreseleccion escena;
    ListaTextos<TROtorgante> lista;
    const TROtorgante original = PersonaEnXml("ANA", "1");
    lista.Anade("ANA", std::make_unique<TROtorgante>(original));
    TFListaConceptosPreseleccionados dialogo("", "");
    dialogo.CargaListaPosiblesOtorgantes(lista);
    EXPECT_EQ(*dialogo.LBPosiblesOtorgantes.Objeto(0), original);
    dialogo.LBPosiblesOtorgantes.Objeto(0)->Apellidos = "OTRA";
    EXPECT_EQ(*lista[0].Objeto, original);
}

TEST(Preseleccion, LoRecogidoNoLlevaLaMarcaDelXmlNiLoDemasDelConcepto) {
    TEscenaPreseleccion escena;
    escena.Mensajes.Respuestas = {true};
    const auto dialogo = escena.Crea({"VENTA", "OTRA"}, {PersonaEnXml("ANA", "1"), Persona("LUIS", "2")});
    dialogo->LBPosiblesConceptos.Selecciona(0, true);
    dialogo->Pulsa(TControlPreseleccion::BMas);
    dialogo->LBPosiblesOtorgantes.Selecciona(0, true);
    dialogo->Pulsa(TControlPreseleccion::BMasOtor);

    ListaTextos<TROtorgante> otorgantes;
    otorgantes.Anade("ya estaba", nullptr);
    dialogo->RecogeListaOtorgantesValidos(otorgantes);
    ASSERT_EQ(Textos(otorgantes), (TTextos{"ya estaba", "ANA GIL"}));
    EXPECT_EQ(*otorgantes[1].Objeto, Persona("ANA", "1"));
    EXPECT_TRUE(dialogo->LBOtorgantes.Objeto(0)->EnXML) << "the dialog keeps its own";

    ListaTextos<TRConcepto> conceptos;
    dialogo->RecogeListaConceptosValidos(conceptos);
    ASSERT_EQ(Textos(conceptos), (TTextos{"VENTA"}));
    EXPECT_EQ(*conceptos[0].Objeto, (TRConcepto{7, "VENTA", "", false}));
}

TEST(Preseleccion, EnCursivaLosQueEstanEnElXml) {
    using TLinea = ListaTextos<TROtorgante>::Linea;
    EXPECT_TRUE(TFListaConceptosPreseleccionados::EnCursiva(
        TLinea{"ANA", std::make_unique<TROtorgante>(PersonaEnXml("ANA", "1"))}));
    EXPECT_FALSE(TFListaConceptosPreseleccionados::EnCursiva(
        TLinea{"ANA", std::make_unique<TROtorgante>(Persona("ANA", "1"))}));
    EXPECT_FALSE(TFListaConceptosPreseleccionados::EnCursiva(TLinea{"ANA", nullptr}));
}

TEST(Preseleccion, SinTablaNoHayDialogo) {
    TEscenaPreseleccion escena;
    escena.Tablas.Quita("TIPOS.DBF");
    EXPECT_THROW(TFListaConceptosPreseleccionados("", ""), ErrorTabla);
    EXPECT_TRUE(escena.Mensajes.Mostrados.empty());
}

TEST(Preseleccion, SinVistaEsComoCancelar) {
    TEscenaPreseleccion escena;
    TFListaConceptosPreseleccionados dialogo("", "");
    EXPECT_FALSE(dialogo.MuestraModal(nullptr));
}

TEST(Preseleccion, LaVistaDiceSiSeAcepto) {
    struct TVista : TVistaPreseleccion {
        bool Acepta = false;
        TFListaConceptosPreseleccionados* Dialogo = nullptr;
        TComponente* Propietario = nullptr;
        [[nodiscard]] bool MuestraModal(TFListaConceptosPreseleccionados& dialogo,
                                        TComponente* propietario) override {
            Dialogo = &dialogo;
            Propietario = propietario;
            return Acepta;
        }
    } vista;
    TEscenaPreseleccion escena;
    const InstalaVistaPreseleccion instala(vista);
    TComponente anfitriona;
    for (const bool acepta : {true, false}) {
        vista.Acepta = acepta;
        TFListaConceptosPreseleccionados dialogo("", "");
        EXPECT_EQ(dialogo.MuestraModal(&anfitriona), acepta);
        EXPECT_EQ(vista.Dialogo, &dialogo);
        EXPECT_EQ(vista.Propietario, &anfitriona);
    }
}

}  // namespace
}  // namespace analizador

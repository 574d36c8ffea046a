#include "dialogos/ListaConceptosPreseleccionados.h"

#include <gtest/gtest.h>

namespace analizador {
namespace {

TROtorgante Persona(std::string nombre, std::string documento) {
    TROtorgante otorgante;
    otorgante.TipoDocumento = 1;
    otorgante.NumDocumento = std::move(documento);
    otorgante.Nombre = std::move(nombre);
    otorgante.Apellidos = "GIL";
    otorgante.Domicilio = "MAYOR";
    return otorgante;
}

void Anade(ListaTextos<TROtorgante>& lista, const TROtorgante& otorgante) {
    lista.Anade(otorgante.NombreOtorgante(), std::make_unique<TROtorgante>(otorgante));
}

template <class T>
std::vector<std::string> Textos(const ListaTextos<T>& lista) {
    std::vector<std::string> textos;
    for (const auto& linea : lista) textos.push_back(linea.Texto);
    return textos;
}

struct TCasoPropuesta {
    const char* Motivo;
    void (*Cambia)(TROtorgante&);
    bool SePropone;
};

TEST(SeProponeOtorgante, SoloCuandoTieneDocumentoYDomicilioYNoEstaEnElXml) {
    const TCasoPropuesta casos[] = {
        {"todo", [](TROtorgante&) {}, true},
        {"sin documento", [](TROtorgante& o) { o.NumDocumento.clear(); }, false},
        {"otro documento", [](TROtorgante& o) { o.TipoDocumento = 5; }, false},
        {"sin tipo de documento", [](TROtorgante& o) { o.TipoDocumento = 0; }, true},
        {"pasaporte", [](TROtorgante& o) { o.TipoDocumento = 4; }, true},
        {"sin domicilio", [](TROtorgante& o) { o.Domicilio.clear(); }, false},
        {"en el XML", [](TROtorgante& o) { o.EnXML = true; }, false},
    };
    for (const auto& caso : casos) {
        TROtorgante otorgante = Persona("ANA", "12345678Z");
        caso.Cambia(otorgante);
        EXPECT_EQ(SeProponeOtorgante(otorgante), caso.SePropone) << caso.Motivo;
    }
}

TEST(Preseleccion, LosPropuestosPasanALosValidosEnSuOrden) {
    ListaTextos<TROtorgante> lista;
    Anade(lista, Persona("ANA", "1"));
    Anade(lista, Persona("LUIS", ""));
    Anade(lista, Persona("EVA", "3"));
    lista.Anade("nadie", nullptr);
    TFListaConceptosPreseleccionados dialogo("", "");
    dialogo.CargaListaPosiblesOtorgantes(lista);
    EXPECT_EQ(Textos(dialogo.LBPosiblesOtorgantes),
              (std::vector<std::string>{"GIL, ANA - 1", "GIL, LUIS", "GIL, EVA - 3"}));
    dialogo.SeleccionaTodosLosOtorgantesValidos();
    EXPECT_EQ(Textos(dialogo.LBOtorgantes), (std::vector<std::string>{"GIL, ANA - 1", "GIL, EVA - 3"}));
    EXPECT_EQ(Textos(dialogo.LBPosiblesOtorgantes), (std::vector<std::string>{"GIL, LUIS"}));
}

TEST(Preseleccion, UnaFilaRepetidaNoSeAnadePeroDejaSuLista) {
    ListaTextos<TROtorgante> lista;
    Anade(lista, Persona("ANA", "1"));
    Anade(lista, Persona("ANA", "1"));
    TFListaConceptosPreseleccionados dialogo("", "");
    dialogo.CargaListaPosiblesOtorgantes(lista);
    dialogo.SeleccionaTodosLosOtorgantesValidos();
    EXPECT_EQ(dialogo.LBOtorgantes.Cuenta(), 1U);
    EXPECT_TRUE(dialogo.LBPosiblesOtorgantes.Vacia());
}

TEST(Preseleccion, LasFilasSonCopias) {
    ListaTextos<TROtorgante> lista;
    Anade(lista, Persona("ANA", "1"));
    TFListaConceptosPreseleccionados dialogo("", "");
    dialogo.CargaListaPosiblesOtorgantes(lista);
    dialogo.LBPosiblesOtorgantes[0].Objeto->Apellidos = "OTRA";
    EXPECT_EQ(lista[0].Objeto->Apellidos, "GIL");
}

TEST(Preseleccion, LoRecogidoNoLlevaLaMarcaDelXmlNiLoDemasDelConcepto) {
    TFListaConceptosPreseleccionados dialogo("", "");
    TROtorgante enXml = Persona("ANA", "1");
    enXml.EnXML = true;
    dialogo.LBOtorgantes.Anade(enXml.MuestraOtorgante(), std::make_unique<TROtorgante>(enXml));
    dialogo.LBConceptos.Anade("VENTA", std::make_unique<TRConcepto>(TRConcepto{7, "VENTA", "01", true}));

    ListaTextos<TROtorgante> otorgantes;
    dialogo.RecogeListaOtorgantesValidos(otorgantes);
    ASSERT_EQ(Textos(otorgantes), (std::vector<std::string>{"ANA GIL"}));
    TROtorgante esperado = enXml;
    esperado.EnXML = false;
    EXPECT_EQ(*otorgantes[0].Objeto, esperado);

    ListaTextos<TRConcepto> conceptos;
    dialogo.RecogeListaConceptosValidos(conceptos);
    ASSERT_EQ(Textos(conceptos), (std::vector<std::string>{"VENTA"}));
    EXPECT_EQ(*conceptos[0].Objeto, (TRConcepto{7, "VENTA", "", false}));
}

TEST(Preseleccion, SinVistaEsComoCancelar) {
    TFListaConceptosPreseleccionados dialogo("", "");
    EXPECT_FALSE(dialogo.MuestraModal(nullptr));
}

}  // namespace
}  // namespace analizador

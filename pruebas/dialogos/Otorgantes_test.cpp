// Parties moved between the lists, with the question about those in the stored XML; their details.

#include <gtest/gtest.h>

#include "dialogos/InformacionOtorgante.h"
#include "plataforma/Ansi.h"
#include "plataforma/Ruttb.h"
#include "pruebas/dialogos/EscenaPreseleccion.h"

namespace analizador {
namespace {

using TControl = TControlPreseleccion;

std::string PreguntaPor(std::string_view quien) {
    return std::string(quien).append(
        " se encuentra en el XML, No hace falta añadirlo\n¿Desea de todas formas añadirlo?"_ansi);
}

TEST(Otorgantes, LosQueEstanEnElXmlSePreguntanUnoAUno) {
    struct TCaso {
        TPosiciones Seleccion;
        std::vector<bool> Respuestas;
        TTextos Preguntas;  // for whom
        TTextos Quedan, Validos;
        std::optional<std::size_t> Actual;
    };
    const TCaso casos[] = {
        {{1}, {}, {}, {"ANA", "LUIS", "IGNACIO"}, {"EVA"}, 1},
        {{0}, {true}, {"ANA GIL"}, {"EVA", "LUIS", "IGNACIO"}, {"ANA"}, 0},
        {{0}, {false}, {"ANA GIL"}, {"ANA", "EVA", "LUIS", "IGNACIO"}, {}, std::nullopt},
        {{0, 1, 2, 3}, {false, true}, {"ANA GIL", "LUIS GIL"}, {"ANA"}, {"EVA", "LUIS", "IGNACIO"}, 0},
        {{0, 1, 2}, {true, false}, {"ANA GIL", "LUIS GIL"}, {"LUIS", "IGNACIO"}, {"ANA", "EVA"}, 0},
        {{0, 2},
         {false, false},
         {"ANA GIL", "LUIS GIL"},
         {"ANA", "EVA", "LUIS", "IGNACIO"},
         {},
         std::nullopt},
        {{}, {}, {}, {"ANA", "EVA", "LUIS", "IGNACIO"}, {}, std::nullopt},
    };
    const auto lineas = [](const TTextos& nombres) {
        TTextos textos;
        for (const auto& nombre : nombres) textos.push_back("GIL, " + nombre + " - " + nombre.substr(0, 1));
        return textos;
    };
    for (const auto& caso : casos) {
        TEscenaPreseleccion escena;
        escena.Mensajes.Respuestas = caso.Respuestas;
        const auto dialogo = escena.Crea({}, {PersonaEnXml("ANA", "A"), Persona("EVA", "E"),
                                              PersonaEnXml("LUIS", "L"), Persona("IGNACIO", "I")});
        dialogo->LBPosiblesOtorgantes.Selecciona(caso.Seleccion);
        dialogo->Pulsa(TControl::BMasOtor);
        std::vector<std::pair<std::string, std::string>> preguntas;
        for (const auto& quien : caso.Preguntas)
            preguntas.emplace_back(std::string(" ATENCIÓN:"_ansi), PreguntaPor(quien));
        EXPECT_EQ(escena.Mensajes.Preguntas, preguntas);
        EXPECT_EQ(Textos(dialogo->LBPosiblesOtorgantes), lineas(caso.Quedan));
        EXPECT_EQ(Textos(dialogo->LBOtorgantes), lineas(caso.Validos));
        EXPECT_EQ(dialogo->LBPosiblesOtorgantes.Seleccionadas(), TPosiciones{});
        EXPECT_EQ(dialogo->LBPosiblesOtorgantes.Actual(), caso.Actual);
    }
}

TEST(Otorgantes, LaPreguntaLlevaElNombreRecortado) {
    TEscenaPreseleccion escena;
    TROtorgante sociedad = PersonaEnXml("", "B1");
    sociedad.Apellidos = "BODEGAS RIO, S.L. ";
    const auto dialogo = escena.Crea({}, {sociedad});
    dialogo->LBPosiblesOtorgantes.SeleccionaTodo();
    dialogo->Pulsa(TControl::BMasOtor);
    ASSERT_EQ(escena.Mensajes.Preguntas.size(), 1U);
    EXPECT_EQ(escena.Mensajes.Preguntas[0].second, PreguntaPor("BODEGAS RIO, S.L."));
}

TEST(Otorgantes, QuitarNoPreguntaYVuelvenAlFinal) {
    TEscenaPreseleccion escena;
    escena.Mensajes.Respuestas = {true};
    const auto dialogo = escena.Crea({}, {PersonaEnXml("ANA", "1"), Persona("EVA", "2")});
    dialogo->LBPosiblesOtorgantes.Selecciona({0});
    dialogo->Pulsa(TControl::BMasOtor);
    dialogo->LBOtorgantes.SeleccionaTodo();
    dialogo->Pulsa(TControl::BMenosOtor);
    EXPECT_EQ(Textos(dialogo->LBPosiblesOtorgantes), (TTextos{"GIL, EVA - 2", "GIL, ANA - 1"}));
    EXPECT_TRUE(dialogo->LBPosiblesOtorgantes.Objeto(1)->EnXML);
    EXPECT_EQ(dialogo->LBOtorgantes.Cuenta(), 0U);
    EXPECT_EQ(escena.Mensajes.Preguntas.size(), 1U);
}

// Those with no text of their own make one line from the beginning, and a line that comes to read as another
// one does when it was edited is not added to it.
TEST(Otorgantes, UnoRepetidoDejaUnaSolaFila) {
    TEscenaPreseleccion escena;
    const auto dialogo = escena.Crea({}, {Persona("ANA", "1"), Persona("ANA", "1"), Persona("EVA", "2")});
    EXPECT_EQ(Textos(dialogo->LBPosiblesOtorgantes), (TTextos{"GIL, ANA - 1", "GIL, EVA - 2"}));
    dialogo->LBPosiblesOtorgantes.CambiaTexto(1, "GIL, ANA - 1");
    dialogo->LBPosiblesOtorgantes.Selecciona({0});
    dialogo->Pulsa(TControl::BMasOtor);
    dialogo->LBPosiblesOtorgantes.Selecciona({0});
    dialogo->Pulsa(TControl::BMasOtor);
    EXPECT_EQ(Textos(dialogo->LBOtorgantes), (TTextos{"GIL, ANA - 1"}));
    EXPECT_EQ(dialogo->LBOtorgantes.Objeto(0)->Nombre, "ANA");
    EXPECT_EQ(dialogo->LBPosiblesOtorgantes.Cuenta(), 0U);
}

TEST(Otorgantes, MuchosSeMuevenDeUnaVez) {
    TEscenaPreseleccion escena;
    constexpr std::size_t CUANTOS = 2000;
    std::vector<TROtorgante> muchos;
    for (std::size_t i = 0; i < CUANTOS; ++i) muchos.push_back(Persona("P" + std::to_string(i), "1"));
    const auto dialogo = escena.Crea({}, muchos);
    dialogo->SeleccionaTodosLosOtorgantesValidos();
    ASSERT_EQ(dialogo->LBOtorgantes.Cuenta(), CUANTOS);
    EXPECT_EQ(dialogo->LBOtorgantes.Lineas()[CUANTOS - 1].Texto, "GIL, P1999 - 1");
    dialogo->LBOtorgantes.SeleccionaTodo();
    dialogo->Pulsa(TControl::BMenosOtor);
    EXPECT_EQ(dialogo->LBPosiblesOtorgantes.Cuenta(), CUANTOS);
}

// ---- Details

// A clerk who gives the party another name, or leaves the dialog.
struct TEmpleadoDePrueba : TVistaInformacion {
    std::string Nombre;
    bool Acepta = true;
    TComponente* Propietario = nullptr;
    TTextos Vistos;
    bool LaTablaFalla = false;

    void MuestraModal(TFInformacionOtorgante& dialogo, TComponente* propietario) override {
        Propietario = propietario;
        Vistos.push_back(dialogo.Control(TControlDatos::ENombre).Texto);
        if (LaTablaFalla) throw ErrorTabla("MUNICIPI no se lee");
        dialogo.Escribe(TControlDatos::ENombre, Nombre);
        dialogo.Pulsa(Acepta ? TControlDatos::BBAceptar : TControlDatos::BBCancelar);
    }
};

class Detalles : public testing::Test {
  protected:
    TEscenaPreseleccion escena_;
    TEmpleadoDePrueba empleado_;
    InstalaVistaInformacion instala_{empleado_};
    std::unique_ptr<TFListaConceptosPreseleccionados> dialogo_ =
        escena_.Crea({}, {Persona("ANA", "1"), Persona("LUIS", "2"), Persona("EVA", "")});

    void SetUp() override { dialogo_->SeleccionaTodosLosOtorgantesValidos(); }
};

TEST_F(Detalles, AlAceptarLaFilaEsLaNuevaLinea) {
    empleado_.Nombre = "ROSA";
    dialogo_->LBOtorgantes.PonActual(1);
    dialogo_->LBOtorgantes.Selecciona({0});  // the current row counts, not the selected ones
    dialogo_->VerOtorgante(TControl::LBOtorgantes);
    EXPECT_EQ(empleado_.Vistos, (TTextos{"LUIS"}));
    EXPECT_EQ(Textos(dialogo_->LBOtorgantes), (TTextos{"GIL, ANA - 1", "GIL, ROSA - 2"}));
    EXPECT_EQ(dialogo_->LBOtorgantes.Objeto(1)->Nombre, "ROSA");
    EXPECT_EQ(dialogo_->LBOtorgantes.Actual(), 1U);
    EXPECT_EQ(dialogo_->LBOtorgantes.Seleccionadas(), (TPosiciones{0}));
    ListaTextos<TROtorgante> recogidos;
    dialogo_->RecogeListaOtorgantesValidos(recogidos);
    EXPECT_EQ(Textos(recogidos), (TTextos{"ANA GIL", "ROSA GIL"}));
}

TEST_F(Detalles, AlCancelarTodoQuedaIgual) {
    empleado_.Nombre = "ROSA";
    empleado_.Acepta = false;
    dialogo_->LBPosiblesOtorgantes.PonActual(0);
    dialogo_->VerOtorgante(TControl::LBPosiblesOtorgantes);
    EXPECT_EQ(empleado_.Vistos, (TTextos{"EVA"}));
    EXPECT_EQ(Textos(dialogo_->LBPosiblesOtorgantes), (TTextos{"GIL, EVA"}));
    EXPECT_EQ(dialogo_->LBPosiblesOtorgantes.Objeto(0)->Nombre, "EVA");
}

TEST_F(Detalles, SinFilaActualNoSeAbre) {
    dialogo_->LBOtorgantes.PonActual(std::nullopt);
    dialogo_->LBOtorgantes.SeleccionaTodo();
    dialogo_->Pulsa(TControl::BDetallesOtorgante);
    EXPECT_EQ(empleado_.Vistos, TTextos{});
}

TEST_F(Detalles, ElBotonEsDeLaUltimaListaDeOtorgantesConFoco) {
    empleado_.Acepta = false;
    dialogo_->LBOtorgantes.PonActual(0);
    dialogo_->LBPosiblesOtorgantes.PonActual(0);
    dialogo_->Pulsa(TControl::BDetallesOtorgante);  // at first the chosen one
    dialogo_->PonFoco(TControl::LBPosiblesOtorgantes);
    dialogo_->PonFoco(TControl::LBConceptos);
    dialogo_->Pulsa(TControl::BDetallesOtorgante);
    dialogo_->Pulsa(TControl::BDetallesOtorgante);
    dialogo_->PonFoco(TControl::LBOtorgantes);
    dialogo_->Pulsa(TControl::BDetallesOtorgante);
    EXPECT_EQ(empleado_.Vistos, (TTextos{"ANA", "EVA", "EVA", "ANA"}));
}

TEST_F(Detalles, UnaTablaQueFallaSeAvisaYTodoQuedaIgual) {
    dialogo_->LBOtorgantes.PonActual(0);
    empleado_.LaTablaFalla = true;
    dialogo_->VerOtorgante(TControl::LBOtorgantes);
    empleado_.LaTablaFalla = false;
    escena_.Tablas.Quita("PROVIN.DBF");  // needed before anything is shown
    dialogo_->VerOtorgante(TControl::LBOtorgantes);
    EXPECT_EQ(empleado_.Vistos, (TTextos{"ANA"}));
    const std::string titulo(" ATENCIÓN:"_ansi);
    EXPECT_EQ(escena_.Mensajes.Mostrados,
              (std::vector<std::pair<std::string, std::string>>{{titulo, "MUNICIPI no se lee"},
                                                                {titulo, "La tabla PROVIN.DBF no existe"}}));
    EXPECT_EQ(Textos(dialogo_->LBOtorgantes), (TTextos{"GIL, ANA - 1", "GIL, LUIS - 2"}));
    EXPECT_EQ(*dialogo_->LBOtorgantes.Objeto(0), Persona("ANA", "1"));
}

TEST_F(Detalles, ElPropietarioEsElDelDialogo) {
    struct TVista : TVistaPreseleccion {
        [[nodiscard]] bool MuestraModal(TFListaConceptosPreseleccionados& dialogo,
                                        TComponente* /*propietario*/) override {
            dialogo.LBOtorgantes.PonActual(0);
            dialogo.VerOtorgante(TControl::LBOtorgantes);
            return true;
        }
    } vista;
    const InstalaVistaPreseleccion instala(vista);
    TComponente anfitriona;
    EXPECT_TRUE(dialogo_->MuestraModal(&anfitriona));
    EXPECT_EQ(empleado_.Propietario, &anfitriona);
}

}  // namespace
}  // namespace analizador

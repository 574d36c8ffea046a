// The session as a whole: stages, messages, failures, review, repeated and simultaneous analyses.

#include <gtest/gtest.h>

#include <thread>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Ansi.h"
#include "plataforma/Ruttb.h"
#include "pruebas/analizador/Escena.h"
#include "pruebas/comun/Literales.h"

namespace analizador {
namespace {

const std::vector<std::string_view> COMPRAVENTA = {
    "NUMERO DOS MIL CINCO.",
    "ESCRITURA DE COMPRAVENTA.",
    "En Madrid, a dos de marzo de dos mil doce.",
    "Ante mi, ALFONSO REQUEJO, Notario de Madrid,",
    "COMPARECEN",
    "DON JUAN PEREZ GIL, mayor de edad, vecino de MADRID, con domicilio en la calle Mayor, 5, con D.N.I. "
    "12345678Z.",
    "DON LUIS SANZ RUBIO, mayor de edad, vecino de MADRID, con domicilio en la calle Prado, 7, con D.N.I. "
    "87654321X.",
    "INTERVIENEN en su propio nombre.",
    "EXPONEN",
    "Que es suya la finca.",
    "DON JUAN PEREZ GIL vende a DON LUIS SANZ RUBIO, por 1.000,50 EUROS y 20 EUROS, la finca.",
};

TEST(Sesion, DiceEnQueEtapaVaYCierraLaVentanaAntesDelDialogo) {
    TEscena escena(COMPRAVENTA);
    escena.Revisor.Acepta = true;
    EXPECT_TRUE(escena.Sesion.Analiza(true));
    const TDiario esperado = {
        "abre Analizando el documento, espere un momento.",
        "dice Analizando la cabecera del documento, espere un momento",
        "marcador CABECERA",
        "dice Extrayendo cuantias del documento, espere un momento",
        "dice Analizando comparecientes, espere un momento",
        "marcador COMPARECIENTES",
        "dice Analizando intervinientes, espere un momento",
        "marcador INTERVINIENTES",
        "dice Buscando otorgantes trasmitentes/adquirentes, espere un momento",
        "marcador TRANSMISION",
        "dice Buscando prestatario, espere un momento",
        "dice Buscando otorgantes testamentarios, espere un momento",
        std::string("dice Buscando detalles de préstamos, espere un momento"_a),
        "dice Buscando fincas introducidas, espere un momento",
        "dice Eliminando otorgantes duplicados, espere un momento",
        "dice Generando informe, espere un momento",
        "cierra",
        "dialogo",
    };
    EXPECT_EQ(escena.Diario, esperado);
}

TEST(Sesion, LasVentanasSonDelPropietario) {
    TEscena escena(COMPRAVENTA);
    class TVentanaAnfitriona : public TComponente {
    } anfitriona;
    TClassAnalizadorAbierto sesion(&anfitriona, &escena.Aplicacion);
    (void)sesion.Analiza(true);
    EXPECT_EQ(escena.Pantalla.Propietario, &anfitriona);
    EXPECT_EQ(escena.Revisor.Propietario, &anfitriona);
}

TEST(Sesion, LeeLaCabeceraLasCuantiasYLosOtorgantes) {
    TEscena escena(COMPRAVENTA, {{"EMPLEADO", "MGR"}});
    (void)escena.Sesion.Analiza(true);
    const auto& sesion = escena.Sesion;
    EXPECT_EQ(sesion.Cabecera.NumeroProtocolo, 2005);
    EXPECT_EQ(sesion.Cabecera.Fecha, "02/03/2012");
    EXPECT_EQ(sesion.Cabecera.Lugar, 1);
    EXPECT_EQ(sesion.Cabecera.Abreviatura, "MAD");
    EXPECT_EQ(sesion.Cabecera.Notario, "ALFONSO REQUEJO");
    ASSERT_EQ(sesion.Cabecera.Conceptos.Cuenta(), 1U);
    EXPECT_EQ(*sesion.Cabecera.Conceptos[0].Objeto, (TRConcepto{1, "COMPRAVENTA", "01001", false}));
    EXPECT_EQ(sesion.Cuantias, (std::vector<std::string>{"1000,50", "20"}));
    EXPECT_EQ(sesion.Empleado, "MGR");
    ASSERT_EQ(sesion.Otorgantes.Lista.Cuenta(), 2U);
    EXPECT_EQ(sesion.Otorgantes.Lista[0].Texto, "JUAN PEREZ GIL");
    EXPECT_EQ(sesion.Otorgantes.Lista[0].Objeto->IntervencionINTI, 2);
    EXPECT_EQ(sesion.Otorgantes.Lista[1].Texto, "LUIS SANZ RUBIO");
    EXPECT_EQ(sesion.Otorgantes.Lista[1].Objeto->IntervencionINTI, 1);
}

// Every fact's origin holds the words that it came from, in the paragraph's plain text.
TEST(Sesion, GuardaDondeLeyoCadaDato) {
    TEscena escena(COMPRAVENTA);
    (void)escena.Sesion.Analiza(true);
    const auto texto = [&](const TOrigen& origen) {
        const auto parrafo = COMPRAVENTA.at(static_cast<std::size_t>(origen.Parrafo) - 1);
        return std::string(parrafo.substr(origen.Donde.Primera, origen.Donde.Longitud));
    };
    const auto& sesion = escena.Sesion;
    EXPECT_EQ(texto(*sesion.Cabecera.Origen.NumeroProtocolo), "DOS MIL CINCO");
    EXPECT_EQ(texto(sesion.Cabecera.Origen.Conceptos.at(0)), "COMPRAVENTA");
    EXPECT_EQ(texto(*sesion.Cabecera.Origen.Lugar), "Madrid");
    EXPECT_EQ(texto(*sesion.Cabecera.Origen.Fecha), "dos de marzo de dos mil doce");
    EXPECT_EQ(texto(*sesion.Cabecera.Origen.Notario), "ALFONSO REQUEJO");
    EXPECT_FALSE(sesion.Cabecera.Origen.NotarioSustituto);
    ASSERT_EQ(sesion.OrigenCuantias.size(), 2U);
    EXPECT_EQ(texto(sesion.OrigenCuantias[0]), "1.000,50");
    EXPECT_EQ(texto(sesion.OrigenCuantias[1]), "20");
    ASSERT_EQ(sesion.Otorgantes.Origenes.size(), 2U);
    const auto& origenes = sesion.Otorgantes.Origenes[1];
    EXPECT_EQ(texto(origenes.at("NumDocumento")), "87654321X");
    EXPECT_EQ(texto(origenes.at("Domicilio")), "Prado");
    EXPECT_EQ(texto(origenes.at("IntervencionINTI")), "LUIS SANZ RUBIO");
}

TEST(Sesion, DejaLaSeleccionAlPrincipioYLosMarcadoresEnElDocumento) {
    TEscena escena(COMPRAVENTA);
    (void)escena.Sesion.Analiza(true);
    EXPECT_EQ(escena.Documento().GetSeleccion().GetIntervalo(), (TIntervalo{0, 0}));
    std::vector<std::string> nombres;
    for (const auto& marcador : escena.Documento().GetMarcadores()) nombres.push_back(marcador.Nombre);
    EXPECT_EQ(nombres,
              (std::vector<std::string>{"CABECERA", "COMPARECIENTES", "INTERVINIENTES", "TRANSMISION"}));
}

TEST(Sesion, SoloPreguntaPorElNotarioCuandoHayRevision) {
    for (const bool sinRevision : {true, false}) {
        TEscena escena(COMPRAVENTA);
        escena.Configuracion.Notarios = {"OTRO NOTARIO", "ALFONSO REQUEJO"};
        escena.Configuracion.NotarioPorDefecto = "1";
        (void)escena.Sesion.Analiza(sinRevision);
        const auto veces = std::count(escena.Diario.begin(), escena.Diario.end(), "notario");
        EXPECT_EQ(veces, sinRevision ? 0 : 1);
        EXPECT_EQ(escena.Sesion.Cabecera.Notario, "ALFONSO REQUEJO");
    }
}

TEST(Sesion, ElNotarioSePreguntaDespuesDeLeerLaCabecera) {
    TEscena escena(COMPRAVENTA);
    escena.Configuracion.Notarios = {"OTRO NOTARIO"};
    (void)escena.Sesion.Analiza(false);
    const auto pregunta = std::find(escena.Diario.begin(), escena.Diario.end(), "notario");
    ASSERT_NE(pregunta, escena.Diario.end());
    EXPECT_EQ(*(pregunta - 1), "marcador CABECERA");
    EXPECT_EQ(*(pregunta + 1), "dice Extrayendo cuantias del documento, espere un momento");
}

// ---- The review

TEST(Sesion, AlCancelarQuedanLosOtorgantesSinDuplicadosYNingunConcepto) {
    TEscena escena(COMPRAVENTA);
    EXPECT_FALSE(escena.Sesion.Analiza(true));
    EXPECT_FALSE(escena.Sesion.Aceptado);
    EXPECT_TRUE(escena.Sesion.ConceptosValidos.Vacia());
    EXPECT_EQ(escena.Sesion.Otorgantes.Lista.Cuenta(), 2U);
}

TEST(Sesion, AlAceptarLoElegidoSustituyeALoEncontrado) {
    TEscena escena(COMPRAVENTA, {{"XML", "... 12345678Z ..."}});
    escena.Revisor.Acepta = true;
    EXPECT_TRUE(escena.Sesion.Analiza(true));
    EXPECT_TRUE(escena.Sesion.Aceptado);
    ASSERT_EQ(escena.Sesion.ConceptosValidos.Cuenta(), 1U);
    // Accepted concepts carry their name and number alone.
    EXPECT_EQ(*escena.Sesion.ConceptosValidos[0].Objeto, (TRConcepto{1, "COMPRAVENTA", "", false}));
    ASSERT_EQ(escena.Sesion.Otorgantes.Lista.Cuenta(), 1U);
    EXPECT_EQ(escena.Sesion.Otorgantes.Lista[0].Texto, "LUIS SANZ RUBIO");
    EXPECT_EQ(escena.Sesion.Otorgantes.Origenes.size(), 1U);
    EXPECT_TRUE(escena.Sesion.Otorgantes.Origenes[0].contains("NumDocumento"));
    EXPECT_EQ(escena.Sesion.OtorgantesEncontrados.Lista.Cuenta(), 2U);
}

TEST(Sesion, ElXmlMarcaALosOtorgantesCuyoDocumentoContiene) {
    TEscena escena(COMPRAVENTA, {{"XML", "<doc>12345678Z</doc>"}});
    (void)escena.Sesion.Analiza(true);
    EXPECT_TRUE(escena.Sesion.Otorgantes.Lista[0].Objeto->EnXML);
    EXPECT_FALSE(escena.Sesion.Otorgantes.Lista[1].Objeto->EnXML);
    EXPECT_EQ(escena.Revisor.Xml, "<doc>12345678Z</doc>");
    EXPECT_EQ(escena.Revisor.Informe, escena.Sesion.Pizarra);
    EXPECT_EQ(escena.Revisor.Propuestos, (std::vector<std::string>{"SANZ RUBIO, LUIS - 87654321X"}));
    EXPECT_EQ(escena.Revisor.NoPropuestos, (std::vector<std::string>{"PEREZ GIL, JUAN - 12345678Z"}));
}

TEST(Sesion, SinVariablesNoHayEmpleadoNiMarcas) {
    TEscena escena(COMPRAVENTA);
    (void)escena.Sesion.Analiza(true);
    EXPECT_EQ(escena.Sesion.Empleado, "");
    EXPECT_FALSE(escena.Sesion.Otorgantes.Lista[0].Objeto->EnXML);
}

// ---- What runs when

TEST(Sesion, SinComparecientesNoHayIntervinientesNiTestamento) {
    TEscena escena(
        {"TESTAMENTO ABIERTO", "COMPARECE", "nadie", "INTERVIENE", "EXPONE", "nacido en Madrid, Madrid."});
    (void)escena.Sesion.Analiza(true);
    EXPECT_TRUE(escena.Sesion.HayAlgunTipoTestamento());
    EXPECT_TRUE(escena.Sesion.OtorgantesEncontrados.Lista.Vacia());
    EXPECT_EQ(std::count(escena.Diario.begin(), escena.Diario.end(), "marcador COMPARECIENTES"), 1);
    EXPECT_EQ(std::count(escena.Diario.begin(), escena.Diario.end(), "marcador INTERVINIENTES"), 0);
    EXPECT_EQ(std::count(escena.Diario.begin(), escena.Diario.end(), "marcador EXPONEN"), 0);
}

TEST(Sesion, ElTestamentoDaSusDatosAlPrimerOtorgante) {
    TEscena escena(
        {"TESTAMENTO ABIERTO", "COMPARECE",
         "DON JUAN PEREZ GIL, vecino de MADRID, con domicilio en la calle Mayor, 5, con D.N.I. 12345678Z.",
         "DON LUIS SANZ RUBIO, vecino de MADRID, con domicilio en la calle Mayor, 5, con D.N.I. 87654321X.",
         "EXPONE",
         "Que es nacido en Madrid, el dia 2 de marzo de 1940, hijo de DON PEDRO PEREZ y de DON LUIS GIL."});
    (void)escena.Sesion.Analiza(true);
    ASSERT_EQ(escena.Sesion.Otorgantes.Lista.Cuenta(), 2U);
    const TROtorgante& testador = *escena.Sesion.Otorgantes.Lista[0].Objeto;
    EXPECT_EQ(testador.IntervencionINTI, 12);
    EXPECT_EQ(testador.LugarNacimiento, "MADRID");
    EXPECT_EQ(testador.FechaNacimiento,
              (TFecha{std::chrono::year(1940), std::chrono::March, std::chrono::day(2)}));
    EXPECT_EQ(escena.Sesion.Otorgantes.Lista[1].Objeto->IntervencionINTI, 99);
    const TOrigen& lugar = escena.Sesion.Otorgantes.Origenes[0].at("LugarNacimiento");
    EXPECT_EQ(lugar, (TOrigen{6, {17, 6}}));
}

TEST(Sesion, ElPrestamoSeLeeSoloCuandoUnConceptoLoEs) {
    for (const bool prestamo : {true, false}) {
        TEscena escena({prestamo ? "PRESTAMO HIPOTECARIO" : "COMPRAVENTA", "COMPARECEN", "EXPONEN",
                        "El plazo es de 360 meses, al 3,5 por ciento.", "Se aplica el Euribor."});
        (void)escena.Sesion.Analiza(true);
        const auto& sesion = escena.Sesion;
        EXPECT_EQ(sesion.HayAlgunTipoPrestamo(), prestamo);
        EXPECT_EQ(sesion.Operacion.Plazos,
                  prestamo ? std::vector<std::string>{"360"} : std::vector<std::string>{});
        EXPECT_EQ(sesion.Operacion.TAEs,
                  prestamo ? std::vector<std::string>{"3,5"} : std::vector<std::string>{});
        EXPECT_EQ(sesion.Operacion.TipoInteres, prestamo ? 2 : 0);
        if (!prestamo) continue;
        EXPECT_EQ(sesion.OrigenOperacion.Plazos, (std::vector<TOrigen>{{4, {15, 3}}}));
        EXPECT_EQ(sesion.OrigenOperacion.TAEs, (std::vector<TOrigen>{{4, {29, 3}}}));
        EXPECT_EQ(sesion.OrigenOperacion.TipoInteres, (TOrigen{5, {13, 7}}));
    }
}

TEST(Sesion, LasFincasSonLosMarcadoresQueLasNombran) {
    TEscena escena({"uno", "dos"}, {},
                   {{"XFINCA_1", {0, 1}},
                    {"FINCA_1", {0, 1}},
                    {"FINCA_12_B", {0, 1}},
                    {"OTRO", {0, 1}},
                    {"finca_9", {0, 1}}});
    (void)escena.Sesion.Analiza(true);
    EXPECT_EQ(escena.Sesion.Fincas, (std::vector<std::string>{"1", "12_B"}));
}

TEST(Sesion, UnRepresentantePasaASerlo) {
    TEscena escena(
        {"COMPRAVENTA", "COMPARECEN",
         "DON JUAN PEREZ GIL, vecino de MADRID, con domicilio en la calle Mayor, 5, con D.N.I. 12345678Z.",
         "INTERVIENEN",
         "a) DON JUAN PEREZ GIL, en representacion de \"BODEGAS RIO, S.L.\", con CIF B12345674.", "EXPONEN",
         "Nada."});
    (void)escena.Sesion.Analiza(true);
    ASSERT_EQ(escena.Sesion.Otorgantes.Lista.Cuenta(), 2U);
    EXPECT_EQ(escena.Sesion.Otorgantes.Lista[0].Objeto->IntervencionVRK, 1);
    EXPECT_EQ(escena.Sesion.Otorgantes.Lista[0].Objeto->IntervencionINTI, 16);
    EXPECT_EQ(escena.Sesion.Otorgantes.Origenes[0].at("IntervencionINTI").Parrafo, 5);
    EXPECT_EQ(escena.Sesion.Otorgantes.Lista[1].Texto, "BODEGAS RIO, S.L.");
    EXPECT_EQ(escena.Sesion.Otorgantes.Lista[1].Objeto->IntervencionVRK, 5);
}

TEST(Sesion, ElUltimoParrafoDeIntervinientesTambienDaConceptos) {
    TEscena escena(
        {"PRESTAMO HIPOTECARIO", "COMPARECEN",
         "DON JUAN PEREZ GIL, vecino de MADRID, con domicilio en la calle Mayor, 5, con D.N.I. 12345678Z.",
         "INTERVIENEN", "Un TESTAMENTO que no cuenta.", "Otorgan esta COMPRAVENTA y", "EXPONEN", "Nada."});
    (void)escena.Sesion.Analiza(true);
    std::vector<std::string> conceptos;
    for (const auto& linea : escena.Sesion.Cabecera.Conceptos) conceptos.push_back(linea.Texto);
    EXPECT_EQ(conceptos, (std::vector<std::string>{"PRESTAMO HIPOTECARIO", "COMPRAVENTA"}));
}

TEST(Sesion, LosExpositivosNoFormanParteDelAnalisisPeroPuedenRecorrerse) {
    TEscena escena({"COMPARECEN", "EXPONEN", "DON JUAN PEREZ GIL, con D.N.I. 12345678Z, y nadie mas."});
    (void)escena.Sesion.Analiza(true);
    EXPECT_TRUE(escena.Sesion.OtorgantesEncontrados.Lista.Vacia());
    escena.Sesion.AnalizaExponen();
    ASSERT_EQ(escena.Sesion.OtorgantesEncontrados.Lista.Cuenta(), 1U);
    EXPECT_EQ(escena.Sesion.OtorgantesEncontrados.Lista[0].Texto, "JUAN PEREZ GIL");
}

// ---- Failures

TEST(Sesion, SinProcesadorDeTextosNoHayAnalisis) {
    TClassAnalizadorAbierto sesion(nullptr, nullptr);
    EXPECT_EQ(sesion.GetDocumento(), nullptr);
    EXPECT_THROW((void)sesion.Analiza(true), ErrorWord);
    TAplicacionMemoria sinDocumento(nullptr);
    TClassAnalizadorAbierto otra(nullptr, &sinDocumento);
    EXPECT_THROW((void)otra.Analiza(true), ErrorWord);
}

// Whatever operation of the word processor fails: one error comes out, the window is closed, no dialog shows,
// the analysis is not accepted, and the next one works.
TEST(Sesion, CualquierFalloCierraLaVentanaYNoMuestraElDialogo) {
    TEscena entera(COMPRAVENTA);
    entera.Documento().FallaEnLaOperacion(0);
    (void)entera.Sesion.Analiza(true);
    const int operaciones =
        entera.Documento().Operaciones() - 1;  // the last one is the review's reading of the XML
    ASSERT_GT(operaciones, 30);

    TEscena escena(COMPRAVENTA);
    escena.Revisor.Acepta = true;
    for (int n = 1; n <= operaciones; ++n) {
        escena.Diario.clear();
        escena.Documento().FallaEnLaOperacion(n);
        EXPECT_THROW((void)escena.Sesion.Analiza(true), ErrorWord) << "operation " << n;
        ASSERT_FALSE(escena.Diario.empty());
        EXPECT_EQ(escena.Diario.back(), "cierra") << "operation " << n;
        EXPECT_EQ(std::count(escena.Diario.begin(), escena.Diario.end(), "cierra"), 1);
        EXPECT_FALSE(escena.Sesion.Aceptado) << "operation " << n;
    }
    escena.Documento().FallaEnLaOperacion(0);
    EXPECT_TRUE(escena.Sesion.Analiza(true));
    EXPECT_EQ(escena.Sesion.Pizarra, entera.Sesion.Pizarra);
}

TEST(Sesion, AlFallarQuedaLoReunidoHastaEntonces) {
    TEscena escena(COMPRAVENTA);
    escena.Tablas.Quita("TIPO_INT.DBF");  // asked for by the report, the last stage
    EXPECT_THROW((void)escena.Sesion.Analiza(true), ErrorTabla);
    EXPECT_EQ(escena.Sesion.Cabecera.NumeroProtocolo, 2005);
    EXPECT_EQ(escena.Sesion.Otorgantes.Lista.Cuenta(), 2U);
    EXPECT_EQ(escena.Diario.back(), "cierra");
}

TEST(Sesion, UnFalloDespuesDeAceptarDejaDeEstarAceptado) {
    TEscena escena(COMPRAVENTA);
    escena.Revisor.Acepta = true;
    EXPECT_TRUE(escena.Sesion.Analiza(true));
    escena.Documento().FallaEn("NuevoMarcador");
    EXPECT_THROW((void)escena.Sesion.Analiza(true), ErrorWord);
    EXPECT_FALSE(escena.Sesion.Aceptado);
}

TEST(Sesion, SinVocabularioElAnalisisTerminaVacio) {
    TEscena escena(COMPRAVENTA);
    escena.Vocabulario.Quita(TIdioma::Castellano);
    EXPECT_FALSE(escena.Sesion.Analiza(true));
    EXPECT_EQ(escena.Sesion.Cabecera.NumeroProtocolo, 0);
    EXPECT_EQ(escena.Sesion.Cabecera.Notario, "");
    EXPECT_TRUE(escena.Sesion.Otorgantes.Lista.Vacia());
    EXPECT_TRUE(escena.Sesion.Cuantias.empty());
}

// ---- Again, and at the same time

std::string Resumen(const TClassAnalizadorAbierto& sesion) {
    std::string resumen = sesion.Pizarra;
    for (const auto& cuantia : sesion.Cuantias) resumen += cuantia + "|";
    for (const auto& finca : sesion.Fincas) resumen += finca + "|";
    return resumen;
}

TEST(Sesion, DosAnalisisSeguidosDanLoMismo) {
    TEscena escena(COMPRAVENTA, {{"EMPLEADO", "MGR"}}, {{"FINCA_7", {0, 3}}});
    (void)escena.Sesion.Analiza(true);
    const std::string primero = Resumen(escena.Sesion);
    EXPECT_NE(primero.find("COMPRAVENTA"), std::string::npos);
    (void)escena.Sesion.Analiza(true);
    EXPECT_EQ(Resumen(escena.Sesion), primero);
    EXPECT_EQ(escena.Sesion.Cabecera.Conceptos.Cuenta(), 1U);
    EXPECT_EQ(escena.Sesion.OrigenCuantias.size(), escena.Sesion.Cuantias.size());
}

TEST(Sesion, DosEscriturasDeDistintoIdiomaALaVezNoSeMolestan) {
    TEscena escena(COMPRAVENTA);
    const TContenidoDocumento castellana{Parrafos(COMPRAVENTA), {}, {}};
    const TContenidoDocumento catalana{
        Parrafos({"NUMERO DOS MIL TRES", "A Vic, el dotze de gener de dos mil dos.",
                  "Davant meu, JOAN SERRA, notari,", "COMPAREIXEN", "EXPOSEN", "preu de 30 EUROS"}),
        {},
        {}};
    const auto analiza = [](const TContenidoDocumento& contenido) {
        TAplicacionMemoria aplicacion(std::make_unique<TDocumentoMemoria>(contenido));
        TClassAnalizadorAbierto sesion(nullptr, &aplicacion);
        (void)sesion.Analiza(true);
        return Resumen(sesion);
    };
    // The scene's screen and review belong to one thread.
    class TPantallaMuda : public TPantalla {
        [[nodiscard]] std::unique_ptr<TVentanaMensaje> Abre(std::string_view /*t*/,
                                                            TComponente* /*p*/) override {
            return nullptr;
        }
    } muda;
    class TRevisorMudo : public TVistaPreseleccion {
        [[nodiscard]] bool MuestraModal(TFListaConceptosPreseleccionados& /*d*/,
                                        TComponente* /*p*/) override {
            return false;
        }
    } revisor;
    const InstalaPantalla pantalla(muda);
    const InstalaVistaPreseleccion vista(revisor);
    const std::string solaCastellana = analiza(castellana);
    const std::string solaCatalana = analiza(catalana);
    EXPECT_TRUE(solaCastellana.starts_with("ESCRITURA EN CASTELLANO\r\nNUMERO       : 2005\r\n"));
    EXPECT_TRUE(solaCatalana.starts_with(
        "ESCRITURA EN CATALAN\r\nNUMERO       : 2003\r\nFECHA        : 12/01/2002\r\n"))
        << solaCatalana;

    constexpr int VECES = 20;
    int distintas[2] = {0, 0};
    const auto repite = [&](const TContenidoDocumento& contenido, const std::string& esperado, int& cuenta) {
        for (int i = 0; i < VECES; ++i) cuenta += analiza(contenido) == esperado ? 0 : 1;
    };
    std::thread uno([&] { repite(castellana, solaCastellana, distintas[0]); });
    std::thread otro([&] { repite(catalana, solaCatalana, distintas[1]); });
    uno.join();
    otro.join();
    EXPECT_EQ(distintas[0], 0);
    EXPECT_EQ(distintas[1], 0);
}

}  // namespace
}  // namespace analizador

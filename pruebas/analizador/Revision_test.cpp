// The review at the end of an analysis: what the session holds, in full, after it was accepted, cancelled or
// failed.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "plataforma/Mensaje.h"
#include "plataforma/Ruttb.h"
#include "pruebas/analizador/Escena.h"
#include "pruebas/comun/Literales.h"

namespace analizador {
namespace {

using TControl = TControlPreseleccion;

const std::vector<std::string_view> PRESTAMO = {
    "NUMERO DOS MIL CINCO.",
    "PRESTAMO HIPOTECARIO Y COMPRAVENTA.",
    "En Madrid, a dos de marzo de dos mil doce.",
    "Ante mi, ALFONSO REQUEJO, Notario de Madrid,",
    "COMPARECEN",
    "DON JUAN PEREZ GIL, vecino de MADRID, con domicilio en la calle Mayor, 5, con D.N.I. 12345678Z.",
    "DON LUIS SANZ RUBIO, vecino de MADRID, con domicilio en la calle Prado, 7, con D.N.I. 87654321X.",
    "DON ANA RUIZ MORA, con D.N.I. 11111111H.",
    "INTERVIENEN en su propio nombre.",
    "EXPONEN",
    "El plazo es de 360 meses, al 3,5 por ciento, y por 1.000,50 EUROS. Se aplica el Euribor.",
};

const std::vector<TVariable> VARIABLES = {{"EMPLEADO", "MGR"}, {"XML", "<a>12345678Z</a>"}};
const std::vector<TMarcador> MARCADORES = {{"FINCA_7", {0, 3}}};

// Everything that a host reads of a session.
struct TFoto {
    std::vector<std::pair<std::string, TROtorgante>> Otorgantes, Encontrados;
    std::vector<TOrigenes> Origenes, OrigenesEncontrados;
    std::vector<std::pair<std::string, TRConcepto>> Conceptos, Validos;
    std::vector<std::string> Textos;  // report, clerk, amounts, parcels, heading, terms and rates
    std::vector<int> Numeros;
    std::vector<TOrigen> OrigenCuantias;
    std::vector<std::optional<TMarcador>> Marcadores;
    bool operator==(const TFoto&) const = default;
};

template <class T>
std::vector<std::pair<std::string, T>> Lineas(const ListaTextos<T>& lista) {
    std::vector<std::pair<std::string, T>> lineas;
    for (const auto& linea : lista) lineas.emplace_back(linea.Texto, *linea.Objeto);
    return lineas;
}

TFoto Foto(const TClassAnalizadorAbierto& s) {
    TFoto foto{Lineas(s.Otorgantes.Lista),
               Lineas(s.OtorgantesEncontrados.Lista),
               s.Otorgantes.Origenes,
               s.OtorgantesEncontrados.Origenes,
               Lineas(s.Cabecera.Conceptos),
               Lineas(s.ConceptosValidos),
               {s.Pizarra, s.Empleado, s.Cabecera.Abreviatura, s.Cabecera.Fecha, s.Cabecera.Notario,
                s.Cabecera.NotarioSustituto},
               {s.FinDocumento, s.Cabecera.NumeroProtocolo, s.Cabecera.Lugar, s.Operacion.TipoInteres,
                s.FinCabecera, s.InicioComparecientes, s.FinComparecientes, s.InicioIntervinientes,
                s.FinIntervinientes, s.InicioExponen, s.FinExponen},
               s.OrigenCuantias,
               {s.MarcadorCabecera, s.MarcadorComparecientes, s.MarcadorIntervinientes, s.MarcadorExponen,
                s.MarcadorTransmision, s.MarcadorParteDeudora}};
    for (const auto* const lista : {&s.Cuantias, &s.Fincas, &s.Operacion.Plazos, &s.Operacion.TAEs})
        foto.Textos.insert(foto.Textos.end(), lista->begin(), lista->end());
    return foto;
}

// What an analysis holds when nobody reviews it; before any other scene is made.
TFoto SinRevisar() {
    TEscena escena(PRESTAMO, VARIABLES, MARCADORES);
    escena.QuitaRevisor();
    EXPECT_FALSE(escena.Sesion.Analiza(true));
    return Foto(escena.Sesion);
}

TEST(Revision, SinVistaQuedaTodoLoEncontradoConSusMarcas) {
    const TFoto foto = SinRevisar();
    ASSERT_EQ(foto.Otorgantes.size(), 3U);
    EXPECT_EQ(foto.Otorgantes[0].first, "JUAN PEREZ GIL");
    EXPECT_TRUE(foto.Otorgantes[0].second.EnXML);
    EXPECT_FALSE(foto.Otorgantes[1].second.EnXML);
    EXPECT_EQ(foto.Conceptos.size(), 2U);
    EXPECT_TRUE(foto.Validos.empty());
    EXPECT_EQ(foto.Textos.back(), "3,5");
}

// Without anybody to review, the table of the grid is not even opened.
TEST(Revision, SinVistaNoSeHaceElDialogo) {
    TEscena escena({"COMPARECEN", "EXPONEN"});
    escena.QuitaRevisor();
    ASSERT_FALSE(escena.Sesion.Analiza(true));
    escena.Tablas.Quita("TIPOS.DBF");
    EXPECT_FALSE(escena.Sesion.ListaConceptosPreseleccionados());
}

// Whatever was done in the dialog.
TEST(Revision, AlCancelarQuedaTodoComoSeEncontro) {
    const TFoto esperada = SinRevisar();
    TEscena escena(PRESTAMO, VARIABLES, MARCADORES);
    escena.Revisor.Hace = [](TFListaConceptosPreseleccionados& dialogo) {
        dialogo.LBPosiblesConceptos.SeleccionaTodo();
        dialogo.Pulsa(TControl::BMas);
        dialogo.LBOtorgantes.Objeto(0)->Apellidos = "OTRO";
        dialogo.LBOtorgantes.SeleccionaTodo();
        dialogo.Pulsa(TControl::BMenosOtor);
        dialogo.Pulsa(TControl::BCancelar);
    };
    EXPECT_FALSE(escena.Sesion.Analiza(true));
    EXPECT_FALSE(escena.Sesion.Aceptado);
    EXPECT_EQ(Foto(escena.Sesion), esperada);
}

TEST(Revision, AlAceptarSoloCambiaLoElegido) {
    TFoto esperada = SinRevisar();
    TEscena escena(PRESTAMO, VARIABLES, MARCADORES);
    escena.Revisor.Acepta = true;
    escena.Revisor.Hace = [](TFListaConceptosPreseleccionados& dialogo) {
        dialogo.dbgTipos.Selecciona({2});  // TESTAMENTO ABIERTO
        dialogo.Pulsa(TControl::BMasBD);
        dialogo.LBPosiblesOtorgantes.Selecciona({1});  // without an address: not proposed
        dialogo.Pulsa(TControl::BMasOtor);
    };
    EXPECT_TRUE(escena.Sesion.Analiza(true));
    EXPECT_TRUE(escena.Sesion.Aceptado);
    EXPECT_EQ(escena.Revisor.Propuestos, (std::vector<std::string>{"SANZ RUBIO, LUIS - 87654321X"}));

    esperada.Otorgantes.erase(esperada.Otorgantes.begin());
    esperada.Origenes.erase(esperada.Origenes.begin());
    esperada.Validos = {{"TESTAMENTO ABIERTO", {2, "TESTAMENTO ABIERTO", "", false}},
                        {"PRESTAMO HIPOTECARIO", {3, "PRESTAMO HIPOTECARIO", "", false}},
                        {"COMPRAVENTA", {1, "COMPRAVENTA", "", false}}};
    const TFoto foto = Foto(escena.Sesion);
    EXPECT_EQ(foto.Validos, esperada.Validos);
    EXPECT_EQ(foto.Otorgantes, esperada.Otorgantes);
    EXPECT_EQ(foto, esperada);
}

// A message box answered beforehand.
struct TMensajesDeRevision : TMensajes {
    bool Respuesta = false;
    std::vector<std::string> Mostrados, Preguntas;
    void Muestra(std::string_view titulo, std::string_view texto) override {
        Mostrados.push_back(std::string(titulo).append("|").append(texto));
    }
    [[nodiscard]] bool Pregunta(std::string_view /*titulo*/, std::string_view texto) override {
        Preguntas.emplace_back(texto);
        return Respuesta;
    }
};

TEST(Revision, ElConfirmadoQueEstabaEnElXmlVuelveSinMarca) {
    const TFoto antes = SinRevisar();
    for (const bool respuesta : {true, false}) {
        TMensajesDeRevision mensajes;
        mensajes.Respuesta = respuesta;
        const InstalaMensajes instala(mensajes);
        TEscena escena(PRESTAMO, VARIABLES, MARCADORES);
        escena.Revisor.Acepta = true;
        escena.Revisor.Hace = [](TFListaConceptosPreseleccionados& dialogo) {
            dialogo.LBPosiblesOtorgantes.Selecciona({0});
            dialogo.Pulsa(TControl::BMasOtor);
        };
        EXPECT_TRUE(escena.Sesion.Analiza(true));
        ASSERT_EQ(mensajes.Preguntas.size(), 1U) << "those in the XML are not proposed";
        EXPECT_TRUE(mensajes.Preguntas[0].starts_with("JUAN PEREZ GIL se encuentra en el XML"));
        auto esperados = std::vector{antes.Otorgantes[1]};
        if (respuesta) {
            esperados.push_back(antes.Otorgantes[0]);
            esperados[1].second.EnXML = false;
        }
        EXPECT_EQ(Foto(escena.Sesion).Otorgantes, esperados);
    }
}

TEST(Revision, OtraPasadaEmpiezaDeNuevo) {
    const TFoto sinRevisar = SinRevisar();
    TEscena escena(PRESTAMO, VARIABLES, MARCADORES);
    escena.Revisor.Acepta = true;
    EXPECT_TRUE(escena.Sesion.Analiza(true));
    const TFoto primera = Foto(escena.Sesion);
    EXPECT_TRUE(escena.Sesion.Analiza(true));
    EXPECT_EQ(Foto(escena.Sesion), primera);
    escena.Revisor.Acepta = false;
    EXPECT_FALSE(escena.Sesion.Analiza(true));
    EXPECT_EQ(Foto(escena.Sesion), sinRevisar);
}

// ---- Failures

// The analysis reads the table too, so it goes when that is over.
class TTablasQueSeVan : public TProveedorTablas {
  public:
    TTablasQueSeVan(TTablasDePrueba& tablas, const TDiario& diario) : FTablas(tablas), FDiario(diario) {}
    [[nodiscard]] std::unique_ptr<TTabla> Abre(std::string_view alias, std::string_view fichero,
                                               std::string_view indice) override {
        const bool terminado = !FDiario.empty() && FDiario.back() == "cierra";
        if (terminado) throw ErrorTabla("La tabla " + std::string(fichero) + " se ha ido");
        return FTablas.Abre(alias, fichero, indice);
    }

  private:
    TTablasDePrueba& FTablas;
    const TDiario& FDiario;
};

TEST(Revision, SinTablaDeTiposSeAvisaYQuedaLoEncontrado) {
    const TFoto esperada = SinRevisar();
    TEscena escena(PRESTAMO, VARIABLES, MARCADORES);
    TTablasQueSeVan tablas(escena.Tablas, escena.Diario);
    const InstalaTablas instalaTablas(tablas);
    escena.Revisor.Acepta = true;
    {
        TMensajesDeRevision mensajes;
        const InstalaMensajes instala(mensajes);
        EXPECT_FALSE(escena.Sesion.Analiza(true));
        EXPECT_EQ(mensajes.Mostrados,
                  (std::vector{std::string(" ATENCIÓN:"_a) + "|La tabla TIPOS.DBF se ha ido"}));
        EXPECT_EQ(Foto(escena.Sesion), esperada);
    }
    // With nobody to tell, the failure goes to the host.
    escena.Diario.clear();
    EXPECT_THROW((void)escena.Sesion.Analiza(true), ErrorTabla);
    EXPECT_FALSE(escena.Sesion.Aceptado);
    EXPECT_EQ(Foto(escena.Sesion), esperada);
    EXPECT_EQ(std::count(escena.Diario.begin(), escena.Diario.end(), "dialogo"), 0);
}

TEST(Revision, SiElDialogoFallaQuedaLoEncontrado) {
    const TFoto esperada = SinRevisar();
    TEscena escena(PRESTAMO, VARIABLES, MARCADORES);
    escena.Revisor.Acepta = true;
    std::filesystem::path fichero;
    escena.Revisor.Hace = [&](TFListaConceptosPreseleccionados& dialogo) {
        dialogo.FormActivate();
        fichero = dialogo.FicheroXML();
        EXPECT_TRUE(std::filesystem::exists(fichero));
        dialogo.LBPosiblesConceptos.SeleccionaTodo();
        dialogo.Pulsa(TControl::BMas);
        throw std::runtime_error("sin pantalla");
    };
    EXPECT_THROW((void)escena.Sesion.Analiza(true), std::runtime_error);
    EXPECT_FALSE(escena.Sesion.Aceptado);
    EXPECT_EQ(Foto(escena.Sesion), esperada);
    EXPECT_FALSE(std::filesystem::exists(fichero)) << "the dialog is gone";
}

}  // namespace
}  // namespace analizador

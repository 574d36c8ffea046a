// Pictures of the windows in their main states, made without a screen: capturas FOLDER. Fails when a picture
// holds nothing.

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QStyle>
#include <QStyleFactory>
#include <QTabWidget>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>

#include "adaptadores/dbase/ProveedorDbase.h"
#include "adaptadores/qt/MensajesQt.h"
#include "adaptadores/qt/PantallaQt.h"
#include "adaptadores/qt/SeleccionaNotarioQt.h"
#include "adaptadores/qt/VistaInformacionQt.h"
#include "adaptadores/qt/VistaMunicipiosQt.h"
#include "adaptadores/qt/VistaPreseleccionQt.h"
#include "plataforma/Ansi.h"
#include "pruebas/comun/ConfigDePrueba.h"
#include "pruebas/comun/Literales.h"
#include "pruebas/qt/Camara.h"
#include "pruebas/qt/SinPantalla.h"

namespace {

using namespace analizador;

TROtorgante Otorgante(std::string_view apellidos, std::string_view nombre, std::string_view documento) {
    TROtorgante otorgante;
    otorgante.Nombre = nombre;
    otorgante.Apellidos = apellidos;
    otorgante.TipoDocumento = 1;
    otorgante.NumDocumento = documento;
    otorgante.Sexo = "M";
    otorgante.EstadoCivil = 1;
    otorgante.Regimen = 1;
    otorgante.Domicilio = "OLIVOS";
    otorgante.Numero = "12";
    otorgante.Vecindad = "TORREVIEJA";
    otorgante.Provincia = "ALICANTE";
    return otorgante;
}

constexpr auto XML =
    "<?xml version=\"1.0\" encoding=\"windows-1252\"?><documento><otorgante><nombre>PILAR</nombre>"
    "<apellidos>NAVARRO SEGURA</apellidos><!-- dado de alta --><documento tipo=\"1\">12345678Z</documento>"
    "</otorgante></documento>";

std::unique_ptr<TFListaConceptosPreseleccionados> Dialogo() {
    auto dialogo = std::make_unique<TFListaConceptosPreseleccionados>("INFORME", XML);
    ListaTextos<TRConcepto> conceptos;
    for (const std::string nombre :
         {"COMPRAVENTA / COMPRAVENDA / VENTA / VENDA",
          "PRESTAMO HIPOTECARIO / PRESTEC HIPOTECARI / (CON) GARANTIA HIPOTECARIA", "PODER"})
        conceptos.Anade(nombre, std::make_unique<TRConcepto>(TRConcepto{1, nombre, "", false}));
    dialogo->CargaListaPosiblesConceptos(conceptos);
    ListaTextos<TROtorgante> otorgantes;
    const auto anade = [&](TROtorgante otorgante) {
        otorgantes.Anade("", std::make_unique<TROtorgante>(std::move(otorgante)));
    };
    anade(Otorgante("MANRIQUE OLMEDO", "JUAN ANTONIO", "00000023T"));
    anade(Otorgante("MUÑOZ CASTAÑO"_ansi, "MARIA DEL CARMEN", "00000024R"));
    anade(
        Otorgante("INVERSIONES INMOBILIARIAS Y PROMOCIONES TURISTICAS DEL LITORAL MEDITERRANEO, S.A. "
                  "UNIPERSONAL",
                  "", "A00000001"));
    auto conocida = Otorgante("NAVARRO SEGURA", "PILAR", "12345678Z");
    conocida.EnXML = true;
    anade(conocida);
    auto conocido = Otorgante("PEREZ DE LA CIERVA Y FERNANDEZ DE CORDOBA", "FRANCISCO DE BORJA", "00000025W");
    conocido.EnXML = true;
    anade(conocido);
    anade(Otorgante("SIN DOCUMENTO", "ANA", ""));
    dialogo->CargaListaPosiblesOtorgantes(otorgantes);
    dialogo->SeleccionaTodosLosOtorgantesValidos();
    return dialogo;
}

void Lista(TCamara& camara, const std::string& nombre, const std::function<void(QWidget&)>& prepara) {
    const auto dialogo = Dialogo();
    TVistaPreseleccionQt vista;
    camara.GuardaModal(
        nombre, [&] { (void)vista.MuestraModal(*dialogo, nullptr); }, prepara);
}

void Listas(TCamara& camara, const std::string& sufijo) {
    Lista(camara, "lista" + sufijo, [](QWidget& ventana) {
        auto& valida = *ventana.findChild<QAbstractItemView*>("LBOtorgantes");
        valida.setCurrentIndex(valida.model()->index(1, 0));
    });
    Lista(camara, "rejilla" + sufijo, [](QWidget& ventana) {
        ventana.resize(1024, ventana.height());
        QApplication::processEvents();
        ventana.resize(1024, 600);
        auto& rejilla = *ventana.findChild<QAbstractItemView*>("dbgTipos");
        rejilla.setFocus();
        rejilla.setCurrentIndex(rejilla.model()->index(3, 0));
    });
    Lista(camara, "busca" + sufijo, [](QWidget& ventana) {
        auto& busca = *ventana.findChild<QLineEdit*>("eBusca");
        busca.setFocus();
        busca.insert("he");
    });
    Lista(camara, "xml" + sufijo,
          [](QWidget& ventana) { ventana.findChild<QTabWidget*>()->setCurrentIndex(1); });
}

// The other windows, over the preselection dialog or alone.
void Datos(TCamara& camara, const std::string& sufijo) {
    auto otorgante = Otorgante("MUÑOZ CASTAÑO"_ansi, "MARIA DEL CARMEN", "00000024R");
    otorgante.TipoVia = "CL";
    otorgante.CodPostal = "03180";
    otorgante.CodINE = "03133";
    otorgante.CodPais = 724;
    otorgante.Residente = true;
    otorgante.Pais = "ESPAÑA"_ansi;
    otorgante.Conyuge = "MANRIQUE OLMEDO, JUAN ANTONIO";
    otorgante.FechaNacimiento = TFecha{std::chrono::year(1971), std::chrono::month(5), std::chrono::day(3)};
    TFInformacionOtorgante dialogo(otorgante);
    TVistaInformacionQt vista;
    camara.GuardaModal("datos" + sufijo, [&] { vista.MuestraModal(dialogo, nullptr); });
}

void Municipios(TCamara& camara, const std::string& sufijo) {
    TSelectorMunicipios selector({"03180", "03133", "TORREVIEJA"});
    TVistaMunicipiosQt vista;
    camara.GuardaModal("municipios" + sufijo, [&] { (void)vista.MuestraModal(selector); });
}

void Notario(TCamara& camara, const std::string& sufijo) {
    const auto dialogo = TSeleccionaNotarioQt().Crea();
    dialogo->PonTitulo("Seleccione el notario de la escritura");
    dialogo->Selecciona(1);
    camara.GuardaModal("notario" + sufijo, [&] { dialogo->MuestraModal(); });
}

void Pregunta(TCamara& camara, const std::string& sufijo) {
    TMensajesQt mensajes;
    camara.GuardaModal("pregunta" + sufijo, [&] {
        (void)mensajes.Pregunta(
            TITULO_ATENCION,
            "PILAR NAVARRO SEGURA se encuentra en el XML, No hace falta añadirlo\n¿Desea de todas formas añadirlo?"_ansi);
    });
}

void Progreso(TCamara& camara, const std::string& sufijo) {
    TPantallaQt pantalla;
    const auto mensaje = pantalla.Abre("Analizando el documento, espere un momento.", nullptr);
    for (QWidget* ventana : QApplication::topLevelWidgets())
        if (ventana->isVisible()) camara.Guarda("progreso" + sufijo, *ventana);
}

void Todas(TCamara& camara, const std::string& sufijo) {
    for (const auto& toma : {Listas, Datos, Municipios, Notario, Pregunta, Progreso}) toma(camara, sufijo);
}

}  // namespace

int main(int argc, char** argv) {
    pruebas::PintaSinPantalla();
    const QApplication aplicacion(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: capturas FOLDER\n");
        return 2;
    }
    TProveedorDbase tablas(std::filesystem::path{CARPETA_TABLAS});
    const InstalaTablas guardaTablas(tablas);
    TConfigDePrueba configuracion;
    configuracion.Notarios = {"LUIS SANZ ROCA", std::string("EVA MUÑOZ CASTAÑO"_a), "ANA GIL PEREZ"};
    const InstalaConfig guardaConfig(configuracion);
    TCamara camara{argv[1]};
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    Todas(camara, "_claro");
    QApplication::setPalette(PaletaOscura());
    Todas(camara, "_oscuro");
    QApplication::setPalette(QApplication::style()->standardPalette());
    QFont doble = QApplication::font();
    doble.setPointSizeF(doble.pointSizeF() * 2);
    QApplication::setFont(doble);
    Todas(camara, "_200");
    return camara.Fallo() ? 1 : 0;
}

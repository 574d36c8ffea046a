// Pictures of the windows in their main states, made without a screen: capturas FOLDER. Fails when a picture
// holds nothing.

#include <QAbstractItemView>
#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "adaptadores/dbase/ProveedorDbase.h"
#include "adaptadores/qt/MensajesQt.h"
#include "adaptadores/qt/PantallaQt.h"
#include "adaptadores/qt/VistaPreseleccionQt.h"
#include "plataforma/Ansi.h"
#include "pruebas/comun/ConfigDePrueba.h"

namespace {

using namespace analizador;

QPalette PaletaOscura() {
    const QColor fondo(45, 45, 48);
    const QColor letra(230, 230, 230);
    QPalette paleta(fondo, fondo);
    paleta.setColor(QPalette::Base, QColor(30, 30, 30));
    paleta.setColor(QPalette::Highlight, QColor(42, 130, 218));
    for (const auto papel : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                             QPalette::HighlightedText, QPalette::ToolTipText})
        paleta.setColor(papel, letra);
    for (const auto papel : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        paleta.setColor(QPalette::Disabled, papel, QColor(127, 127, 127));
    paleta.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
    return paleta;
}

bool TieneAlgo(const QImage& imagen) {
    if (imagen.isNull()) return false;
    const QRgb primero = imagen.pixel(0, 0);
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            if (imagen.pixel(x, y) != primero) return true;
    return false;
}

class TCamara {
  public:
    explicit TCamara(std::filesystem::path carpeta) : carpeta_(std::move(carpeta)) {
        std::filesystem::create_directories(carpeta_);
    }

    void Guarda(const std::string& nombre, QWidget& ventana) {
        const QImage imagen = ventana.grab().toImage();
        const auto fichero = carpeta_ / (nombre + ".png");
        const bool guardada = imagen.save(QString::fromStdString(fichero.string()));
        if (guardada && TieneAlgo(imagen)) return;
        std::fprintf(stderr, "%s: the picture is empty\n", fichero.c_str());
        fallo_ = true;
    }

    // Runs what shows a modal window, takes its picture once `prepara` has put it in its state, and closes
    // it.
    void GuardaModal(
        const std::string& nombre, const std::function<void()>& muestra,
        const std::function<void(QWidget&)>& prepara = [](QWidget&) {}) {
        bool tomada = false;
        QTimer reloj;
        QObject::connect(&reloj, &QTimer::timeout, [&] {
            QWidget* const ventana = QApplication::activeModalWidget();
            if (ventana == nullptr || std::exchange(tomada, true)) return;
            prepara(*ventana);
            QApplication::processEvents();
            Guarda(nombre, *ventana);
            ventana->close();
        });
        reloj.start(20);
        muestra();
        if (!tomada) fallo_ = true;
    }

    [[nodiscard]] bool Fallo() const { return fallo_; }

  private:
    std::filesystem::path carpeta_;
    bool fallo_ = false;
};

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

void Avisos(TCamara& camara, const std::string& sufijo) {
    TMensajesQt mensajes;
    camara.GuardaModal("pregunta" + sufijo, [&] {
        (void)mensajes.Pregunta(
            TITULO_ATENCION,
            "PILAR NAVARRO SEGURA se encuentra en el XML, No hace falta añadirlo\n¿Desea de todas formas añadirlo?"_ansi);
    });
}

void Todas(TCamara& camara, const std::string& sufijo) {
    Listas(camara, sufijo);
    Avisos(camara, sufijo);
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication aplicacion(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: capturas FOLDER\n");
        return 2;
    }
    TProveedorDbase tablas(std::filesystem::path{CARPETA_TABLAS});
    const InstalaTablas guardaTablas(tablas);
    TConfigDePrueba configuracion;
    const InstalaConfig guardaConfig(configuracion);
    TCamara camara(argv[1]);
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

// How the details window looks: texts, places, colours.

#include <QAbstractItemView>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <map>

#include "pruebas/qt/EscenaDialogoDatos.h"

namespace analizador {
namespace {

class AspectoDatosQt : public EscenaDialogoDatos {
  protected:
    void TearDown() override {
        Ventana.reset();
        QApplication::setFont(letra_);
    }
    // Opens the window with letters so many times the usual size.
    void AbreConLetra(int veces) {
        QFont grande = letra_;
        grande.setPointSizeF(letra_.pointSizeF() * veces);
        QApplication::setFont(grande);
        Abre();
    }
    // The label that belongs to a control.
    [[nodiscard]] QString Rotulo(const char* nombre) const {
        for (const auto* rotulo : Ventana->findChildren<QLabel*>())
            if (rotulo->buddy() == &Control(nombre)) return rotulo->text();
        return {};
    }
    [[nodiscard]] QWidget& Contenido() const { return *Ventana->findChild<QScrollArea*>()->widget(); }

  private:
    QFont letra_ = QApplication::font();
};

TEST_F(AspectoDatosQt, TitlesLabelsAndHints) {
    Abre();
    EXPECT_EQ(Ventana->windowTitle(), QStringLiteral("Datos leidos"));
    QStringList grupos;
    for (const auto* grupo : Contenido().findChildren<QGroupBox*>()) grupos << grupo->title();
    EXPECT_EQ(grupos, (QStringList{"Identifiación ", "Situación personal", "Domicilio", "Intervención"}));
    const std::map<const char*, QString> rotulos = {
        {"CBSexo", "Sexo:"},
        {"ENombre", "Nombre:"},
        {"EApellidos", "Apellidos:"},
        {"CBTipoDocumento", "Tipo documento:"},
        {"ENumDocumento", ""},
        {"CBEstadoCivil", "Estado civil:"},
        {"CBRegimen", "Régimen:"},
        {"EConyuge", "Conyuge:"},
        {"CBPais_Naci", "Nacido en:"},
        {"MEFecha_Naci", "Fecha Nac.:"},
        {"EPadre", "Padre:"},
        {"EMadre", "Madre:"},
        {"CBTipoVia", "Tipo de Vía:"},
        {"ENUMERO", "Número:"},
        {"EVECINDAD", "Vecindad:"},
        {"CBPROVINCIA", "Provincia:"},
        {"ECODPOSTAL", "Cod.Postal:"},
        {"ECODINE", "Código I.N.E.:"},
        {"CBPais", "País:"},
        {"ECodPais", "Código del país:"},
        {"CBNacionalid", "Pais nacionalid:"},
        {"CBIntervencion_VRK", " Tipo de intervención "},
        {"CBIntervencion_INTI", " Tipo de intervención para el índice único "},
    };
    for (const auto& [nombre, texto] : rotulos) EXPECT_EQ(Rotulo(nombre), texto) << nombre;
    EXPECT_EQ(Control<QCheckBox>("CBRESIDENTE").text(), QStringLiteral("Reside fuera de España"));
    EXPECT_EQ(Control<QPushButton>("BLISTA").text(), QStringLiteral("&Lista I.N.E."));
    EXPECT_EQ(Control<QPushButton>("BBAceptar").text(), QStringLiteral("&Actualizar"));
    EXPECT_EQ(Control<QPushButton>("BBCancelar").text(), QStringLiteral("&Cancelar"));
    EXPECT_EQ(Control("EDOMICILIO").toolTip(),
              QStringLiteral("'IDEM' o 'I' para repetir el último domicilio introducido"));
    for (const char* oculto : {"BMarcar", "BDesmarcar"}) EXPECT_TRUE(Control(oculto).isHidden()) << oculto;
}

TEST_F(AspectoDatosQt, EveryControlShowsWhatTheDialogHolds) {
    Abre();
    for (const auto& descripcion : ControlesDatos()) {
        const std::string nombre(descripcion.Nombre);
        const auto& estado = Dialogo->Control(descripcion.Control);
        if (auto* lista = Ventana->findChild<QComboBox*>(nombre.c_str())) {
            EXPECT_EQ(lista->currentText(), QtDeAnsi(estado.Texto)) << nombre;
            EXPECT_EQ(lista->count(), static_cast<int>(estado.Elementos.size())) << nombre;
            EXPECT_EQ(lista->isEditable(), descripcion.Clase == TClaseControl::ListaEditable) << nombre;
        } else if (auto* caja = Ventana->findChild<QLineEdit*>(nombre.c_str())) {
            EXPECT_EQ(caja->text(), QtDeAnsi(estado.Texto)) << nombre;
        }
    }
    EXPECT_FALSE(Control<QCheckBox>("CBRESIDENTE").isChecked());
}

TEST_F(AspectoDatosQt, NoTextIsCutOffWithLargerLettersEither) {
    for (const int veces : {1, 2}) {
        AbreConLetra(veces);
        const auto cabe = [&](const QWidget& control, const QSize& minimo) {
            EXPECT_GE(control.width(), minimo.width()) << control.objectName().toStdString() << veces;
            EXPECT_GE(control.height(), minimo.height()) << control.objectName().toStdString() << veces;
        };
        for (const auto* c : Ventana->findChildren<QLabel*>()) cabe(*c, c->sizeHint());
        for (const auto* c : Ventana->findChildren<QPushButton*>())
            if (!c->isHidden()) cabe(*c, c->sizeHint());
        for (const auto* c : Ventana->findChildren<QCheckBox*>()) cabe(*c, c->sizeHint());
        for (const auto* c : Ventana->findChildren<QGroupBox*>()) cabe(*c, c->minimumSizeHint());
        for (const auto* c : Ventana->findChildren<QLineEdit*>()) cabe(*c, {0, c->fontMetrics().height()});
        for (const auto* c : Ventana->findChildren<QComboBox*>()) cabe(*c, c->minimumSizeHint());
        for (const auto& descripcion : ControlesDatos())
            if (descripcion.Maximo > 0 && descripcion.Maximo <= 10) {
                const auto& caja = Control<QLineEdit>(std::string(descripcion.Nombre).c_str());
                const QString texto(static_cast<qsizetype>(descripcion.Maximo), QChar('8'));
                EXPECT_GT(caja.width(), caja.fontMetrics().horizontalAdvance(texto))
                    << caja.objectName().toStdString() << veces;
            }
    }
}

TEST_F(AspectoDatosQt, ControlsDoNotCoverEachOther) {
    Abre();
    for (const auto* grupo : Contenido().findChildren<QGroupBox*>()) {
        const auto hijos = grupo->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        EXPECT_GE(hijos.size(), 4);
        for (const auto* uno : hijos)
            for (const auto* otro : hijos)
                EXPECT_TRUE(uno == otro || !uno->geometry().intersects(otro->geometry()))
                    << uno->objectName().toStdString() << " " << otro->objectName().toStdString();
    }
}

TEST_F(AspectoDatosQt, SizeIsFixedAtLeastTheLayoutsAndNeverBeyondTheScreen) {
    for (const int veces : {1, 2, 4}) {
        AbreConLetra(veces);
        EXPECT_GE(Ventana->width(), 525);
        EXPECT_GE(Ventana->height(), 483);
        EXPECT_EQ(Ventana->minimumSize(), Ventana->maximumSize());
        EXPECT_LE(Ventana->height(), Ventana->screen()->availableGeometry().height());
        EXPECT_LE(Ventana->width(), Ventana->screen()->availableGeometry().width());
    }
}

TEST_F(AspectoDatosQt, OnASmallScreenTheControlThatHasTheFocusIsInSight) {
    AbreConLetra(3);
    auto& zona = *Ventana->findChild<QScrollArea*>();
    ASSERT_GT(zona.widget()->height(), zona.viewport()->height());
    for (int i = 0; i < 31; ++i) {
        Pulsa(Qt::Key_Tab);
        const QWidget& control = *Ventana->focusWidget();
        if (!zona.isAncestorOf(&control)) continue;
        const QRect sitio(control.mapTo(zona.viewport(), QPoint()), control.size());
        EXPECT_TRUE(zona.viewport()->rect().intersects(sitio)) << control.objectName().toStdString();
        EXPECT_GE(sitio.top(), 0) << control.objectName().toStdString();
        EXPECT_LT(sitio.bottom(), zona.viewport()->height()) << control.objectName().toStdString();
    }
}

TEST_F(AspectoDatosQt, LongTextsOfAListWidenItsOpenListOnly) {
    std::string larga = "VENDEDOR";
    while (larga.size() < 120) larga += " QUE VENDE";
    Escena.Tablas.Pon("TIPO_INT.DBF", {{"CODIGO", "DESCRIPCIO"}, {{"1", larga}, {"99", "NINGUNA"}}});
    Otorgante.IntervencionINTI = 1;
    Abre();
    EXPECT_LE(Ventana->width(), Ventana->screen()->availableGeometry().width());
    auto& lista = Lista("CBIntervencion_INTI");
    EXPECT_EQ(lista.maxVisibleItems(), 16);
    lista.showPopup();
    EXPECT_GE(lista.view()->window()->width(),
              std::min(lista.view()->sizeHintForColumn(0), Ventana->screen()->availableGeometry().width()));
    lista.hidePopup();
}

TEST_F(AspectoDatosQt, OpenIndexListShowsSixteenRows) {
    std::vector<std::vector<std::string>> filas;
    for (int codigo = 1; codigo <= 40; ++codigo) filas.push_back({std::to_string(codigo), "TIPO"});
    Escena.Tablas.Pon("TIPO_INT.DBF", {{"CODIGO", "DESCRIPCIO"}, filas});
    Abre();
    auto& lista = Lista("CBIntervencion_INTI");
    lista.showPopup();
    const int alto = lista.view()->sizeHintForRow(0);
    EXPECT_EQ(lista.view()->viewport()->height() / alto, 16);
    lista.hidePopup();
}

TEST_F(AspectoDatosQt, TheControlThatHasTheFocusIsYellowWithDarkLetters) {
    const QPalette antes = QApplication::palette();
    for (const bool oscuro : {false, true}) {
        QPalette paleta = antes;
        for (const auto fondo : {QPalette::Base, QPalette::Button, QPalette::Window})
            paleta.setColor(fondo, oscuro ? QColor(40, 40, 40) : QColor(240, 240, 240));
        for (const auto letra : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText})
            paleta.setColor(letra, oscuro ? Qt::white : Qt::black);
        QApplication::setPalette(paleta);
        Abre();
        std::map<std::string, QColor> fondos;
        for (const char* nombre :
             {"ENombre", "CBSexo", "CBPais", "CBRESIDENTE", "BLISTA", "CBIntervencion_INTI"}) {
            auto& control = Control(nombre);
            control.setFocus(Qt::OtherFocusReason);
            QTest::qWait(1);
            if (auto* caja = Dialogo->Foco() == TControlDatos::CBPais ? &Caja(nombre)
                                                                      : qobject_cast<QLineEdit*>(&control))
                caja->deselect();
            const QImage con = control.grab().toImage();
            const auto cuenta = [](const QImage& imagen, auto condicion) {
                int cuantos = 0;
                for (int y = 0; y < imagen.height(); ++y)
                    for (int x = 0; x < imagen.width(); ++x)
                        if (condicion(imagen.pixelColor(x, y))) ++cuantos;
                return cuantos;
            };
            const auto amarillo = [](const QColor& c) {
                return c.red() > 200 && c.green() > 200 && c.blue() < c.red() - 40;
            };
            const auto negro = [](const QColor& c) { return c.lightness() < 80; };
            EXPECT_GT(cuenta(con, amarillo), con.width() * con.height() / 3) << nombre << oscuro;
            EXPECT_GT(cuenta(con, negro), 0) << nombre << oscuro;
            Clic(Control("EMadre"));
            EXPECT_LT(cuenta(control.grab().toImage(), amarillo), 10) << nombre << oscuro;
        }
    }
    Ventana.reset();
    QApplication::setPalette(antes);
}

}  // namespace
}  // namespace analizador

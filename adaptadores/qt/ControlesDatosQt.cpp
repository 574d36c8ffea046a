#include "adaptadores/qt/ControlesDatosQt.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "adaptadores/qt/HijoQt.h"
#include "adaptadores/qt/TextoQt.h"
#include "adaptadores/qt/VentanasQt.h"

namespace analizador {

namespace {

using enum TControlDatos;

// Where a control stands in the grid of its group, and its label: in the column before it, or above it.
struct TSitio {
    TControlDatos Control;
    int Fila;
    int Columna;
    int Ancho = 1;
    bool RotuloEncima = false;
};

constexpr std::array SITIOS = {
    TSitio{CBSexo, 0, 1},
    TSitio{ENombre, 0, 3},
    TSitio{EApellidos, 1, 1, 3},
    TSitio{CBTipoDocumento, 2, 1},
    TSitio{ENumDocumento, 2, 2, 2},
    TSitio{CBEstadoCivil, 0, 1},
    TSitio{CBRegimen, 0, 3, 2},
    TSitio{EConyuge, 1, 1, 4},
    TSitio{CBPais_Naci, 2, 1},
    TSitio{ELugar_Naci, 2, 2, 2},
    TSitio{CBProv_Naci, 2, 4},
    TSitio{MEFecha_Naci, 3, 1},
    TSitio{EPadre, 4, 1},
    TSitio{EMadre, 4, 3, 2},
    TSitio{CBTipoVia, 0, 1},
    TSitio{EDOMICILIO, 0, 2, 2},
    TSitio{ENUMERO, 0, 5},
    TSitio{EVECINDAD, 1, 1},
    TSitio{CBPROVINCIA, 1, 3, 3},
    TSitio{ECODPOSTAL, 2, 1},
    TSitio{ECODINE, 2, 3},
    TSitio{CBPais, 3, 1},
    TSitio{ECodPais, 3, 3},
    TSitio{CBNacionalid, 4, 1},
    TSitio{CBRESIDENTE, 4, 2, 2},
    TSitio{BLISTA, 4, 4, 2},
    TSitio{CBIntervencion_VRK, 1, 0, 1, true},
    TSitio{CBIntervencion_INTI, 1, 1, 1, true},
};

// A group and how the columns of its grid share the room that is left.
struct TRejilla {
    TGrupoDatos Grupo;
    std::array<int, 6> Reparto;
};

constexpr std::array REJILLAS = {
    TRejilla{TGrupoDatos::Identificacion, {0, 1, 0, 2}},
    TRejilla{TGrupoDatos::Situacion, {0, 3, 0, 2, 2}},
    TRejilla{TGrupoDatos::Domicilio, {0, 2, 0, 3, 0, 0}},
    TRejilla{TGrupoDatos::Intervencion, {1, 1}},
};
constexpr int LETRAS_LISTA = 10;  // that a list shows at least
constexpr int LETRAS_CAJA = 10;   // that a box shows at least, when so many can be typed

const TDescripcionControl& Descripcion(TControlDatos control) {
    return ControlesDatos()[static_cast<std::size_t>(control)];
}

QWidget& CreaLista(const TDescripcionControl& descripcion, const TEstadoControl& estado, QWidget* padre) {
    const bool editable = descripcion.Clase == TClaseControl::ListaEditable;
    auto& lista = *std::make_unique<ListaDesplegable>(editable, descripcion.FilasVisibles, padre).release();
    std::size_t larga = 0;
    for (const auto& elemento : estado.Elementos) {
        lista.addItem(QtDeAnsi(elemento));
        larga = std::max(larga, elemento.size());
    }
    lista.setMinimumContentsLength(std::min(static_cast<int>(larga), LETRAS_LISTA));
    lista.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return lista;
}

QWidget& CreaCaja(const TDescripcionControl& descripcion, QWidget* padre) {
    auto& caja = HijoDe<QLineEdit>(padre);
    const int letras = std::min(static_cast<int>(descripcion.Maximo), LETRAS_CAJA);
    caja.setMinimumWidth(caja.fontMetrics().horizontalAdvance(QString(letras, QChar('0'))) +
                         2 * caja.fontMetrics().averageCharWidth() + caja.sizeHint().height() / 2);
    return caja;
}

QWidget& CreaBoton(const TDescripcionControl& descripcion, QWidget* padre) {
    auto& boton = HijoDe<QPushButton>(padre, QtDeAnsi(descripcion.Rotulo));
    boton.setAutoDefault(false);
    return boton;
}

QWidget& CreaControl(const TDescripcionControl& descripcion, const TEstadoControl& estado, QWidget* padre) {
    switch (descripcion.Clase) {
        case TClaseControl::ListaFija:
        case TClaseControl::ListaEditable:
            return CreaLista(descripcion, estado, padre);
        case TClaseControl::Marca:
            return HijoDe<QCheckBox>(padre, QtDeAnsi(descripcion.Rotulo));
        case TClaseControl::Boton:
            return CreaBoton(descripcion, padre);
        default:
            return CreaCaja(descripcion, padre);
    }
}

bool LlevaRotulo(const TDescripcionControl& descripcion) {
    return !descripcion.Rotulo.empty() && descripcion.Clase != TClaseControl::Marca &&
           descripcion.Clase != TClaseControl::Boton;
}

void Coloca(const TSitio& sitio, QWidget* control, QLabel* rotulo, QGridLayout& rejilla) {
    rejilla.addWidget(control, sitio.Fila, sitio.Columna, 1, sitio.Ancho);
    if (rotulo == nullptr) return;
    const int fila = sitio.Fila - (sitio.RotuloEncima ? 1 : 0);
    rejilla.addWidget(rotulo, fila, sitio.Columna - (sitio.RotuloEncima ? 0 : 1));
}

}  // namespace

ControlesDatosQt::ControlesDatosQt(const TFInformacionOtorgante& dialogo, QWidget& contenido,
                                   QWidget& barra) {
    for (const auto& descripcion : ControlesDatos())
        Crea(descripcion, dialogo.Control(descripcion.Control),
             descripcion.Grupo == TGrupoDatos::Barra ? barra : contenido);
    Dispon(contenido, barra);
}

void ControlesDatosQt::Crea(const TDescripcionControl& descripcion, const TEstadoControl& estado,
                            QWidget& padre) {
    QWidget& control = CreaControl(descripcion, estado, &padre);
    control.setObjectName(QtDeAnsi(descripcion.Nombre));
    control.setToolTip(QtDeAnsi(descripcion.Pista));
    TParte& parte = partes_[static_cast<std::size_t>(descripcion.Control)];
    parte.Control = &control;
    if (LlevaRotulo(descripcion)) {
        parte.Rotulo = &HijoDe<QLabel>(&padre, QtDeAnsi(descripcion.Rotulo));
        parte.Rotulo->setObjectName(QStringLiteral("ROTULO_") + control.objectName());
        parte.Rotulo->setBuddy(&control);
    }
}

void ControlesDatosQt::Dispon(QWidget& contenido, QWidget& barra) {
    auto& columna = HijoDe<QVBoxLayout>(&contenido);
    columna.setContentsMargins(0, 0, 0, 0);
    for (const auto& rejilla : REJILLAS) {
        auto& caja = HijoDe<QGroupBox>(&contenido, QtDeAnsi(TituloGrupo(rejilla.Grupo)));
        auto& sitios = HijoDe<QGridLayout>(&caja);
        for (std::size_t i = 0; i < rejilla.Reparto.size(); ++i)
            sitios.setColumnStretch(static_cast<int>(i), rejilla.Reparto[i]);
        for (const TSitio& sitio : SITIOS)
            if (Descripcion(sitio.Control).Grupo == rejilla.Grupo)
                Coloca(sitio, Parte(sitio.Control).Control, Parte(sitio.Control).Rotulo, sitios);
        columna.addWidget(&caja);
    }
    columna.addStretch();
    auto& botones = HijoDe<QHBoxLayout>(&barra);
    botones.addStretch();
    for (const auto& descripcion : ControlesDatos())
        if (descripcion.Grupo == TGrupoDatos::Barra) botones.addWidget(&Control(descripcion.Control));
}

QLineEdit* ControlesDatosQt::Caja(TControlDatos control) const {
    if (const auto* lista = Lista(control)) return lista->lineEdit();
    return qobject_cast<QLineEdit*>(&Control(control));
}

ListaDesplegable* ControlesDatosQt::Lista(TControlDatos control) const {
    return dynamic_cast<ListaDesplegable*>(&Control(control));
}

std::optional<TControlDatos> ControlesDatosQt::Cual(const QObject* objeto) const {
    if (objeto == nullptr) return std::nullopt;
    for (const auto& descripcion : ControlesDatos())
        if (objeto == &Control(descripcion.Control) || objeto == Caja(descripcion.Control))
            return descripcion.Control;
    return std::nullopt;
}

void ControlesDatosQt::Muestra(TControlDatos control, const TEstadoControl& estado) {
    TParte& parte = partes_[static_cast<std::size_t>(control)];
    if (auto* lista = Lista(control); lista != nullptr && lista->currentIndex() != estado.Elegido)
        lista->setCurrentIndex(estado.Elegido);
    const QString texto = QtDeAnsi(estado.Texto);
    if (auto* caja = Caja(control); caja != nullptr && caja->text() != texto) caja->setText(texto);
    if (auto* marca = qobject_cast<QCheckBox*>(parte.Control)) marca->setChecked(estado.Marcado);
    parte.Control->setEnabled(estado.Habilitado);
    parte.Control->setVisible(estado.Visible);
    if (parte.Rotulo != nullptr) {
        parte.Rotulo->setEnabled(estado.Habilitado);
        parte.Rotulo->setVisible(estado.Visible);
    }
    if (parte.Marcado != estado.ConFoco) MarcaFoco(*parte.Control, estado.ConFoco);
    parte.Marcado = estado.ConFoco;
}

}  // namespace analizador

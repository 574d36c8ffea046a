#include "adaptadores/qt/VistaMunicipiosQt.h"

#include <QDialog>
#include <QEvent>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>
#include <cstddef>

#include "adaptadores/qt/HijoQt.h"
#include "adaptadores/qt/ModeloMunicipios.h"
#include "adaptadores/qt/TextoQt.h"
#include "adaptadores/qt/VentanasQt.h"

namespace analizador {

namespace {

class DialogoMunicipios : public QDialog {
  public:
    DialogoMunicipios(TSelectorMunicipios& selector, QWidget* padre)
        : QDialog(padre),
          selector_(selector),
          modelo_(selector),
          filtro_(HijoDe<QLineEdit>(this, QtDeAnsi(selector.Filtro()))),
          tabla_(HijoDe<QTableView>(this)),
          aceptar_(HijoDe<QPushButton>(this, QStringLiteral("&Aceptar"))) {
        setObjectName(QStringLiteral("FMunicipios"));
        setWindowTitle(QStringLiteral("Lista de municipios del I.N.E."));
        PreparaTabla();
        Dispon();
        filtro_.setObjectName(QStringLiteral("EFiltro"));
        filtro_.installEventFilter(this);
        connect(&filtro_, &QLineEdit::textEdited, this, [this](const QString& texto) {
            modelo_.Filtra(texto);
            MuestraActual();
        });
        connect(&aceptar_, &QPushButton::clicked, this, &DialogoMunicipios::Acepta);
        connect(&tabla_, &QTableView::doubleClicked, this, &DialogoMunicipios::Acepta);
        filtro_.setFocus();
    }

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (objeto == &filtro_ && evento->type() == QEvent::KeyPress &&
            Mueve(static_cast<const QKeyEvent*>(evento)->key()))
            return true;
        return QDialog::eventFilter(objeto, evento);
    }
    void showEvent(QShowEvent* evento) override {
        QDialog::showEvent(evento);
        MuestraActual();
    }

  private:
    void PreparaTabla() {
        tabla_.setObjectName(QStringLiteral("TMunicipios"));
        tabla_.setModel(&modelo_);
        tabla_.setFocusPolicy(Qt::NoFocus);
        tabla_.setSelectionBehavior(QAbstractItemView::SelectRows);
        tabla_.setSelectionMode(QAbstractItemView::SingleSelection);
        tabla_.setEditTriggers(QAbstractItemView::NoEditTriggers);
        tabla_.setWordWrap(false);
        tabla_.verticalHeader()->hide();
        tabla_.verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() * 3 / 2);
        tabla_.horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
        const int letra = fontMetrics().averageCharWidth();
        for (const auto& [columna, letras] : {std::pair(1, 24), std::pair(2, 14), std::pair(3, 16)})
            tabla_.setColumnWidth(columna, letra * letras);
        tabla_.setMinimumSize(letra * 96, fontMetrics().lineSpacing() * 24);
        connect(tabla_.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
                [this](const QModelIndex& actual) {
                    if (actual.isValid()) selector_.PonActual(static_cast<std::size_t>(actual.row()));
                });
    }
    void Dispon() {
        auto& rotulo = HijoDe<QLabel>(this, QStringLiteral("&Buscar:"));
        rotulo.setBuddy(&filtro_);
        auto& cancelar = HijoDe<QPushButton>(this, QStringLiteral("&Cancelar"));
        aceptar_.setDefault(true);
        cancelar.setAutoDefault(false);
        connect(&cancelar, &QPushButton::clicked, this, &QDialog::reject);
        auto& arriba = NuevaDisposicion<QHBoxLayout>();
        arriba.addWidget(&rotulo);
        arriba.addWidget(&filtro_);
        auto& abajo = NuevaDisposicion<QHBoxLayout>();
        abajo.addStretch();
        abajo.addWidget(&aceptar_);
        abajo.addWidget(&cancelar);
        auto& todo = HijoDe<QVBoxLayout>(this);
        todo.addLayout(&arriba);
        todo.addWidget(&tabla_);
        todo.addLayout(&abajo);
    }

    // True for a key that moves the row.
    bool Mueve(int tecla) {
        const int pagina =
            std::max(1, tabla_.viewport()->height() / tabla_.verticalHeader()->defaultSectionSize() - 1);
        switch (tecla) {
            case Qt::Key_Up:
                return MueveFilas(-1);
            case Qt::Key_Down:
                return MueveFilas(1);
            case Qt::Key_PageUp:
                return MueveFilas(-pagina);
            case Qt::Key_PageDown:
                return MueveFilas(pagina);
            default:
                return false;
        }
    }
    bool MueveFilas(int cuantas) {
        const int filas = modelo_.rowCount();
        if (filas == 0) return true;
        const int actual = selector_.Actual() ? static_cast<int>(*selector_.Actual()) : -cuantas;
        selector_.PonActual(static_cast<std::size_t>(std::clamp(actual + cuantas, 0, filas - 1)));
        MuestraActual();
        return true;
    }
    void MuestraActual() {
        const auto actual = selector_.Actual();
        aceptar_.setEnabled(actual.has_value());
        if (!actual) return;
        const QModelIndex indice = modelo_.index(static_cast<int>(*actual), 0);
        tabla_.setCurrentIndex(indice);
        tabla_.scrollTo(indice);
    }
    void Acepta() {
        if (selector_.Actual()) accept();
    }

    TSelectorMunicipios& selector_;
    ModeloMunicipios modelo_;
    QLineEdit& filtro_;
    QTableView& tabla_;
    QPushButton& aceptar_;
};

}  // namespace

bool TVistaMunicipiosQt::MuestraModal(TSelectorMunicipios& selector) {
    DialogoMunicipios dialogo(selector, VentanaPadre());
    return dialogo.exec() == QDialog::Accepted;
}

}  // namespace analizador

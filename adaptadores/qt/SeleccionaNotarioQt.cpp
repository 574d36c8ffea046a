#include "adaptadores/qt/SeleccionaNotarioQt.h"

#include <QDialog>
#include <QFontMetrics>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "adaptadores/qt/HijoQt.h"
#include "adaptadores/qt/TextoQt.h"
#include "adaptadores/qt/VentanasQt.h"

namespace analizador {

namespace {

class DialogoNotario : public QDialog {
  public:
    DialogoNotario(const std::vector<std::string>& entradas, int seleccionada, QWidget* padre)
        : QDialog(padre), lista_(HijoDe<QListWidget>(this)) {
        setObjectName(QStringLiteral("FSeleccionaNotario"));
        lista_.setObjectName(QStringLiteral("LBNotarios"));
        for (const auto& entrada : entradas) lista_.addItem(QtDeAnsi(entrada));
        lista_.setCurrentRow(seleccionada);
        auto& aceptar = HijoDe<QPushButton>(this, QStringLiteral("&Aceptar"));
        aceptar.setDefault(true);
        auto& disposicion = HijoDe<QVBoxLayout>(this);
        disposicion.addWidget(&lista_);
        disposicion.addWidget(&aceptar, 0, Qt::AlignRight);
        const QFontMetrics letra = fontMetrics();
        lista_.setMinimumSize(letra.averageCharWidth() * 40, letra.lineSpacing() * 8);
        connect(&aceptar, &QPushButton::clicked, this, &QDialog::accept);
        connect(&lista_, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    }

    // Of the list without a selection some row is the current one all the same.
    [[nodiscard]] int Seleccionada() const {
        return lista_.selectedItems().isEmpty() ? -1 : lista_.currentRow();
    }

  private:
    QListWidget& lista_;
};

class TDialogoNotarioQt : public TFSeleccionaNotario {
  public:
    explicit TDialogoNotarioQt(std::vector<std::string> entradas) : entradas_(std::move(entradas)) {}

    void PonTitulo(std::string_view titulo) override { titulo_ = titulo; }
    [[nodiscard]] const std::vector<std::string>& Entradas() const override { return entradas_; }
    [[nodiscard]] int Seleccionada() const override { return seleccionada_; }
    void Selecciona(int posicion) override {
        const bool existe = posicion >= 0 && static_cast<std::size_t>(posicion) < entradas_.size();
        seleccionada_ = existe ? posicion : -1;
    }
    void MuestraModal() override {
        DialogoNotario dialogo(entradas_, seleccionada_, VentanaPadre());
        dialogo.setWindowTitle(QtDeAnsi(titulo_));
        dialogo.exec();
        seleccionada_ = dialogo.Seleccionada();
    }

  private:
    std::vector<std::string> entradas_;
    std::string titulo_;
    int seleccionada_ = -1;
};

}  // namespace

std::unique_ptr<TFSeleccionaNotario> TSeleccionaNotarioQt::Crea() {
    return std::make_unique<TDialogoNotarioQt>(Config().GetNotarios());
}

}  // namespace analizador

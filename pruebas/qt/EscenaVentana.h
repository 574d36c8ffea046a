#pragma once

#include <QAbstractItemView>
#include <QStringList>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "adaptadores/qt/VentanaPreseleccion.h"
#include "pruebas/dialogos/EscenaPreseleccion.h"

namespace analizador {

// The preselection dialog in its window, open and activated, and the hands of a clerk. Two concepts are
// found, VENTA and PRESTAMO; the parties are those that a test gives.
class TEscenaVentana : public TEscenaPreseleccion {
  public:
    // Called again it closes the window before and opens another.
    void Abre(const std::vector<TROtorgante>& otorgantes = {}, std::string xml = "",
              std::string informe = "");

    [[nodiscard]] TFListaConceptosPreseleccionados& Dialogo() { return *dialogo_; }
    [[nodiscard]] TVentanaPreseleccion& Ventana() { return *ventana_; }
    // The control of this name; throws std::runtime_error when there is none.
    template <class T = QWidget>
    [[nodiscard]] T& Control(const char* nombre) {
        auto* const control = ventana_->findChild<T*>(nombre);
        if (control == nullptr) throw std::runtime_error(std::string("no control ") + nombre);
        return *control;
    }
    [[nodiscard]] QAbstractItemView& Vista(const char* nombre) { return Control<QAbstractItemView>(nombre); }
    // The name of the control that has the focus.
    [[nodiscard]] std::string Foco();

    // The lines that a view shows, its selected rows and its current one (-1 none).
    [[nodiscard]] QStringList Filas(const char* vista);
    [[nodiscard]] std::vector<int> Seleccionadas(const char* vista);
    [[nodiscard]] int Actual(const char* vista);

    // Clicks, on a control or a row; the first click of several rows, the others with Ctrl.
    void Clic(const char* control);
    void ClicFilas(const char* vista, const std::vector<int>& filas);
    void DobleClic(const char* vista, int fila);
    // A key where the focus is.
    void Tecla(Qt::Key tecla, Qt::KeyboardModifiers con = Qt::NoModifier);
    // Types a text, whatever its letters, where the focus is.
    void Escribe(const QString& texto);
    // Drags what is selected in a view and drops it on another; false when that does not take it.
    bool Arrastra(const char* origen, const char* destino);

  private:
    std::unique_ptr<TFListaConceptosPreseleccionados> dialogo_;
    std::unique_ptr<TVentanaPreseleccion> ventana_;
};

}  // namespace analizador

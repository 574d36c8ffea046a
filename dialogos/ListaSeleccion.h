#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#include "plataforma/ListaTextos.h"

namespace analizador {

// A list box as the clerk sees it: lines with their records, which of them are selected and which is current.
// No text stands twice. Positions are 0-based.
template <class T>
class TListaSeleccion {
  public:
    using Linea = typename ListaTextos<T>::Linea;

    [[nodiscard]] const ListaTextos<T>& Lineas() const { return lineas_; }
    [[nodiscard]] std::size_t Cuenta() const { return lineas_.Cuenta(); }
    [[nodiscard]] bool Contiene(const std::string& texto) const { return textos_.contains(texto); }

    // Grows with every change of the lines (not of the selection): what a view compares to know whether to
    // draw them anew.
    [[nodiscard]] unsigned Revision() const { return revision_; }

    // Appends a line, not selected; one whose text is there already is dropped with its record.
    void Anade(Linea linea) {
        if (Contiene(linea.Texto)) return;
        textos_.insert(linea.Texto);
        lineas_.Anade(std::move(linea.Texto), std::move(linea.Objeto));
        seleccionadas_.push_back(false);
        ++revision_;
    }

    // Gives a line another text, such as its record has after it was edited; a text that another line has is
    // made to stand twice rather than lose the record.
    void CambiaTexto(std::size_t donde, std::string texto) {
        if (donde >= Cuenta() || lineas_[donde].Texto == texto) return;
        textos_.erase(textos_.find(lineas_[donde].Texto));
        textos_.insert(texto);
        lineas_[donde].Texto = std::move(texto);
        ++revision_;
    }

    // The record of a line that exists, for editing; nullptr when the line has none.
    [[nodiscard]] T* Objeto(std::size_t donde) { return lineas_[donde].Objeto.get(); }

    // ---- Selection and current line, as the user or the dialog sets them. Positions that do not exist are
    // left out; setting no current line leaves the list without one.

    // Selects these lines and no others.
    void Selecciona(const std::vector<std::size_t>& posiciones) {
        SeleccionaNada();
        for (const std::size_t donde : posiciones) Selecciona(donde, true);
    }
    // Changes one line and leaves the others.
    void Selecciona(std::size_t donde, bool seleccionada) {
        if (donde < Cuenta()) seleccionadas_[donde] = seleccionada;
    }
    void SeleccionaTodo() { seleccionadas_.assign(Cuenta(), true); }
    // Selects the current line where none is selected.
    void SeleccionaAlMenosActual() {
        if (actual_ && Seleccionadas().empty()) Selecciona(*actual_, true);
    }
    void SeleccionaNada() { seleccionadas_.assign(Cuenta(), false); }
    [[nodiscard]] bool Seleccionada(std::size_t donde) const { return seleccionadas_[donde]; }
    [[nodiscard]] std::vector<std::size_t> Seleccionadas() const {
        std::vector<std::size_t> posiciones;
        for (std::size_t i = 0; i < Cuenta(); ++i)
            if (seleccionadas_[i]) posiciones.push_back(i);
        return posiciones;
    }
    void PonActual(std::optional<std::size_t> donde) {
        if (!donde || *donde < Cuenta()) actual_ = donde;
    }
    [[nodiscard]] std::optional<std::size_t> Actual() const { return actual_; }

    // Takes the selected lines out and returns them in their order. Afterwards nothing is selected and the
    // current line is the one that followed the last of them (the last line when none did; none in an empty
    // list). With nothing selected nothing changes.
    [[nodiscard]] std::vector<Linea> SacaSeleccionadas() {
        std::vector<Linea> sacadas;
        ListaTextos<T> quedan;
        std::size_t siguiente = 0;  // of the lines that stay, the first after the last one taken
        for (std::size_t i = 0; i < Cuenta(); ++i) {
            Linea& linea = lineas_[i];
            if (!seleccionadas_[i]) {
                quedan.Anade(std::move(linea.Texto), std::move(linea.Objeto));
                continue;
            }
            textos_.erase(textos_.find(linea.Texto));
            sacadas.push_back(std::move(linea));
            siguiente = quedan.Cuenta();
        }
        lineas_ = std::move(quedan);
        if (sacadas.empty()) return sacadas;
        SeleccionaNada();
        actual_.reset();
        if (Cuenta() != 0) actual_ = std::min(siguiente, Cuenta() - 1);
        ++revision_;
        return sacadas;
    }

  private:
    ListaTextos<T> lineas_;
    std::vector<bool> seleccionadas_;
    std::unordered_multiset<std::string> textos_;
    std::optional<std::size_t> actual_;
    unsigned revision_ = 0;
};

}  // namespace analizador

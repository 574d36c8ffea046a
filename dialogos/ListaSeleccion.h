#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
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
    void Anade(Linea linea);

    // Gives a line another text, such as its record has after it was edited; a text that another line has is
    // made to stand twice rather than lose the record.
    void CambiaTexto(std::size_t donde, std::string texto);

    // The record of a line, for editing.
    [[nodiscard]] T* Objeto(std::size_t donde) { return lineas_[donde].Objeto.get(); }

    // ---- Selection and current line, as the user or the dialog sets them. Positions that do not exist are
    // left out.

    void Selecciona(const std::vector<std::size_t>& posiciones);
    void Selecciona(std::size_t donde, bool seleccionada);
    void SeleccionaTodo();
    void SeleccionaNada();
    [[nodiscard]] bool Seleccionada(std::size_t donde) const { return seleccionadas_[donde]; }
    [[nodiscard]] std::vector<std::size_t> Seleccionadas() const;
    void PonActual(std::optional<std::size_t> donde);
    [[nodiscard]] std::optional<std::size_t> Actual() const { return actual_; }

    // Takes the selected lines out and returns them in their order. Afterwards nothing is selected and the
    // current line is the one that followed the last of them (the last line when none did; none in an empty
    // list).
    [[nodiscard]] std::vector<Linea> SacaSeleccionadas();
    void Limpia();

  private:
    ListaTextos<T> lineas_;
    std::vector<bool> seleccionadas_;
    std::unordered_multiset<std::string> textos_;
    std::optional<std::size_t> actual_;
    unsigned revision_ = 0;
};

}  // namespace analizador

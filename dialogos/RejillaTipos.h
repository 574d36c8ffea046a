#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace analizador {

// One row of the deed-types table. Windows-1252.
struct TFilaTipo {
    int NumeroTipo = 0;
    std::string Nombre;
    std::string ClaveInti;
    std::string Tipo;
    std::string CodOficial;
    bool Prestamo = false;
    bool operator==(const TFilaTipo&) const = default;
};

// The columns of the grid, in their order; the first has no order of its own.
enum class TColumnaTipos { NOMBRE, NUMEROTIPO, CLAVE_INTI, TIPO };

// The grid over the deed-types table "TIPOS.DBF": its rows in one of three orders, which are selected and
// which is current. Positions are 0-based. What it shows is read from the table at creation and at every
// Ordena; the table does not stay open.
class TRejillaTipos {
  public:
    // Loads the table in the order of "TIPO"; the first row is current. Throws ErrorTabla.
    TRejillaTipos();

    [[nodiscard]] const std::vector<TFilaTipo>& Filas() const { return filas_; }
    // TIPO, NUMEROTIPO or CLAVE_INTI.
    [[nodiscard]] TColumnaTipos Orden() const { return orden_; }
    // Grows with every Ordena: what a view compares to know whether to draw the rows anew.
    [[nodiscard]] unsigned Revision() const { return revision_; }

    // Loads the table anew in the order of a column, nothing selected, the first row current. NOMBRE changes
    // nothing. On ErrorTabla the grid stays as it was.
    void Ordena(TColumnaTipos columna);

    // Each makes the first row that fits the current one, with nothing selected, so that what is added then
    // is the row found; when none fits, nothing changes and they return false.
    bool BuscaTipo(std::string_view tipo);       // "TIPO" equal, folded; blanks on the right never matter
    bool BuscaNumero(int numero);                // "NUMEROTIPO" equal
    bool BuscaComienzo(std::string_view texto);  // "TIPO" begins with it, folded
    bool BuscaFila(const TFilaTipo& fila);       // all equal

    // Each makes the row before or after the current one, when there is one, and leaves nothing selected.
    void Anterior();
    void Siguiente();

    // As in TListaSeleccion: positions that do not exist are left out.
    void Selecciona(const std::vector<std::size_t>& posiciones);
    void SeleccionaNada();
    [[nodiscard]] bool Seleccionada(std::size_t donde) const { return seleccionadas_[donde]; }
    // In their order; when none is selected, the current row.
    [[nodiscard]] std::vector<std::size_t> Seleccionadas() const;
    void PonActual(std::optional<std::size_t> donde);
    [[nodiscard]] std::optional<std::size_t> Actual() const { return actual_; }

  private:
    void Muestra(std::vector<TFilaTipo> filas, TColumnaTipos orden);
    template <class TCondicion>
    bool BuscaPrimera(TCondicion condicion);

    std::vector<TFilaTipo> filas_;
    std::vector<bool> seleccionadas_;
    std::optional<std::size_t> actual_;
    TColumnaTipos orden_ = TColumnaTipos::TIPO;
    unsigned revision_ = 0;
};

}  // namespace analizador

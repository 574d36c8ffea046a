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
};

// The columns of the grid, in their order; the first has no order of its own.
enum class TColumnaTipos { NOMBRE, NUMEROTIPO, CLAVE_INTI, TIPO };

// The grid over the deed-types table "TIPOS.DBF": its rows in one of three orders, which are selected and
// which is current. Positions are 0-based. What it shows is read from the table at creation and at every
// Ordena.
class TRejillaTipos {
  public:
    // Loads the table in the order of "TIPO"; the first row is current. Throws ErrorTabla.
    TRejillaTipos();

    [[nodiscard]] const std::vector<TFilaTipo>& Filas() const { return filas_; }
    // TIPO, NUMEROTIPO or CLAVE_INTI.
    [[nodiscard]] TColumnaTipos Orden() const { return orden_; }
    [[nodiscard]] unsigned Revision() const { return revision_; }

    // Loads the table anew in the order of a column (not NOMBRE), nothing selected, the first row current. On
    // ErrorTabla the grid stays as it was.
    void Ordena(TColumnaTipos columna);

    // Each makes the first row that fits the current one; when none does, the row stays and they return
    // false.
    bool BuscaTipo(std::string_view tipo);       // "TIPO" equal, folded
    bool BuscaNumero(int numero);                // "NUMEROTIPO" equal
    bool BuscaComienzo(std::string_view texto);  // "TIPO" begins with it, folded

    void Anterior();
    void Siguiente();

    void Selecciona(const std::vector<std::size_t>& posiciones);
    void SeleccionaNada();
    [[nodiscard]] bool Seleccionada(std::size_t donde) const { return seleccionadas_[donde]; }
    // In their order; when none is selected, the current row.
    [[nodiscard]] std::vector<std::size_t> Seleccionadas() const;
    void PonActual(std::optional<std::size_t> donde);
    [[nodiscard]] std::optional<std::size_t> Actual() const { return actual_; }

  private:
    std::vector<TFilaTipo> filas_;
    std::vector<bool> seleccionadas_;
    std::optional<std::size_t> actual_;
    TColumnaTipos orden_ = TColumnaTipos::TIPO;
    unsigned revision_ = 0;
};

}  // namespace analizador

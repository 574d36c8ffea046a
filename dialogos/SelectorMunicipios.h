#pragma once

// The municipality picker without any toolkit: MUNICIPI as the clerk types. Texts are Windows-1252.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "plataforma/Instalado.h"

namespace analizador {

struct TMunicipio {
    std::string Nombre;        // as the table's "NOMBRE" writes it
    std::string Provincia;     // its name; empty when the province table has no such code
    std::string CodProvincia;  // two digits
    std::string CodPostal;
    std::string CodINE;
    bool operator==(const TMunicipio&) const = default;
};

// What the picker is opened with: what the party has now; any may be empty.
struct TSemillasMunicipio {
    std::string CodPostal;
    std::string CodINE;
    std::string Nombre;
};

class TSelectorMunicipios {
  public:
    // Loads MUNICIPI (and PROVIN for the names); rows of the table with the same values here are one row. The
    // current row is the one that fits the seeds best: the most of them equal, names folded and in any form
    // that the table has; when it is one alone, the statistics code before the name before the postal code;
    // then the row whose name begins with the name given; then the first. Throws ErrorTabla.
    explicit TSelectorMunicipios(const TSemillasMunicipio& semillas);

    // The rows that the filter leaves, in the order of their names.
    [[nodiscard]] std::size_t Cuenta() const { return visibles_.size(); }
    [[nodiscard]] const TMunicipio& Fila(std::size_t i) const { return todos_[visibles_[i]].Municipio; }
    [[nodiscard]] const std::string& Filtro() const { return filtro_; }
    // Keeps the rows whose name, province or codes hold every word of the text, folded; those whose name
    // begins with it come first. The current row is then the first.
    void Filtra(std::string texto);
    [[nodiscard]] std::optional<std::size_t> Actual() const { return actual_; }
    // A row that does not exist is none.
    void PonActual(std::optional<std::size_t> donde);

  private:
    struct TFilaMunicipio {
        TMunicipio Municipio;
        std::vector<std::string> Nombres;  // its name and the other forms of it, folded
        std::string Provincia;             // folded

        [[nodiscard]] bool Contiene(std::string_view palabra) const;
        [[nodiscard]] bool Empieza(std::string_view principio) const;
        // How well it fits the seeds, whose name is folded; 0 not at all.
        [[nodiscard]] int Encaje(const TSemillasMunicipio& semillas) const;
    };

    void Carga();
    [[nodiscard]] std::optional<std::size_t> MejorFila(const TSemillasMunicipio& semillas) const;

    std::vector<TFilaMunicipio> todos_;
    std::vector<std::size_t> visibles_;
    std::string filtro_;
    std::optional<std::size_t> actual_;
};

// Shows the picker over the active window; what the user picked, or nothing. Without an installed view:
// nothing. Throws ErrorTabla.
[[nodiscard]] std::optional<TMunicipio> IMunicipios(const TSemillasMunicipio& semillas);

// What shows the picker.
class TVistaMunicipios {
  public:
    virtual ~TVistaMunicipios() = default;
    // Returns when the picker is closed: true when the current row was picked.
    [[nodiscard]] virtual bool MuestraModal(TSelectorMunicipios& selector) = 0;
};

using InstalaVistaMunicipios = Instalado<TVistaMunicipios>;

}  // namespace analizador

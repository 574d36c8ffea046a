#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "plataforma/Ruttb.h"

namespace analizador {

// A table in memory: the names of its columns and its rows, one text for each column ("" an empty field, "T"
// a true one). Windows-1252 texts.
struct TDatosDePrueba {
    std::vector<std::string> Campos;
    std::vector<std::vector<std::string>> Filas;
};

// Reference tables in memory, searched from the first row to the last; install them with InstalaTablas:
//
//     TTablasDePrueba tablas;
//     tablas.Pon("PILA.DBF", {{"NOMBRE"}, {{"JUAN"}, {"MARIA JOSE"}}});
//     const InstalaTablas guarda(tablas);
//
// An index orders by the field of its name; those of other names are NUMERO, ALFABETICO and NOMBREVIA. A
// column whose values are all whole numbers is in the order of the numbers. A table that was not given is an
// ErrorTabla.
class TTablasDePrueba : public TProveedorTablas {
  public:
    // Opened under another alias than this one, a table is an ErrorTabla too.
    explicit TTablasDePrueba(std::string alias = "NORVEX") : alias_(std::move(alias)) {}

    void Pon(std::string fichero, TDatosDePrueba datos);
    void Quita(std::string_view fichero);

    [[nodiscard]] std::unique_ptr<TTabla> Abre(std::string_view alias, std::string_view fichero,
                                               std::string_view indice) override;

  private:
    std::map<std::string, std::shared_ptr<const TDatosDePrueba>, std::less<>> tablas_;
    std::string alias_;
};

}  // namespace analizador

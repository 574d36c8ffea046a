#pragma once

// The plain way of reading the reference tables, as the oracle for the fast one: no index and no copy, each
// operation opens the file again and goes through its rows.

#include <filesystem>
#include <memory>
#include <string_view>

#include "plataforma/Ruttb.h"

namespace analizador::pruebas {

// Knows what the shipped tables need and no more: dBASE III files in capitals with fields C, N and L and
// texts in Windows-1252, keys of texts for text fields and of whole numbers for number fields. Every alias is
// the one folder. Throws std::runtime_error for anything else.
class TTablasLiterales : public TProveedorTablas {
  public:
    explicit TTablasLiterales(std::filesystem::path carpeta) : carpeta_(std::move(carpeta)) {}
    [[nodiscard]] std::unique_ptr<TTabla> Abre(std::string_view alias, std::string_view fichero,
                                               std::string_view indice) override;

  private:
    std::filesystem::path carpeta_;
};

}  // namespace analizador::pruebas

#pragma once

// The records of one dBASE file, or some of them, held in memory and never changed afterwards: shared between
// threads freely.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "adaptadores/dbase/EstructuraDbf.h"

namespace analizador {

class TDatosDbf {
  public:
    // `contenido`: the file's bytes; `fichero`: its name for messages, Windows-1252. Throws ErrorTabla, whose
    // text names the file, when the bytes are no dBASE table, are cut short, or hold letters of a code page
    // that is not known here.
    TDatosDbf(std::string contenido, std::string fichero);
    // Some records of a table alone, one after another, their texts in Windows-1252 already.
    TDatosDbf(std::shared_ptr<const TEstructuraDbf> estructura, std::string registros);

    [[nodiscard]] const TEstructuraDbf& Estructura() const { return *estructura_; }
    [[nodiscard]] const std::string& Fichero() const { return estructura_->Fichero(); }
    [[nodiscard]] const std::vector<TCampoDbf>& Campos() const { return estructura_->Campos(); }
    // The records that are not deleted; rows are numbered from 0 in the stored order.
    [[nodiscard]] std::uint32_t Filas() const { return static_cast<std::uint32_t>(registros_.size()); }

    // As TEstructuraDbf's.
    [[nodiscard]] const TCampoDbf& Campo(std::string_view nombre) const { return estructura_->Campo(nombre); }
    [[nodiscard]] bool TieneCampo(std::string_view nombre) const { return estructura_->TieneCampo(nombre); }

    // The row's record as it stands, its texts in Windows-1252.
    [[nodiscard]] std::string_view Registro(std::uint32_t fila) const {
        return {contenido_.data() + primero_ + registros_[fila] * longitudRegistro_, longitudRegistro_};
    }
    // The field's bytes as they stand; a text's are Windows-1252.
    [[nodiscard]] std::string_view Bytes(std::uint32_t fila, const TCampoDbf& campo) const {
        return BytesDe(Registro(fila), campo);
    }
    // The field without the blanks around a number or to the right of a text; a logical one T, F or empty.
    [[nodiscard]] std::string Texto(std::uint32_t fila, const TCampoDbf& campo) const;
    // The field's value: of a number any, of a text a whole one; nullopt when it is empty or none.
    [[nodiscard]] std::optional<double> Numero(std::uint32_t fila, const TCampoDbf& campo) const;

  private:
    void AnotaRegistros(std::size_t cuantos);

    std::shared_ptr<const TEstructuraDbf> estructura_;
    std::string contenido_;
    std::size_t primero_ = 0;  // where in it the first record stands
    std::size_t longitudRegistro_ = 0;
    std::vector<std::uint32_t> registros_;  // the live records' numbers
};

}  // namespace analizador

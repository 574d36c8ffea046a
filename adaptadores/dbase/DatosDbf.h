#pragma once

// The content of one dBASE file, read whole and never changed afterwards: shared between threads freely.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "adaptadores/dbase/FormatoDbf.h"

namespace analizador {

class TDatosDbf {
  public:
    // `contenido`: the file's bytes; `fichero`: its name for messages, Windows-1252. Throws ErrorTabla, whose
    // text names the file, when the bytes are no dBASE table, are cut short, or hold letters of a code page
    // that is not known here.
    TDatosDbf(std::string contenido, std::string fichero);

    [[nodiscard]] const std::string& Fichero() const { return fichero_; }
    [[nodiscard]] const std::vector<TCampoDbf>& Campos() const { return campos_; }
    // The records that are not deleted; rows are numbered from 0 in the stored order.
    [[nodiscard]] std::uint32_t Filas() const { return static_cast<std::uint32_t>(registros_.size()); }

    // By name, without regard to case. Throws ErrorTabla when there is none such. The campo belongs to this.
    [[nodiscard]] const TCampoDbf& Campo(std::string_view nombre) const;
    [[nodiscard]] bool TieneCampo(std::string_view nombre) const { return BuscaCampo(nombre) != nullptr; }

    // The field's bytes as they stand; a text's are Windows-1252.
    [[nodiscard]] std::string_view Bytes(std::uint32_t fila, const TCampoDbf& campo) const {
        const std::size_t registro = cabecera_ + registros_[fila] * longitudRegistro_;
        return {contenido_.data() + registro + campo.Posicion, campo.Longitud};
    }
    // The field without the blanks around a number or to the right of a text; a logical one T, F or empty.
    [[nodiscard]] std::string Texto(std::uint32_t fila, const TCampoDbf& campo) const;
    // The field's value: of a number any, of a text a whole one; nullopt when it is empty or none.
    [[nodiscard]] std::optional<double> Numero(std::uint32_t fila, const TCampoDbf& campo) const;

  private:
    [[noreturn]] void Falla(std::string_view causa) const;
    [[nodiscard]] std::uint32_t Leido(std::size_t posicion, std::size_t bytes) const;
    void CompruebaCabecera();
    void LeeCampos();
    [[nodiscard]] bool LeeDescriptores(std::size_t primero, std::size_t longitud, bool largos);
    void AnotaRegistros();
    void TraduceTextos();
    void TraduceCampo(const TCampoDbf& campo, const std::string& traduccion, bool paginaConocida);
    [[nodiscard]] const TCampoDbf* BuscaCampo(std::string_view nombre) const;

    std::string contenido_;
    std::string fichero_;
    std::size_t cabecera_ = 0;
    std::size_t longitudRegistro_ = 0;
    std::vector<TCampoDbf> campos_;
    std::vector<std::uint32_t> registros_;  // the live records' numbers in the file
};

}  // namespace analizador

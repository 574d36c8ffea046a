#pragma once

// The table layer: reference tables opened by alias, file and index. Texts are Windows-1252.

#include <initializer_list>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

#include "plataforma/Instalado.h"

namespace analizador {

// A table that cannot be opened or read, or lacks a field or an index. The text names the table and the
// cause.
class ErrorTabla : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// A value of a key: a whole number or a text.
using TValorClave = std::variant<int, std::string_view>;

// One part of a key: the field's name and its value. Only the order of the parts counts, the name is for the
// reader.
struct TParteClave {
    std::string_view Campo;
    TValorClave Valor;
};

// A key: the values of the index's parts in its order; fewer parts than the index has mean their prefix.
using TClave = std::initializer_list<TParteClave>;

// An open table: a cursor over its rows in the order of the active index, restricted to the current range and
// filter. Deleted rows do not exist. Past the last row every field reads empty (texts), 0 or false.
class TTabla {
  public:
    virtual ~TTabla() = default;

    virtual void Primero() = 0;
    virtual void Siguiente() = 0;
    [[nodiscard]] virtual bool Fin() const = 0;

    // Rows in the current range and filter.
    [[nodiscard]] virtual int CuentaFilas() = 0;

    // The field of the current row, trimmed at the right (texts); a number field read as text is its digits,
    // a logical one T or F. Field names are compared without regard to case. Throws ErrorTabla when there is
    // none such.
    [[nodiscard]] virtual std::string Texto(std::string_view campo) const = 0;
    // 0 when the field is empty or no whole number.
    [[nodiscard]] virtual int Entero(std::string_view campo) const = 0;
    [[nodiscard]] virtual bool Logico(std::string_view campo) const = 0;

    // Changes the active index ("" for the stored order), cancels the range and goes to the first row.
    virtual void Indexa(std::string_view indice) = 0;

    // Goes to the first row of the range whose key equals `clave`; when there is none, or no active index,
    // goes to the end and returns false. Keys are equal when they are equal folded; blanks on the right never
    // matter; an empty text equals only an empty field.
    virtual bool Busca(TClave clave) = 0;

    // Restricts the table to the rows whose keys lie between the two, both included, and goes to the first.
    // True when there is an active index, also when no row is in the range.
    virtual bool Rango(TClave desde, TClave hasta) = 0;
    // Ends the range and goes to the first row.
    virtual void CancelaRango() = 0;

    // Keeps only the rows whose whole-number field fulfils the condition "FIELD=n" or "FIELD<>n"; "" ends the
    // filter. Goes to the first row. Throws ErrorTabla when the condition is of another form.
    virtual void Filtra(std::string_view condicion) = 0;

    // What stands for the rows that this table was opened with: as long as it is held, every table that gives
    // the same one has the same rows in the same stored order. Null when nothing is known.
    [[nodiscard]] virtual std::shared_ptr<const void> Contenido() const { return nullptr; }
};

// Who opens tables. Called from every thread that analyses.
class TProveedorTablas {
  public:
    virtual ~TProveedorTablas() = default;
    // Throws ErrorTabla when the table cannot be opened or has no such index.
    [[nodiscard]] virtual std::unique_ptr<TTabla> Abre(std::string_view alias, std::string_view fichero,
                                                       std::string_view indice) = 0;
};

using InstalaTablas = Instalado<TProveedorTablas>;

// Opens a table of the installed provider on an index ("" for the stored order), at its first row.
// `compartida` and `soloLectura` are accepted as the suite's callers pass them: every table here is opened
// shared and read only. Throws ErrorTabla, also when no provider is installed.
[[nodiscard]] std::unique_ptr<TTabla> CreaTabla(std::string_view alias, std::string_view fichero,
                                                std::string_view indice, bool compartida, bool soloLectura);

// The suite's names for the operations above. `exacta` is accepted: every search is exact.
bool TBBusca(TTabla& tabla, TClave clave, bool exacta);
bool TBRango(TTabla& tabla, TClave desde, TClave hasta);
void TBFiltra(TTabla& tabla, std::string_view condicion);
void TBIndexa(TTabla& tabla, std::string_view indice);

}  // namespace analizador

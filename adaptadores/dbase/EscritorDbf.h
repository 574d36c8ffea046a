#pragma once

// Writes dBASE III tables with Windows-1252 texts.

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace analizador {

enum class TTipoColumna : char { Texto = 'C', Numero = 'N', Logico = 'L' };

struct TColumnaDbf {
    std::string Nombre;  // capitals, digits and _, up to 10
    TTipoColumna Tipo = TTipoColumna::Texto;
    int Ancho = 1;  // bytes: a text's 1 to 254, a number's digits 1 to 19, a logical one's 1
};

// A row's values, one a column: a text in Windows-1252, a whole number in digits, T or F; empty for none.
using TFilaDbf = std::vector<std::string>;

// Why the value does not fit the column, a Castilian phrase in Windows-1252; empty when it fits.
[[nodiscard]] std::string CausaNoCabe(const TColumnaDbf& columna, std::string_view valor);

// Writes the table so that whoever opens `fichero` meanwhile finds the old one or the new one, whole.
// `fecha`: the day of the last change for the header. Throws ErrorTabla when a row has too few or too many
// values or one does not fit, or the file cannot be written; the old one is then untouched.
void EscribeDbf(const std::filesystem::path& fichero, const std::vector<TColumnaDbf>& columnas,
                const std::vector<TFilaDbf>& filas, std::chrono::year_month_day fecha);

// The same for a table of many rows, asked for one after another: `fila(i)` gives the row i, 0 to `filas`
// - 1.
void EscribeDbf(const std::filesystem::path& fichero, const std::vector<TColumnaDbf>& columnas,
                std::size_t filas, const std::function<TFilaDbf(std::size_t)>& fila,
                std::chrono::year_month_day fecha);

}  // namespace analizador

#pragma once

// The suite's checks of identity numbers and dates.

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace analizador {

// A national identity number with its control letter: eight digits or fewer, padded to eight, and the letter
// (modulo 23), or a number that begins with K, L or M. No separators; lower case is accepted. `aviso` is
// accepted and has no effect: nothing is shown.
[[nodiscard]] bool EsNif(std::string_view numero, bool aviso);
// A foreigner's number: X, Y or Z, seven digits and the letter.
[[nodiscard]] bool EsUnNie(std::string_view numero, bool aviso);
// A company's tax code: a letter, seven digits and a control that is a digit (A, B, E, H), a letter (K, P, Q,
// S, N, R, W) or either (C, D, F, G, J, U, V).
[[nodiscard]] bool EsUnCif(std::string_view numero, bool aviso);

// The printed form of a national identity number: capitals, no separators, eight digits and the letter:
// 12345678Z. What is no such number comes back in capitals without separators.
[[nodiscard]] std::string FormateaDNI(std::string_view numero);

// True when the three make a day of the calendar, year 1 to 9999.
[[nodiscard]] bool EsFechaValida(int dia, int mes, int anno);

// The day that a typed date means: day, month and year in digits with "/" between, blanks anywhere; one or
// two digits for the day and for the month, four for the year, or two, which mean the latest such year that
// is not after that of `hoy`. Nothing when it is no day of the calendar or is before 1/1/1900.
[[nodiscard]] std::optional<std::chrono::year_month_day> VerificaFecha(std::string_view texto,
                                                                       std::chrono::year_month_day hoy);

// "dd/mm/yyyy", ten characters. Only for years 0 to 9999.
[[nodiscard]] std::string Fecha_Cad(std::chrono::year_month_day fecha);

// The day that the clock gives, in universal time.
[[nodiscard]] std::chrono::year_month_day Hoy();

}  // namespace analizador

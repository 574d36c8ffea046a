#pragma once

// Makes the dBASE tables from their sources.

#include <chrono>
#include <filesystem>
#include <ostream>
#include <string_view>
#include <vector>

#include "programas/creatablas/Esquema.h"

namespace analizador {

// The rows of a source, UTF-8, for a table. Throws ErrorCsv at the first line that does not fit it.
[[nodiscard]] std::vector<TFilaDbf> FilasDeCsv(std::string_view csv, const TEsquema& esquema);

// Writes a table in a folder and, beside it, the note of its indexes' orders (OrdenDbf.h). Throws ErrorTabla
// as EscribeDbf.
void EscribeTabla(const std::filesystem::path& destino, const TEsquema& esquema,
                  const std::vector<TFilaDbf>& filas, std::chrono::year_month_day fecha);

// Puts the time of a file's change at the next even second, so that a copy or a package that keeps the time
// keeps it whole, and with it the note. Where that is not allowed the time stays.
void RedondeaFecha(const std::filesystem::path& fichero);

// Makes every table of `destino`, a folder that is made if it is not there, from its source in `origen`. A
// table whose source has a fault is not touched, the fault written to `errores` in one line with the file,
// the line and the cause. False when there was any.
[[nodiscard]] bool CreaTablas(const std::filesystem::path& origen, const std::filesystem::path& destino,
                              std::ostream& errores);

}  // namespace analizador

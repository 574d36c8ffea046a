#pragma once

// The plain way of reading a token file, as the oracle for the fast one: at each look-up the file is opened
// again and scanned line by line.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace analizador::pruebas {

// The values "1" to "n" of a section, n being its "NumPalabras"; missing ones are empty. The file is in
// Windows-1252. Empty without the file or the section.
[[nodiscard]] std::vector<std::string> EntradasDe(const std::filesystem::path& fichero,
                                                  std::string_view seccion);

}  // namespace analizador::pruebas

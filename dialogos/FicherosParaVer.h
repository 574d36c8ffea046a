#pragma once

// The temporary files through which the dialogs show texts in other windows.

#include <filesystem>
#include <string>
#include <string_view>

namespace analizador {

// A new temporary file with these bytes, as FicheroTemporal_ makes it. It belongs to the caller, who removes
// it. Throws std::filesystem::filesystem_error; then no file is left.
[[nodiscard]] std::filesystem::path EscribeFicheroTemporal(std::string_view prefijo,
                                                           std::string_view extension,
                                                           std::string_view bytes);

// A text for people (Windows-1252) as the bytes of a file: UTF-8 after a byte-order mark, every line end (CR,
// LF or both) as CRLF.
[[nodiscard]] std::string BytesDeTexto(std::string_view texto);

}  // namespace analizador

#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace analizador {

// The bytes of a file. Throws FalloDocx when it is missing, no regular file, unreadable, empty or larger
// than any document.
[[nodiscard]] std::string LeeFicheroEntero(const std::filesystem::path& fichero);

// What a file that is no zip archive seems to be: the cause to refuse it with.
[[nodiscard]] std::string CausaDeNoSerZip(std::string_view bytes);

}  // namespace analizador

#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace analizador {

// The bytes of a file, all of one moment. Throws FalloDocx when it is missing, no regular file, unreadable,
// empty, larger than any document or changes all the time.
[[nodiscard]] std::string LeeFicheroEntero(const std::filesystem::path& fichero);

// What a file that is no zip archive seems to be: the cause to refuse it with.
[[nodiscard]] std::string CausaDeNoSerZip(std::string_view bytes);

}  // namespace analizador

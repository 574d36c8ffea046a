#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace analizador::pruebas {

// Writes a deed (Windows-1252 paragraphs, no ends) as a document file that reads as ContenidoDe gives it, its
// text cut into runs at odd places. Replaces a file of that name. Throws std::runtime_error when it cannot
// be written.
void EscribeEscritura(const std::filesystem::path& fichero, const std::vector<std::string>& parrafos);

}  // namespace analizador::pruebas

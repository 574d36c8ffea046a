#pragma once

// The note beside a big table that says in the order of which index its rows were written, so that one of
// them is found without reading the others. It is a file called as the table with the extension .ORD, one
// line: the index's name, the table's length in bytes, its time of change in nanoseconds and a sum (FNV-1a,
// 64 bits) over its header, its first and last records and 64 more spread evenly between them. It counts only
// while all are still those: a table changed or replaced since is read as any other. What the sum cannot see
// is a change, length and time kept, to none of those records: whoever uses the order checks the rows met.

#include <filesystem>
#include <string>
#include <string_view>

#include "plataforma/Rficheros.h"

namespace analizador {

// Notes that the rows of the table, as it is now, lie in the order of the index. Without right to write there
// is no note.
void AnotaOrden(const std::filesystem::path& tabla, std::string_view indice);

// Removes the note, before the table is written anew.
void OlvidaOrden(const std::filesystem::path& tabla);

// The index in whose order the table's rows lie, by a note that counts for the table and its mark; empty
// without. Reads the note and, when the mark agrees, the records of the sum.
[[nodiscard]] std::string OrdenAnotado(const std::filesystem::path& tabla, const TMarcaFichero& marca);

}  // namespace analizador

#pragma once

// The note beside a big table that says in which order its rows come in some of its indexes, so that one of
// them is found without reading the others. It is a file called as the table with the extension .ORD. Its
// first line: the index in whose order the rows lie in the file (or "-"), the table's length in bytes, its
// time of change in nanoseconds and a sum (FNV-1a, 64 bits) over its header, its first and last records and
// 64 more spread evenly between them. For each index in another order there follows a line: its name, the
// number of rows and a sum of their order; then, if there are such, an empty line and for each of them the
// rows' numbers in its order, from 0, 4 bytes each, little-endian.
//
// The note counts only while all that the first line says is still so: a table changed or replaced since is
// read as any other. What the sum cannot see is a change, length and time kept, to none of those records:
// whoever uses the order checks the rows met.

#include <cstdint>
#include <filesystem>
#include <limits>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "adaptadores/dbase/ValoresDbf.h"
#include "plataforma/Rficheros.h"

namespace analizador {

// The rows of a table in the order of an index.
class TOrdenDbf {
  public:
    static constexpr std::uint64_t NINGUNO = std::numeric_limits<std::uint64_t>::max();
    static constexpr std::size_t BYTES = 4;  // of each row's number

    // As they lie in the file.
    TOrdenDbf() = default;
    // By their numbers, BYTES each.
    explicit TOrdenDbf(std::string numeros) : propio_(true), numeros_(std::move(numeros)) {}

    // The number in the file, from 0, of the row at a position of the order, from 0; NINGUNO past the last.
    // It may be any: nobody has looked whether the table has such a row.
    [[nodiscard]] std::uint64_t Registro(std::uint64_t posicion) const {
        if (!propio_) return posicion;
        return posicion < numeros_.size() / BYTES ? LeeBajo(numeros_, posicion * BYTES, BYTES) : NINGUNO;
    }

  private:
    bool propio_ = false;
    std::string numeros_;
};

// By the index's name.
using TOrdenesDbf = std::map<std::string, TOrdenDbf, std::less<>>;

// Notes that the rows of the table, as it is now, lie in the order of the index, as whoever wrote them knows.
// Without right to write there is no note.
void AnotaOrden(const std::filesystem::path& tabla, std::string_view indice);

// Notes the order of the rows in each of the indexes, in whichever they lie; reads the whole table. There is
// no note when it cannot be read or has deleted rows.
void AnotaOrdenes(const std::filesystem::path& tabla, const std::vector<std::string>& indices);

// Removes the note, before the table is written anew.
void OlvidaOrden(const std::filesystem::path& tabla);

// The orders by a note that counts for the table and its mark; none without. Reads the note and, when the
// mark agrees, the records of the sum. An order whose numbers are not all there, or not those summed, is left
// out.
[[nodiscard]] TOrdenesDbf OrdenAnotado(const std::filesystem::path& tabla, const TMarcaFichero& marca);

}  // namespace analizador

#pragma once

// Paths and temporary files.

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace analizador {

// Joins two parts of a path so that exactly one separator stands between them.
[[nodiscard]] std::filesystem::path SlashSep(const std::filesystem::path& ruta,
                                             const std::filesystem::path& resto);

// A path as text for messages and files for people, UTF-8 on every system.
[[nodiscard]] std::string Utf8DeRuta(const std::filesystem::path& ruta);

// The full name of the running program's file; empty when the system does not tell.
[[nodiscard]] std::filesystem::path RutaPrograma();

// A new, empty file that only this user can read, with an unguessable name that begins with `prefijo` and
// ends in "." and `extension`, in `carpeta` (empty: CarpetaPrivada(), which goes with the process). It
// belongs to the caller, who removes it. Throws std::filesystem::filesystem_error.
[[nodiscard]] std::filesystem::path FicheroTemporal_(const std::filesystem::path& carpeta,
                                                     std::string_view prefijo, std::string_view extension);

// What tells one content of a file from another: who it is, how long, and when it last changed. Equal marks
// mean equal content only when the mark is not recent: a file written twice within the clock's resolution
// keeps its mark.
struct TMarcaFichero {
    bool Existe = false;
    std::uint64_t Dispositivo = 0;
    std::uint64_t Identidad = 0;
    std::uint64_t Longitud = 0;
    std::int64_t Modificado = 0;  // nanoseconds
    std::int64_t Cambiado = 0;    // nanoseconds; where the system keeps it, else as Modificado
    bool Reciente = false;        // changed so lately that it may change again unseen
    bool operator==(const TMarcaFichero&) const = default;
};

// The rule behind `Reciente`: modified or changed less than three seconds before `ahora`, or after it. All in
// nanoseconds of one clock.
[[nodiscard]] bool EsMarcaReciente(std::int64_t modificado, std::int64_t cambiado, std::int64_t ahora);

// The mark of a file as it is now; `Existe` is false when there is none or it cannot be reached.
[[nodiscard]] TMarcaFichero MarcaDeFichero(const std::filesystem::path& fichero);

// Whether the file was the same when both marks were taken, however long ago it had changed.
[[nodiscard]] bool MismaMarca(const TMarcaFichero& una, TMarcaFichero otra);

enum class TEstadoLectura {
    Entera,
    SinPermiso,  // it cannot be opened for lack of rights
    NoSeAbre,    // nor for another cause: it does not exist, too many files are open
    NoSeLee,     // it opens and its reading fails, as a folder's does
    Cambia       // it never stood still, or never had the length that the system tells
};

// What was read in the last attempt and the mark of just before it. The bytes are the file's content as of
// that mark only when `Estado` is Entera; they may be torn when it is Cambia and are empty otherwise.
struct TLecturaFichero {
    TEstadoLectura Estado = TEstadoLectura::NoSeAbre;
    TMarcaFichero Marca;
    std::string Bytes;
};

// Takes the mark of a file; MarcaDeFichero, except in tests.
using TTomaMarca = std::function<TMarcaFichero(const std::filesystem::path&)>;

// The file's whole content together with the mark that it had all along, never half of an old and half of a
// new one: it is read again as long as its mark changes meanwhile, or its bytes under a recent mark, a
// hundred times at most (a tenth of a second). One that was emptied just now is given a moment to be filled.
// What nothing shows is a writer that pauses between two halves. No failure throws; the file is closed on
// return.
[[nodiscard]] TLecturaFichero LeeFichero(const std::filesystem::path& fichero,
                                         const TTomaMarca& marca = MarcaDeFichero);

}  // namespace analizador

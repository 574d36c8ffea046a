#pragma once

// Which deeds a call is about.

#include <cstddef>
#include <cstdio>
#include <deque>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace analizador {

// Whether `nombre` stands for other names: a folder for its documents, "-" for a list.
[[nodiscard]] bool EsDeVarias(const std::string& nombre);

// The documents of a folder by name, byte by byte: .docx, .docm, .dotx and .dotm in any case. Not those of
// folders in it, nor the marks that programs leave beside a document they have open (~$..., hidden names).
[[nodiscard]] std::vector<std::filesystem::path> EscriturasDe(const std::filesystem::path& carpeta);

// The deeds in the order given, each as it was named. A folder without deeds stands for itself, so that
// whoever analyses it says what is wrong with it.
class TListaEscrituras {
  public:
    // `nombres`: files, folders, and "-" for the names in `lista`, which end in `fin`: '\n' (then a '\r'
    // before it and empty lines do not count) or '\0'. `lista` is read while it comes and belongs to the
    // caller.
    TListaEscrituras(const std::vector<std::string>& nombres, std::FILE* lista, char fin);

    // None at the end, and when a signal interrupts the wait for the list.
    [[nodiscard]] std::optional<std::filesystem::path> Siguiente();

    // How many there are in all; none when there is a list, which tells only at its end.
    [[nodiscard]] std::optional<std::size_t> Cuantas() const { return FCuantas; }

  private:
    void Pon(const std::string& nombre);
    [[nodiscard]] std::optional<std::string> NombreDeLaLista();

    std::deque<std::filesystem::path> FPendientes;  // "-" for the list
    std::deque<std::filesystem::path> FDeLaLista;   // a folder that the list named
    std::FILE* FLista;
    char FFin;
    std::optional<std::size_t> FCuantas;
};

}  // namespace analizador

#pragma once

// The lines of a big text file, one after another, never all of them in memory.

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

namespace analizador {

class TLectorLineas {
  public:
    // Longer lines come cut to this length; no record is that long.
    static constexpr std::size_t LINEA_MAXIMA = 16384;

    // Throws ErrorCallejero when the file cannot be opened.
    explicit TLectorLineas(const std::filesystem::path& fichero);

    // The next line in Windows-1252, without its end; empty lines and end-of-file marks (1A) are passed over.
    // A file that begins with a byte-order mark is UTF-8. Valid until the next call; nullopt at the end.
    // Throws ErrorCallejero when the file cannot be read.
    [[nodiscard]] std::optional<std::string_view> Siguiente();

    // Of the line given last, from 1.
    [[nodiscard]] int Linea() const { return linea_; }
    // Bytes of the file read so far.
    [[nodiscard]] std::uint64_t Leidos() const { return leidos_; }

  private:
    [[nodiscard]] std::optional<std::string_view> LineaCruda();
    bool Rellena();

    std::filesystem::path fichero_;
    std::ifstream entrada_;
    std::string trozo_;         // what was read of the file
    std::size_t posicion_ = 0;  // the first byte of it not given yet
    std::string traducida_;     // the current line of a UTF-8 file
    bool utf8_ = false;
    bool saltando_ = false;  // inside a line too long, already given
    int linea_ = 0;
    std::uint64_t leidos_ = 0;
};

}  // namespace analizador

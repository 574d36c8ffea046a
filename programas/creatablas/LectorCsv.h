#pragma once

// Comma-separated values (RFC 4180): fields may stand in double quotes, a quote inside them is doubled, and
// commas and line ends inside them are text. A line ends in LF or CRLF.

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace analizador {

// What is wrong in a source file, and in which line of it (from 1). The text is Castilian, UTF-8.
class ErrorCsv : public std::runtime_error {
  public:
    ErrorCsv(int linea, const std::string& causa) : std::runtime_error(causa), Linea(linea) {}
    int Linea;
};

struct TRegistroCsv {
    int Linea = 0;  // where it begins, from 1
    std::vector<std::string> Campos;
};

// Reads one record after another. A byte-order mark at the start is passed over, empty lines are.
class TLectorCsv {
  public:
    // `texto` must outlive the reader.
    explicit TLectorCsv(std::string_view texto);
    // nullopt at the end. Throws ErrorCsv when quotes are not closed or stand where they cannot.
    [[nodiscard]] std::optional<TRegistroCsv> Siguiente();

  private:
    [[nodiscard]] std::string Campo();
    [[nodiscard]] std::string CampoEntreComillas();
    [[nodiscard]] bool EnFinDeLinea() const;
    void PasaFinDeLinea();

    std::string_view resto_;
    int linea_ = 1;
};

}  // namespace analizador

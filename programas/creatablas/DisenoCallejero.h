#pragma once

// How the records of the electoral census's street map lie in their files, as callejero.ini says it.

#include <cstddef>
#include <filesystem>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace analizador {

// What keeps the street map from being imported at all. The text is Castilian, UTF-8, and names the file.
class ErrorCallejero : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// Characters [Primera, Primera + Longitud) of a line, from 0; always inside the record.
struct TCampoFijo {
    std::size_t Primera = 0;
    std::size_t Longitud = 0;
    [[nodiscard]] std::string_view De(std::string_view linea) const {
        return linea.substr(Primera, Longitud);
    }
};

struct TDisenoRegistro {
    std::size_t Longitud = 0;  // characters of every line, its end not counted
    std::map<std::string, TCampoFijo, std::less<>> Campos;
};

struct TDisenoFichero {
    std::string Nombre;                      // VIAS, PSEU, TRAM or UP
    std::string Patron;                      // of the file's name, with * and ?
    std::vector<TDisenoRegistro> Registros;  // of different lengths, at least one
};

class TDisenoCallejero {
  public:
    // Reads the description. Throws ErrorCallejero when it is missing, lacks a record or a field, or a field
    // does not fit its record.
    explicit TDisenoCallejero(const std::filesystem::path& ini);

    // `nombre`: one of the four.
    [[nodiscard]] const TDisenoFichero& Fichero(std::string_view nombre) const;

    // What stands for a street type (folded): a two-letter code or the words of its name, folded; empty for a
    // type that the file does not list.
    [[nodiscard]] std::string_view Tipo(std::string_view tipo) const;

  private:
    std::vector<TDisenoFichero> ficheros_;
    std::map<std::string, std::string, std::less<>> tipos_;
};

// True when the name fits the pattern (* any characters, ? one), ASCII letters without regard to case.
[[nodiscard]] bool EncajaPatron(std::string_view patron, std::string_view nombre);

}  // namespace analizador

#pragma once

// INI files of word lists, and the promise about them: nothing read is ever older than the file.

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace analizador {

// The content of an INI file, read once; const and shareable between threads. Windows-1252 text; a file that
// begins with a byte-order mark is UTF-8. Section names and keys are compared without regard to case; of two
// equal ones the first counts. A value is the text after "=" without the blanks at its ends, and without a
// pair of double quotes around it.
class TFicheroIni {
  public:
    // Its texts live as long as any copy of the object.
    struct Clave {
        std::string_view Nombre;
        std::string_view Valor;
        int Linea = 0;  // from 1
    };
    struct Seccion {
        std::string Nombre;
        std::vector<Clave> Claves;  // in the file's order, repeated ones included
        int Linea = 0;
    };

    TFicheroIni() = default;
    // Reads the text of a file, as its bytes are.
    explicit TFicheroIni(std::string_view bytes);

    [[nodiscard]] std::string LeeTexto(std::string_view seccion, std::string_view clave,
                                       std::string_view defecto) const;
    // `defecto` when the value is missing or no whole number.
    [[nodiscard]] int LeeEntero(std::string_view seccion, std::string_view clave, int defecto) const;

    // The word list of a section: its values "1" to "n", n being its "NumPalabras" (0 when missing or no
    // number); missing ones are empty. The reference lives as long as this object.
    [[nodiscard]] const std::vector<std::string>& Palabras(std::string_view seccion) const;

    // Everything as it stands in the file.
    [[nodiscard]] const std::vector<Seccion>& Secciones() const { return secciones_; }

  private:
    std::shared_ptr<const std::string> texto_;
    std::vector<Seccion> secciones_;
    std::vector<std::pair<std::string, std::vector<std::string>>>
        palabras_;  // by section in capitals, sorted
    [[nodiscard]] const Seccion* BuscaSeccion(std::string_view nombre) const;
};

// The file's content as it stands on disk now: a copy kept in memory as long as the file is surely the same,
// and while it is being written: when it never stands still or was emptied just now. A missing or unreadable
// file is empty. No file stays open. May be called from several threads.
[[nodiscard]] std::shared_ptr<const TFicheroIni> AbreFicheroIni(const std::filesystem::path& fichero);

}  // namespace analizador

#pragma once

// Runs the real `analiza`, as a clerk's script would.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace analizador {

// A folder of its own for each test; gone with the object.
class TCarpetaTemporal {
  public:
    TCarpetaTemporal();
    ~TCarpetaTemporal();
    TCarpetaTemporal(const TCarpetaTemporal&) = delete;
    TCarpetaTemporal& operator=(const TCarpetaTemporal&) = delete;

    [[nodiscard]] const std::filesystem::path& Ruta() const { return FRuta; }

    // A new file of that content, its full name.
    [[nodiscard]] std::filesystem::path Fichero(std::string_view nombre, std::string_view contenido) const;
    // A copy of the example document `ejemplo` (its name without extension) under another name.
    [[nodiscard]] std::filesystem::path Copia(std::string_view ejemplo, std::string_view nombre) const;

  private:
    std::filesystem::path FRuta;
};

struct TEjecucion {
    int Codigo = -1;  // what the program returned; -1 when it was killed
    std::string Salida;
    std::string Errores;
};

// Runs it with its output in files, the exact bytes of which are returned. `salida`: a file to write its
// standard output to instead. `entrada`: the file that is its standard input.
[[nodiscard]] TEjecucion Analiza(const std::vector<std::string>& argumentos,
                                 const std::filesystem::path& salida = {},
                                 const std::filesystem::path& entrada = "/dev/null");

// The same of another program; `entorno`: assignments of variables, as a shell takes them before a command.
[[nodiscard]] TEjecucion Ejecuta(const std::filesystem::path& programa,
                                 const std::vector<std::string>& argumentos, const std::string& entorno = {},
                                 const std::filesystem::path& salida = {},
                                 const std::filesystem::path& entrada = "/dev/null");

// The document of an example in the sources.
[[nodiscard]] std::filesystem::path Ejemplo(std::string_view nombre);

// The bytes of a file.
[[nodiscard]] std::string Bytes(const std::filesystem::path& fichero);

// Without the line ends.
[[nodiscard]] std::vector<std::string> Lineas(std::string_view texto);

}  // namespace analizador

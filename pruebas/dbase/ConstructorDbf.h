#pragma once

// Builds the bytes of dBASE files of every version, well or badly formed, for the tests.

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "adaptadores/dbase/TablaDbase.h"

namespace analizador {

struct TCampoPrueba {
    std::string Nombre;
    char Tipo = 'C';
    int Ancho = 1;
    int Decimales = 0;
};

struct TFichero {
    unsigned char Version = 0x03;
    unsigned char Controlador = 0x03;
    std::vector<TCampoPrueba> Campos = {};
    std::vector<std::vector<std::string>> Filas = {};  // raw bytes, blank-padded to the field's width
    bool Largos = false;                               // dBASE 7's header and descriptors
    int BytesTrasCampos = 0;                           // between the descriptors' end and the first record

    [[nodiscard]] std::string Bytes() const;
};

// `valor` in `bytes` bytes, little-endian or big-endian.
std::string Bajo(std::uint64_t valor, int bytes);
std::string Alto(std::uint64_t valor, int bytes);

// The bytes with those of `nuevos` put at a position.
std::string Con(std::string bytes, std::size_t posicion, std::string_view nuevos);

// An open table over the bytes; `nombre` as the built-in indexes know it.
std::unique_ptr<TTablaDbase> TablaDe(const TFichero& fichero, std::string_view nombre,
                                     std::string_view indice);

// A folder of its own that goes with the object.
class TCarpetaPrueba {
  public:
    TCarpetaPrueba();
    ~TCarpetaPrueba();
    TCarpetaPrueba(const TCarpetaPrueba&) = delete;
    TCarpetaPrueba& operator=(const TCarpetaPrueba&) = delete;
    [[nodiscard]] const std::filesystem::path& Ruta() const { return ruta_; }
    std::filesystem::path Pon(std::string_view nombre, std::string_view bytes) const;

  private:
    std::filesystem::path ruta_;
};

// The texts of a field, row by row from the first.
std::vector<std::string> Columna(TTabla& tabla, std::string_view campo);

}  // namespace analizador

#pragma once

// The records of a table that stays in its file: read in blocks of a few as they are asked for, and kept.

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "adaptadores/dbase/EstructuraDbf.h"
#include "plataforma/Rficheros.h"

namespace analizador {

// A search goes from Empieza() to Confirma(), and only then is it known whether what was read is the table of
// the mark. In between the file is open, if something had to be read. For one thread at a time.
class TBloquesDbf {
  public:
    // `marca`: the file's, taken before; `fichero`: its name for messages, Windows-1252. Throws ErrorTabla
    // when its header cannot be read or is no dBASE table's.
    TBloquesDbf(std::filesystem::path ruta, const TMarcaFichero& marca, const std::string& fichero);

    [[nodiscard]] const std::shared_ptr<const TEstructuraDbf>& Estructura() const { return estructura_; }

    void Empieza();
    // The record of that number, from 0, which the header must have; its texts in Windows-1252. nullopt when
    // it cannot be read. Valid until the next Empieza(). Throws ErrorTabla as TEstructuraDbf::TraduceTextos.
    [[nodiscard]] std::optional<std::string_view> Registro(std::uint64_t numero);
    // Whether all given since Empieza(), and the header, are of the mark; once not so, never again. Under a
    // recent mark the blocks are read a second time for it, as they may have changed unseen.
    [[nodiscard]] bool Confirma();

    // Read from the file so far, the second readings too.
    [[nodiscard]] std::uint64_t BytesLeidos() const { return bytesLeidos_; }

  private:
    [[nodiscard]] bool AbreSiCerrado();
    [[nodiscard]] bool Lee(std::uint64_t posicion, std::string& bytes);
    [[nodiscard]] std::optional<std::string> LeeBloque(std::uint64_t bloque);
    [[nodiscard]] bool SiguenIguales();

    std::filesystem::path ruta_;
    TMarcaFichero marca_;
    std::ifstream entrada_;
    std::string cabecera_;
    std::shared_ptr<const TEstructuraDbf> estructura_;
    std::uint64_t porBloque_ = 1;  // records
    std::map<std::uint64_t, std::string> bloques_;
    std::uint64_t bytesLeidos_ = 0;
    bool vale_ = true;
};

}  // namespace analizador

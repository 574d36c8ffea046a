#pragma once

// What the header of a dBASE file says of its records. Never changed once read: shared between threads
// freely.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "adaptadores/dbase/FormatoDbf.h"

namespace analizador {

class TEstructuraDbf {
  public:
    // `bytes`: the file's bytes from its first, the whole header at least; `longitud`: how many the file has;
    // `fichero`: its name for messages, Windows-1252. Throws ErrorTabla, whose text names the file, when they
    // are no dBASE table or it is cut short.
    TEstructuraDbf(std::string_view bytes, std::uint64_t longitud, std::string fichero);

    [[nodiscard]] const std::string& Fichero() const { return fichero_; }
    [[nodiscard]] const std::vector<TCampoDbf>& Campos() const { return campos_; }
    // By name, without regard to case. Throws ErrorTabla when there is none such. The campo belongs to this.
    [[nodiscard]] const TCampoDbf& Campo(std::string_view nombre) const;
    [[nodiscard]] bool TieneCampo(std::string_view nombre) const { return BuscaCampo(nombre) != nullptr; }

    // Deleted ones included.
    [[nodiscard]] std::uint32_t Registros() const { return registros_; }
    // In bytes: the first record's position in the file, and each record's length.
    [[nodiscard]] std::size_t LongitudCabecera() const { return cabecera_; }
    [[nodiscard]] std::size_t LongitudRegistro() const { return longitudRegistro_; }

    // Puts the texts of the records that stand in `bytes` one after another from `primero` on, but for the
    // deleted ones, in Windows-1252. Throws ErrorTabla when they hold letters of a code page that is not
    // known here.
    void TraduceTextos(std::string& bytes, std::size_t primero) const;

  private:
    [[noreturn]] void Falla(std::string_view causa) const;
    void CompruebaCabecera(std::string_view bytes, std::uint64_t longitud);
    void LeeCampos(std::string_view bytes);
    [[nodiscard]] bool LeeDescriptores(std::string_view bytes, std::size_t primero, std::size_t longitud,
                                       bool largos);
    void LeeTraduccion(unsigned char controlador);
    void TraduceCampo(char* registro, const TCampoDbf& campo) const;
    [[nodiscard]] const TCampoDbf* BuscaCampo(std::string_view nombre) const;

    std::string fichero_;
    std::size_t cabecera_ = 0;
    std::size_t longitudRegistro_ = 0;
    std::uint32_t registros_ = 0;
    std::vector<TCampoDbf> campos_;
    std::string traduccion_;       // of each byte
    bool paginaConocida_ = false;  // else only the bytes below 80 may stand in a text
    bool soloNulos_ = false;       // it changes nothing but the byte 00
};

}  // namespace analizador

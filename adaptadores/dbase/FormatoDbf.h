#pragma once

// The dBASE file format, as far as this reader and writer know it. Numbers are little-endian.
//
// Header, 32 bytes:
//   0      version: 03 dBASE III, 04 05 07 dBASE IV, V and alike, 30 31 32 Visual FoxPro; with a memo file 43
//          63 83 87 8B CB F5; 04 and 8C also dBASE 7, whose header is longer (below)
//   1-3    date of the last change: years since 1900, month, day
//   4-7    number of records, deleted ones included
//   8-9    length of the whole header: the first record's position
//   10-11  length of a record, its deletion mark included
//   12-28  of no use here (reserved, transactions, encryption, multi-user, production index mark)
//   29     language driver: which code page the texts are in (PaginasCodigos.h)
//   30-31  reserved
// In dBASE 7 there follow 32 bytes with the driver's name and 4 reserved ones.
//
// Field descriptors, one after another, ended by a byte 0D:
//        dBASE III to V, FoxPro (32 bytes)    dBASE 7 (48 bytes)
//   name     0-10, ended by 00                    0-31, ended by 00
//   type     11                                   32
//   length   16                                   33
//   decimals 17 (a text: the length's high byte)  34
//   flags    18 (Visual FoxPro: bit 0 hidden)     -
//
// Records: a byte that is "*" in a deleted one (blank otherwise), then the fields without separators. After
// the last record a byte 1A that may be missing.
//
// Field types read: C text; N F a number in digits; L T/t/Y/y or F/f/N/n; D yyyymmdd; I a 32-bit integer and
// O a double (in dBASE 7 both big-endian with the sign bit inverted, a negative double inverted whole); B of
// 8 bytes in Visual FoxPro a little-endian double. Memos (M, G, P, other B) and all other types read empty.

#include <cstddef>
#include <string>
#include <string_view>

namespace analizador {

inline constexpr std::size_t CABECERA_DBF = 32;
inline constexpr std::size_t REGISTROS_EN = 4;
inline constexpr std::size_t LONGITUD_CABECERA_EN = 8;
inline constexpr std::size_t LONGITUD_REGISTRO_EN = 10;
inline constexpr std::size_t DESCRIPTOR_DBF = 32;
inline constexpr std::size_t CABECERA_DBF7 = 68;
inline constexpr std::size_t DESCRIPTOR_DBF7 = 48;
inline constexpr char FIN_DESCRIPTORES = 0x0D;
inline constexpr char FIN_FICHERO_DBF = 0x1A;
inline constexpr char BORRADO_DBF = '*';

// How the bytes of a field are to be understood.
enum class TClaseCampo {
    Texto,
    Numero,  // digits
    Logico,
    EnteroBajo,  // 32 bits, little-endian
    EnteroAlto,  // 32 bits, big-endian, sign bit inverted
    RealBajo,    // 64 bits, little-endian
    RealAlto,    // 64 bits, big-endian, sign bit inverted, negative ones inverted whole
    Vacio        // a memo or another type that reads empty
};

struct TCampoDbf {
    std::string Nombre;  // capitals
    TClaseCampo Clase = TClaseCampo::Vacio;
    std::size_t Posicion = 0;  // in the record, its deletion mark included
    std::size_t Longitud = 0;
};

// The field's bytes in a record.
[[nodiscard]] inline std::string_view BytesDe(std::string_view registro, const TCampoDbf& campo) {
    return {registro.data() + campo.Posicion, campo.Longitud};
}

}  // namespace analizador

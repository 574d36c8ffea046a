#pragma once

// The street map of the electoral census as it is kept in memory while it is imported: a few bytes a stretch,
// the names side by side in one text.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "programas/creatablas/DisenoCallejero.h"
#include "programas/creatablas/RechazosCallejero.h"

namespace analizador {

inline constexpr std::uint32_t PROVINCIAS = 52;
inline constexpr std::uint32_t MUNICIPIOS_POR_PROVINCIA = 1000;

// A municipality by its statistics code as a number (28079); the two first digits are the province.
using TCodigoMunicipio = std::uint32_t;

struct TMunicipioCallejero {
    std::string Nombre;                  // as the street map has it; empty: there is no such municipality
    std::uint32_t Tramos = 0;            // stretches that it has
    std::vector<std::uint32_t> Codigos;  // postal codes of its stretches, ascending, no two equal
};

// The names of a street: [Primero, Primero + Cuantos) in TCallejero::Nombres.
struct TViaCallejero {
    std::uint64_t Clave = 0;  // municipality, kind and code
    std::uint32_t Primero = 0;
    std::uint8_t Cuantos = 0;
    std::uint8_t Tipo = 0;  // in CONST_TIPO_VIA, from 1; 0 for any other kind
};

struct TNombreCallejero {
    std::uint32_t Primera = 0;  // in TCallejero::Textos
    std::uint8_t Longitud = 0;
};

struct TTramoCallejero {
    std::uint32_t Via = 0;  // in TCallejero::Vias
    TCodigoMunicipio Municipio = 0;
    std::uint32_t CodPostal = 0;
    std::uint16_t Primero = 0;  // house numbers, both included, of one parity; 0 to 0: without number
    std::uint16_t Ultimo = 0;
    bool Impar = false;
};

// Told of the file that is read, its bytes read so far and all of them.
using TProgresoCallejero = std::function<void(std::string_view, std::uint64_t, std::uint64_t)>;

struct TCallejero {
    std::vector<TMunicipioCallejero> Municipios;  // by code
    std::vector<TViaCallejero> Vias;              // ascending by Clave
    std::vector<TNombreCallejero> Nombres;
    std::string Textos;
    std::vector<TTramoCallejero> Tramos;           // of the stretches that lie in a street
    std::map<std::string, int> TiposDesconocidos;  // and how many streets have each, Windows-1252
    std::size_t ViasLeidas = 0, SeudoviasLeidas = 0, TramosLeidos = 0, TramosSinVia = 0;

    [[nodiscard]] std::string_view Nombre(std::uint32_t nombre) const {
        return std::string_view(Textos).substr(Nombres[nombre].Primera, Nombres[nombre].Longitud);
    }
};

// Reads the files of the folder. Lines that do not hold what they should go to `rechazos`. Throws
// ErrorCallejero when a file of the four is missing, cannot be read, or has lines of no length described.
[[nodiscard]] TCallejero LeeCallejero(const std::filesystem::path& carpeta, const TDisenoCallejero& diseno,
                                      TRechazos& rechazos, const TProgresoCallejero& progreso);

}  // namespace analizador

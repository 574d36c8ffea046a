#include "adaptadores/memoria/Buscador.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "adaptadores/memoria/Letras.h"
#include "plataforma/Ansi.h"
#include "plataforma/Encuentra.h"

namespace analizador {

namespace {

constexpr std::size_t LONGITUD_MAXIMA = 255;
constexpr std::size_t RACHA = 4;
constexpr std::size_t NO_ESTA = std::string_view::npos;

bool EsGuionOpcional(char c) {
    return c == '\x1F' || c == '\xAD';
}

constexpr char SinVariantes(char c) {
    switch (c) {
        case '\x91':
        case '\x92':
            return '\'';
        case '\x93':
        case '\x94':
            return '"';
        case '\xA0':
            return ' ';
        default:
            return c;
    }
}

constexpr std::array<char, 256> COMPARABLES = [] {
    std::array<char, 256> comparables{};
    for (std::size_t i = 0; i < comparables.size(); ++i) comparables[i] = SinVariantes(static_cast<char>(i));
    return comparables;
}();

std::string HazComparable(std::string_view texto) {
    std::string salida(texto.size(), '\0');
    std::size_t letras = 0;
    for (const char c : texto) {
        salida[letras] = COMPARABLES[static_cast<unsigned char>(c)];
        letras += EsGuionOpcional(c) ? 0 : 1;
    }
    salida.resize(letras);
    return salida;
}

// Whether a word runs across the position between two characters of the text.
bool PartePalabra(std::string_view texto, std::size_t posicion) {
    return posicion > 0 && posicion < texto.size() && EsLetraODigito(texto[posicion - 1]) &&
           EsLetraODigito(texto[posicion]);
}

// One search: the text, what is looked for and whether words count, all of them comparable already.
struct TBusqueda {
    std::string_view Texto;
    std::string_view Buscado;
    bool PalabrasCompletas;

    [[nodiscard]] bool Vale(std::size_t inicio) const {
        return !PalabrasCompletas ||
               (!PartePalabra(Texto, inicio) && !PartePalabra(Texto, inicio + Buscado.size()));
    }

    // The first match that begins at `desde` or later, or NO_ESTA.
    [[nodiscard]] std::size_t Primera(std::size_t desde) const {
        std::size_t inicio = Encuentra(Texto, Buscado, desde);
        while (inicio != NO_ESTA && !Vale(inicio)) inicio = Encuentra(Texto, Buscado, inicio + 1);
        return inicio;
    }

    // The last match that ends at `hasta` or earlier, or NO_ESTA.
    [[nodiscard]] std::size_t Ultima(std::size_t hasta) const {
        const auto parte = Texto.substr(0, hasta);
        auto inicio = parte.rfind(Buscado);
        while (inicio != NO_ESTA && !Vale(inicio))
            inicio = inicio == 0 ? NO_ESTA : parte.rfind(Buscado, inicio - 1);
        return inicio;
    }
};

void CompruebaOpciones(std::string_view buscado, const TOpcionesBusqueda& opciones) {
    if (opciones.Comodines || opciones.SuenaComo || opciones.TodasLasFormas || opciones.Formato)
        throw ErrorWord(std::string(
            "No se puede buscar con comodines, por el sonido, por las formas de la palabra ni por el formato"_ansi));
    if (buscado.size() > LONGITUD_MAXIMA)
        throw ErrorWord(std::string("El texto que se busca tiene más de 255 caracteres"_ansi));
}

}  // namespace

TBuscador::TBuscador(std::string_view texto)
    : FTexto(HazComparable(texto)), FMayusculas(AnsiUpperCase(FTexto)) {
    for (std::size_t i = 0; FGuiones.size() < texto.size() - FTexto.size(); ++i)
        if (EsGuionOpcional(texto[i])) FGuiones.push_back(static_cast<int>(i));
    for (std::size_t i = 0; i + RACHA <= FMayusculas.size(); ++i) FRachas.set(SumaDeRacha(&FMayusculas[i]));
}

std::size_t TBuscador::SumaDeRacha(const char* racha) {
    std::uint32_t letras = 0;
    static_assert(sizeof letras == RACHA);
    std::memcpy(&letras, racha, RACHA);
    return letras * 0x9E3779B1U >> 14U;  // multiplied, so that every letter counts in the high bits kept
}

bool TBuscador::PuedeEstar(std::string_view mayusculas) const {
    for (std::size_t i = 0; i + RACHA <= mayusculas.size(); ++i)
        if (!FRachas[SumaDeRacha(&mayusculas[i])]) return false;
    return true;
}

std::size_t TBuscador::Comparable(int posicion) const {
    const auto antes = std::lower_bound(FGuiones.begin(), FGuiones.end(), posicion) - FGuiones.begin();
    return static_cast<std::size_t>(posicion - antes);
}

int TBuscador::EnElTexto(std::size_t comparable) const {
    std::size_t antes = 0;
    std::size_t hasta = FGuiones.size();  // how many hyphens stand before it lies in [antes, hasta]
    while (antes < hasta) {
        const std::size_t medio = (antes + hasta) / 2;
        if (static_cast<std::size_t>(FGuiones[medio]) - medio <= comparable)
            antes = medio + 1;
        else
            hasta = medio;
    }
    return static_cast<int>(comparable + antes);
}

std::optional<TIntervalo> TBuscador::Busca(std::string_view buscado, const TOpcionesBusqueda& opciones,
                                           TIntervalo desde) const {
    CompruebaOpciones(buscado, opciones);
    const bool mayusculas = !opciones.DistingueMayusculas;
    const std::string clave = mayusculas ? AnsiUpperCase(HazComparable(buscado)) : HazComparable(buscado);
    if (clave.empty() || !PuedeEstar(mayusculas ? clave : AnsiUpperCase(clave))) return std::nullopt;

    const TBusqueda busqueda{mayusculas ? FMayusculas : FTexto, clave, opciones.PalabrasCompletas};
    auto inicio = opciones.Adelante ? busqueda.Primera(Comparable(desde.Fin))
                                    : busqueda.Ultima(Comparable(desde.Inicio));
    if (inicio == NO_ESTA && opciones.Continua)
        inicio = opciones.Adelante ? busqueda.Primera(0) : busqueda.Ultima(FTexto.size());
    if (inicio == NO_ESTA) return std::nullopt;
    return TIntervalo{EnElTexto(inicio), EnElTexto(inicio + clave.size() - 1) + 1};
}

}  // namespace analizador

#include "adaptadores/dbase/OrdenDbf.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <sstream>

#include "adaptadores/dbase/FormatoDbf.h"
#include "adaptadores/dbase/TablaDbase.h"

namespace analizador {

namespace {

std::filesystem::path Nota(std::filesystem::path tabla) {
    return tabla.replace_extension(".ORD");
}

constexpr std::uint64_t MUESTRAS = 65;  // stretches between the records of the sum

class TSumaFnv {
  public:
    void Suma(std::string_view bytes) {
        for (const char c : bytes) valor_ = (valor_ ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    }
    [[nodiscard]] std::uint64_t Valor() const { return valor_; }

  private:
    std::uint64_t valor_ = 0xCBF29CE484222325U;
};

bool LeeEn(std::ifstream& entrada, std::uint64_t posicion, std::string& bytes) {
    entrada.seekg(static_cast<std::streamoff>(posicion));
    return !!entrada.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

// Nothing when the file is too short for what its header says, or cannot be read.
std::optional<std::uint64_t> SumaDeTabla(const std::filesystem::path& tabla) {
    std::ifstream entrada;
    entrada.rdbuf()->pubsetbuf(nullptr, 0);  // each record alone is read, not a block around it
    entrada.open(tabla, std::ios::binary);
    std::string cabecera(CABECERA_DBF, '\0');
    if (!LeeEn(entrada, 0, cabecera)) return std::nullopt;
    const std::uint64_t registros = LeeBajo(cabecera, REGISTROS_EN, 4);
    std::string registro(LeeBajo(cabecera, LONGITUD_REGISTRO_EN, 2), '\0');
    cabecera.resize(LeeBajo(cabecera, LONGITUD_CABECERA_EN, 2));
    if (!LeeEn(entrada, 0, cabecera)) return std::nullopt;
    TSumaFnv suma;
    suma.Suma(cabecera);
    for (std::uint64_t i = 0; registros > 0 && i <= MUESTRAS; ++i) {
        const std::uint64_t cual = (registros - 1) * i / MUESTRAS;
        if (!LeeEn(entrada, cabecera.size() + cual * registro.size(), registro)) return std::nullopt;
        suma.Suma(registro);
    }
    return suma.Valor();
}

// Of rows' numbers, taken by twos.
std::uint64_t SumaDeNumeros(std::string_view numeros) {
    constexpr std::size_t DOS = 2 * TOrdenDbf::BYTES;
    std::uint64_t suma = 0xCBF29CE484222325U;
    const auto sumaUna = [&](std::uint64_t palabra) { suma = (suma ^ palabra) * 0x100000001B3U; };
    std::size_t leidos = 0;
    for (; leidos + DOS <= numeros.size(); leidos += DOS) sumaUna(LeeOcho(numeros.data() + leidos));
    if (leidos < numeros.size()) sumaUna(LeeBajo(numeros, leidos, numeros.size() - leidos));
    return suma;
}

std::string Numeros(const std::vector<std::uint32_t>& orden) {
    std::string numeros;
    numeros.reserve(orden.size() * TOrdenDbf::BYTES);
    for (const std::uint32_t fila : orden)
        for (std::size_t i = 0; i < TOrdenDbf::BYTES; ++i)
            numeros += static_cast<char>(fila >> 8U * i & 0xFFU);
    return numeros;
}

// An order of the note's own: its index and its rows' numbers.
using TOrdenPropio = std::pair<std::string, std::string>;

void EscribeNota(const std::filesystem::path& tabla, const TMarcaFichero& marca, std::string_view indice,
                 const std::vector<TOrdenPropio>& propios) {
    const std::optional<std::uint64_t> suma = SumaDeTabla(tabla);
    std::ofstream nota(Nota(tabla), std::ios::binary | std::ios::trunc);
    if (!marca.Existe || !suma || !nota) return;
    nota << indice << ' ' << marca.Longitud << ' ' << marca.Modificado << ' ' << *suma << '\n';
    for (const auto& [propio, numeros] : propios)
        nota << propio << ' ' << numeros.size() / TOrdenDbf::BYTES << ' ' << SumaDeNumeros(numeros) << '\n';
    if (!propios.empty()) nota << '\n';
    for (const auto& [propio, numeros] : propios) nota << numeros;
}

// What a line says of an order of the note's own.
struct TLineaOrden {
    std::string Indice;
    std::uint64_t Filas = 0;
    std::uint64_t Suma = 0;
};

std::vector<TLineaOrden> LeeLineas(std::istream& nota) {
    std::vector<TLineaOrden> lineas;
    for (std::string texto; std::getline(nota, texto) && !texto.empty();) {
        std::istringstream campos(texto);
        TLineaOrden linea;
        if (!(campos >> linea.Indice >> linea.Filas >> linea.Suma)) break;
        lineas.push_back(std::move(linea));
    }
    return lineas;
}

// Adds those that are whole; no table has as many rows as bytes.
void LeePropios(std::istream& nota, std::uint64_t longitudTabla, TOrdenesDbf& ordenes) {
    for (const TLineaOrden& linea : LeeLineas(nota)) {
        if (linea.Filas >= longitudTabla) return;
        std::string numeros(linea.Filas * TOrdenDbf::BYTES, '\0');
        if (!nota.read(numeros.data(), static_cast<std::streamsize>(numeros.size()))) return;
        if (SumaDeNumeros(numeros) == linea.Suma)
            ordenes.insert_or_assign(linea.Indice, TOrdenDbf(std::move(numeros)));
    }
}

}  // namespace

void AnotaOrden(const std::filesystem::path& tabla, std::string_view indice) {
    EscribeNota(tabla, MarcaDeFichero(tabla), indice, {});
}

void AnotaOrdenes(const std::filesystem::path& tabla, const std::vector<std::string>& indices) try {
    TLecturaFichero lectura = LeeFichero(tabla);
    if (lectura.Estado != TEstadoLectura::Entera) return;
    const TTablaEnMemoria leida(tabla.stem().string(), std::move(lectura.Bytes), tabla.filename().string());
    if (leida.Datos().Filas() != leida.Datos().Estructura().Registros()) return;
    std::string delFichero = "-";
    std::vector<TOrdenPropio> propios;
    for (const std::string& indice : indices) {
        const std::vector<std::uint32_t>& orden = leida.Indice(indice).Orden();
        if (delFichero == "-" && std::is_sorted(orden.begin(), orden.end()))
            delFichero = indice;
        else
            propios.emplace_back(indice, Numeros(orden));
    }
    EscribeNota(tabla, lectura.Marca, delFichero, propios);
} catch (const ErrorTabla&) {
    OlvidaOrden(tabla);
}

void OlvidaOrden(const std::filesystem::path& tabla) {
    std::error_code error;
    std::filesystem::remove(Nota(tabla), error);
}

TOrdenesDbf OrdenAnotado(const std::filesystem::path& tabla, const TMarcaFichero& marca) {
    std::ifstream nota(Nota(tabla), std::ios::binary);
    std::string indice;
    std::uint64_t longitud = 0;
    std::int64_t modificado = 0;
    std::uint64_t suma = 0;
    if (!(nota >> indice >> longitud >> modificado >> suma)) return {};
    const bool mismaMarca = marca.Existe && longitud == marca.Longitud && modificado == marca.Modificado;
    if (!mismaMarca || SumaDeTabla(tabla) != suma) return {};
    TOrdenesDbf ordenes;
    if (indice != "-") ordenes.emplace(indice, TOrdenDbf());
    std::getline(nota, indice);  // the rest of the first line
    LeePropios(nota, longitud, ordenes);
    return ordenes;
}

}  // namespace analizador

#include "adaptadores/dbase/EscritorDbf.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <limits>
#include <string_view>

#include "adaptadores/dbase/FormatoDbf.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rficheros.h"
#include "plataforma/Ruttb.h"

namespace analizador {

namespace {

constexpr char DBASE_III = 0x03;
constexpr char CONTROLADOR_1252 = 0x03;
constexpr std::size_t NOMBRE_MAXIMO = 10;
constexpr int ANCHO_TEXTO_MAXIMO = 254;
constexpr int ANCHO_NUMERO_MAXIMO = 19;
constexpr int PRIMER_ANNO = 1900;

std::string Ansi(const std::filesystem::path& ruta) {
    const std::u8string utf8 = ruta.u8string();
    return AnsiDeUtf8(std::string(utf8.begin(), utf8.end()));
}

[[noreturn]] void Falla(const std::filesystem::path& fichero, std::string_view causa) {
    throw ErrorTabla("La tabla " + Ansi(fichero) + " no se puede escribir: " + std::string(causa));
}

void PonBajo(std::string& bytes, std::size_t posicion, std::size_t cuantos, std::uint64_t valor) {
    for (std::size_t i = 0; i < cuantos; ++i, valor >>= 8U)
        bytes[posicion + i] = static_cast<char>(valor & 0xFFU);
}

std::size_t AnchoDe(const TColumnaDbf& columna) {
    return static_cast<std::size_t>(columna.Ancho);
}

bool ColumnaPosible(const TColumnaDbf& columna) {
    const int maximo = columna.Tipo == TTipoColumna::Texto    ? ANCHO_TEXTO_MAXIMO
                       : columna.Tipo == TTipoColumna::Numero ? ANCHO_NUMERO_MAXIMO
                                                              : 1;
    return !columna.Nombre.empty() && columna.Nombre.size() <= NOMBRE_MAXIMO && columna.Ancho >= 1 &&
           columna.Ancho <= maximo;
}

std::size_t LongitudRegistro(const std::vector<TColumnaDbf>& columnas) {
    std::size_t registro = 1;
    for (const TColumnaDbf& columna : columnas) registro += AnchoDe(columna);
    return registro;
}

std::string Cabecera(const std::vector<TColumnaDbf>& columnas, std::size_t filas,
                     std::chrono::year_month_day fecha) {
    const std::size_t registro = LongitudRegistro(columnas);
    const std::size_t longitud = CABECERA_DBF + columnas.size() * DESCRIPTOR_DBF + 1;
    std::string bytes(CABECERA_DBF, '\0');
    bytes[0] = DBASE_III;
    bytes[1] = static_cast<char>(static_cast<int>(fecha.year()) - PRIMER_ANNO);
    bytes[2] = static_cast<char>(static_cast<unsigned>(fecha.month()));
    bytes[3] = static_cast<char>(static_cast<unsigned>(fecha.day()));
    PonBajo(bytes, 4, 4, filas);
    PonBajo(bytes, 8, 2, longitud);
    PonBajo(bytes, 10, 2, registro);
    bytes[29] = CONTROLADOR_1252;
    return bytes;
}

std::string Descriptor(const TColumnaDbf& columna) {
    std::string bytes(DESCRIPTOR_DBF, '\0');
    std::copy(columna.Nombre.begin(), columna.Nombre.end(), bytes.begin());
    bytes[11] = static_cast<char>(columna.Tipo);
    PonBajo(bytes, 16, 1, AnchoDe(columna));
    return bytes;
}

std::string Registro(const std::filesystem::path& fichero, const std::vector<TColumnaDbf>& columnas,
                     const TFilaDbf& fila) {
    if (fila.size() != columnas.size()) Falla(fichero, "una fila no tiene un valor por campo");
    std::string bytes = " ";
    for (std::size_t i = 0; i < columnas.size(); ++i) {
        const std::string causa = CausaNoCabe(columnas[i], fila[i]);
        if (!causa.empty()) Falla(fichero, "campo " + columnas[i].Nombre + ": " + causa);
        const std::string blancos(AnchoDe(columnas[i]) - fila[i].size(), ' ');
        bytes += columnas[i].Tipo == TTipoColumna::Numero ? blancos + fila[i] : fila[i] + blancos;
    }
    return bytes;
}

std::string Tabla(const std::filesystem::path& fichero, const std::vector<TColumnaDbf>& columnas,
                  std::size_t filas, const std::function<TFilaDbf(std::size_t)>& fila,
                  std::chrono::year_month_day fecha) {
    if (columnas.empty() || !std::all_of(columnas.begin(), columnas.end(), ColumnaPosible))
        Falla(fichero, "sus campos no son posibles");
    if (filas > std::numeric_limits<std::uint32_t>::max()) Falla(fichero, "tiene demasiadas filas");
    std::string bytes = Cabecera(columnas, filas, fecha);
    for (const TColumnaDbf& columna : columnas) bytes += Descriptor(columna);
    bytes += FIN_DESCRIPTORES;
    bytes.reserve(bytes.size() + filas * LongitudRegistro(columnas) + 1);
    for (std::size_t i = 0; i < filas; ++i) bytes += Registro(fichero, columnas, fila(i));
    bytes += FIN_FICHERO_DBF;
    return bytes;
}

bool EsEntero(std::string_view valor) {
    if (valor.starts_with('-')) valor.remove_prefix(1);
    return !valor.empty() && valor.find_first_not_of("0123456789") == std::string_view::npos;
}

void EscribeFichero(const std::filesystem::path& ruta, std::string_view bytes) {
    std::ofstream salida(ruta, std::ios::binary | std::ios::trunc);
    salida.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    salida.close();
    if (!salida) throw ErrorTabla("no cabe en el disco " + Ansi(ruta));
}

}  // namespace

std::string CausaNoCabe(const TColumnaDbf& columna, std::string_view valor) {
    if (valor.size() > AnchoDe(columna))
        return "no cabe en " + std::to_string(columna.Ancho) + " caracteres: " + std::string(valor);
    if (valor.empty() || columna.Tipo == TTipoColumna::Texto) return {};
    if (columna.Tipo == TTipoColumna::Numero && !EsEntero(valor))
        return std::string("no es un número entero: "_ansi) + std::string(valor);
    if (columna.Tipo == TTipoColumna::Logico && valor != "T" && valor != "F")
        return "no es T ni F: " + std::string(valor);
    return {};
}

void EscribeDbf(const std::filesystem::path& fichero, const std::vector<TColumnaDbf>& columnas,
                const std::vector<TFilaDbf>& filas, std::chrono::year_month_day fecha) {
    EscribeDbf(
        fichero, columnas, filas.size(), [&](std::size_t i) { return filas[i]; }, fecha);
}

void EscribeDbf(const std::filesystem::path& fichero, const std::vector<TColumnaDbf>& columnas,
                std::size_t filas, const std::function<TFilaDbf(std::size_t)>& fila,
                std::chrono::year_month_day fecha) {
    using std::filesystem::perms;
    const std::string bytes = Tabla(fichero, columnas, filas, fila, fecha);
    std::error_code error;
    const auto anterior = std::filesystem::status(fichero, error);
    const perms permisos = std::filesystem::exists(anterior) ? anterior.permissions()
                                                             : perms::owner_read | perms::owner_write |
                                                                   perms::group_read | perms::others_read;
    std::filesystem::path carpeta = fichero.parent_path();
    if (carpeta.empty()) carpeta = ".";
    std::filesystem::path temporal;
    try {
        temporal = FicheroTemporal_(carpeta, "tabla", "tmp");
        EscribeFichero(temporal, bytes);
        std::filesystem::permissions(temporal, permisos);
        std::filesystem::rename(temporal, fichero);
    } catch (const std::exception&) {
        if (!temporal.empty()) std::filesystem::remove(temporal, error);
        Falla(fichero, "su carpeta no admite ficheros nuevos");
    }
}

}  // namespace analizador

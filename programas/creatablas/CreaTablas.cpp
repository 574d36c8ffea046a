#include "programas/creatablas/CreaTablas.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <fstream>
#include <optional>
#include <ratio>
#include <sstream>
#include <string>

#include "adaptadores/dbase/OrdenDbf.h"
#include "plataforma/Ansi.h"
#include "plataforma/Ruttb.h"
#include "plataforma/Utf8.h"
#include "programas/creatablas/LectorCsv.h"

namespace analizador {

namespace {

constexpr char16_t MALFORMADO = 0xFFFD;

std::string Utf8(const std::filesystem::path& ruta) {
    const std::u8string utf8 = ruta.u8string();
    return {utf8.begin(), utf8.end()};
}

// nullopt when a character is not in Windows-1252 or the bytes are not UTF-8: nothing is replaced here.
std::optional<std::string> AnsiExacto(std::string_view utf8) {
    std::string ansi;
    for (const char16_t unidad : Utf16DeUtf8(utf8)) {
        const int byte = unidad == MALFORMADO ? -1 : interno::ByteDePunto(unidad);
        if (byte < 0) return std::nullopt;
        ansi += static_cast<char>(byte);
    }
    return ansi;
}

void CompruebaCabecera(const TRegistroCsv& cabecera, const TEsquema& esquema) {
    std::string esperada;
    for (const TColumnaDbf& columna : esquema.Columnas)
        esperada += (esperada.empty() ? "" : ",") + columna.Nombre;
    const bool igual = std::equal(
        cabecera.Campos.begin(), cabecera.Campos.end(), esquema.Columnas.begin(), esquema.Columnas.end(),
        [](const std::string& campo, const TColumnaDbf& c) { return campo == c.Nombre; });
    if (!igual) throw ErrorCsv(cabecera.Linea, "la cabecera tiene que ser " + esperada);
}

TFilaDbf FilaDe(const TRegistroCsv& registro, const TEsquema& esquema) {
    if (registro.Campos.size() != esquema.Columnas.size())
        throw ErrorCsv(registro.Linea, "tiene " + std::to_string(registro.Campos.size()) +
                                           " campos y tendría que tener " +
                                           std::to_string(esquema.Columnas.size()));
    TFilaDbf fila;
    for (std::size_t i = 0; i < registro.Campos.size(); ++i) {
        const TColumnaDbf& columna = esquema.Columnas[i];
        const std::string campo = "campo " + columna.Nombre + ": ";
        const std::optional<std::string> ansi = AnsiExacto(registro.Campos[i]);
        if (!ansi)
            throw ErrorCsv(registro.Linea, campo +
                                               "tiene letras que no están en la página de códigos 1252: " +
                                               PrincipioEnUnaLinea(registro.Campos[i]));
        const std::string causa = CausaNoCabe(columna, *ansi);
        if (!causa.empty()) throw ErrorCsv(registro.Linea, campo + PrincipioEnUnaLinea(Utf8DeAnsi(causa)));
        fila.push_back(*ansi);
    }
    return fila;
}

std::optional<std::string> Contenido(const std::filesystem::path& ruta) {
    std::ifstream fichero(ruta, std::ios::binary);
    std::ostringstream texto;
    if (!fichero || !std::filesystem::is_regular_file(ruta)) return std::nullopt;
    texto << fichero.rdbuf();
    return texto.str();
}

std::chrono::year_month_day Hoy() {
    return std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
}

// The fault, UTF-8; empty when the table was made.
std::string CreaTabla(const std::filesystem::path& csv, const std::filesystem::path& destino,
                      const TEsquema& esquema) {
    const std::optional<std::string> contenido = Contenido(csv);
    if (!contenido) return Utf8(csv) + ": no se puede leer";
    try {
        EscribeTabla(destino, esquema, FilasDeCsv(*contenido, esquema), Hoy());
    } catch (const ErrorCsv& error) {
        return Utf8(csv) + ":" + std::to_string(error.Linea) + ": " + error.what();
    } catch (const ErrorTabla& error) {
        return Utf8DeAnsi(error.what());
    }
    return {};
}

}  // namespace

std::vector<TFilaDbf> FilasDeCsv(std::string_view csv, const TEsquema& esquema) {
    TLectorCsv lector(csv);
    const std::optional<TRegistroCsv> cabecera = lector.Siguiente();
    if (!cabecera) throw ErrorCsv(1, "está vacío");
    CompruebaCabecera(*cabecera, esquema);
    std::vector<TFilaDbf> filas;
    while (const std::optional<TRegistroCsv> registro = lector.Siguiente())
        filas.push_back(FilaDe(*registro, esquema));
    return filas;
}

void EscribeTabla(const std::filesystem::path& destino, const TEsquema& esquema,
                  const std::vector<TFilaDbf>& filas, std::chrono::year_month_day fecha) {
    const std::filesystem::path tabla = destino / (esquema.Tabla + ".DBF");
    OlvidaOrden(tabla);
    EscribeDbf(tabla, esquema.Columnas, filas, fecha);
    if (esquema.Indices.empty()) return;
    RedondeaFecha(tabla);
    AnotaOrdenes(tabla, esquema.Indices);
}

void RedondeaFecha(const std::filesystem::path& fichero) {
    using TDosSegundos = std::chrono::duration<std::int64_t, std::ratio<2>>;
    std::error_code error;
    const auto fecha = std::filesystem::last_write_time(fichero, error);
    if (!error) std::filesystem::last_write_time(fichero, std::chrono::ceil<TDosSegundos>(fecha), error);
}

bool CreaTablas(const std::filesystem::path& origen, const std::filesystem::path& destino,
                std::ostream& errores) {
    std::error_code error;
    std::filesystem::create_directories(destino, error);
    if (!std::filesystem::is_directory(destino, error)) {
        errores << "creatablas: " << EnUnaLinea(Utf8(destino)) << ": no se puede crear la carpeta\n";
        return false;
    }
    bool bien = true;
    for (const TEsquema& esquema : Esquemas()) {
        const std::string fallo = CreaTabla(origen / (esquema.Tabla + ".csv"), destino, esquema);
        if (!fallo.empty()) errores << "creatablas: " << EnUnaLinea(fallo) << '\n';
        bien = bien && fallo.empty();
    }
    return bien;
}

}  // namespace analizador

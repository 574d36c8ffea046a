#include "programas/analiza/FicheroResultados.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string_view>
#include <utility>

#include "plataforma/Rficheros.h"

namespace analizador {

namespace {

namespace fs = std::filesystem;
using TJson = nlohmann::json;

// How a line writes a name, which need not be valid UTF-8.
std::string Clave(const std::string& archivo) {
    return TJson(archivo).dump(-1, ' ', false, TJson::error_handler_t::replace);
}

std::string Clave(const fs::path& escritura) {
    return Clave(Utf8DeRuta(escritura));
}

std::optional<std::string> TextoEn(const TJson& json, const char* clave) {
    const auto valor = json.find(clave);
    if (valor == json.end() || !valor->is_string()) return std::nullopt;
    return valor->get<std::string>();
}

}  // namespace

TFicheroResultados::TFicheroResultados(const fs::path& fichero, bool continua) : FFichero(fichero) {
    if (FFichero.Longitud() == 0) return;
    if (!continua)
        throw FFichero.Fallo(
            "ya tiene resultados; con --continua se sigue con ellos, y si no los quiere, bórrelo");
    ExigeQueSeaDeResultados();
    LeeLasQueHay();
}

// Nobody's letter is cut to half a line because its name was given by mistake.
void TFicheroResultados::ExigeQueSeaDeResultados() const {
    constexpr std::string_view COMIENZO = "{\"archivo\":\"";
    std::string leido(std::min<std::uint64_t>(COMIENZO.size(), FFichero.Longitud()), '\0');
    std::ifstream(FFichero.Ruta(), std::ios::binary)
        .read(leido.data(), static_cast<std::streamsize>(leido.size()));
    if (!COMIENZO.starts_with(leido)) throw FFichero.Fallo("no es un fichero de resultados");
}

// Of several lines of a deed the last one counts. What is no line of ours was torn by a power cut.
void TFicheroResultados::LeeLasQueHay() {
    std::ifstream entrada(FFichero.Ruta(), std::ios::binary);
    std::uint64_t primero = 0;
    for (std::string linea; std::getline(entrada, linea) && !entrada.eof();) {
        const TTrozo trozo{primero, linea.size() + 1};
        primero += trozo.Longitud;
        const auto json = TJson::parse(linea, nullptr, false);
        if (const auto archivo = TextoEn(json, "archivo"))
            FHabia[Clave(*archivo)] = {.Trozo = trozo, .Huella = TextoEn(json, "huella")};
    }
    if (primero < FFichero.Longitud()) FFichero.Corta(primero);
}

std::optional<std::string> TFicheroResultados::HuellaDe(const fs::path& escritura) const {
    if (FHabia.empty()) return std::nullopt;
    const auto linea = FHabia.find(Clave(escritura));
    return linea == FHabia.end() ? std::nullopt : linea->second.Huella;
}

void TFicheroResultados::Conserva(const fs::path& escritura) {
    TLinea& linea = FHabia.at(Clave(escritura));
    linea.Dada = true;
    FOrden.push_back(linea.Trozo);
}

void TFicheroResultados::Anota(const fs::path& escritura, const std::string& linea) {
    const TTrozo trozo{FFichero.Longitud(), linea.size()};
    FFichero.Anade(linea);
    FOrden.push_back(trozo);
    if (FHabia.empty()) return;
    if (const auto vieja = FHabia.find(Clave(escritura)); vieja != FHabia.end()) vieja->second.Dada = true;
}

std::size_t TFicheroResultados::Termina() {
    const std::size_t noDadas = PonLasNoDadas();
    if (EstaEnOrden())
        FFichero.Asegura();
    else
        FFichero.Recompone(FOrden);
    return noDadas;
}

std::size_t TFicheroResultados::PonLasNoDadas() {
    const std::size_t dadas = FOrden.size();
    for (const auto& [nombre, linea] : FHabia)
        if (!linea.Dada) FOrden.push_back(linea.Trozo);
    std::sort(FOrden.begin() + static_cast<std::ptrdiff_t>(dadas), FOrden.end(),
              [](const TTrozo& uno, const TTrozo& otro) { return uno.Primero < otro.Primero; });
    return FOrden.size() - dadas;
}

// Whether the file is already what it should be.
bool TFicheroResultados::EstaEnOrden() const {
    std::uint64_t fin = 0;
    for (const auto& trozo : FOrden)
        if (trozo.Primero != std::exchange(fin, fin + trozo.Longitud)) return false;
    return fin == FFichero.Longitud();
}

}  // namespace analizador

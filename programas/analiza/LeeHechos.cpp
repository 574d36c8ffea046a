#include <algorithm>
#include <array>

#include "plataforma/Utf8.h"
#include "programas/analiza/Hechos.h"
#include "programas/analiza/SalidaJson.h"

namespace analizador {

namespace {

using TJson = nlohmann::ordered_json;

// What the output says besides the facts: it may stand among them and is not looked at.
constexpr std::array<std::string_view, 3> APARTE = {"archivo", "Pizarra", "Origen"};

[[noreturn]] void NoTieneForma(const std::string& clave) {
    throw ErrorHechos("la clave \"" + clave + "\" no tiene la forma que debe");
}

void CompruebaObjeto(const TJson& hechos, const TJson& modelo, const std::string& dentroDe);

void CompruebaLista(const TJson& hechos, const TJson& modelo, const std::string& clave) {
    for (const auto& elemento : hechos) {
        if (elemento.is_object() != !modelo.empty() || elemento.is_array()) NoTieneForma(clave);
        if (elemento.is_object()) CompruebaObjeto(elemento, modelo.front(), clave + ".");
    }
}

void CompruebaValor(const TJson& hechos, const TJson& modelo, const std::string& clave) {
    if (hechos.is_object() != modelo.is_object() || hechos.is_array() != modelo.is_array())
        NoTieneForma(clave);
    if (hechos.is_object()) CompruebaObjeto(hechos, modelo, clave + ".");
    if (hechos.is_array()) CompruebaLista(hechos, modelo, clave);
}

void CompruebaObjeto(const TJson& hechos, const TJson& modelo, const std::string& dentroDe) {
    for (const auto& [clave, valor] : hechos.items()) {
        if (dentroDe.empty() && std::ranges::find(APARTE, clave) != APARTE.end()) continue;
        if (!modelo.contains(clave))
            throw ErrorHechos("no se conoce la clave \"" + dentroDe + PrincipioEnUnaLinea(clave) + "\"");
        CompruebaValor(valor, modelo.at(clave), dentroDe + clave);
    }
}

}  // namespace

TJson LeeHechos(std::string_view json) {
    static const TJson MODELO = TJson::parse(LineaJsonModelo());
    constexpr bool SIN_EXCEPCIONES = false;
    const TJson hechos = TJson::parse(json, nullptr, SIN_EXCEPCIONES);
    if (!hechos.is_object()) throw ErrorHechos("no es JSON, o no es un objeto");
    CompruebaObjeto(hechos, MODELO, "");
    return hechos;
}

}  // namespace analizador

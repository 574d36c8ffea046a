#include <nlohmann/json.hpp>

#include "plataforma/Ansi.h"
#include "programas/analiza/AnalisisEscritura.h"
#include "programas/analiza/SalidaJson.h"
#include "pruebas/fuzz/Fuzzers.h"
#include "pruebas/fuzz/OficinaAlAzar.h"

namespace analizador {

namespace {

std::string Analiza(const TContenidoDocumento& contenido) {
    const TAnalisisEscritura analisis(contenido, false);
    Exige(analisis.Error().empty(), "a deed was refused: " + analisis.Error());
    const std::string pizarra = Utf8DeAnsi(analisis.Sesion().Pizarra);
    std::string linea = LineaJson("memoria", analisis, {.Origen = true, .Revisado = true});
    Exige(linea.find('\n') == std::string::npos, "the JSON is not one line");
    const auto json = nlohmann::json::parse(linea);  // refuses what is no UTF-8
    Exige(json.at("Pizarra") == pizarra, "the JSON has another report, or the report is no text");
    Exige(json.at("Otorgantes").size() == json.at("Origen").at("Otorgantes").size(),
          "parties without origins");
    Exige(analisis.Documento().GetTexto().starts_with(contenido.Texto), "the analysis changed the text");
    for (const auto& marcador : analisis.Documento().GetMarcadores())
        Exige(0 <= marcador.Intervalo.Inicio && marcador.Intervalo.Inicio <= marcador.Intervalo.Fin,
              "a bookmark that ends before it begins");
    return linea;
}

}  // namespace

void FuzzSesion(std::string_view bytes) {
    if (bytes.empty()) return;
    const auto eleccion = static_cast<unsigned char>(bytes.front());
    const TContenidoDocumento contenido = {
        EligeOficina(eleccion).Texto(bytes.substr(1)), {}, {{"EMPLEADO", "ANA"}}};
    const std::string linea = Analiza(contenido);
    if ((eleccion & 64U) != 0) Exige(Analiza(contenido) == linea, "another result the second time");
}

}  // namespace analizador

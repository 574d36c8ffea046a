#include "programas/analiza/SalidaJson.h"

#include <nlohmann/json.hpp>

#include "analizador/ConstAnalizador.h"
#include "dialogos/ListaConceptosPreseleccionados.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rficheros.h"
#include "plataforma/Rnumcad.h"
#include "programas/analiza/SalidaOrigen.h"

namespace analizador {

namespace {

using TJson = nlohmann::ordered_json;

TJson Textos(const std::vector<std::string>& textos) {
    TJson json = TJson::array();
    for (const auto& texto : textos) json.push_back(Utf8DeAnsi(texto));
    return json;
}

TJson Fecha(const std::optional<TFecha>& fecha) {
    if (!fecha) return nullptr;
    return StrCeros(static_cast<int>(fecha->year()), 4) + "-" +
           StrCeros(static_cast<int>(static_cast<unsigned>(fecha->month())), 2) + "-" +
           StrCeros(static_cast<int>(static_cast<unsigned>(fecha->day())), 2);
}

TJson Cabecera(const TClassParrafoCabecera& cabecera) {
    return {{"NumeroProtocolo", cabecera.NumeroProtocolo},
            {"Lugar", cabecera.Lugar},
            {"Abreviatura", Utf8DeAnsi(cabecera.Abreviatura)},
            {"Fecha", Utf8DeAnsi(cabecera.Fecha)},
            {"Notario", Utf8DeAnsi(cabecera.Notario)},
            {"NotarioSustituto", Utf8DeAnsi(cabecera.NotarioSustituto)}};
}

TJson Concepto(const TRConcepto& concepto) {
    return {{"NumeroTipo", concepto.NumeroTipo},
            {"Nombre", Utf8DeAnsi(concepto.Nombre)},
            {"CodOficial", Utf8DeAnsi(concepto.CodOficial)},
            {"Prestamo", concepto.Prestamo}};
}

TJson Conceptos(const ListaTextos<TRConcepto>& conceptos) {
    TJson json = TJson::array();
    for (const auto& linea : conceptos) json.push_back(Concepto(*linea.Objeto));
    return json;
}

TJson Otorgante(const TROtorgante& o) {
    return {{"TipoDocumento", o.TipoDocumento},
            {"NumDocumento", Utf8DeAnsi(o.NumDocumento)},
            {"Sexo", Utf8DeAnsi(o.Sexo)},
            {"Nombre", Utf8DeAnsi(o.Nombre)},
            {"Apellidos", Utf8DeAnsi(o.Apellidos)},
            {"EstadoCivil", o.EstadoCivil},
            {"Regimen", o.Regimen},
            {"Conyuge", Utf8DeAnsi(o.Conyuge)},
            {"Vecindad", Utf8DeAnsi(o.Vecindad)},
            {"Provincia", Utf8DeAnsi(o.Provincia)},
            {"TipoVia", Utf8DeAnsi(o.TipoVia)},
            {"Domicilio", Utf8DeAnsi(o.Domicilio)},
            {"Numero", Utf8DeAnsi(o.Numero)},
            {"CodPostal", Utf8DeAnsi(o.CodPostal)},
            {"CodINE", Utf8DeAnsi(o.CodINE)},
            {"IntervencionINTI", o.IntervencionINTI},
            {"IntervencionVRK", o.IntervencionVRK},
            {"Residente", o.Residente},
            {"CodPais", o.CodPais},
            {"Pais", Utf8DeAnsi(o.Pais)},
            {"Nacionalidad", Utf8DeAnsi(o.Nacionalidad)},
            {"LugarNacimiento", Utf8DeAnsi(o.LugarNacimiento)},
            {"PaisNacimiento", Utf8DeAnsi(o.PaisNacimiento)},
            {"ProvinciaNacimiento", Utf8DeAnsi(o.ProvinciaNacimiento)},
            {"FechaNacimiento", Fecha(o.FechaNacimiento)},
            {"Padre", Utf8DeAnsi(o.Padre)},
            {"Madre", Utf8DeAnsi(o.Madre)},
            {"EnXML", o.EnXML},
            {"Propuesto", SeProponeOtorgante(o)}};
}

TJson Otorgantes(const ListaTextos<TROtorgante>& otorgantes) {
    TJson json = TJson::array();
    for (const auto& linea : otorgantes) json.push_back(Otorgante(*linea.Objeto));
    return json;
}

// A file's name need not be valid UTF-8.
std::string EnUnaLinea(const TJson& json) {
    return json.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

TJson Operacion(const TClassOperacion& operacion) {
    TJson plazos = TJson::array();
    for (const auto& plazo : operacion.Plazos) plazos.push_back(Cad_Int(plazo));
    return {{"Plazos", plazos}, {"TipoInteres", operacion.TipoInteres}, {"TAEs", Textos(operacion.TAEs)}};
}

}  // namespace

std::string LineaJsonModelo() {
    const TJson json = {{"idioma", ""},
                        {"Cabecera", Cabecera({})},
                        {"Conceptos", TJson::array({Concepto({})})},
                        {"Cuantias", TJson::array()},
                        {"Otorgantes", TJson::array({Otorgante({})})},
                        {"Operacion", Operacion({})},
                        {"Fincas", TJson::array()},
                        {"Empleado", ""}};
    return json.dump();
}

std::string LineaJsonError(const std::filesystem::path& fichero, const std::string& error) {
    return EnUnaLinea({{"archivo", Utf8DeRuta(fichero)}, {"error", error}});
}

std::string LineaJson(const std::filesystem::path& fichero, const TAnalisisEscritura& analisis,
                      const TPedidoJson& pedido) {
    if (!analisis.Error().empty()) return LineaJsonError(fichero, analisis.Error());
    TJson json;
    json["archivo"] = Utf8DeRuta(fichero);
    const TClassAnalizadorAbierto& sesion = analisis.Sesion();
    if (!pedido.Huella.empty()) json["huella"] = pedido.Huella;
    json["idioma"] = EsCastellano() ? "castellano" : "catalan";
    json["Cabecera"] = Cabecera(sesion.Cabecera);
    if (pedido.Revisado) json["Aceptado"] = sesion.Aceptado;
    json["Conceptos"] = Conceptos(sesion.Cabecera.Conceptos);
    if (pedido.Revisado) json["ConceptosValidos"] = Conceptos(sesion.ConceptosValidos);
    json["Cuantias"] = Textos(sesion.Cuantias);
    json["Otorgantes"] = Otorgantes(sesion.Otorgantes.Lista);
    json["Operacion"] = Operacion(sesion.Operacion);
    json["Fincas"] = Textos(sesion.Fincas);
    json["Empleado"] = Utf8DeAnsi(sesion.Empleado);
    json["Pizarra"] = Utf8DeAnsi(sesion.Pizarra);
    if (pedido.Origen) json["Origen"] = JsonOrigen(analisis);
    return EnUnaLinea(json);
}

}  // namespace analizador

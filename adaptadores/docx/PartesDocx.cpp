#include "adaptadores/docx/PartesDocx.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <string_view>
#include <vector>

#include "adaptadores/docx/ArbolXml.h"
#include "adaptadores/docx/FalloDocx.h"
#include "adaptadores/docx/TextoXml.h"

namespace analizador {

namespace {

constexpr std::string_view RELACIONES =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
constexpr std::string_view RELACIONES_ESTRICTAS = "http://purl.oclc.org/ooxml/officeDocument/relationships/";

bool EsRelacion(std::string_view tipo, std::string_view clase) {
    for (const auto base : {RELACIONES, RELACIONES_ESTRICTAS})
        if (tipo.starts_with(base) && tipo.substr(base.size()) == clase) return true;
    return false;
}

// "%20" and the like as the characters they stand for.
std::string SinEscapes(std::string_view destino) {
    std::string texto;
    for (std::size_t i = 0; i < destino.size(); ++i) {
        unsigned valor = 0;
        const auto* cifras = destino.data() + i + 1;
        if (destino[i] == '%' && i + 2 < destino.size() &&
            std::from_chars(cifras, cifras + 2, valor, 16).ptr == cifras + 2) {
            texto += static_cast<char>(static_cast<unsigned char>(valor));
            i += 2;
        } else {
            texto += destino[i];
        }
    }
    return texto;
}

// The part that a target names, seen from the folder of the part that relates to it ("" or "word/").
std::string ResuelveDestino(std::string_view carpeta, std::string_view destino) {
    const std::string ruta =
        destino.starts_with('/') ? SinEscapes(destino) : std::string(carpeta) + SinEscapes(destino);
    std::vector<std::string_view> tramos;
    const std::string_view vista = ruta;
    for (std::size_t inicio = 0; inicio <= vista.size();) {
        const auto fin = std::min(vista.find('/', inicio), vista.size());
        const auto tramo = vista.substr(inicio, fin - inicio);
        inicio = fin + 1;
        if (tramo == ".." && !tramos.empty()) tramos.pop_back();
        if (!tramo.empty() && tramo != "." && tramo != "..") tramos.push_back(tramo);
    }
    std::string parte;
    for (const auto tramo : tramos) parte += (parte.empty() ? "" : "/") + std::string(tramo);
    return parte;
}

// "word/document.xml" → "word/" and "document.xml".
std::size_t LongitudCarpeta(std::string_view parte) {
    const auto barra = parte.rfind('/');
    return barra == std::string_view::npos ? 0 : barra + 1;
}

class TRelaciones {
  public:
    // The relationships of `parte`; of the whole package when it is empty.
    TRelaciones(TPaqueteZip& paquete, const std::string& parte)
        : Carpeta(parte.substr(0, LongitudCarpeta(parte))) {
        const auto nombre = Carpeta + "_rels/" + parte.substr(Carpeta.size()) + ".rels";
        if (paquete.Tiene(nombre)) Arbol.emplace(DecodificaXml(paquete.Lee(nombre), nombre).Utf8, nombre);
    }

    // The first internal part related as `clase`.
    [[nodiscard]] std::optional<std::string> Parte(std::string_view clase) const {
        if (!Arbol) return std::nullopt;
        for (const auto relacion : Arbol->Raiz().children("Relationship")) {
            if (!EsRelacion(relacion.attribute("Type").value(), clase)) continue;
            if (std::string_view(relacion.attribute("TargetMode").value()) == "External") continue;
            return ResuelveDestino(Carpeta, relacion.attribute("Target").value());
        }
        return std::nullopt;
    }

  private:
    std::string Carpeta;
    std::optional<TArbolXml> Arbol;
};

struct TOtraClase {
    std::string_view Senal;  // in the content type of some part
    std::string_view Causa;
};

constexpr std::array<TOtraClase, 3> OTRAS_CLASES = {{
    {"spreadsheetml.", "es una hoja de cálculo, no un documento de Word"},
    {"presentationml.", "es una presentación, no un documento de Word"},
    {"ms-excel.", "es una hoja de cálculo, no un documento de Word"},
}};

constexpr std::array<std::string_view, 4> TIPOS_PRINCIPALES = {
    "application/vnd.openxmlformats-officedocument.wordprocessingml.document.main+xml",
    "application/vnd.openxmlformats-officedocument.wordprocessingml.template.main+xml",
    "application/vnd.ms-word.document.macroEnabled.main+xml",
    "application/vnd.ms-word.template.macroEnabledTemplate.main+xml",
};

// Looks for the main part by its content type, and refuses the package when there is none.
std::string PrincipalPorTipo(TPaqueteZip& paquete) {
    constexpr auto TIPOS = "[Content_Types].xml";
    if (!paquete.Tiene(TIPOS)) {
        if (paquete.Tiene("mimetype") && paquete.Tiene("content.xml"))
            throw FalloDocx("es un documento OpenDocument, no un documento de Word");
        throw FalloDocx("no es un documento de Word, sino otra clase de archivo comprimido");
    }
    const TArbolXml tipos(DecodificaXml(paquete.Lee(TIPOS), TIPOS).Utf8, TIPOS);
    std::string_view causa = "no es un documento de Word: no tiene parte principal";
    for (const auto parte : tipos.Raiz().children("Override")) {
        const std::string_view tipo = parte.attribute("ContentType").value();
        for (const auto principal : TIPOS_PRINCIPALES)
            if (tipo == principal) return ResuelveDestino("", parte.attribute("PartName").value());
        for (const auto& otra : OTRAS_CLASES)
            if (tipo.find(otra.Senal) != std::string_view::npos) causa = otra.Causa;
    }
    throw FalloDocx(std::string(causa));
}

// Whether the part that the package calls its document belongs to another office program.
bool EsDeOtroPrograma(std::string_view principal) {
    return principal.starts_with("xl/") || principal.starts_with("ppt/");
}

}  // namespace

TPartesDocx LocalizaPartes(TPaqueteZip& paquete) {
    TPartesDocx partes;
    const auto relacionada = TRelaciones(paquete, "").Parte("officeDocument");
    partes.Principal =
        relacionada && !EsDeOtroPrograma(*relacionada) ? *relacionada : PrincipalPorTipo(paquete);
    if (!paquete.Tiene(partes.Principal))
        throw FalloDocx("falta la parte principal " + NombreCitado(partes.Principal));
    const TRelaciones relaciones(paquete, partes.Principal);
    const auto relacionadaComo = [&](std::string_view clase) {
        auto parte = relaciones.Parte(clase);
        return parte && paquete.Tiene(*parte) ? parte : std::nullopt;
    };
    partes.Estilos = relacionadaComo("styles");
    partes.Ajustes = relacionadaComo("settings");
    partes.Firmado = paquete.TieneCarpeta("_xmlsignatures/");
    return partes;
}

}  // namespace analizador

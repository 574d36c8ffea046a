#include "adaptadores/docx/EtiquetasXml.h"

#include <charconv>
#include <cstdint>

namespace analizador {

namespace {

std::size_t Tras(std::string_view xml, std::string_view cierre, std::size_t desde) {
    const auto posicion = xml.find(cierre, desde);
    return posicion == std::string_view::npos ? xml.size() : posicion + cierre.size();
}

bool EsEn(std::string_view xml, std::size_t posicion, std::string_view senal) {
    return xml.substr(posicion, senal.size()) == senal;
}

// The value, without quotes, of the attribute xml:space in a start tag; with no size when there is none.
std::string_view ValorXmlSpace(std::string_view etiqueta) {
    for (std::size_t i = 0; i < etiqueta.size(); ++i) {
        const char c = etiqueta[i];
        if (c == '"' || c == '\'') {
            i = etiqueta.find(c, i + 1);
            if (i == std::string_view::npos) break;
        } else if (EsEn(etiqueta, i, "xml:space")) {
            const auto comilla = etiqueta.find_first_of("\"'", i);
            if (comilla == std::string_view::npos) break;
            return etiqueta.substr(comilla + 1, etiqueta.find(etiqueta[comilla], comilla + 1) - comilla - 1);
        }
    }
    return {};
}

struct TLeido {
    std::size_t Bytes = 1;
    int Unidades = 1;
};

// The code point of "&#...;" or 0 for a named reference.
std::uint32_t PuntoDeReferencia(std::string_view referencia) {
    if (!referencia.starts_with("&#")) return 0;
    const bool hexadecimal = referencia.substr(2, 1) == "x";
    const auto cifras = referencia.substr(hexadecimal ? 3 : 2);
    std::uint32_t punto = 0;
    std::from_chars(cifras.data(), cifras.data() + cifras.size(), punto, hexadecimal ? 16 : 10);
    return punto;
}

// A reference that the parser does not expand stands in the text as it is written.
bool SeExpande(std::string_view referencia) {
    if (referencia.starts_with("&#")) return true;
    for (const std::string_view nombre : {"&amp;", "&lt;", "&gt;", "&quot;", "&apos;"})
        if (referencia == nombre) return true;
    return false;
}

TLeido LeeUno(std::string_view resto, bool esCdata) {
    const auto byte = static_cast<unsigned char>(resto.front());
    if (byte == '\r') return {resto.substr(1, 1) == "\n" ? 2U : 1U, 1};
    if (byte == '&' && !esCdata) {
        const auto referencia = resto.substr(0, Tras(resto, ";", 0));
        if (SeExpande(referencia))
            return {referencia.size(), PuntoDeReferencia(referencia) >= 0x10000 ? 2 : 1};
    }
    if (byte < 0xC0) return {1, 1};
    if (byte < 0xE0) return {2, 1};
    return byte < 0xF0 ? TLeido{3, 1} : TLeido{4, 2};
}

}  // namespace

std::size_t FinDeEtiqueta(std::string_view xml, std::size_t inicio) {
    if (EsEn(xml, inicio, "<!--")) return Tras(xml, "-->", inicio + 4);
    if (EsEn(xml, inicio, "<![CDATA[")) return Tras(xml, "]]>", inicio + 9);
    if (EsEn(xml, inicio, "<?")) return Tras(xml, "?>", inicio + 2);
    for (auto i = inicio; i < xml.size(); ++i) {
        if (xml[i] == '>') return i + 1;
        if (xml[i] != '"' && xml[i] != '\'') continue;
        i = xml.find(xml[i], i + 1);
        if (i == std::string_view::npos) break;
    }
    return xml.size();
}

TElementoXml ElementoEn(std::string_view xml, std::size_t inicio) {
    TElementoXml elemento;
    elemento.Inicio = inicio;
    elemento.FinApertura = elemento.Cierre = elemento.Fin = FinDeEtiqueta(xml, inicio);
    int abiertos = xml[elemento.FinApertura - 2] == '/' ? 0 : 1;
    while (abiertos > 0) {
        elemento.Cierre = xml.find('<', elemento.Fin);
        if (elemento.Cierre == std::string_view::npos) break;
        elemento.Fin = FinDeEtiqueta(xml, elemento.Cierre);
        const char clase = xml[elemento.Cierre + 1];
        if (clase == '!' || clase == '?') continue;
        if (clase == '/')
            --abiertos;
        else if (xml[elemento.Fin - 2] != '/')
            ++abiertos;
    }
    return elemento;
}

std::string_view NombreEnEtiqueta(std::string_view etiqueta) {
    const auto nombre = etiqueta.substr(1);
    return nombre.substr(0, nombre.find_first_of(" \t\r\n/>"));
}

std::string ConBlancosPreservados(std::string_view etiqueta) {
    constexpr std::string_view PRESERVADOS = "preserve";
    std::string nueva(etiqueta);
    const auto valor = ValorXmlSpace(etiqueta);
    if (valor == PRESERVADOS) return nueva;
    if (!valor.empty())
        return nueva.replace(static_cast<std::size_t>(valor.data() - etiqueta.data()), valor.size(),
                             PRESERVADOS);
    return nueva.insert(1 + NombreEnEtiqueta(etiqueta).size(), " xml:space=\"preserve\"");
}

std::size_t PosicionTrasUnidades(std::string_view xml, std::size_t inicio, int unidades, bool esCdata) {
    auto posicion = inicio;
    for (int leidas = 0; leidas < unidades && posicion < xml.size();) {
        const auto leido = LeeUno(xml.substr(posicion), esCdata);
        posicion += leido.Bytes;
        leidas += leido.Unidades;
    }
    return posicion;
}

std::string EscapaAtributo(std::string_view texto) {
    std::string escapado;
    for (const char c : texto) {
        switch (c) {
            case '&':
                escapado += "&amp;";
                break;
            case '<':
                escapado += "&lt;";
                break;
            case '>':
                escapado += "&gt;";
                break;
            case '"':
                escapado += "&quot;";
                break;
            default:
                escapado += c;
        }
    }
    return escapado;
}

}  // namespace analizador

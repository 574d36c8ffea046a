#include "pruebas/generador/EscrituraEnDocx.h"

#include <fstream>
#include <stdexcept>

#include "plataforma/Ansi.h"
#include "pruebas/docx/ConstruyeDocx.h"
#include "pruebas/generador/GeneradorEscrituras.h"

namespace analizador::pruebas {

namespace {

// A character as it stands in a run.
std::string EnTramo(char c) {
    switch (c) {
        case '\t':
            return "<w:tab/>";
        case '\x0B':
            return "<w:br/>";
        case '\x1E':
            return "<w:noBreakHyphen/>";
        case '\x1F':
            return "<w:softHyphen/>";
        case '&':
            return "<w:t>&amp;</w:t>";
        case '<':
            return "<w:t>&lt;</w:t>";
        default:
            return {};
    }
}

std::string TextoEnTramo(const std::string& texto) {
    return texto.empty() ? "" : "<w:t xml:space=\"preserve\">" + Utf8DeAnsi(texto) + "</w:t>";
}

std::string Tramo(const std::string& texto) {
    std::string xml;
    std::string seguido;
    for (const char c : texto) {
        const std::string propio = EnTramo(c);
        if (propio.empty()) {
            seguido += c;
            continue;
        }
        xml += TextoEnTramo(seguido) + propio;
        seguido.clear();
    }
    return "<w:r>" + xml + TextoEnTramo(seguido) + "</w:r>";
}

std::string Tramos(const std::string& parrafo) {
    std::string xml;
    std::size_t largo = 7;
    for (std::size_t desde = 0; desde < parrafo.size(); desde += largo, largo = largo * 5 % 83 + 1)
        xml += Tramo(parrafo.substr(desde, largo));
    return xml;
}

std::string Cuerpo(const std::vector<std::string>& parrafos) {
    std::string xml;
    int fincas = 0;
    for (const std::string& parrafo : parrafos) {
        std::string tramos = Tramos(parrafo);
        if (DescribeFinca(parrafo)) {
            const std::string numero = std::to_string(++fincas);
            tramos = "<w:bookmarkStart w:id=\"" + numero + "\" w:name=\"FINCA_" + numero + "\"/>" + tramos +
                     "<w:bookmarkEnd w:id=\"" + numero + "\"/>";
        }
        xml += "<w:p>" + tramos + "</w:p>";
    }
    return xml;
}

}  // namespace

void EscribeEscritura(const std::filesystem::path& fichero, const std::vector<std::string>& parrafos) {
    const std::string ajustes = "<w:docVars><w:docVar w:name=\"" + std::string(VARIABLE_EMPLEADO) +
                                "\" w:val=\"" + std::string(EMPLEADO) + "\"/></w:docVars>";
    std::ofstream salida(fichero, std::ios::binary);
    salida << Comprime(PartesDocumento(DocumentoXml(Cuerpo(parrafos)), "", ajustes));
    if (!salida.flush()) throw std::runtime_error("cannot write " + fichero.string());
}

}  // namespace analizador::pruebas

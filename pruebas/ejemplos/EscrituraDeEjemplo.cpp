#include "pruebas/ejemplos/EscrituraDeEjemplo.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "plataforma/Ansi.h"

namespace analizador::pruebas {

namespace {

std::string Lee(const std::string& fichero) {
    std::ifstream entrada(std::filesystem::path(CARPETA_EJEMPLOS) / fichero, std::ios::binary);
    if (!entrada) throw std::runtime_error("cannot read ejemplos/" + fichero);
    return {std::istreambuf_iterator<char>(entrada), {}};
}

// The paragraph that begins so, its CR included.
TIntervalo Parrafo(const std::string& texto, const std::string& comienzo) {
    const auto inicio = ("\r" + texto).find("\r" + comienzo);
    if (inicio == std::string::npos) throw std::runtime_error("no paragraph begins with " + comienzo);
    return {static_cast<int>(inicio), static_cast<int>(texto.find('\r', inicio) + 1)};
}

void Anade(TContenidoDocumento& contenido, const std::string& clave, const std::string& valor) {
    constexpr std::string_view VARIABLE = "variable.";
    constexpr std::string_view MARCADOR = "marcador.";
    if (clave.starts_with(VARIABLE)) contenido.Variables.push_back({clave.substr(VARIABLE.size()), valor});
    if (clave.starts_with(MARCADOR))
        contenido.Marcadores.push_back({clave.substr(MARCADOR.size()), Parrafo(contenido.Texto, valor)});
}

}  // namespace

TContenidoDocumento EscrituraDeEjemplo(const std::string& nombre) {
    constexpr std::string_view IGUAL = " = ";
    TContenidoDocumento contenido{AnsiDeUtf8(Lee(nombre + ".txt")), {}, {}};
    std::replace(contenido.Texto.begin(), contenido.Texto.end(), '\n', '\r');
    std::istringstream extras(AnsiDeUtf8(Lee("documentos.ini")));
    bool suya = false;
    for (std::string linea; std::getline(extras, linea);) {
        if (linea.starts_with('[')) suya = linea == "[" + nombre + "]";
        const auto igual = linea.find(IGUAL);
        if (suya && igual != std::string::npos)
            Anade(contenido, linea.substr(0, igual), linea.substr(igual + IGUAL.size()));
    }
    return contenido;
}

std::string ResultadoRevisado(const std::string& fichero) {
    return Lee("resultados/" + fichero);
}

}  // namespace analizador::pruebas

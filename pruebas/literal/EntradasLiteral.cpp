#include "pruebas/literal/EntradasLiteral.h"

#include <fstream>
#include <map>

#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"

namespace analizador::pruebas {

namespace {

std::string SinComillas(std::string_view valor) {
    if (valor.size() > 1 && valor.front() == '"' && valor.back() == '"')
        return std::string(valor.substr(1, valor.size() - 2));
    return std::string(valor);
}

// The keys of the first section of that name, in capitals, each with its first value.
std::map<std::string, std::string> Claves(const std::filesystem::path& fichero, std::string_view seccion) {
    std::map<std::string, std::string> claves;
    std::ifstream entrada(fichero, std::ios::binary);
    bool dentro = false;
    for (std::string linea; std::getline(entrada, linea);) {
        const std::string_view recortada = Recorta(linea);
        if (recortada.empty() || recortada.front() == ';') continue;
        if (recortada.front() == '[' && recortada.find(']') != std::string_view::npos) {
            if (dentro) break;
            const std::string_view nombre = recortada.substr(1, recortada.find(']') - 1);
            dentro = AnsiUpperCase(Recorta(nombre)) == AnsiUpperCase(seccion);
        } else if (const auto igual = recortada.find('='); dentro && igual != std::string_view::npos) {
            claves.emplace(AnsiUpperCase(Recorta(recortada.substr(0, igual))),
                           SinComillas(Recorta(recortada.substr(igual + 1))));
        }
    }
    return claves;
}

}  // namespace

std::vector<std::string> EntradasDe(const std::filesystem::path& fichero, std::string_view seccion) {
    auto claves = Claves(fichero, seccion);
    std::vector<std::string> entradas;
    const int cuantas = Cad_Int(claves["NUMPALABRAS"]);
    for (int i = 1; i <= cuantas; ++i) entradas.push_back(claves[Int_Cad(i)]);
    return entradas;
}

}  // namespace analizador::pruebas

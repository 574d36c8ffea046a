#include "programas/analiza/Vocabulario.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "adaptadores/ini/ConfigIni.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"

namespace analizador {

namespace {

// Of two equal sections or keys the program reads the first.
const TFicheroIni::Seccion* BuscaSeccion(const TFicheroIni& ini, std::string_view nombre) {
    const auto donde = std::ranges::find_if(
        ini.Secciones(), [&](const auto& seccion) { return AnsiUpperCase(seccion.Nombre) == nombre; });
    return donde == ini.Secciones().end() ? nullptr : &*donde;
}

int LineaDe(const TFicheroIni::Seccion& seccion, int numero) {
    const auto donde = std::ranges::find(seccion.Claves, Int_Cad(numero), &TFicheroIni::Clave::Nombre);
    return donde == seccion.Claves.end() ? seccion.Linea : donde->Linea;
}

}  // namespace

TVocabulario VocabularioDe(std::string nombre, std::string bytes) {
    TFicheroIni ini(bytes);
    return {std::move(nombre), std::move(bytes), std::move(ini)};
}

TVocabulario LeeVocabulario(const std::filesystem::path& fichero) {
    std::ifstream entrada(fichero, std::ios::binary);
    std::string bytes((std::istreambuf_iterator<char>(entrada)), std::istreambuf_iterator<char>());
    if (!entrada) throw ErrorConfiguracion(fichero.string() + ": no se puede leer");
    return VocabularioDe(fichero.filename().string(), std::move(bytes));
}

std::vector<TEntradaVocabulario> Entradas(const TFicheroIni& ini, std::string_view seccion) {
    std::vector<TEntradaVocabulario> entradas;
    const TFicheroIni::Seccion* const escrita = BuscaSeccion(ini, seccion);
    if (escrita == nullptr) return entradas;
    int numero = 0;
    for (const std::string& palabra : ini.Palabras(seccion)) {
        ++numero;
        if (!palabra.empty()) entradas.push_back({palabra, numero, LineaDe(*escrita, numero)});
    }
    return entradas;
}

std::string EntreComillas(std::string_view texto) {
    return "«" + Utf8DeAnsi(texto) + "»";
}

}  // namespace analizador

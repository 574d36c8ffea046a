#include "programas/analiza/Vocabulario.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

#include "adaptadores/ini/ConfigIni.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"

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

constexpr std::string_view MARCA_UTF8 = "\xEF\xBB\xBF";
constexpr std::string_view MARCA_CONOCIDO = "CONOCIDO:";

// The words of a comment that bears the mark; none of any other line.
std::vector<std::string> PalabrasDeMarca(std::string_view linea) {
    linea = Recorta(linea);
    if (!linea.starts_with(';')) return {};
    const std::string comentario = Pliega(Recorta(linea.substr(1)));
    if (!comentario.starts_with(MARCA_CONOCIDO)) return {};
    return PalabrasPlegadas(std::string_view(comentario).substr(MARCA_CONOCIDO.size()));
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

std::vector<TMarcaConocido> MarcasConocido(const TVocabulario& vocabulario) {
    const bool utf8 = vocabulario.Bytes.starts_with(MARCA_UTF8);
    const std::string texto =
        utf8 ? AnsiDeUtf8(std::string_view(vocabulario.Bytes).substr(MARCA_UTF8.size())) : vocabulario.Bytes;
    std::vector<TMarcaConocido> marcas;
    std::istringstream lineas(texto);
    std::string linea;
    for (int siguiente = 2; std::getline(lineas, linea); ++siguiente)
        if (auto palabras = PalabrasDeMarca(linea); !palabras.empty())
            marcas.push_back({siguiente, std::move(palabras)});
    return marcas;
}

std::vector<std::string> PalabrasPlegadas(std::string_view texto) {
    std::vector<std::string> palabras;
    for (texto = Recorta(texto); !texto.empty();) {
        const std::size_t blanco = std::min(texto.find(' '), texto.size());
        palabras.push_back(Pliega(texto.substr(0, blanco)));
        texto = Recorta(texto.substr(blanco));
    }
    return palabras;
}

std::string EntreComillas(std::string_view texto) {
    return "«" + Utf8DeAnsi(texto) + "»";
}

}  // namespace analizador

#include <algorithm>
#include <optional>

#include "plataforma/Ansi.h"
#include "plataforma/FicheroIni.h"
#include "plataforma/Rnumcad.h"
#include "pruebas/fuzz/Fuzzers.h"

namespace analizador {

namespace {

bool IgualSinCaja(std::string_view uno, std::string_view otro) {
    return AnsiUpperCase(uno) == AnsiUpperCase(otro);
}

// The value of a key by reading the lines one after another until it comes.
std::optional<std::string> BuscaALaVista(std::string_view texto, std::string_view seccion,
                                         std::string_view clave) {
    bool dentro = false;
    for (std::size_t inicio = 0; inicio < texto.size();) {
        const std::size_t fin = std::min(texto.find('\n', inicio), texto.size());
        const std::string_view linea = Recorta(texto.substr(inicio, fin - inicio));
        inicio = fin + 1;
        if (linea.starts_with('[') && linea.find(']') != std::string_view::npos) {
            if (dentro) return std::nullopt;  // only the first section of a name counts
            dentro = IgualSinCaja(Recorta(linea.substr(1, linea.find(']') - 1)), seccion);
        } else if (dentro && !linea.starts_with(';') && !linea.starts_with('[')) {
            const std::size_t igual = linea.find('=');
            if (igual == std::string_view::npos || !IgualSinCaja(Recorta(linea.substr(0, igual)), clave))
                continue;
            std::string_view valor = Recorta(linea.substr(igual + 1));
            if (valor.size() > 1 && valor.starts_with('"') && valor.ends_with('"'))
                valor = valor.substr(1, valor.size() - 2);
            return std::string(valor);
        }
    }
    return std::nullopt;
}

// Words that are not empty have their key, and keys of words their word: of the thousands that may be missing
// between them none is looked for.
void CompruebaPalabras(const TFicheroIni& ini, const TFicheroIni::Seccion& donde) {
    const std::string& seccion = donde.Nombre;
    const auto& palabras = ini.Palabras(seccion);
    const int cuenta = ini.LeeEntero(seccion, "NumPalabras", 0);
    Exige(palabras.empty() || static_cast<int>(palabras.size()) <= cuenta, "more words than NumPalabras");
    for (std::size_t i = 0; i < palabras.size(); ++i)
        Exige(palabras[i].empty() || palabras[i] == ini.LeeTexto(seccion, std::to_string(i + 1), ""),
              "a word is not its key's");
    for (const auto& clave : donde.Claves) {
        const int numero = EnteroDeCadena(clave.Nombre).value_or(0);
        if (numero < 1 || numero > static_cast<int>(palabras.size()) || Int_Cad(numero) != clave.Nombre)
            continue;
        Exige(palabras[static_cast<std::size_t>(numero) - 1] == ini.LeeTexto(seccion, clave.Nombre, ""),
              "a key is not its word's");
    }
    const int siguiente = static_cast<int>(palabras.size()) + 1;
    if (siguiente <= cuenta)
        Exige(ini.LeeTexto(seccion, std::to_string(siguiente), "").empty(), "a word was left out");
}

}  // namespace

void FuzzIni(std::string_view bytes) {
    constexpr std::string_view MARCA_UTF8 = "\xEF\xBB\xBF";
    const std::string texto =
        bytes.starts_with(MARCA_UTF8) ? AnsiDeUtf8(bytes.substr(3)) : std::string(bytes);
    const TFicheroIni ini(bytes);
    for (const auto& seccion : ini.Secciones()) {
        CompruebaPalabras(ini, seccion);
        for (const auto& clave : seccion.Claves) {
            const auto valor = BuscaALaVista(texto, seccion.Nombre, clave.Nombre);
            Exige(ini.LeeTexto(seccion.Nombre, clave.Nombre, "\x01") == valor.value_or("\x01"),
                  "a value is not the one in the file");
        }
        Exige(ini.LeeTexto(seccion.Nombre, "no existe\n", "\x01") == "\x01", "a key that is not there");
    }
}

}  // namespace analizador

#include <algorithm>
#include <unordered_set>

#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "rutinas/Buscador.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

// The last word of a text; here, where the text is a whole deed, line ends and tabs separate words too.
std::string_view PalabraFinal(std::string_view texto) {
    texto = RecortaDerecha(texto);
    const auto separador = texto.find_last_of(" \t\r\n");
    return separador == std::string_view::npos ? texto : texto.substr(separador + 1);
}

std::string_view SinParentesis(std::string_view palabra) {
    if (palabra.starts_with('(')) palabra.remove_prefix(1);
    if (palabra.ends_with(')')) palabra.remove_suffix(1);
    return palabra;
}

}  // namespace

std::vector<Tramo> BuscaCuantias(std::string_view texto, std::vector<std::string>& lista) {
    std::string plegado = Pliega(texto);
    std::replace(plegado.begin(), plegado.end(), '\'', ',');
    std::unordered_set<std::string> vistas(lista.begin(), lista.end());
    std::vector<Tramo> tramos;
    TBuscadorEntradas monedas("EURO", plegado);
    std::size_t desde = 0;
    while (const auto moneda = monedas.MasALaIzquierda(desde)) {
        const std::string_view antes = std::string_view(plegado).substr(desde, moneda->Posicion - desde);
        const std::string_view palabra = SinParentesis(PalabraFinal(antes));
        std::string cuantia = QuitaCaracteres(palabra, ".-");
        if (Cad_Float(cuantia) > 0 && vistas.insert(cuantia).second) {
            lista.push_back(std::move(cuantia));
            tramos.push_back({static_cast<std::size_t>(palabra.data() - plegado.data()), palabra.size()});
        }
        desde = moneda->Fin();
    }
    return tramos;
}

}  // namespace analizador

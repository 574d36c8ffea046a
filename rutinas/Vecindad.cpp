#include <algorithm>

#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "rutinas/Buscador.h"
#include "rutinas/Leido.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

constexpr std::size_t NADA = std::string_view::npos;
constexpr int CIFRAS_COD_POSTAL = 5;

// What stands between the word of residence and the comma or the address, whichever comes first.
std::string_view MunicipioEscrito(std::string_view plegado) {
    TBuscadorEntradas vecindades("VECINDAD", plegado);
    const auto vecindad = vecindades.PrimeraEntrada();
    if (!vecindad) return {};
    const std::size_t principio = vecindad->Fin() + 1;  // the blank after the word is skipped
    const std::size_t coma = plegado.find(',', principio);
    if (coma == NADA) return {};
    TBuscadorEntradas domicilios("DOMICILIO", plegado);
    const auto domicilio = domicilios.PrimeraEntrada();
    const std::size_t fin = domicilio ? std::min(coma, domicilio->Posicion) : coma;
    if (fin <= principio) return {};
    const std::string_view escrito = Recorta(plegado.substr(principio, fin - principio));
    return Recorta(escrito.substr(0, escrito.find('(')));
}

}  // namespace

TVecindad BuscaVecindad(std::string_view texto) {
    const std::string plegado = Pliega(texto);
    const std::string_view municipio = MunicipioEscrito(plegado);
    const std::size_t guion = municipio.find('-');
    const std::string_view prefijo =
        guion == NADA ? std::string_view{} : RecortaDerecha(municipio.substr(0, guion));
    if (Cad_Int(prefijo) == 0) return {Leido(plegado, municipio), {}};
    return {Leido(plegado, municipio.substr(guion + 1)),
            {StrCeros(prefijo, CIFRAS_COD_POSTAL), TramoDe(plegado, prefijo)}};
}

}  // namespace analizador

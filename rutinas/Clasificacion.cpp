#include <algorithm>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Encuentra.h"
#include "plataforma/FicheroIni.h"
#include "plataforma/Rut.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

bool EsCliente(std::string_view parrafo) {
    const std::string plegado = Pliega(parrafo);
    const auto fichero = AbreFicheroIni(TOKENS_INI());
    return std::any_of(CONST_SECCION_SEXOS.begin(), CONST_SECCION_SEXOS.end(), [&](std::string_view seccion) {
        const auto& entradas = fichero->Palabras(seccion);
        return std::any_of(entradas.begin(), entradas.end(), [&](const std::string& entrada) {
            return !entrada.empty() && Encuentra(plegado, entrada + " ") != std::string::npos;
        });
    });
}

bool EsUnParrafoDeRepresentacion(std::string_view parrafo) {
    const std::string plegado = Pliega(parrafo);
    const std::vector<std::string> entradas = ListaTokens("REPRESENTACION");
    return std::any_of(entradas.begin(), entradas.end(), [&](const std::string& entrada) {
        return !entrada.empty() && Encuentra(plegado, " " + entrada) != std::string::npos;
    });
}

}  // namespace analizador

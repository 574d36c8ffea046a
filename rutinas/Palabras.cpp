#include <algorithm>

#include "analizador/ConstAnalizador.h"
#include "plataforma/FicheroIni.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

std::vector<std::string> ListaTokens(std::string_view seccion) {
    return AbreFicheroIni(TOKENS_INI())->Palabras(seccion);
}

TToken ContieneToken(std::string_view seccion, std::string_view texto, TModoBusqueda modo) {
    const auto fichero = AbreFicheroIni(TOKENS_INI());
    const std::string plegado = modo.Plegado ? Pliega(texto) : std::string();
    const std::string_view buscado = modo.Plegado ? std::string_view(plegado) : texto;
    TToken mejor;
    int numero = 0;
    for (const std::string& entrada : fichero->Palabras(seccion)) {
        ++numero;
        const int posicion = modo.Ultima ? RightPos(entrada, buscado) : Pos(entrada, buscado);
        if (posicion == 0 || (mejor.Posicion != 0 && posicion >= mejor.Posicion)) continue;
        mejor = {posicion, entrada, numero};
        if (modo.PrimeraEntrada) break;
    }
    return mejor;
}

bool EsPalabraNumero(std::string_view palabra) {
    if (palabra.empty()) return false;
    const auto fichero = AbreFicheroIni(TOKENS_INI());
    const auto& numeros = fichero->Palabras("NUMEROS");
    return std::find(numeros.begin(), numeros.end(), palabra) != numeros.end();
}

bool EsNumeroEntero(std::string_view texto) {
    return EnteroDeCadena(texto).has_value();
}

TPalabra PrimeraPalabra(std::string_view texto) {
    texto = RecortaIzquierda(texto);
    const auto blanco = texto.find(' ');
    if (blanco == std::string_view::npos) return {texto, texto.substr(texto.size())};
    return {texto.substr(0, blanco), texto.substr(blanco + 1)};
}

TPalabra UltimaPalabra(std::string_view texto) {
    texto = RecortaDerecha(texto);
    const auto blanco = texto.rfind(' ');
    if (blanco == std::string_view::npos) return {texto, texto.substr(0, 0)};
    return {texto.substr(blanco + 1), texto.substr(0, blanco)};
}

}  // namespace analizador

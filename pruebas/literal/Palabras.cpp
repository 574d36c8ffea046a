#include "analizador/ConstAnalizador.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "pruebas/literal/Cortes.h"
#include "pruebas/literal/EntradasLiteral.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

using namespace pruebas;

std::string pruebas::Conjuncion() {
    return EsCastellano() ? " Y" : " I";
}

std::vector<std::string> ListaTokens(std::string_view seccion) {
    return EntradasDe(TOKENS_INI(), seccion);
}

TToken ContieneToken(std::string_view seccion, std::string_view texto, TModoBusqueda modo) {
    const std::string buscado = modo.Plegado ? Pliega(texto) : std::string(texto);
    TToken mejor;
    int numero = 0;
    for (const std::string& entrada : ListaTokens(seccion)) {
        ++numero;
        const int posicion = modo.Ultima ? RightPos(entrada, buscado) : Pos(entrada, buscado);
        if (posicion == 0) continue;
        if (modo.PrimeraEntrada) return {posicion, entrada, numero};
        if (mejor.Posicion == 0 || posicion < mejor.Posicion) mejor = {posicion, entrada, numero};
    }
    return mejor;
}

bool EsPalabraNumero(std::string_view palabra) {
    for (const std::string& entrada : ListaTokens("NUMEROS"))
        if (!entrada.empty() && entrada == palabra) return true;
    return false;
}

bool EsNumeroEntero(std::string_view texto) {
    return EnteroDeCadena(texto).has_value();
}

TPalabra PrimeraPalabra(std::string_view texto) {
    const std::string_view recortado = RecortaIzquierda(texto);
    const int blanco = Pos(" ", recortado);
    if (blanco == 0) return {recortado, {}};
    return {StrLeft(recortado, blanco - 1), recortado.substr(static_cast<std::size_t>(blanco))};
}

TPalabra UltimaPalabra(std::string_view texto) {
    const std::string_view recortado = RecortaDerecha(texto);
    const int blanco = RightPos(" ", recortado);
    return {recortado.substr(static_cast<std::size_t>(blanco)), StrLeft(recortado, blanco - 1)};
}

namespace {

// What both number readers remember while they go from word to word.
struct TLectura {
    std::string Acumulado;
    bool HayPalabras = false;
    bool ConjuncionPendiente = false;
    bool HayDigitos = false;
};

// Takes one word, its signs gone; `junta` adds a number word to what there is. False when it ends the number.
template <class Junta>
bool Toma(TLectura& lectura, const std::string& palabra, Junta junta) {
    if (palabra.empty()) return false;
    if (EsNumeroEntero(palabra)) {
        lectura.HayDigitos = true;
        lectura.Acumulado = palabra;
        return false;
    }
    if (EsPalabraNumero(palabra)) {
        lectura.HayPalabras = true;
        if (lectura.Acumulado.empty())
            lectura.Acumulado = palabra;
        else
            junta(palabra);
        lectura.ConjuncionPendiente = false;
        return true;
    }
    if (" " + palabra == Conjuncion()) {
        lectura.ConjuncionPendiente = true;
        return true;
    }
    lectura.ConjuncionPendiente = false;
    return !lectura.HayPalabras;
}

int Numero(const TLectura& lectura) {
    if (lectura.Acumulado.empty()) return -1;
    if (lectura.HayDigitos) return Cad_Int(lectura.Acumulado);
    return ConvierteNumeroDeCadenaAEnteroNvx(lectura.Acumulado, EsCatalan());
}

}  // namespace

TNumeroLeido NumeroInicial(std::string_view texto) {
    TLectura lectura;
    bool sigue = true;
    while (sigue) {
        const TPalabra palabra = PrimeraPalabra(texto);
        texto = palabra.Resto;
        sigue = Toma(lectura, QuitaCaracteres(palabra.Palabra, ".,-;\"\t\n\r"), [&](const std::string& otra) {
            if (lectura.ConjuncionPendiente) lectura.Acumulado += Conjuncion();
            lectura.Acumulado += " " + otra;
        });
    }
    return {Numero(lectura), texto, {}};
}

TNumeroLeido NumeroFinal(std::string_view texto) {
    TLectura lectura;
    bool sigue = true;
    while (sigue) {
        const TPalabra palabra = UltimaPalabra(texto);
        texto = palabra.Resto;
        sigue =
            Toma(lectura, QuitaCaracteres(palabra.Palabra, ".,-;\"\t\n\r()"), [&](const std::string& otra) {
                if (lectura.ConjuncionPendiente)
                    lectura.Acumulado = Conjuncion().substr(1) + " " + lectura.Acumulado;
                lectura.Acumulado = otra + " " + lectura.Acumulado;
            });
    }
    return {Numero(lectura), {}, {}};
}

int PosicionPunto(std::string_view texto) {
    std::string copia(texto);
    int punto = Pos(".", copia);
    while (!EsCastellano() && punto > 1 && punto < static_cast<int>(copia.size())) {
        const auto donde = static_cast<std::size_t>(punto - 1);
        if (copia[donde - 1] != 'L' || copia[donde + 1] != 'L') break;
        copia[donde] = '\xB7';
        punto = Pos(".", copia);
    }
    return punto;
}

}  // namespace analizador

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Encuentra.h"
#include "plataforma/FicheroIni.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "plataforma/Rvarias.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

constexpr int NIF = 1;
constexpr int NIE = 3;
constexpr int PASAPORTE = 4;
constexpr int OTRO = 5;
constexpr std::string_view SIGNOS = "\t\n\r,.-()";
constexpr std::size_t LONGITUD_MINIMA = 6;
constexpr int LONGITUD_NIF = 9;
constexpr std::size_t NADA = std::string_view::npos;

// The last occurrence of every entry of a section before a limit that moves on.
class TUltimasApariciones {
  public:
    TUltimasApariciones(const TFicheroIni& fichero, std::string_view seccion, std::string_view texto)
        : texto_(texto) {
        for (const std::string& entrada : fichero.Palabras(seccion))
            if (!entrada.empty()) entradas_.push_back({entrada, NADA, Encuentra(texto_, entrada)});
    }

    // The leftmost of them in the text before `limite`, from 1; 0 when no entry stands there.
    [[nodiscard]] std::size_t MasALaIzquierda(std::size_t limite) {
        std::size_t mejor = NADA;
        for (TEntrada& entrada : entradas_) {
            while (entrada.Proxima != NADA && entrada.Proxima + entrada.Texto.size() <= limite) {
                entrada.Ultima = entrada.Proxima;
                entrada.Proxima = Encuentra(texto_, entrada.Texto, entrada.Ultima + 1);
            }
            mejor = std::min(mejor, entrada.Ultima);
        }
        return mejor == NADA ? 0 : mejor + 1;
    }

  private:
    struct TEntrada {
        std::string_view Texto;
        std::size_t Ultima;
        std::size_t Proxima;
    };
    std::string_view texto_;
    std::vector<TEntrada> entradas_;
};

// The kind of document that the words in front of a number announce: those nearest to it win, but of each
// kind the leftmost of its entries' last occurrences stands for it.
class TTipoDeDocumento {
  public:
    explicit TTipoDeDocumento(std::string_view parrafo)
        : fichero_(AbreFicheroIni(TOKENS_INI())),
          plegado_(Pliega(parrafo)),
          nif_(*fichero_, "NIF", plegado_),
          nie_(*fichero_, "NIE", plegado_),
          pasaporte_(*fichero_, "PASAPORTE", plegado_) {}
    TTipoDeDocumento(const TTipoDeDocumento&) = delete;
    TTipoDeDocumento& operator=(const TTipoDeDocumento&) = delete;

    // Of a number that begins at `inicio` (from 0), which only moves on.
    [[nodiscard]] int Antes(std::size_t inicio) {
        const std::size_t n = nif_.MasALaIzquierda(inicio);
        const std::size_t e = nie_.MasALaIzquierda(inicio);
        const std::size_t p = pasaporte_.MasALaIzquierda(inicio);
        if (n > e && n > p) return NIF;
        if (e > n && e > p) return NIE;
        if (p > n && p > e) return PASAPORTE;
        return OTRO;
    }

  private:
    std::shared_ptr<const TFicheroIni> fichero_;
    std::string plegado_;
    TUltimasApariciones nif_;
    TUltimasApariciones nie_;
    TUltimasApariciones pasaporte_;
};

bool EsCifra(char c) {
    return c >= '0' && c <= '9';
}

TRDocumento DocumentoDe(std::string numero, std::size_t inicio, TTipoDeDocumento& tipos) {
    if (EsNif(numero, false)) return {NIF, FormateaDNI(StrCeros(numero, LONGITUD_NIF))};
    if (EsUnNie(numero, false)) return {NIE, std::move(numero)};
    const int tipo = tipos.Antes(inicio);
    return {tipo, std::move(numero)};
}

// Where in the paragraph the number stands, without the signs around it.
Tramo SinSignos(std::string_view palabra, std::size_t inicio) {
    const std::size_t primera = palabra.find_first_not_of(SIGNOS);
    return {inicio + primera, palabra.find_last_not_of(SIGNOS) + 1 - primera};
}

}  // namespace

std::vector<THallazgo<TRDocumento>> BuscaDocumentos(std::string_view parrafo) {
    std::vector<THallazgo<TRDocumento>> documentos;
    TTipoDeDocumento tipos(parrafo);
    std::size_t blanco = NADA;
    std::size_t reanuda = 0;
    for (std::size_t i = 0; i < parrafo.size(); ++i) {
        if (parrafo[i] == ' ') blanco = i;
        if (i < reanuda || blanco == NADA || !EsCifra(parrafo[i])) continue;
        const std::size_t inicio = blanco + 1;
        const std::size_t fin = std::min(parrafo.find(' ', i), parrafo.size());
        const std::string_view palabra = parrafo.substr(inicio, fin - inicio);
        std::string numero = QuitaCaracteres(palabra, SIGNOS);
        if (numero.size() >= LONGITUD_MINIMA)
            documentos.push_back({DocumentoDe(std::move(numero), inicio, tipos), SinSignos(palabra, inicio)});
        // Counted from the digit, not from the word's start: a word that began with letters swallows the
        // first characters of the next one.
        reanuda = i + palabra.size() + 1;
    }
    return documentos;
}

}  // namespace analizador

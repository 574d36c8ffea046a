#include <algorithm>
#include <map>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "programas/analiza/Explicacion.h"
#include "programas/analiza/Palabras.h"
#include "rutinas/Buscador.h"
#include "rutinas/RutAnalizador.h"
#include "rutinas/Tratamiento.h"

namespace analizador {

namespace {

constexpr std::size_t NADA = std::string_view::npos;
constexpr std::size_t MAXIMA_DE_TITULO = 5;  // characters of its paragraph among which a heading begins

class TExplicador {
  public:
    explicit TExplicador(std::string_view parrafo) : FParrafo(parrafo), FPlegado(Pliega(parrafo)) {}

    [[nodiscard]] std::vector<TCasada> Casan() {
        for (const auto& seccion : SeccionesVocabulario()) Busca(seccion);
        BuscaTratamientos();
        std::ranges::stable_sort(FCasadas, {}, &TCasada::Seccion);
        MarcaPerdedoras();
        return std::move(FCasadas);
    }

  private:
    void Pon(const TSeccionVocabulario& seccion, const std::optional<TEntradaHallada>& hallada,
             std::size_t principio = 0) {
        if (hallada)
            FCasadas.push_back(
                {&seccion, hallada->Numero, {principio + hallada->Posicion, hallada->Entrada.size()}, {}});
    }

    void Busca(const TSeccionVocabulario& seccion) {
        TBuscadorEntradas entradas(seccion.Nombre, FPlegado);
        switch (seccion.Modo) {
            case TModoSeccion::Titulo:
                BuscaTitulo(seccion);
                break;
            case TModoSeccion::PrimeraDeLaLista:
            case TModoSeccion::PrimeraPalabra:
            case TModoSeccion::BastaUna:
                Pon(seccion, entradas.PrimeraEntrada());
                break;
            case TModoSeccion::MasALaIzquierda:
                BuscaMasALaIzquierda(seccion);
                break;
            case TModoSeccion::UltimasMasALaIzquierda:
                BuscaUltimas(seccion);
                break;
            case TModoSeccion::TodasPorPosicion:
                BuscaTodas(seccion, [&](std::size_t desde) { return entradas.MasALaIzquierda(desde); });
                break;
            case TModoSeccion::TodasPorLista:
                BuscaTodas(seccion, [&](std::size_t desde) { return entradas.PrimeraEntrada(desde); });
                break;
            case TModoSeccion::PalabraIgual:
                BuscaPalabras(seccion);
                break;
            case TModoSeccion::Tratamiento:
                break;  // both sections at once, see BuscaTratamientos
        }
    }

    // As it is written, whole, and only at its first occurrence.
    void BuscaTitulo(const TSeccionVocabulario& seccion) {
        const std::size_t margen = FParrafo.size() - RecortaIzquierda(FParrafo).size();
        std::optional<TEntradaHallada> mejor;
        int numero = 0;
        const auto lista = ListaTokens(seccion.Nombre);
        for (const auto& entrada : lista) {
            ++numero;
            const std::size_t p = BuscaPalabra(FParrafo, entrada);
            if (p != NADA && p < margen + MAXIMA_DE_TITULO && (!mejor || p < mejor->Posicion))
                mejor = TEntradaHallada{p, entrada, numero};
        }
        Pon(seccion, mejor);
    }

    // The class of a street is looked for behind the words that introduce the address.
    void BuscaMasALaIzquierda(const TSeccionVocabulario& seccion) {
        std::size_t desde = 0;
        if (seccion.Grupo == "vía") {
            TBuscadorEntradas domicilios("DOMICILIO", FPlegado);
            if (const auto domicilio = domicilios.PrimeraEntrada()) desde = domicilio->Fin();
        }
        TBuscadorEntradas entradas(seccion.Nombre, std::string_view(FPlegado).substr(desde));
        Pon(seccion, entradas.MasALaIzquierda(), desde);
    }

    void BuscaUltimas(const TSeccionVocabulario& seccion) {
        const TToken token = ContieneToken(seccion.Nombre, FPlegado, {.Plegado = false, .Ultima = true});
        if (token.Posicion != 0)
            Pon(seccion,
                TEntradaHallada{static_cast<std::size_t>(token.Posicion) - 1, token.Entrada, token.Numero});
    }

    template <class TSiguiente>
    void BuscaTodas(const TSeccionVocabulario& seccion, TSiguiente siguiente) {
        for (auto mencion = siguiente(0); mencion; mencion = siguiente(mencion->Fin())) Pon(seccion, mencion);
    }

    void BuscaPalabras(const TSeccionVocabulario& seccion) {
        const auto lista = ListaTokens(seccion.Nombre);
        std::string_view resto = FPlegado;
        for (TPalabra p = PrimeraPalabra(resto); !p.Palabra.empty(); p = PrimeraPalabra(p.Resto)) {
            const std::string pelada = QuitaCaracteres(p.Palabra, ".,-;\"\t\n\r()");
            const auto entrada = std::ranges::find(lista, pelada);
            if (pelada.empty() || entrada == lista.end()) continue;
            const auto posicion = static_cast<std::size_t>(p.Palabra.data() - FPlegado.data());
            Pon(seccion, TEntradaHallada{posicion, RecortaDerecha(p.Palabra),
                                         static_cast<int>(entrada - lista.begin()) + 1});
        }
    }

    void BuscaTratamientos() {
        const TBuscadorTratamientos tratamientos(FPlegado);
        std::size_t desde = 0;
        for (TTratamiento t = tratamientos.Desde(0); t.Posicion != 0; t = tratamientos.Desde(desde)) {
            const auto* const seccion = SeccionVocabulario(CONST_SECCION_SEXOS.at(t.Sexo == 'H' ? 0 : 1));
            const auto lista = ListaTokens(seccion->Nombre);
            const auto numero = std::ranges::find(lista, t.Tratamiento) - lista.begin() + 1;
            Pon(*seccion, TEntradaHallada{t.Donde.Primera, t.Tratamiento, static_cast<int>(numero)});
            desde = t.Donde.Primera + t.Donde.Longitud;
        }
    }

    // Of the sections that are searched together one wins: the first, or that whose entry stands first.
    void MarcaPerdedoras() {
        std::map<std::string_view, const TCasada*> ganadoras;
        const auto esDeGrupo = [](const TCasada& c) {
            return !c.Seccion->Grupo.empty() && c.Seccion->Modo != TModoSeccion::Tratamiento;
        };
        for (const auto& casada : FCasadas) {
            if (!esDeGrupo(casada)) continue;
            const TCasada*& ganadora = ganadoras[casada.Seccion->Grupo];
            const bool porPosicion = casada.Seccion->Modo == TModoSeccion::MasALaIzquierda;
            if (ganadora == nullptr || (porPosicion && casada.Donde.Primera < ganadora->Donde.Primera))
                ganadora = &casada;
        }
        for (auto& casada : FCasadas)
            if (esDeGrupo(casada) && ganadoras.at(casada.Seccion->Grupo) != &casada)
                casada.Gana = ganadoras.at(casada.Seccion->Grupo)->Seccion->Nombre;
    }

    std::string_view FParrafo;
    std::string FPlegado;
    std::vector<TCasada> FCasadas;
};

}  // namespace

std::vector<TCasada> SeccionesQueCasan(std::string_view parrafo) {
    return TExplicador(parrafo).Casan();
}

}  // namespace analizador

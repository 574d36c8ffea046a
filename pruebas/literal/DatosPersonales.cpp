#include "analizador/ConstAnalizador.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "pruebas/literal/Cortes.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

using namespace pruebas;

namespace {

THallazgo<std::string> Valor(std::string_view texto) {
    return {std::string(texto), {}};
}

std::string QuitaArticuloInicial(const std::string& texto) {
    const std::string principio = AnsiUpperCase(StrLeft(texto, 3));
    return principio == "LA " || principio == "EL " ? Desde(texto, 4) : texto;
}

std::string QuitaPreposicionArticulo(const std::string& texto) {
    const std::vector<std::string> castellanas = {"DEL ", "DE ", "LA ", "LOS ", "EL "};
    const std::vector<std::string> catalanas = {"DEL ", "DE ", "LA ", "ELS ", "DELS ", "EL "};
    std::string quitado = texto;
    for (const std::string& palabra : EsCatalan() ? catalanas : castellanas)
        if (AnsiUpperCase(StrLeft(texto, Largo(palabra))) == palabra)
            quitado = Desde(texto, Largo(palabra) + 1);
    return quitado;
}

struct TVia {
    std::string Codigo;
    std::string Palabra;
    int Posicion = 0;
};

TVia BuscaTipoVia(std::string_view texto) {
    const std::string plegado = Pliega(texto);
    TVia via;
    for (std::size_t i = 0; i < CONST_SECCION_TIPO_VIA.size(); ++i)
        for (const std::string& entrada : ListaTokens(CONST_SECCION_TIPO_VIA[i])) {
            const int posicion = Pos(entrada, plegado);
            if (posicion != 0 && (via.Posicion == 0 || posicion < via.Posicion))
                via = {std::string(CONST_TIPO_VIA[i]), entrada, posicion};
        }
    return via;
}

std::string PrimerosDigitos(const std::string& texto) {
    const std::size_t inicio = texto.find_first_of("0123456789");
    if (inicio == std::string::npos) return {};
    return texto.substr(inicio, texto.find_first_not_of("0123456789", inicio) - inicio);
}

}  // namespace

TVecindad BuscaVecindad(std::string_view texto) {
    const std::string plegado = Pliega(texto);
    const TToken palabra = ContieneToken("VECINDAD", plegado, {.Plegado = false, .PrimeraEntrada = true});
    if (palabra.Posicion == 0) return {};
    const int inicio = palabra.Posicion + Largo(palabra.Entrada) + 1;
    const int coma = Pos(",", Desde(plegado, inicio)) + inicio - 1;
    const int domicilio =
        ContieneToken("DOMICILIO", plegado, {.Plegado = false, .PrimeraEntrada = true}).Posicion;
    const int fin = domicilio != 0 && domicilio < coma ? domicilio : coma;
    std::string municipio(Recorta(StrLeft(Desde(plegado, inicio), fin - inicio)));
    if (const int parentesis = Pos("(", municipio); parentesis != 0)
        municipio = Recorta(StrLeft(municipio, parentesis - 1));
    if (const int guion = Pos("-", municipio); guion != 0) {
        const std::string codigo(StrLeft(municipio, guion - 1));
        if (Cad_Int(codigo) != 0) return {Valor(Desde(municipio, guion + 1)), Valor(StrCeros(codigo, 5))};
    }
    return {Valor(municipio), {}};
}

TDomicilio BuscaDomicilio(std::string_view parrafo) {
    std::string texto = AnsiUpperCase(parrafo);
    const TToken palabra = ContieneToken("DOMICILIO", texto, {.PrimeraEntrada = true});
    if (palabra.Posicion != 0)
        texto = QuitaArticuloInicial(
            AnsiUpperCase(Recorta(Desde(texto, palabra.Posicion + Largo(palabra.Entrada)))));
    const TVia via = BuscaTipoVia(texto);
    if (via.Posicion != 0)
        texto = QuitaPreposicionArticulo(Desde(texto, via.Posicion + Largo(via.Palabra) + 1));
    if (palabra.Posicion == 0 && via.Posicion == 0) return {};

    const int coma = Pos(",", texto);
    const TToken numero = ContieneToken("NUMERO", texto);
    int fin = coma - 1;
    int salta = 1;
    if (numero.Posicion != 0 && numero.Posicion < coma) {
        fin = numero.Posicion - 1;
        salta = Largo(numero.Entrada);
    }
    if (fin <= 0) {
        fin = Largo(texto);
        salta = 0;
    }
    return {Valor(via.Codigo), Valor(RecortaIzquierda(StrLeft(texto, fin))),
            Valor(PrimerosDigitos(Desde(texto, fin + salta + 1)))};
}

THallazgo<std::string> BuscaDomicilioExtranjero(std::string_view parrafo) {
    std::string texto = Pliega(parrafo);
    const TToken palabra = ContieneToken("DOMICILIO", texto, {.Plegado = false, .PrimeraEntrada = true});
    if (palabra.Posicion != 0) texto = Recorta(Desde(texto, palabra.Posicion + Largo(palabra.Entrada)));
    const int parentesis = Pos("(", texto);
    const int fin = parentesis != 0 ? parentesis - 1 : PosicionPunto(texto) - 1;
    std::string domicilio(Recorta(StrLeft(texto, fin)));
    if (!domicilio.empty() && std::string_view(",.;").find(domicilio.back()) != std::string_view::npos)
        domicilio.pop_back();
    return Valor(domicilio);
}

namespace {

// The value beside the first section one of whose entries occurs in the text; `otro` when none does.
template <class Secciones, class Valores>
int ValorDeSeccion(const Secciones& secciones, const Valores& valores, std::string_view texto, int otro) {
    for (std::size_t s = 0; s < secciones.size(); ++s)
        for (const std::string& entrada : ListaTokens(secciones[s]))
            if (Pos(entrada, texto) != 0) return valores[s];
    return otro;
}

}  // namespace

TEstadoCivil BuscaEstadoCivil(std::string_view texto) {
    constexpr int CASADO_EN_SEGUNDAS_NUPCIAS = 2;
    constexpr int CASADO = 1;
    const int estado = ValorDeSeccion(CONST_SECCION_ESTADO_CIVIl, CONST_ESTADO_CIVIL, Pliega(texto), 0);
    if (estado != CASADO && estado != CASADO_EN_SEGUNDAS_NUPCIAS) return {{estado, {}}, {}};
    return {{estado, {}}, BuscaRegimenMatrimonial(texto)};
}

THallazgo<int> BuscaRegimenMatrimonial(std::string_view texto) {
    return {ValorDeSeccion(CONST_SECCION_REGIMEN_MATRIMONIAL, CONST_REGIMEN_MATRIMONIAL, Pliega(texto),
                           CONST_REGIMEN_MATRIMONIAL.back()),
            {}};
}

THallazgo<int> BuscaTipoInteres(std::string_view parrafo) {
    return {ValorDeSeccion(CONST_SECCION_TIPO_INTERES, CONST_TIPO_INTERES, parrafo, 0), {}};
}

THallazgo<int> BuscaIntervencionVenden(std::string_view parrafo, std::string_view nombre) {
    const std::string plegado = Pliega(parrafo);
    const std::string buscado = Pliega(nombre);
    const int frase =
        ContieneToken("TRANSMISION", plegado, {.Plegado = false, .PrimeraEntrada = true}).Posicion;
    if (Pos(buscado, StrLeft(plegado, frase)) != 0) return {2, {}};
    if (Pos(buscado, StrRight(plegado, Largo(plegado) - frase + 1)) != 0) return {1, {}};
    return {99, {}};
}

std::vector<THallazgo<int>> BuscaIntervencionesVenden(std::string_view parrafo,
                                                      const std::vector<std::string>& nombres) {
    std::vector<THallazgo<int>> halladas;
    for (const std::string& nombre : nombres) halladas.push_back(BuscaIntervencionVenden(parrafo, nombre));
    return halladas;
}

THallazgo<int> BuscaIntervencionParteDeudora(std::string_view parrafo, std::string_view nombre) {
    const std::string plegado = Pliega(parrafo);
    const int frase =
        ContieneToken("PARTE DEUDORA", plegado, {.Plegado = false, .PrimeraEntrada = true}).Posicion;
    if (frase == 0) return {99, {}};
    return {Pos(Pliega(nombre), Desde(plegado, frase)) != 0 ? 4 : 99, {}};
}

}  // namespace analizador

#include "analizador/ConstAnalizador.h"
#include "plataforma/Ansi.h"
#include "plataforma/Confnvx.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "plataforma/Ruttb.h"
#include "pruebas/literal/Cortes.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

using namespace pruebas;

namespace {

// Where the entry stands as a form of address; after each false occurrence the text is cut, and the position
// counted anew.
int PosicionTratamiento(const std::string& entrada, std::string texto) {
    if (entrada.empty()) return 0;
    for (;;) {
        const int posicion = Pos(entrada + " ", texto);
        if (posicion == 0) return 0;
        if (posicion == 1) return posicion;
        const char anterior = texto[static_cast<std::size_t>(posicion) - 2];
        if (anterior == ' ' || anterior == '\n' || anterior == '\r') return posicion;
        if (posicion + Largo(entrada) > Largo(texto)) return 0;
        texto = Desde(texto, posicion + Largo(entrada));
    }
}

}  // namespace

TTratamiento BuscaTratamiento(std::string_view texto) {
    const std::string plegado = Pliega(texto);
    TTratamiento mejor;
    for (std::size_t s = 0; s < CONST_SECCION_SEXOS.size(); ++s)
        for (const std::string& entrada : ListaTokens(CONST_SECCION_SEXOS[s])) {
            const int posicion = PosicionTratamiento(entrada, plegado);
            if (posicion == 0 || (mejor.Posicion != 0 && posicion >= mejor.Posicion)) continue;
            mejor.Posicion = posicion;
            mejor.Tratamiento = entrada;
            mejor.Sexo = s == 0 ? 'H' : 'M';
        }
    return mejor;
}

TNombreSeparado SeparaNombreApellidos(std::string_view nombre) {
    const std::string plegado = Pliega(nombre);
    const std::string_view entero = Recorta(plegado);
    if (Pos(" ", entero) == 0) return {"", std::string(entero)};
    const auto tabla = CreaTabla(Config().GetAliasNorvex(), "PILA.DBF", "NOMBRE", false, true);
    for (std::string_view candidato = entero;; candidato = StrLeft(candidato, RightPos(" ", candidato) - 1)) {
        if (TBBusca(*tabla, {{"NOMBRE", candidato}}, true))
            return {std::string(candidato), Desde(entero, Largo(candidato) + 2)};
        if (RightPos(" ", candidato) == 0) break;
    }
    const TPalabra primera = PrimeraPalabra(entero);
    return {std::string(primera.Palabra), std::string(primera.Resto)};
}

std::vector<THallazgo<TRPersona>> BuscaPersonas(std::string_view parrafo) {
    std::vector<THallazgo<TRPersona>> personas;
    std::string texto = Pliega(parrafo);
    for (TTratamiento actual = BuscaTratamiento(texto); actual.Posicion != 0;
         actual = BuscaTratamiento(texto)) {
        const bool notario = ContieneToken("NOTARIO DE", StrLeft(texto, actual.Posicion - 1),
                                           {.Plegado = false, .PrimeraEntrada = true})
                                 .Posicion != 0;
        texto = Desde(texto, actual.Posicion + Largo(actual.Tratamiento) + 1);
        int fin = Primera(Pos(",", texto), BuscaTratamiento(texto).Posicion);
        if (fin == 0) fin = Largo(texto);
        std::string nombre(StrLeft(texto, fin - 1));
        if (AnsiUpperCase(StrRight(nombre, 3)) == Conjuncion() + " ") nombre.resize(nombre.size() - 3);
        if (!notario) {
            const TNombreSeparado separado = SeparaNombreApellidos(nombre);
            personas.push_back({{std::string(1, actual.Sexo), separado.Nombre, separado.Apellidos}, {}});
        }
        texto = Desde(texto, Largo(nombre) + 1);
    }
    return personas;
}

namespace {

// The company between the quotes of a text that begins after the opening one; the text goes on after the
// closing one.
TSociedadHallada Sociedad(std::string& texto) {
    const int cierre = Pos("\"", texto);
    std::string nombre(StrLeft(texto, cierre - 1));
    texto = cierre == 0 ? std::string() : Desde(texto, cierre + 1);
    if (EsCatalan() && AnsiUpperCase(StrLeft(nombre, 2)) == "L'") nombre = Desde(nombre, 3);
    TSociedadHallada hallada;
    hallada.Sociedad.Apellidos = nombre;
    hallada.Sociedad.NumDocumento = BuscaCif(texto).Valor;
    return hallada;
}

}  // namespace

std::vector<TSociedadHallada> BuscaSociedades(std::string_view parrafo) {
    std::vector<TSociedadHallada> sociedades;
    std::string texto(parrafo);
    TToken palabra = ContieneToken("REPRESENTACION", texto);
    if (palabra.Posicion == 0) {
        if (const int comilla = Pos("\"", texto); comilla != 0) {
            texto = Desde(texto, comilla + 1);
            sociedades.push_back(Sociedad(texto));
        }
        return sociedades;
    }
    while (palabra.Posicion != 0) {
        texto = Desde(texto, palabra.Posicion + Largo(palabra.Entrada));
        const TTratamiento persona = BuscaTratamiento(texto);
        const int comilla = Pos("\"", texto);
        if (comilla != 0 && (persona.Posicion == 0 || persona.Posicion >= comilla)) {
            texto = Desde(texto, comilla + 1);
            sociedades.push_back(Sociedad(texto));
        } else if (persona.Posicion != 0) {
            texto = Desde(texto, persona.Posicion + Largo(persona.Tratamiento));
        } else {
            texto.clear();
        }
        palabra = ContieneToken("REPRESENTACION", texto);
    }
    return sociedades;
}

bool EsCliente(std::string_view parrafo) {
    const std::string plegado = Pliega(parrafo);
    for (const auto& seccion : CONST_SECCION_SEXOS)
        for (const std::string& entrada : ListaTokens(seccion))
            if (!entrada.empty() && Pos(entrada + " ", plegado) != 0) return true;
    return false;
}

bool EsUnParrafoDeRepresentacion(std::string_view parrafo) {
    const std::string plegado = Pliega(parrafo);
    for (const std::string& entrada : ListaTokens("REPRESENTACION"))
        if (!entrada.empty() && Pos(" " + entrada, plegado) != 0) return true;
    return false;
}

TROtorgante* Otorgante(std::string_view texto, ListaTextos<TROtorgante>& lista) {
    for (auto& linea : lista)
        if (Pos(linea.Objeto->NombreOtorgante(), texto) != 0) return linea.Objeto.get();
    return nullptr;
}

bool EsUnOtorgante(std::string_view texto, const ListaTextos<TROtorgante>& lista) {
    for (const auto& linea : lista)
        if (Pos(linea.Objeto->NombreOtorgante(), texto) != 0) return true;
    return false;
}

bool EsUnDocumentoDeOtorgante(std::string_view texto, const ListaTextos<TROtorgante>& lista) {
    for (const auto& linea : lista)
        if (Pos(linea.Objeto->NumDocumento, texto) != 0) return true;
    return false;
}

}  // namespace analizador

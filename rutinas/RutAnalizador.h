#pragma once

// The recognisers: each finds one kind of fact in a text of the deed by the word lists of the current token
// file and the reference tables. They keep no state between calls, report nothing and never fail on a text; a
// table that cannot be opened is an ErrorTabla that passes through. Texts are Windows-1252.
//
// Where a fact was read is told as a Tramo of the text that was given (from 0); positions that the rules
// themselves speak of are 1-based, 0 meaning not found, like everywhere in the suite.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "modelo/TRConcepto.h"
#include "modelo/TROtorgante.h"
#include "plataforma/ListaTextos.h"
#include "rutinas/Tramo.h"

namespace analizador {

// ---- Word lists
// ---------------------------------------------------------------------------------------------

// The entries 1..n of a section of the current token file, in file order; missing ones are empty. Empty
// without the section or the file.
[[nodiscard]] std::vector<std::string> ListaTokens(std::string_view seccion);

// How ContieneToken searches.
struct TModoBusqueda {
    bool Plegado = true;          // fold the text first; false: it is searched as it is
    bool Ultima = false;          // an entry stands at its last occurrence instead of its first
    bool PrimeraEntrada = false;  // the first entry that occurs at all wins, instead of the leftmost one
};

struct TToken {
    int Posicion = 0;     // 1-based, in the text given; 0 when nothing was found
    std::string Entrada;  // as written in the token file
    int Numero = 0;       // of the entry in its section, from 1
    bool operator==(const TToken&) const = default;
};

// Looks for the entries of a section as plain substrings. Empty entries never match; of two entries at the
// same position the one that comes first in the file wins.
[[nodiscard]] TToken ContieneToken(std::string_view seccion, std::string_view texto, TModoBusqueda modo = {});

// True when the word is exactly an entry of the section NUMEROS; nothing is folded.
[[nodiscard]] bool EsPalabraNumero(std::string_view palabra);

// True when the whole text is a whole number (see EnteroDeCadena).
[[nodiscard]] bool EsNumeroEntero(std::string_view texto);

// A word and what is left of the text; views into it.
struct TPalabra {
    std::string_view Palabra;
    std::string_view Resto;
};

// The first word: what stands before the first blank of the text trimmed at the left. The blank itself is
// dropped, further ones stay in the rest.
[[nodiscard]] TPalabra PrimeraPalabra(std::string_view texto);
// The mirror: the last word and what stands before it.
[[nodiscard]] TPalabra UltimaPalabra(std::string_view texto);

struct TNumeroLeido {
    int Numero = -1;         // -1 when there is none
    std::string_view Resto;  // NumeroInicial: the text after the last word examined, which is lost on purpose
    Tramo Donde;             // the words that made the number
};

// The number written at the start of the text, in digits or in words joined by the deed's conjunction; words
// before it are skipped. A word that is empty once its signs are gone ends the search.
[[nodiscard]] TNumeroLeido NumeroInicial(std::string_view texto);
// The number written at the end of the text, read backwards; words after it are skipped. Resto stays empty.
[[nodiscard]] TNumeroLeido NumeroFinal(std::string_view texto);

// ---- Persons
// ------------------------------------------------------------------------------------------------

// A form of address found in a text.
struct TTratamiento {
    // 1-based, 0 when none. Approximate on purpose: once an occurrence inside another word has been skipped
    // it is counted from the end of that false one, not from the start of the text.
    int Posicion = 0;
    std::string Tratamiento;
    char Sexo = ' ';  // 'H' or 'M'
    Tramo Donde;      // where it really stands
    bool operator==(const TTratamiento&) const = default;
};

// The next form of address: an entry of HOMBRE or MUJER followed by a blank and standing at the start of the
// text or after a blank, LF or CR.
[[nodiscard]] TTratamiento BuscaTratamiento(std::string_view texto);

struct TNombreSeparado {
    std::string Nombre;
    std::string Apellidos;
    bool operator==(const TNombreSeparado&) const = default;
};

// Splits a full name, folded, with the table of first names PILA: the longest leading run of words that is a
// known first name, else the first word. A single word is all surnames.
[[nodiscard]] TNombreSeparado SeparaNombreApellidos(std::string_view nombre);

// The people that a paragraph names after a form of address, notaries left out, in text order.
[[nodiscard]] std::vector<THallazgo<TRPersona>> BuscaPersonas(std::string_view parrafo);

struct TSociedadHallada {
    TRSociedad Sociedad;
    Tramo Nombre;
    Tramo Documento;  // length 0 when no tax code was found
    bool operator==(const TSociedadHallada&) const = default;
};

// The companies that a paragraph names between double quotes, in text order. Their tax code may be a
// candidate that was rejected (see BuscaCif).
[[nodiscard]] std::vector<TSociedadHallada> BuscaSociedades(std::string_view parrafo);

// ---- Identity documents
// -------------------------------------------------------------------------------------

// The identity documents of a paragraph, in text order: every word with a digit and six characters or more
// once its signs are gone. A number at the very start of the paragraph is never found.
[[nodiscard]] std::vector<THallazgo<TRDocumento>> BuscaDocumentos(std::string_view parrafo);

// The company tax code in a text. It may be a candidate that was rejected: the caller checks it if it
// matters.
[[nodiscard]] THallazgo<std::string> BuscaCif(std::string_view texto);

// ---- Addresses
// ----------------------------------------------------------------------------------------------

struct TVecindad {
    THallazgo<std::string> Municipio;
    THallazgo<std::string> CodPostal;  // five digits, when written in front of the municipality
};

// The municipality of residence, folded. Without a comma after it it is empty.
[[nodiscard]] TVecindad BuscaVecindad(std::string_view texto);

struct TDomicilio {
    THallazgo<std::string> TipoVia;  // a code of CONST_TIPO_VIA
    THallazgo<std::string> Via;      // in capitals, accents kept
    THallazgo<std::string> Numero;   // digits
};

[[nodiscard]] TDomicilio BuscaDomicilio(std::string_view texto);

// A foreign address as one folded text; empty when neither a bracket nor a full stop ends it.
[[nodiscard]] THallazgo<std::string> BuscaDomicilioExtranjero(std::string_view texto);

// ---- Paragraph classes, civil status
// ------------------------------------------------------------------------

// True when the paragraph speaks of persons: a form of address and a blank anywhere in it.
[[nodiscard]] bool EsCliente(std::string_view parrafo);

// True when the paragraph holds a word of representation after a blank (so never at its very start).
[[nodiscard]] bool EsUnParrafoDeRepresentacion(std::string_view parrafo);

struct TEstadoCivil {
    THallazgo<int> Estado;   // CONST_ESTADO_CIVIL; 0 none
    THallazgo<int> Regimen;  // only of the married; 0 not asked
};

[[nodiscard]] TEstadoCivil BuscaEstadoCivil(std::string_view texto);

// The matrimonial regime, CONST_REGIMEN_MATRIMONIAL: 4, read nowhere, when no section is found.
[[nodiscard]] THallazgo<int> BuscaRegimenMatrimonial(std::string_view texto);

// ---- Interventions
// ------------------------------------------------------------------------------------------

// How a party stands in the transfer: 2 before the phrase (transfers), 1 after it or without a phrase
// (acquires), 99 not named.
[[nodiscard]] THallazgo<int> BuscaIntervencionVenden(std::string_view parrafo, std::string_view nombre);
// The same for many names, one result for each: the paragraph is read once, however many they are.
[[nodiscard]] std::vector<THallazgo<int>> BuscaIntervencionesVenden(std::string_view parrafo,
                                                                    const std::vector<std::string>& nombres);

// 4 when the party stands at or after the phrase of the debtors, else 99.
[[nodiscard]] THallazgo<int> BuscaIntervencionParteDeudora(std::string_view parrafo, std::string_view nombre);

// ---- Birth, parents, foreigners
// -----------------------------------------------------------------------------

struct TNacimiento {
    THallazgo<std::string> Lugar;
    THallazgo<std::string> Provincia;
    THallazgo<std::string> Pais;
    THallazgo<std::optional<TFecha>> Fecha;
};

[[nodiscard]] TNacimiento BuscaLugaryFechaNacimiento(std::string_view parrafo);

struct TPadres {
    THallazgo<std::string> Padre;
    THallazgo<std::string> Madre;
};

[[nodiscard]] TPadres BuscaPadres(std::string_view parrafo);

struct TExtranjeria {
    bool Espannol = true;                   // false when a word marks a foreigner
    THallazgo<std::string> Pais;            // of a foreigner; "DESCONOCIDO" when no country is named
    int CodPais = 0;                        // 999 for an unknown one
    std::vector<THallazgo<TRPais>> Paises;  // by the position of their words
};

[[nodiscard]] TExtranjeria CompruebaExtranjeros(std::string_view parrafo);

// The first party of the list whose full name occurs in the text exactly; nullptr when none does. The list
// keeps it.
[[nodiscard]] TROtorgante* Otorgante(std::string_view texto, ListaTextos<TROtorgante>& lista);
[[nodiscard]] bool EsUnOtorgante(std::string_view texto, const ListaTextos<TROtorgante>& lista);
[[nodiscard]] bool EsUnDocumentoDeOtorgante(std::string_view texto, const ListaTextos<TROtorgante>& lista);

// ---- Loan terms
// ---------------------------------------------------------------------------------------------

// Add the terms in months / the annual rates that the paragraph names, each value once. Return where each one
// added was read.
std::vector<Tramo> BuscaPlazo(std::string_view parrafo, std::vector<std::string>& plazos);
std::vector<Tramo> BuscaTAE(std::string_view parrafo, std::vector<std::string>& taes);

// The reference index, CONST_TIPO_INTERES; 0 when none is named. The text is searched as it is: the caller
// folds it.
[[nodiscard]] THallazgo<int> BuscaTipoInteres(std::string_view parrafo);

// ---- Concepts and amounts
// -----------------------------------------------------------------------------------

// Adds to `lista` the deed types that the words of a heading paragraph select, each once, under its name, in
// the order of the words. Returns where each one added was read.
std::vector<Tramo> BuscaConceptos(std::string_view parrafo, ListaTextos<TRConcepto>& lista);

// Adds to `lista` the amounts written in digits before a currency word, without thousands points and with a
// decimal comma, each text once. Returns where each one added was read.
std::vector<Tramo> BuscaCuantias(std::string_view texto, std::vector<std::string>& lista);

// ---- Header
// -------------------------------------------------------------------------------------------------

// Position of the full stop that ends the first sentence; 0 when none. Where the deed is not Castilian the
// point of a geminated L (capital L before and after) does not end it.
[[nodiscard]] int PosicionPunto(std::string_view texto);

// The protocol number; 0 when the paragraph gives none.
[[nodiscard]] THallazgo<int> BuscaNumeroProtocolo(std::string_view parrafo);

// A town of the office's table.
struct TLugar {
    int Codigo = 0;
    std::string Abreviatura;
    bool operator==(const TLugar&) const = default;
};

struct TLugarFecha {
    std::optional<THallazgo<TLugar>> Lugar;
    std::optional<THallazgo<std::string>> Fecha;  // "dd/mm/yyyy"; a day or year that was not found is -1
};

// The deed's place and date. Neither when the paragraph names no month.
[[nodiscard]] TLugarFecha BuscaLugarFecha(std::string_view parrafo);

struct TNotario {
    THallazgo<std::string> Notario;    // empty when none was found
    THallazgo<std::string> Sustituto;  // who acts in the notary's place; empty when nobody does
};

[[nodiscard]] TNotario BuscaNotario(std::string_view parrafo);

}  // namespace analizador

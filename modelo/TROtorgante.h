#pragma once

// The records that stand for the people and companies of a deed. Plain values; an empty text, a 0 or no date
// mean not known. Texts are Windows-1252 and stored trimmed at both ends.

#include <chrono>
#include <optional>
#include <string>

namespace analizador {

// An identity document found in a paragraph.
struct TRDocumento {
    int TipoDocumento = 0;  // 1 NIF, 2 CIF, 3 NIE, 4 passport, 5 other
    std::string Numero;
    bool operator==(const TRDocumento&) const = default;
};

// A natural person found in a paragraph; names are folded.
struct TRPersona {
    std::string Sexo;  // "H", "M" or empty
    std::string Nombre;
    std::string Apellidos;
    bool operator==(const TRPersona&) const = default;

    // "NOMBRE APELLIDOS"; without a given name the surnames alone.
    [[nodiscard]] std::string NombreCompleto() const;
};

// A company found in a paragraph.
struct TRSociedad {
    int TipoDocumento = 2;
    std::string NumDocumento;
    std::string Sexo = "S";
    std::string Nombre;     // always empty
    std::string Apellidos;  // the company's name, as the deed writes it
    bool operator==(const TRSociedad&) const = default;
};

// A country found in a paragraph.
struct TRPais {
    std::string Nombre;
    int Codigo = 0;
    std::string Texto;  // the word that told the country
    int Posicion = 0;   // of that word in the paragraph, from 1
    bool operator==(const TRPais&) const = default;
};

// A day of the calendar.
using TFecha = std::chrono::year_month_day;

// One party of the deed.
struct TROtorgante {
    int TipoDocumento = 0;  // 0 none, 1 NIF, 2 CIF, 3 NIE, 4 passport, 5 other
    std::string NumDocumento;
    std::string Sexo;  // "H", "M", "S" (company); only the first character counts
    std::string Nombre;
    std::string Apellidos;  // or the company's name
    int EstadoCivil = 0;
    int Regimen = 0;
    std::string Conyuge;  // "APELLIDOS, NOMBRE"
    std::string Vecindad;
    std::string Provincia;
    std::string TipoVia;
    std::string Domicilio;  // the street, or the whole address abroad
    std::string Numero;
    std::string CodPostal;
    std::string CodINE;
    int IntervencionINTI = 99;  // 99 none; 0 is a code like others
    int IntervencionVRK = 0;    // 0..6
    bool Residente = false;     // abroad until a paragraph says otherwise
    int CodPais = 0;
    std::string Pais;
    std::string Nacionalidad;
    std::string LugarNacimiento;
    std::string PaisNacimiento;
    std::string ProvinciaNacimiento;
    std::optional<TFecha> FechaNacimiento;
    std::string Padre;
    std::string Madre;
    bool EnXML = false;  // its document number stands in the data that the host holds already
    bool operator==(const TROtorgante&) const = default;

    // Merges a later mention of the same party into this one: identity, status and address keep what they
    // hold and only fill their gaps; interventions, nationality, birth and parents become the later
    // mention's, even when it has none; Residente always does; EnXML stays.
    void ActualizaValores(const TROtorgante& otro);

    // "NOMBRE APELLIDOS", under which the party is filed in every list; a company's name alone.
    [[nodiscard]] std::string NombreOtorgante() const;

    // "APELLIDOS, NOMBRE - DOCUMENTO", the line that lists show; what is missing is left out with its sign.
    [[nodiscard]] std::string MuestraOtorgante() const;

    // Completes municipality, statistics code, postal code and province of a party who lives in Spain from
    // the tables MUNICIPI, POSTAL, AYUNTAM and PROVIN. Throws ErrorTabla.
    void CompletaPostal();
};

}  // namespace analizador

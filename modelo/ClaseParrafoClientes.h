#pragma once

// The paragraphs that introduce parties: an appearing party, somebody acting for another, the debtors of a
// loan. Each is made on its text, broken down, and asked to add what it found to the deed's list of parties.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "modelo/ListaOtorgantes.h"
#include "modelo/Origenes.h"
#include "modelo/TROtorgante.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

// What one paragraph says of its parties, and the appearing party's way of making parties of it. Every Tramo
// is a stretch of Texto.
class TClassCliente {
  public:
    // `numero`: the paragraph's number in the document, for the origins.
    explicit TClassCliente(std::string_view texto, int numero = 0);
    virtual ~TClassCliente() = default;
    TClassCliente(const TClassCliente&) = delete;
    TClassCliente& operator=(const TClassCliente&) = delete;

    // Fills the fields from the text. Throws ErrorTabla.
    virtual void Desglosa();

    // Turns the persons found into at most two parties and adds them to the list: none without a person and
    // a document, two only when there are exactly two persons and more than one document. Parties that the
    // list holds already are not looked at. Throws ErrorTabla.
    void InsertaOtorgantes(TListaOtorgantes& lista) const;

    std::string Texto;
    std::vector<THallazgo<TRDocumento>> Documentos;
    std::vector<THallazgo<TRPersona>> Personas;
    std::vector<TSociedadHallada> Sociedades;
    std::vector<THallazgo<TRPais>> Nacionalidades;  // by the position of their words
    THallazgo<int> EstadoCivil;
    THallazgo<int> Regimen;
    THallazgo<std::string> Vecindad;
    THallazgo<std::string> CodPostal;
    THallazgo<std::string> TipoVia;
    THallazgo<std::string> Domicilio;  // the street, or the whole address abroad
    THallazgo<std::string> Numero;
    bool Residente = true;
    int CodPais = 0;
    THallazgo<std::string> Pais;

  protected:
    // A party with what all parties of the paragraph have in common: residence, country and address, without
    // the postal code.
    [[nodiscard]] TOtorganteHallado ConResidencia() const;

    // Where in the document a stretch of Texto stands, without the blanks at its ends.
    [[nodiscard]] TOrigen Origen(Tramo tramo) const;

  private:
    void DesglosaPartes();
    void DesglosaDomicilio();
    [[nodiscard]] TOtorganteHallado ConPersona(std::size_t indice) const;

    int NumeroParrafo;
};

class TClassParrafoCompareciente : public TClassCliente {
  public:
    using TClassCliente::TClassCliente;
};

// What a paragraph of representation and one of debtors share: a company first, then the people not yet
// known.
class TClassParrafoConSociedad : public TClassCliente {
  public:
    using TClassCliente::TClassCliente;

    // Adds the first company (if any) and, as InsertaOtorgantes does, the persons that the list does not know
    // with the documents that it does not know, all of them with their intervention. The known ones leave
    // Personas and Documentos. Throws ErrorTabla.
    void RellenaListaOtorgantes(TListaOtorgantes& lista);

  private:
    virtual void MarcaIntervencion(TROtorgante& otorgante, TOrigenes& origenes) const = 0;
    [[nodiscard]] TOtorganteHallado ConSociedad(const TSociedadHallada& hallada) const;
};

// Its parties are represented: intervention 5 of the suite.
class TClassParrafoRepresentacion : public TClassParrafoConSociedad {
  public:
    using TClassParrafoConSociedad::TClassParrafoConSociedad;
    void Desglosa() override;

    // Full name of who acts for the other, the first person of the paragraph; empty when no person was found.
    THallazgo<std::string> Representante;

  private:
    void MarcaIntervencion(TROtorgante& otorgante, TOrigenes& origenes) const override;
};

// Its parties take the single index's intervention that the paragraph gives them (see
// BuscaIntervencionParteDeudora), also when that is none.
class TClassParrafoParteDeudora : public TClassParrafoConSociedad {
  public:
    using TClassParrafoConSociedad::TClassParrafoConSociedad;

  private:
    void MarcaIntervencion(TROtorgante& otorgante, TOrigenes& origenes) const override;
};

}  // namespace analizador

#pragma once

// The paragraphs that introduce parties: an appearing party, somebody acting for another, the debtors of a
// loan. Each is made on its text, broken down, and asked to add what it found to the deed's list of parties.

#include <string>
#include <string_view>
#include <vector>

#include "modelo/Origenes.h"
#include "modelo/TROtorgante.h"
#include "plataforma/ListaTextos.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

// The parties of a deed in the order found, each under its NombreOtorgante, and where their fields were read:
// one entry of Origenes for each line of Lista.
struct TListaOtorgantes {
    ListaTextos<TROtorgante> Lista;
    std::vector<TOrigenes> Origenes;

    // Files a party under its NombreOtorgante.
    void Anade(TROtorgante otorgante, TOrigenes origenes);
    void Limpia();
};

class TClassCliente {
  public:
    // `numero`: the paragraph's number in the document, for the origins.
    explicit TClassCliente(std::string_view texto, int numero = 0);
    virtual ~TClassCliente() = default;
    TClassCliente(const TClassCliente&) = delete;
    TClassCliente& operator=(const TClassCliente&) = delete;

    // Fills the fields from the text. Throws ErrorTabla.
    virtual void Desglosa();

    // Turns the persons found into at most two parties and adds them to the list. Throws ErrorTabla.
    void InsertaOtorgantes(TListaOtorgantes& lista);

    std::string Texto;
    std::vector<THallazgo<TRDocumento>> Documentos;
    std::vector<THallazgo<TRPersona>> Personas;
    std::vector<TSociedadHallada> Sociedades;
    std::vector<THallazgo<TRPais>> Nacionalidades;
    THallazgo<int> EstadoCivil;
    THallazgo<int> Regimen;
    THallazgo<std::string> Vecindad;
    THallazgo<std::string> CodPostal;
    THallazgo<std::string> TipoVia;
    THallazgo<std::string> Domicilio;
    THallazgo<std::string> Numero;
    bool Residente = true;
    int CodPais = 0;
    THallazgo<std::string> Pais;

  protected:
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

    // Adds the company (if any) and the persons that the list does not know, with their intervention. Throws
    // ErrorTabla.
    void RellenaListaOtorgantes(TListaOtorgantes& lista);

  private:
    virtual void MarcaIntervencion(TROtorgante& otorgante, TOrigenes& origenes) const = 0;
};

class TClassParrafoRepresentacion : public TClassParrafoConSociedad {
  public:
    using TClassParrafoConSociedad::TClassParrafoConSociedad;
    void Desglosa() override;

    std::string Representante;  // full name of who acts for the other; empty when no person was found

  private:
    void MarcaIntervencion(TROtorgante& otorgante, TOrigenes& origenes) const override;
};

class TClassParrafoParteDeudora : public TClassParrafoConSociedad {
  public:
    using TClassParrafoConSociedad::TClassParrafoConSociedad;

  private:
    void MarcaIntervencion(TROtorgante& otorgante, TOrigenes& origenes) const override;
};

}  // namespace analizador

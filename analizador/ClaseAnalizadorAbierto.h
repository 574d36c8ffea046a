#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "modelo/ClaseParrafoCabecera.h"
#include "modelo/ClaseParrafoClientes.h"
#include "modelo/ClaseParrafoExponen.h"
#include "plataforma/ListaTextos.h"
#include "plataforma/Pantalla.h"
#include "plataforma/VrkWord.h"

namespace analizador {

// Where each loan fact was read.
struct TOrigenOperacion {
    std::vector<TOrigen> Plazos;  // one for each term
    std::vector<TOrigen> TAEs;    // one for each rate
    std::optional<TOrigen> TipoInteres;
};

// The session through which a host program analyses the deed that is open in the word processor: it makes
// one, calls Analiza and reads the results. It owns every list and record it fills; the host only reads them.
// It may analyse any number of times: each analysis first empties the results of the one before.
//
// It works on the active document only, never opens, saves or closes one. It moves the selection, adds
// bookmarks for the sections found and leaves the selection at the start. Everything runs on the calling
// thread. Texts are Windows-1252.
class TClassAnalizadorAbierto {
  public:
    // Neither is owned; both must outlive the session. `AOwner` may be nullptr. Without a word processor
    // every analysis fails.
    TClassAnalizadorAbierto(TComponente* AOwner, TWordApplicationConDocumentos* AWord);
    TClassAnalizadorAbierto(const TClassAnalizadorAbierto&) = delete;
    TClassAnalizadorAbierto& operator=(const TClassAnalizadorAbierto&) = delete;

    // Runs the whole analysis and the review; true when the user accepted (as Aceptado). `SinRevision`: the
    // notary found is not put to the user. Throws ErrorWord and ErrorTabla; the progress window is closed on
    // every path and the results are then those gathered so far.
    bool Analiza(bool SinRevision);

    // The active document, or nullptr.
    [[nodiscard]] TWordDocumentoCustom* GetDocumento() const;

    // The token file for the deed: the Catalan one when "DAVANT MEU" is found and "ANTE MI" is not, else the
    // Castilian.
    [[nodiscard]] std::filesystem::path SeleccionaArchivoTokens();

    // ---- Results

    TComponente* Propietario;
    std::string Pizarra;                     // the report
    std::string Empleado;                    // the document variable EMPLEADO
    TListaOtorgantes Otorgantes;             // without duplicates; after the review, the user's choice
    TListaOtorgantes OtorgantesEncontrados;  // every mention, in the order found
    std::vector<std::string> Cuantias;
    std::vector<TOrigen> OrigenCuantias;       // one for each amount
    ListaTextos<TRConcepto> ConceptosValidos;  // accepted in the review
    std::vector<std::string> Fincas;
    TClassOperacion Operacion;
    TOrigenOperacion OrigenOperacion;
    int FinDocumento = 0;
    TClassParrafoCabecera Cabecera;

    // The sections' bounds, positions of the document: a section whose heading is missing begins at 0.
    std::optional<TMarcador> MarcadorCabecera;
    int FinCabecera = 0;
    int InicioComparecientes = 0;
    int FinComparecientes = 0;
    std::optional<TMarcador> MarcadorComparecientes;
    int InicioIntervinientes = 0;
    int FinIntervinientes = 0;
    std::optional<TMarcador> MarcadorIntervinientes;
    int InicioExponen = 0;
    int FinExponen = 0;
    std::optional<TMarcador> MarcadorExponen;
    std::optional<TMarcador> MarcadorTransmision;
    std::optional<TMarcador> MarcadorParteDeudora;

    bool Aceptado = false;
    TWordApplicationConDocumentos* WordApp;

    // ---- Stages, in the order in which Analiza runs them; the host has no need of them

    void InicializaAnalisis();
    void AnalizaCabecera(bool RevisarNotario);
    void AnalizaCuantias();
    void AnalizaComparecientes();
    void AnalizaIntervinientes();
    void AnalizaTransmision();
    void AnalizaParteDeudora();
    void AnalizaTestamento();
    void AnalizaPrestamo();
    void AnalizaFincas();
    void EliminaOtorgantesDuplicados();
    void RellenaPizarra();
    [[nodiscard]] bool ListaConceptosPreseleccionados();

    // Walks the recitals as if they introduced parties; not part of Analiza.
    void AnalizaExponen();

    [[nodiscard]] bool HayAlgunTipoTestamento() const;
    [[nodiscard]] bool HayAlgunTipoPrestamo() const;

    // ---- Sections

    void InicializaIntervalosParaLosMarcadores();
    // Each sets the start of its section and tells whether a heading was found.
    bool BuscarTokenComparecientes();
    bool BuscarTokenIntervinientes();
    bool BuscarTokenExponen();
    // Each leaves the paragraph that it found selected.
    bool BuscarTokenTransmision();
    bool BuscarTokenParteDeudora();

    void SeleccionaCabecera();
    void SeleccionaComparecientes();
    void SeleccionaIntervinientes();
    void SeleccionaExponen();
    bool SeleccionaTransmision();
    bool SeleccionaParteDeudora();

    void RecorreParrafosDeCabecera();
    void RecorreParrafosDeComparecientes();
    void RecorreParrafosDeIntervinientes();
    void RecorreParrafosDeExponen();
    void RecorreParrafoTransmision();

    // Each takes one paragraph and its number in the document.
    void DesglosaParrafoCabecera(std::string_view parrafo, int numero);
    void DesglosaParrafoComparecientes(std::string_view parrafo, int numero);
    void DesglosaParrafoRepresentacion(std::string_view parrafo, int numero);
    void DesglosaParrafoParteDeudora(std::string_view parrafo, int numero);

    // Each takes the text of the recitals, as the word processor gives it; the section must be selected.
    void DesglosaIntervaloTestamento(std::string_view texto, TROtorgante& otorgante);
    void DesglosaIntervaloPrestamo(std::string_view texto, TClassOperacion& operacion);

  private:
    // The active document; ErrorWord when there is none.
    [[nodiscard]] TWordDocumentoCustom& Documento() const;
};

}  // namespace analizador

#pragma once

// The preselection dialog without any toolkit: what it holds and how it behaves. A view shows it, tells it
// what the user does and draws what it then holds. Texts are Windows-1252.

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "dialogos/ListaSeleccion.h"
#include "dialogos/RejillaTipos.h"
#include "dialogos/Teclas.h"
#include "modelo/TRConcepto.h"
#include "modelo/TROtorgante.h"
#include "plataforma/Instalado.h"
#include "plataforma/ListaTextos.h"
#include "plataforma/Pantalla.h"

namespace analizador {

// Whether a party is proposed as valid: it has a document number of a known kind and an address, and is not
// in the stored XML yet.
[[nodiscard]] bool SeProponeOtorgante(const TROtorgante& otorgante);

// The controls that can have the focus, in its order; each has the name of its control.
enum class TControlPreseleccion {
    LBPosiblesConceptos,
    BMas,
    BMenos,
    LBConceptos,
    dbgTipos,
    eBusca,
    BMasBD,
    LBPosiblesOtorgantes,
    BMasOtor,
    BMenosOtor,
    LBOtorgantes,
    BDetallesOtorgante,
    SBPizarra,
    SPXML,
    BContinuar,
    BCancelar
};

// The pages of PCAnalizadorabierto.
enum class TPaginaPreseleccion { Informacion, XML };

// The dialog in which the user confirms which concepts and parties are valid. All its rows are copies of its
// own. A table that cannot be read after it was opened, a file that cannot be written and a report that no
// viewer shows are told in a message box and change nothing else.
class TFListaConceptosPreseleccionados {
  public:
    // `informe`: the report of the analysis; `xml`: what the host stored with the document, may be empty.
    // Loads the deed-types grid. Throws ErrorTabla.
    TFListaConceptosPreseleccionados(std::string informe, std::string xml);
    // Removes the XML file.
    ~TFListaConceptosPreseleccionados();
    TFListaConceptosPreseleccionados(const TFListaConceptosPreseleccionados&) = delete;
    TFListaConceptosPreseleccionados& operator=(const TFListaConceptosPreseleccionados&) = delete;

    // ---- What the session asks of it

    // Put copies of the session's concepts and parties into the lists of what was found; parties stand under
    // their MuestraOtorgante. The grid goes to the row whose "TIPO" is the first concept's name.
    void CargaListaPosiblesConceptos(const ListaTextos<TRConcepto>& lista);
    void CargaListaPosiblesOtorgantes(const ListaTextos<TROtorgante>& lista);

    // Moves the parties that are proposed from the list of those found to that of the valid ones.
    void SeleccionaTodosLosOtorgantesValidos();

    // Shows the dialog through the installed view until the user closes it; true when with "C&ontinuar".
    // Without a view: false, as if cancelled.
    [[nodiscard]] bool MuestraModal(TComponente* propietario);

    // Add what was chosen to the caller's lists: concepts with name and number only, parties with every field
    // but EnXML, under their NombreOtorgante.
    void RecogeListaConceptosValidos(ListaTextos<TRConcepto>& lista) const;
    void RecogeListaOtorgantesValidos(ListaTextos<TROtorgante>& lista) const;

    // ---- What it holds; a view reads it and sets selections and current rows as the user does. Every row
    // has its record.

    TListaSeleccion<TRConcepto> LBPosiblesConceptos;
    TListaSeleccion<TRConcepto> LBConceptos;
    TListaSeleccion<TROtorgante> LBPosiblesOtorgantes;
    TListaSeleccion<TROtorgante> LBOtorgantes;
    TRejillaTipos dbgTipos;

    // The report and the stored XML, as the session gave them.
    [[nodiscard]] const std::string& Informe() const { return informe_; }
    [[nodiscard]] const std::string& Xml() const { return xml_; }
    // The text of the search box.
    [[nodiscard]] const std::string& TextoBusca() const { return eBusca_; }
    [[nodiscard]] TControlPreseleccion Foco() const { return foco_; }
    [[nodiscard]] TPaginaPreseleccion Pagina() const { return pagina_; }
    // Whether the button of the XML is enabled, which is also whether its page is there.
    [[nodiscard]] bool XMLVisible() const { return xmlVisible_; }
    // The temporary file with the XML, in the encoding that it declares (Utf8DeXml reads it); empty before
    // the first activation, when there is none to show and when it could not be written.
    [[nodiscard]] const std::filesystem::path& FicheroXML() const { return ficheroXml_; }
    // True for a row that is drawn in italic: the party stands in the stored XML already.
    [[nodiscard]] static bool EnCursiva(const ListaTextos<TROtorgante>::Linea& linea);
    // Set once the dialog has to close: true for OK.
    [[nodiscard]] std::optional<bool> Resultado() const { return resultado_; }

    // ---- What the user does; the view hands it over and then shows what the dialog holds, sets the focus to
    // Foco() and closes when there is a Resultado()

    // The dialog comes to the front; only the first time counts.
    void FormActivate();
    // The focus went to a control, a page to the front.
    void PonFoco(TControlPreseleccion control);
    void PonPagina(TPaginaPreseleccion pagina);
    // A button was pressed: any of the controls that are buttons. It has the focus then; one that is disabled
    // does nothing.
    void Pulsa(TControlPreseleccion boton);
    // A key in a control; true when the dialog took it and the control must not see it. `desplegado`: a menu
    // or a list of the control is open.
    bool Tecla(TControlPreseleccion control, TTecla tecla, bool desplegado = false);
    // The text of the search box changed.
    void eBuscaChange(std::string texto);
    // A click on a column's title. The focus stays where it was when the table cannot be read.
    void ClicTitulo(TColumnaTipos columna);
    // Whether what is dragged from one control may be dropped on another, and the drop.
    [[nodiscard]] static bool AdmiteSoltar(TControlPreseleccion origen, TControlPreseleccion destino);
    void Suelta(TControlPreseleccion origen, TControlPreseleccion destino);
    // A double click in a party list, or the entry of its menu.
    void VerOtorgante(TControlPreseleccion lista);

  private:
    void AnadeConceptos();
    void AnadeConceptosBD();
    void AnadeOtorgantes();
    void EliminaConceptos();
    void EliminaConceptosBD();
    void EliminaOtorgantes();
    [[nodiscard]] bool BuscaTipo() const;
    bool TeclaBusca(TTecla tecla);
    bool TeclaLista(TControlPreseleccion lista, TTecla tecla);
    void BuscaEnTipos();
    [[nodiscard]] bool EscribeXML();
    void MuestraXML();
    void MuestraPizarra();

    std::string informe_;
    std::string xml_;
    std::string eBusca_;
    TControlPreseleccion foco_ = TControlPreseleccion::LBPosiblesConceptos;
    TControlPreseleccion listaConFoco_ = TControlPreseleccion::LBOtorgantes;
    TPaginaPreseleccion pagina_ = TPaginaPreseleccion::Informacion;
    bool primeraActivacion_ = true;
    bool xmlVisible_ = false;
    std::filesystem::path ficheroXml_;
    std::optional<bool> resultado_;
    TComponente* propietario_ = nullptr;
};

// What shows the dialog.
class TVistaPreseleccion {
  public:
    virtual ~TVistaPreseleccion() = default;
    // Returns when the dialog is closed: true for OK. Called on the thread that analyses.
    [[nodiscard]] virtual bool MuestraModal(TFListaConceptosPreseleccionados& dialogo,
                                            TComponente* propietario) = 0;
};

using InstalaVistaPreseleccion = Instalado<TVistaPreseleccion>;

}  // namespace analizador

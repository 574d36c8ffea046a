#pragma once

// The preselection dialog without any toolkit: what it holds and how it behaves. A view shows it. Texts are
// Windows-1252.

#include <string>
#include <string_view>

#include "modelo/TRConcepto.h"
#include "modelo/TROtorgante.h"
#include "plataforma/Instalado.h"
#include "plataforma/ListaTextos.h"
#include "plataforma/Pantalla.h"

namespace analizador {

// Whether a party is proposed as valid: it has a document number of a known kind and an address, and is not
// in the stored XML yet.
[[nodiscard]] bool SeProponeOtorgante(const TROtorgante& otorgante);

// The dialog in which the user confirms which concepts and parties are valid. All its rows are copies of its
// own.
class TFListaConceptosPreseleccionados {
  public:
    // `informe`: the report of the analysis; `xml`: what the host stored with the document, may be empty.
    TFListaConceptosPreseleccionados(std::string informe, std::string xml);

    // Put copies of the session's concepts and parties into the lists of what was found; parties stand under
    // their MuestraOtorgante.
    void CargaListaPosiblesConceptos(const ListaTextos<TRConcepto>& lista);
    void CargaListaPosiblesOtorgantes(const ListaTextos<TROtorgante>& lista);

    // Moves the parties that are proposed from the list of those found to that of the valid ones.
    void SeleccionaTodosLosOtorgantesValidos();

    // Add what was chosen to the caller's lists: concepts with name and number only, parties with every field
    // but EnXML, under their NombreOtorgante.
    void RecogeListaConceptosValidos(ListaTextos<TRConcepto>& lista) const;
    void RecogeListaOtorgantesValidos(ListaTextos<TROtorgante>& lista) const;

    // Shows the dialog through the installed view until the user closes it; true when with "C&ontinuar".
    // Without a view: false, as if cancelled.
    [[nodiscard]] bool MuestraModal(TComponente* propietario);

    const std::string Informe;
    const std::string Xml;
    ListaTextos<TRConcepto> LBPosiblesConceptos;
    ListaTextos<TRConcepto> LBConceptos;
    ListaTextos<TROtorgante> LBPosiblesOtorgantes;
    ListaTextos<TROtorgante> LBOtorgantes;
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

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "modelo/TRConcepto.h"
#include "plataforma/ListaTextos.h"
#include "rutinas/Tramo.h"

namespace analizador {

// Where each fact of the heading was read.
struct TOrigenCabecera {
    std::optional<TOrigen> NumeroProtocolo, Lugar, Fecha, Notario, NotarioSustituto;
    std::vector<TOrigen> Conceptos;  // one for each line of the concept list
};

// The facts of a deed's heading, gathered paragraph by paragraph. Texts are Windows-1252.
class TClassParrafoCabecera {
  public:
    ListaTextos<TRConcepto> Conceptos;  // under the concept's name; no two lines alike
    int NumeroProtocolo = 0;
    std::string Abreviatura;  // of the deed's town
    int Lugar = 0;            // code of the town; of no meaning while Abreviatura is empty
    std::string Fecha;        // "dd/mm/yyyy"
    std::string Notario;
    std::string NotarioSustituto;  // who signs in the notary's place
    TOrigenCabecera Origen;

    // Takes one paragraph and fills what is still missing, in a fixed order: protocol number, concepts, place
    // and date, notary. A paragraph that yields one of them is not searched for those that follow, and what
    // was found is never overwritten. `numero` is the paragraph's number in the document, kept as the facts'
    // origin. Throws ErrorTabla.
    void Desglosa(std::string_view parrafo, int numero = 0);

    // Looks for concepts in one more paragraph, whatever was found before. Throws ErrorTabla.
    void DesglosaConceptos(std::string_view parrafo, int numero);

    // Empties everything but Lugar, which stays the previous deed's.
    void Limpia();

    // Where the office has a list of notaries, lets the user choose among them, the one found being proposed,
    // else the office's default one. What the list shows as selected in the end becomes the notary, however
    // the dialog was closed; with nothing selected the notary stays. The substitute is not touched.
    void RevisaNotarioEnConvenio();

  private:
    [[nodiscard]] bool DesglosaNumero(std::string_view parrafo, int numero);
    [[nodiscard]] bool DesglosaLugarFecha(std::string_view parrafo, int numero);
    void DesglosaNotario(std::string_view parrafo, int numero);
};

}  // namespace analizador

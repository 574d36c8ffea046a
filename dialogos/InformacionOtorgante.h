#pragma once

// The party details dialog without any toolkit: what each control holds and how they behave. A view shows it,
// tells it what the user does and draws what it then holds. Texts are Windows-1252.

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dialogos/SelectorMunicipios.h"
#include "dialogos/Teclas.h"
#include "modelo/TROtorgante.h"
#include "plataforma/Instalado.h"
#include "plataforma/Pantalla.h"
#include "plataforma/Rvarias.h"

namespace analizador {

// The controls in the order of the focus; each has the name of its control.
enum class TControlDatos {
    CBSexo,
    ENombre,
    EApellidos,
    CBTipoDocumento,
    ENumDocumento,
    CBEstadoCivil,
    CBRegimen,
    EConyuge,
    CBPais_Naci,
    ELugar_Naci,
    CBProv_Naci,
    MEFecha_Naci,
    EPadre,
    EMadre,
    CBTipoVia,
    EDOMICILIO,
    ENUMERO,
    EVECINDAD,
    CBPROVINCIA,
    ECODPOSTAL,
    ECODINE,
    CBPais,
    ECodPais,
    CBNacionalid,
    CBRESIDENTE,
    BLISTA,
    CBIntervencion_VRK,
    CBIntervencion_INTI,
    BBAceptar,
    BBCancelar,
    BMarcar,
    BDesmarcar
};
inline constexpr std::size_t CONTROLES_DATOS = static_cast<std::size_t>(TControlDatos::BDesmarcar) + 1;

enum class TClaseControl { Caja, Fecha, ListaFija, ListaEditable, Marca, Boton };

// The parts of the layout, top to bottom.
enum class TGrupoDatos { Identificacion, Situacion, Domicilio, Intervencion, Barra };

// What is fixed about a control.
struct TDescripcionControl {
    TControlDatos Control;
    std::string_view Nombre;  // the control's name
    TClaseControl Clase;
    TGrupoDatos Grupo;
    std::string_view Rotulo;  // of the label beside it, or the text of the check box or button; may be empty
    std::string_view Pista;   // the hint; may be empty
    std::size_t Maximo = 0;   // how many characters can be typed; 0 where nothing limits them
    int FilasVisibles = 0;    // of an open list; 0 where nothing is said
};

// All controls, in the order of TControlDatos, and the title of each group.
[[nodiscard]] const std::array<TDescripcionControl, CONTROLES_DATOS>& ControlesDatos();
[[nodiscard]] std::string_view TituloGrupo(TGrupoDatos grupo);

// What a control holds.
struct TEstadoControl {
    std::string Texto;                   // of a box, the date and an editable list; of a fixed list its item
    std::vector<std::string> Elementos;  // of a list
    int Elegido = -1;                    // position of the selected item of a list, from 0; -1 none
    bool Marcado = false;                // of the check box
    bool Habilitado = true;              // its label likewise
    bool Visible = true;
    bool ConFoco = false;  // the mark of the control that has the focus
};

struct TTecleado {
    std::string Texto;
    std::size_t Cursor = 0;  // where the cursor goes, from 0
};

// The title of the dialog.
inline constexpr std::string_view TITULO_DATOS_LEIDOS = "Datos leidos";

// The date without a digit.
inline constexpr std::string_view FECHA_EN_BLANCO = "  /  /    ";

// The dialog "Datos leidos" over one party.
class TFInformacionOtorgante {
  public:
    // Keeps the record, which must outlive the dialog, fills the lists and loads the record. `hoy` decides
    // the century of years typed with two digits. Throws ErrorTabla.
    explicit TFInformacionOtorgante(TROtorgante& otorgante, TFecha hoy = Hoy());

    [[nodiscard]] const TEstadoControl& Control(TControlDatos control) const;
    [[nodiscard]] TControlDatos Foco() const { return foco_; }
    // Set once the dialog has to close: true for OK. The record is changed only by OK.
    [[nodiscard]] std::optional<bool> Resultado() const { return resultado_; }

    // ---- What the user does; the view hands it over and then shows what the dialog holds, sets the focus to
    // Foco() and closes when there is a Resultado()

    // What a box, the date or an editable list holds after the user typed: what was typed in capitals and cut
    // to the control's length, what was there before left as it was. `anterior`: the text before, `nuevo`:
    // after, `fin`: the position of the cursor in `nuevo`, hence the end of what was typed or pasted, from 0.
    // The date takes and gives the masked text, ten characters; digits that are typed overwrite.
    [[nodiscard]] static TTecleado AjustaTecleado(TControlDatos control, std::string_view anterior,
                                                  std::string_view nuevo, std::size_t fin);

    // The text of a box, the date or an editable list is now this one, as AjustaTecleado gave it.
    void Escribe(TControlDatos control, std::string texto);
    // An item of a list was chosen; a position that does not exist changes nothing.
    void Elige(TControlDatos control, int posicion);
    void Marca(bool marcado);  // CBRESIDENTE
    // The user moves the focus to another control of the dialog. The control left is checked first; Foco()
    // tells where the focus then is: false when it is not `destino`.
    bool PonFoco(TControlDatos destino);
    // A button was pressed in any way. The focus goes to it first; when the check of the control left refuses
    // that, the button does not act.
    void Pulsa(TControlDatos boton);

    enum class TRespuesta { NoEsMia, Tomada, AbreLista };
    // A key in a control. NoEsMia: the control does with it what it always does. AbreLista: the view opens
    // the control's list and the control does not see the key. `listaAbierta`: the control's list is open.
    TRespuesta Tecla(TControlDatos control, TTecla tecla, bool listaAbierta);
    // The next control (or the one before) that can have the focus, round again.
    [[nodiscard]] TControlDatos Siguiente(TControlDatos control, bool atras = false) const;
    // The window was closed by its cross or its menu.
    void Cierra();

  private:
    [[nodiscard]] TEstadoControl& Estado(TControlDatos control) {
        return controles_[static_cast<std::size_t>(control)];
    }

    void PreparaFormulario();
    void CargaProvinciasyPaises();
    void CargaTipo_Via();
    void CargaTipo_Int();

    void CargaOtorgante();
    void ActualizaOtorgante();
    [[nodiscard]] bool FechaTocada() const;

    [[nodiscard]] bool PuedeTenerFoco(TControlDatos control) const;
    void Selecciona(TControlDatos lista, int posicion);
    void PonTexto(TControlDatos control, std::string texto);
    void Cambiado(TControlDatos control);
    void Dejado(TControlDatos control);
    bool CompruebaFecha();
    void ListaINE();
    void TomaMunicipio(const TMunicipio& municipio);
    void Acepta();

    TROtorgante* otorgante_;
    TFecha hoy_;
    std::array<TEstadoControl, CONTROLES_DATOS> controles_;
    TControlDatos foco_ = TControlDatos::ENombre;
    std::optional<bool> resultado_;
};

// Shows the dialog over the active window and returns whether "&Actualizar" closed it; only then has the
// record been changed. Without an installed view: false. Throws ErrorTabla before anything is shown.
bool MuestraInformacionOtorgante(TComponente* propietario, TROtorgante& otorgante);

// What shows the dialog.
class TVistaInformacion {
  public:
    virtual ~TVistaInformacion() = default;
    // Returns when the dialog is closed.
    virtual void MuestraModal(TFInformacionOtorgante& dialogo, TComponente* propietario) = 0;
};

using InstalaVistaInformacion = Instalado<TVistaInformacion>;

}  // namespace analizador

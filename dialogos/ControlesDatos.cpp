#include "dialogos/InformacionOtorgante.h"
#include "plataforma/Ansi.h"

namespace analizador {

namespace {

using enum TControlDatos;
using enum TClaseControl;
using enum TGrupoDatos;

constexpr std::string_view PISTA_CODIGOS = "Pulse 'L' para acceder a la lista de municipios del I.N.E.";

constexpr std::array<TDescripcionControl, CONTROLES_DATOS> CONTROLES = {{
    {CBSexo, "CBSexo", ListaFija, Identificacion, "Sexo:", ""},
    {ENombre, "ENombre", Caja, Identificacion, "Nombre:", "Nombre del cliente", 40},
    {EApellidos, "EApellidos", Caja, Identificacion,
     "Apellidos:", "Apellidos del cliente o nombre de la sociedad", 60},
    {CBTipoDocumento, "CBTipoDocumento", ListaFija, Identificacion, "Tipo documento:", ""},
    {ENumDocumento, "ENumDocumento", Caja, Identificacion, "",
     "DNI sin puntos ni guiones para calcular la letra", 25},
    {CBEstadoCivil, "CBEstadoCivil", ListaFija, Situacion, "Estado civil:", ""},
    {CBRegimen, "CBRegimen", ListaFija, Situacion, "Régimen:"_ansi, ""},
    {EConyuge, "EConyuge", Caja, Situacion, "Conyuge:", "", 50},
    {CBPais_Naci, "CBPais_Naci", ListaFija, Situacion, "Nacido en:", ""},
    {ELugar_Naci, "ELugar_Naci", Caja, Situacion, "", "", 25},
    {CBProv_Naci, "CBProv_Naci", ListaFija, Situacion, "", ""},
    {MEFecha_Naci, "MEFecha_Naci", Fecha, Situacion, "Fecha Nac.:", "", FECHA_EN_BLANCO.size()},
    {EPadre, "EPadre", Caja, Situacion, "Padre:", "", 50},
    {EMadre, "EMadre", Caja, Situacion, "Madre:", "", 50},
    {CBTipoVia, "CBTipoVia", ListaFija, Domicilio, "Tipo de Vía:"_ansi, ""},
    {EDOMICILIO, "EDOMICILIO", Caja, Domicilio, "",
     "'IDEM' o 'I' para repetir el último domicilio introducido"_ansi, 100},
    {ENUMERO, "ENUMERO", Caja, Domicilio, "Número:"_ansi, "", 4},
    {EVECINDAD, "EVECINDAD", Caja, Domicilio, "Vecindad:", "", 25},
    {CBPROVINCIA, "CBPROVINCIA", ListaEditable, Domicilio, "Provincia:", ""},
    {ECODPOSTAL, "ECODPOSTAL", Caja, Domicilio, "Cod.Postal:", PISTA_CODIGOS, 5},
    {ECODINE, "ECODINE", Caja, Domicilio, "Código I.N.E.:"_ansi, PISTA_CODIGOS, 5},
    {CBPais, "CBPais", ListaEditable, Domicilio, "País:"_ansi, ""},
    {ECodPais, "ECodPais", Caja, Domicilio, "Código del país:"_ansi, "", 3},
    {CBNacionalid, "CBNacionalid", ListaFija, Domicilio, "Pais nacionalid:", ""},
    {CBRESIDENTE, "CBRESIDENTE", TClaseControl::Marca, Domicilio, "Reside fuera de España"_ansi, ""},
    {BLISTA, "BLISTA", Boton, Domicilio, "&Lista I.N.E.", ""},
    {CBIntervencion_VRK, "CBIntervencion_VRK", ListaFija, Intervencion, " Tipo de intervención "_ansi, ""},
    {CBIntervencion_INTI, "CBIntervencion_INTI", ListaFija, Intervencion,
     " Tipo de intervención para el índice único "_ansi, "", 0, 16},
    {BBAceptar, "BBAceptar", Boton, Barra, "&Actualizar", ""},
    {BBCancelar, "BBCancelar", Boton, Barra, "&Cancelar", ""},
    {BMarcar, "BMarcar", Boton, Barra, "&Marcar todos", ""},
    {BDesmarcar, "BDesmarcar", Boton, Barra, "&DesMarcar todos", ""},
}};

}  // namespace

const std::array<TDescripcionControl, CONTROLES_DATOS>& ControlesDatos() {
    return CONTROLES;
}

std::string_view TituloGrupo(TGrupoDatos grupo) {
    switch (grupo) {
        case Identificacion:
            return "Identifiación "_ansi;
        case Situacion:
            return "Situación personal"_ansi;
        case TGrupoDatos::Domicilio:
            return "Domicilio";
        case Intervencion:
            return "Intervención"_ansi;
        case Barra:
            break;
    }
    return {};
}

}  // namespace analizador

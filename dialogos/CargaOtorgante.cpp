#include <algorithm>
#include <initializer_list>
#include <memory>

#include "dialogos/InformacionOtorgante.h"
#include "plataforma/Ansi.h"
#include "plataforma/Confnvx.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Ruttb.h"

namespace analizador {

namespace {

using enum TControlDatos;

constexpr int SIN_INTERVENCION_INTI = 99;
constexpr int PROVINCIA = 1;  // values of PROVIN's GRUPO
constexpr int PAIS = 2;
constexpr int CIFRAS_PROVINCIA = 2;
constexpr std::string_view SEPARADOR_CODIGO = " [";
constexpr std::string_view SEPARADOR_VIA = " - ";

// The controls that hold a field of the record as it is.

struct TCampoTexto {
    TControlDatos Control;
    std::string TROtorgante::*Campo;
};

constexpr std::array<TCampoTexto, 12> CAJAS = {{{ENombre, &TROtorgante::Nombre},
                                                {EApellidos, &TROtorgante::Apellidos},
                                                {ENumDocumento, &TROtorgante::NumDocumento},
                                                {EConyuge, &TROtorgante::Conyuge},
                                                {ELugar_Naci, &TROtorgante::LugarNacimiento},
                                                {EPadre, &TROtorgante::Padre},
                                                {EMadre, &TROtorgante::Madre},
                                                {EDOMICILIO, &TROtorgante::Domicilio},
                                                {ENUMERO, &TROtorgante::Numero},
                                                {EVECINDAD, &TROtorgante::Vecindad},
                                                {ECODPOSTAL, &TROtorgante::CodPostal},
                                                {ECODINE, &TROtorgante::CodINE}}};

constexpr std::array<TCampoTexto, 3> LISTAS_DE_NOMBRES = {{{CBNacionalid, &TROtorgante::Nacionalidad},
                                                           {CBPais_Naci, &TROtorgante::PaisNacimiento},
                                                           {CBProv_Naci, &TROtorgante::ProvinciaNacimiento}}};

struct TCampoCodigo {
    TControlDatos Control;
    int TROtorgante::*Campo;
};

constexpr std::array<TCampoCodigo, 4> LISTAS_DE_CODIGOS = {
    {{CBTipoDocumento, &TROtorgante::TipoDocumento},
     {CBEstadoCivil, &TROtorgante::EstadoCivil},
     {CBRegimen, &TROtorgante::Regimen},
     {CBIntervencion_VRK, &TROtorgante::IntervencionVRK}}};

std::vector<std::string> Textos(std::initializer_list<std::string_view> textos) {
    return {textos.begin(), textos.end()};
}

std::unique_ptr<TTabla> Abre(std::string_view fichero, std::string_view indice) {
    return CreaTabla(Config().GetAliasNorvex(), fichero, indice, true, false);
}

std::string ConCodigo(const std::string& nombre, std::string_view codigo) {
    return nombre + std::string(SEPARADOR_CODIGO).append(codigo) + "]";
}

// Position of the first item that contains the text; 0 when none does.
int PosicionQueContiene(const std::vector<std::string>& elementos, std::string_view texto) {
    const auto donde = std::find_if(elementos.begin(), elementos.end(), [&](const std::string& elemento) {
        return elemento.find(texto) != std::string::npos;
    });
    return donde == elementos.end() ? 0 : static_cast<int>(donde - elementos.begin());
}

// The item of a list that shows a name with its code: none for an empty name.
int PosicionDeNombre(const std::vector<std::string>& elementos, const std::string& nombre) {
    return nombre.empty() ? -1 : PosicionQueContiene(elementos, nombre + std::string(SEPARADOR_CODIGO));
}

int PosicionDeSexo(std::string_view sexo) {
    constexpr std::string_view SEXOS = "HMS";  // in the order of the list, after its empty item
    return sexo.empty() ? 0 : Pos(sexo.substr(0, 1), SEXOS);
}

// What stands before the separator, trimmed; nothing when there is none.
std::string HastaSeparador(std::string_view texto, std::string_view separador) {
    const std::size_t donde = texto.find(separador);
    return donde == std::string_view::npos ? std::string() : std::string(Recorta(texto.substr(0, donde)));
}

// A day that the mask cannot show is left out of it.
std::string TextoFecha(const std::optional<TFecha>& fecha) {
    if (!fecha) return std::string(FECHA_EN_BLANCO);
    std::string texto = Fecha_Cad(*fecha);
    return texto.size() == FECHA_EN_BLANCO.size() ? texto : std::string(FECHA_EN_BLANCO);
}

}  // namespace

void TFInformacionOtorgante::PreparaFormulario() {
    Estado(CBSexo).Elementos = Textos({"", "H.- Hombre", "M.- Mujer", "S.- Sociedad"});
    Estado(CBTipoDocumento).Elementos =
        Textos({"", "1.- N.I.F.", "2.- C.I.F.", "3.- N.I.E.", "4.- Pasaporte", "5.- Otros"});
    Estado(CBEstadoCivil).Elementos =
        Textos({"", "CA.- Casado.", "CS.- Casado en segundas nupcias", "DI.- Divorciado",
                "SJ.- Separado judicial", "SO.- Soltero", "VI.- Viudo", "PH.- Parejas de hecho"});
    Estado(CBRegimen).Elementos = Textos(
        {"", "G.- Gananciales", "S.- Separación de bienes"_ansi, "P.- Participación"_ansi, "O.- Otros"});
    Estado(CBIntervencion_VRK).Elementos = Textos(
        {"0.- En su nombre.", "1.- En representación de"_ansi, "2.- Por sí y en representación de"_ansi,
         "3.- Mandatario verbal.", "4.- Los dos en representación de"_ansi, "5.- Representado.",
         "6.- Por sí y mandatario verbal"_ansi});
    CargaProvinciasyPaises();
    CargaTipo_Via();
    CargaTipo_Int();
}

void TFInformacionOtorgante::CargaProvinciasyPaises() {
    const auto tabla = Abre("PROVIN.DBF", "ALFABETICO");
    for (; !tabla->Fin(); tabla->Siguiente()) {
        const std::string nombre = tabla->Texto("PROVINCIA");
        const std::string codigo = tabla->Texto("CODIGO");
        const int grupo = tabla->Entero("GRUPO");
        if (grupo == PROVINCIA) {
            Estado(CBPROVINCIA).Elementos.push_back(ConCodigo(nombre, StrRight(codigo, CIFRAS_PROVINCIA)));
            Estado(CBProv_Naci).Elementos.push_back(nombre);
        } else if (grupo == PAIS) {
            Estado(CBPais).Elementos.push_back(ConCodigo(nombre, codigo));
            Estado(CBNacionalid).Elementos.push_back(nombre);
            Estado(CBPais_Naci).Elementos.push_back(nombre);
        }
    }
}

void TFInformacionOtorgante::CargaTipo_Via() {
    auto& elementos = Estado(CBTipoVia).Elementos;
    elementos.emplace_back();
    const auto tabla = Abre("TIPO_VIA.DBF", "CODIGO");
    for (; !tabla->Fin(); tabla->Siguiente())
        elementos.push_back(tabla->Texto("CODIGO") + std::string(SEPARADOR_VIA) + tabla->Texto("NOMBRE"));
}

// The empty item stands for the code 0, so a row of that code would put every other one out of its place.
void TFInformacionOtorgante::CargaTipo_Int() {
    auto& elementos = Estado(CBIntervencion_INTI).Elementos;
    elementos.emplace_back();
    const auto tabla = Abre("TIPO_INT.DBF", "CODIGO");
    for (; !tabla->Fin(); tabla->Siguiente())
        if (tabla->Entero("CODIGO") != 0) elementos.push_back(tabla->Texto("DESCRIPCIO"));
}

void TFInformacionOtorgante::CargaOtorgante() {
    for (const auto& [control, campo] : CAJAS) Estado(control).Texto = otorgante_->*campo;
    for (const auto& [control, campo] : LISTAS_DE_CODIGOS) Selecciona(control, otorgante_->*campo);
    for (const auto& [control, campo] : LISTAS_DE_NOMBRES) {
        const auto& elementos = Estado(control).Elementos;
        const auto donde = std::find(elementos.begin(), elementos.end(), otorgante_->*campo);
        if (donde != elementos.end()) Selecciona(control, static_cast<int>(donde - elementos.begin()));
    }
    Selecciona(CBSexo, PosicionDeSexo(otorgante_->Sexo));
    Selecciona(CBPROVINCIA, PosicionDeNombre(Estado(CBPROVINCIA).Elementos, otorgante_->Provincia));
    Selecciona(CBPais, PosicionDeNombre(Estado(CBPais).Elementos, otorgante_->Pais));
    const auto& vias = Estado(CBTipoVia).Elementos;
    const std::string& via = otorgante_->TipoVia;
    Selecciona(CBTipoVia, via.empty() ? 0 : PosicionQueContiene(vias, via + std::string(SEPARADOR_VIA)));
    const int inti = otorgante_->IntervencionINTI;
    const int ultima = static_cast<int>(Estado(CBIntervencion_INTI).Elementos.size()) - 1;
    Selecciona(CBIntervencion_INTI, inti == SIN_INTERVENCION_INTI ? ultima : inti);
    Estado(CBRESIDENTE).Marcado = !otorgante_->Residente;
    Estado(ECodPais).Texto = Int_Cad(otorgante_->CodPais);
    Estado(MEFecha_Naci).Texto = TextoFecha(otorgante_->FechaNacimiento);
}

void TFInformacionOtorgante::ActualizaOtorgante() {
    TROtorgante& o = *otorgante_;
    // What nobody typed in stays byte for byte; what was typed is stored trimmed, as records are.
    for (const auto& [control, campo] : CAJAS)
        if (const std::string& texto = Control(control).Texto; texto != o.*campo) o.*campo = Recorta(texto);
    // A code that its list lacks selected nothing and is kept.
    for (const auto& [control, campo] : LISTAS_DE_CODIGOS)
        if (const int elegido = Control(control).Elegido; elegido >= 0) o.*campo = elegido;
    for (const auto& [control, campo] : LISTAS_DE_NOMBRES) o.*campo = Control(control).Texto;
    o.Sexo = Control(CBSexo).Texto.substr(0, 1);
    o.Provincia = HastaSeparador(Control(CBPROVINCIA).Texto, SEPARADOR_CODIGO);
    o.Pais = HastaSeparador(Control(CBPais).Texto, SEPARADOR_CODIGO);
    o.TipoVia = HastaSeparador(Control(CBTipoVia).Texto, SEPARADOR_VIA);
    o.Residente = !Control(CBRESIDENTE).Marcado;
    o.CodPais = Cad_Int(Control(ECodPais).Texto);
    const TEstadoControl& inti = Control(CBIntervencion_INTI);
    if (inti.Elegido >= 0) {
        const bool ultima = inti.Elegido + 1 == static_cast<int>(inti.Elementos.size());
        o.IntervencionINTI = ultima ? SIN_INTERVENCION_INTI : inti.Elegido;
    }
    if (FechaTocada()) o.FechaNacimiento = VerificaFecha(Control(MEFecha_Naci).Texto, hoy_);
}

bool TFInformacionOtorgante::FechaTocada() const {
    return Control(MEFecha_Naci).Texto != TextoFecha(otorgante_->FechaNacimiento);
}

void TFInformacionOtorgante::TomaMunicipio(const TMunicipio& municipio) {
    Estado(EVECINDAD).Texto = municipio.Nombre;
    Estado(ECODINE).Texto = municipio.CodINE;
    Estado(ECODPOSTAL).Texto = municipio.CodPostal;
    PonTexto(CBPROVINCIA, ConCodigo(municipio.Provincia, StrRight(municipio.CodProvincia, CIFRAS_PROVINCIA)));
}

}  // namespace analizador

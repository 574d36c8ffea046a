#include "dialogos/InformacionOtorgante.h"

#include <algorithm>
#include <utility>

#include "plataforma/Mensaje.h"
#include "plataforma/Ruttb.h"

namespace analizador {

namespace {

using enum TControlDatos;

constexpr int MUJER = 2;  // item of CBSexo
constexpr std::size_t CIFRAS_PAIS = 3;

const TDescripcionControl& Descripcion(TControlDatos control) {
    return ControlesDatos()[static_cast<std::size_t>(control)];
}

bool EsLista(TControlDatos control) {
    const TClaseControl clase = Descripcion(control).Clase;
    return clase == TClaseControl::ListaFija || clase == TClaseControl::ListaEditable;
}

bool HayCifra(std::string_view texto) {
    return texto.find_first_of("0123456789") != std::string_view::npos;
}

// The country's code in the text of its list.
std::string CodigoDePais(std::string_view texto) {
    const std::size_t corchete = texto.find('[');
    if (corchete == std::string_view::npos) return {};
    return std::string(texto.substr(corchete + 1, CIFRAS_PAIS));
}

}  // namespace

TFInformacionOtorgante::TFInformacionOtorgante(TROtorgante& otorgante, TFecha hoy)
    : otorgante_(&otorgante), hoy_(hoy) {
    Estado(BMarcar).Visible = false;
    Estado(BDesmarcar).Visible = false;
    PreparaFormulario();
    CargaOtorgante();
    Estado(foco_).ConFoco = true;
}

const TEstadoControl& TFInformacionOtorgante::Control(TControlDatos control) const {
    return controles_[static_cast<std::size_t>(control)];
}

bool TFInformacionOtorgante::PuedeTenerFoco(TControlDatos control) const {
    return Control(control).Visible && Control(control).Habilitado;
}

// ---- Contents

void TFInformacionOtorgante::Selecciona(TControlDatos lista, int posicion) {
    TEstadoControl& estado = Estado(lista);
    const bool existe = posicion >= 0 && posicion < static_cast<int>(estado.Elementos.size());
    estado.Elegido = existe ? posicion : -1;
    estado.Texto = existe ? estado.Elementos[static_cast<std::size_t>(posicion)] : std::string();
}

void TFInformacionOtorgante::PonTexto(TControlDatos control, std::string texto) {
    TEstadoControl& estado = Estado(control);
    estado.Texto = std::move(texto);
    if (!EsLista(control)) return;
    const auto donde = std::find(estado.Elementos.begin(), estado.Elementos.end(), estado.Texto);
    estado.Elegido =
        donde == estado.Elementos.end() ? -1 : static_cast<int>(donde - estado.Elementos.begin());
}

void TFInformacionOtorgante::Escribe(TControlDatos control, std::string texto) {
    PonTexto(control, std::move(texto));
    Cambiado(control);
}

void TFInformacionOtorgante::Elige(TControlDatos control, int posicion) {
    if (posicion < 0 || posicion >= static_cast<int>(Control(control).Elementos.size())) return;
    Selecciona(control, posicion);
    Cambiado(control);
}

void TFInformacionOtorgante::Marca(bool marcado) {
    Estado(CBRESIDENTE).Marcado = marcado;
}

// It keys on the woman's item, not on the company's.
void TFInformacionOtorgante::Cambiado(TControlDatos control) {
    if (control == CBSexo) Estado(ENombre).Habilitado = Control(CBSexo).Elegido != MUJER;
    if (control == CBPais) Estado(ECodPais).Texto = CodigoDePais(Control(CBPais).Texto);
}

// ---- Focus

TControlDatos TFInformacionOtorgante::Siguiente(TControlDatos control, bool atras) const {
    const std::size_t paso = atras ? CONTROLES_DATOS - 1 : 1;
    auto i = static_cast<std::size_t>(control);
    do i = (i + paso) % CONTROLES_DATOS;
    while (!PuedeTenerFoco(static_cast<TControlDatos>(i)));
    return static_cast<TControlDatos>(i);
}

bool TFInformacionOtorgante::PonFoco(TControlDatos destino) {
    if (destino == foco_) return true;
    if (!PuedeTenerFoco(destino)) return false;
    if (foco_ == MEFecha_Naci && destino != BBCancelar && !CompruebaFecha()) return false;
    Dejado(foco_);
    foco_ = destino;
    Estado(foco_).ConFoco = true;
    return true;
}

void TFInformacionOtorgante::Dejado(TControlDatos control) {
    Estado(control).ConFoco = false;
    if (control == CBSexo && Control(CBSexo).Elegido == MUJER) Estado(ENombre).Texto.clear();
}

// Writes a valid date in its full form; says that an invalid one is wrong and gives false.
bool TFInformacionOtorgante::CompruebaFecha() {
    std::string& texto = Estado(MEFecha_Naci).Texto;
    if (!HayCifra(texto)) return true;
    const auto fecha = VerificaFecha(texto, hoy_);
    if (fecha)
        texto = Fecha_Cad(*fecha);
    else
        Mensajes(TITULO_ATENCION, "La fecha introducida no es correcta");
    return fecha.has_value();
}

// ---- Buttons and keys

void TFInformacionOtorgante::Pulsa(TControlDatos boton) {
    if (!PonFoco(boton)) return;
    if (boton == BBAceptar) Acepta();
    if (boton == BBCancelar) Cierra();
    if (boton == BLISTA) ListaINE();
}

// A wrong date can have been left by way of "&Cancelar", which checks nothing.
void TFInformacionOtorgante::Acepta() {
    if (FechaTocada() && !CompruebaFecha()) {
        PonFoco(MEFecha_Naci);
        return;
    }
    ActualizaOtorgante();
    resultado_ = true;
}

// A dialog that OK has closed stays so: its record has been changed.
void TFInformacionOtorgante::Cierra() {
    if (!resultado_) resultado_ = false;
}

void TFInformacionOtorgante::ListaINE() {
    try {
        const auto municipio =
            IMunicipios({Control(ECODPOSTAL).Texto, Control(ECODINE).Texto, Control(EVECINDAD).Texto});
        if (municipio) TomaMunicipio(*municipio);
    } catch (const ErrorTabla& error) {
        Mensajes(TITULO_ATENCION, error.what());
    }
}

TFInformacionOtorgante::TRespuesta TFInformacionOtorgante::Tecla(TControlDatos control, TTecla tecla,
                                                                 bool listaAbierta) {
    if (listaAbierta) return TRespuesta::NoEsMia;
    switch (tecla) {
        case TTecla::Intro:
            PonFoco(Siguiente(control));
            return TRespuesta::Tomada;
        case TTecla::Escape:
            Cierra();
            return TRespuesta::Tomada;
        case TTecla::Arriba:
        case TTecla::Abajo:
            return EsLista(control) ? TRespuesta::AbreLista : TRespuesta::NoEsMia;
        default:
            return TRespuesta::NoEsMia;
    }
}

bool MuestraInformacionOtorgante(TComponente* propietario, TROtorgante& otorgante) {
    TFInformacionOtorgante dialogo(otorgante);
    auto* const vista = InstalaVistaInformacion::Actual();
    if (vista == nullptr) return false;
    vista->MuestraModal(dialogo, propietario);
    return dialogo.Resultado().value_or(false);
}

}  // namespace analizador

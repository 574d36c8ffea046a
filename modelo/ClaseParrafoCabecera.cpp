#include "modelo/ClaseParrafoCabecera.h"

#include "plataforma/Confnvx.h"
#include "plataforma/Rnumcad.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

void TClassParrafoCabecera::Desglosa(std::string_view parrafo, int numero) {
    if (NumeroProtocolo == 0 && DesglosaNumero(parrafo, numero)) return;
    if (Conceptos.Vacia()) {
        DesglosaConceptos(parrafo, numero);
        if (!Conceptos.Vacia()) return;
    }
    if (Abreviatura.empty() && Fecha.empty() && DesglosaLugarFecha(parrafo, numero)) return;
    if (Notario.empty()) DesglosaNotario(parrafo, numero);
}

void TClassParrafoCabecera::DesglosaConceptos(std::string_view parrafo, int numero) {
    for (const Tramo& tramo : BuscaConceptos(parrafo, Conceptos)) Origen.Conceptos.push_back({numero, tramo});
}

bool TClassParrafoCabecera::DesglosaNumero(std::string_view parrafo, int numero) {
    const auto hallado = BuscaNumeroProtocolo(parrafo);
    if (hallado.Valor == 0) return false;
    NumeroProtocolo = hallado.Valor;
    Origen.NumeroProtocolo = {numero, hallado.Donde};
    return true;
}

bool TClassParrafoCabecera::DesglosaLugarFecha(std::string_view parrafo, int numero) {
    const TLugarFecha hallados = BuscaLugarFecha(parrafo);
    if (hallados.Lugar) {
        Lugar = hallados.Lugar->Valor.Codigo;
        Abreviatura = hallados.Lugar->Valor.Abreviatura;
        Origen.Lugar = {numero, hallados.Lugar->Donde};
    }
    if (hallados.Fecha) {
        Fecha = hallados.Fecha->Valor;
        Origen.Fecha = {numero, hallados.Fecha->Donde};
    }
    return !Abreviatura.empty() && !Fecha.empty();
}

void TClassParrafoCabecera::DesglosaNotario(std::string_view parrafo, int numero) {
    const TNotario hallado = BuscaNotario(parrafo);
    // A later heading paragraph without a notary must not erase the substitute found in an earlier one.
    if (hallado.Notario.Valor.empty() && hallado.Sustituto.Valor.empty()) return;
    Notario = hallado.Notario.Valor;
    NotarioSustituto = hallado.Sustituto.Valor;
    Origen.Notario = Notario.empty() ? std::nullopt : std::optional(TOrigen{numero, hallado.Notario.Donde});
    Origen.NotarioSustituto =
        NotarioSustituto.empty() ? std::nullopt : std::optional(TOrigen{numero, hallado.Sustituto.Donde});
}

void TClassParrafoCabecera::Limpia() {
    NumeroProtocolo = 0;
    Abreviatura.clear();
    Fecha.clear();
    Notario.clear();
    NotarioSustituto.clear();
    Conceptos.Limpia();
    Origen = {};
}

void TClassParrafoCabecera::RevisaNotarioEnConvenio() {
    if (Config().GetnCuantos() <= 0) return;
    auto* const creador = InstalaSeleccionaNotario::Actual();
    if (creador == nullptr) return;
    const auto dialogo = creador->Crea();
    dialogo->PonTitulo("Seleccione el notario: ");
    dialogo->Selecciona(Cad_Int(Config().GetNotarioPorDefecto()) - 1);
    const auto& entradas = dialogo->Entradas();
    for (std::size_t i = 0; i < entradas.size(); ++i)
        if (entradas[i] == Notario) dialogo->Selecciona(static_cast<int>(i));
    dialogo->MuestraModal();
    const int elegida = dialogo->Seleccionada();
    if (elegida < 0 || elegida >= static_cast<int>(entradas.size())) return;
    const std::string& nombre = entradas[static_cast<std::size_t>(elegida)];
    if (nombre != Notario) Origen.Notario.reset();  // chosen, not read
    Notario = nombre;
}

}  // namespace analizador

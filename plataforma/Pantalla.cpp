#include "plataforma/Pantalla.h"

namespace analizador {

std::unique_ptr<TVentanaMensaje> MuestraMensaje(std::string_view texto, TComponente* propietario) {
    TPantalla* pantalla = InstalaPantalla::Actual();
    return pantalla != nullptr ? pantalla->Abre(texto, propietario) : nullptr;
}

void CambiaMensaje(std::string_view texto, TVentanaMensaje* ventana) {
    if (ventana != nullptr) ventana->Cambia(texto);
}

void CierraMensaje(std::unique_ptr<TVentanaMensaje>& ventana) {
    ventana.reset();
}

}  // namespace analizador

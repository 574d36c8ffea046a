#include <algorithm>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "rutinas/Buscador.h"
#include "rutinas/RutAnalizador.h"
#include "rutinas/TextoSin.h"
#include "rutinas/Tratamiento.h"

namespace analizador {

namespace {

constexpr std::size_t NADA = std::string_view::npos;

// What joins the parents, with the blank in front of it.
std::string_view Conector() {
    return EsCastellano() ? " Y" : " I";
}

// Parents as views into the text searched.
struct TNombresPadres {
    std::string_view Padre;
    std::string_view Madre;
};

std::size_t FinDeMadre(std::string_view texto) {
    const int punto = PosicionPunto(texto);
    return std::min(texto.find(','), punto == 0 ? texto.size() : static_cast<std::size_t>(punto) - 1);
}

std::string_view NombreDeMadre(std::string_view texto) {
    return SinTratamientoInicial(Recorta(texto.substr(0, FinDeMadre(texto))));
}

std::string_view NombreDePadre(std::string_view texto) {
    const std::string_view nombre = SinTratamientoInicial(Recorta(texto));
    return nombre.ends_with(Conector()) ? nombre.substr(0, nombre.size() - Conector().size()) : nombre;
}

// Without any form of address only the connector tells one from the other.
TNombresPadres PadresSinTratamiento(std::string_view texto) {
    const std::string conector = std::string(Conector()) + " ";
    const std::size_t corte = texto.find(conector);
    if (corte == NADA) return {NombreDePadre(texto.substr(0, FinDeMadre(texto))), {}};
    return {Recorta(texto.substr(0, corte)), NombreDeMadre(texto.substr(corte + conector.size()))};
}

// Where the form of address asked for from `desde` stands in the text, and where the text goes on behind it.
struct TSitio {
    std::size_t Principio;
    std::size_t Fin;
};

TSitio SitioDe(const TTratamiento& tratamiento, std::size_t desde) {
    const std::size_t principio = desde + static_cast<std::size_t>(tratamiento.Posicion) - 1;
    return {principio, principio + tratamiento.Tratamiento.size()};
}

TNombresPadres BuscaNombres(std::string_view texto, std::size_t desde) {
    const TBuscadorTratamientos tratamientos(texto);
    const TTratamiento primero = tratamientos.Desde(desde);
    if (primero.Posicion == 0) return PadresSinTratamiento(texto.substr(desde));
    const std::size_t padre = SitioDe(primero, desde).Fin;
    const TTratamiento segundo = tratamientos.Desde(padre);
    std::size_t fin = std::min(texto.find(',', padre), texto.size());
    if (segundo.Posicion == 0) return {NombreDePadre(texto.substr(padre, fin - padre)), {}};
    const TSitio sitio = SitioDe(segundo, padre);
    fin = std::min(fin, sitio.Principio);
    return {NombreDePadre(texto.substr(padre, fin - padre)), NombreDeMadre(texto.substr(sitio.Fin))};
}

}  // namespace

TPadres BuscaPadres(std::string_view parrafo) {
    const TTextoSin limpio(Pliega(parrafo), "\t\r\n");
    const std::string_view texto = limpio.Texto();
    TBuscadorEntradas frases("PADRES", texto);
    const auto frase = frases.MasALaIzquierda();
    if (!frase) return {};
    const std::size_t desde = texto.size() - RecortaIzquierda(texto.substr(frase->Fin())).size();
    const TNombresPadres nombres = BuscaNombres(texto, desde);
    return {{std::string(nombres.Padre), limpio.Original(nombres.Padre)},
            {std::string(nombres.Madre), limpio.Original(nombres.Madre)}};
}

}  // namespace analizador

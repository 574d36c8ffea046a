#include "programas/analiza/SeccionesVocabulario.h"

#include <algorithm>
#include <array>

#include "plataforma/Ansi.h"

namespace analizador {

namespace {

using enum TModoSeccion;

constexpr bool ENTRE_LIMITES = false;  // not inside longer words
constexpr bool DONDE_SEA = true;
constexpr bool SALTA_UNO = true;

constexpr std::array SECCIONES = {
    TSeccionVocabulario{"COMPARECIENTES", Titulo, ENTRE_LIMITES, false, "", "título de los comparecientes"},
    TSeccionVocabulario{"INTERVINIENTES", Titulo, ENTRE_LIMITES, false, "", "título de la intervención"},
    TSeccionVocabulario{"EXPONEN", Titulo, ENTRE_LIMITES, false, "", "título de la exposición"},
    TSeccionVocabulario{"TRANSMISION", PrimeraDeLaLista, DONDE_SEA, false, "", "verbo de la transmisión"},
    TSeccionVocabulario{"PARTE DEUDORA", PrimeraPalabra, ENTRE_LIMITES, false, "", "parte deudora"},
    TSeccionVocabulario{"NUMEROS", PalabraIgual, ENTRE_LIMITES, false, "", "palabras de los números"},
    TSeccionVocabulario{"NIF", UltimasMasALaIzquierda, DONDE_SEA, false, "", "clase del documento"},
    TSeccionVocabulario{"NIE", UltimasMasALaIzquierda, DONDE_SEA, false, "", "clase del documento"},
    TSeccionVocabulario{"PASAPORTE", UltimasMasALaIzquierda, DONDE_SEA, false, "", "clase del documento"},
    TSeccionVocabulario{"NOTARIO DE", BastaUna, DONDE_SEA, false, "", "el que sigue es un notario"},
    TSeccionVocabulario{"HOMBRE", Tratamiento, ENTRE_LIMITES, false, "tratamiento", "tratamiento de hombre"},
    TSeccionVocabulario{"MUJER", Tratamiento, ENTRE_LIMITES, false, "tratamiento", "tratamiento de mujer"},
    TSeccionVocabulario{"REPRESENTACION", MasALaIzquierda, DONDE_SEA, false, "", "a quién se representa"},
    TSeccionVocabulario{"DOMICILIO", PrimeraDeLaLista, DONDE_SEA, false, "", "dónde empieza la calle"},
    TSeccionVocabulario{"NUMERO", MasALaIzquierda, DONDE_SEA, SALTA_UNO, "", "número de calle o protocolo"},
    TSeccionVocabulario{"VECINDAD", PrimeraDeLaLista, DONDE_SEA, SALTA_UNO, "", "dónde empieza el municipio"},
    TSeccionVocabulario{"CALLE", MasALaIzquierda, DONDE_SEA, SALTA_UNO, "vía", "clase de vía"},
    TSeccionVocabulario{"PLAZA", MasALaIzquierda, DONDE_SEA, SALTA_UNO, "vía", "clase de vía"},
    TSeccionVocabulario{"AVENIDA", MasALaIzquierda, DONDE_SEA, SALTA_UNO, "vía", "clase de vía"},
    TSeccionVocabulario{"TRAVESIA", MasALaIzquierda, DONDE_SEA, SALTA_UNO, "vía", "clase de vía"},
    TSeccionVocabulario{"URBANIZACION", MasALaIzquierda, DONDE_SEA, SALTA_UNO, "vía", "clase de vía"},
    TSeccionVocabulario{"RONDA", MasALaIzquierda, DONDE_SEA, SALTA_UNO, "vía", "clase de vía"},
    TSeccionVocabulario{"PASEO", MasALaIzquierda, DONDE_SEA, SALTA_UNO, "vía", "clase de vía"},
    TSeccionVocabulario{"GLORIETA", MasALaIzquierda, DONDE_SEA, SALTA_UNO, "vía", "clase de vía"},
    TSeccionVocabulario{"FINCA", MasALaIzquierda, DONDE_SEA, SALTA_UNO, "vía", "clase de vía"},
    TSeccionVocabulario{"CARRETERA", MasALaIzquierda, DONDE_SEA, SALTA_UNO, "vía", "clase de vía"},
    TSeccionVocabulario{"COLONIA", MasALaIzquierda, DONDE_SEA, SALTA_UNO, "vía", "clase de vía"},
    TSeccionVocabulario{"RAMBLA", MasALaIzquierda, DONDE_SEA, SALTA_UNO, "vía", "clase de vía"},
    TSeccionVocabulario{"CASADO EN SEGUNDAS NUPCIAS", BastaUna, DONDE_SEA, false, "estado civil",
                        "estado civil"},
    TSeccionVocabulario{"DIVORCIADO", BastaUna, DONDE_SEA, false, "estado civil", "estado civil"},
    TSeccionVocabulario{"SOLTERO", BastaUna, DONDE_SEA, false, "estado civil", "estado civil"},
    TSeccionVocabulario{"VIUDO", BastaUna, DONDE_SEA, false, "estado civil", "estado civil"},
    TSeccionVocabulario{"PAREJA DE HECHO", BastaUna, DONDE_SEA, false, "estado civil", "estado civil"},
    TSeccionVocabulario{"SEPARADO", BastaUna, DONDE_SEA, false, "estado civil", "estado civil"},
    TSeccionVocabulario{"CASADO", BastaUna, DONDE_SEA, false, "estado civil", "estado civil"},
    TSeccionVocabulario{"GANANCIALES", BastaUna, DONDE_SEA, false, "régimen", "régimen del matrimonio"},
    TSeccionVocabulario{"SEPARACION DE BIENES", BastaUna, DONDE_SEA, false, "régimen",
                        "régimen del matrimonio"},
    TSeccionVocabulario{"PARTICIPACION", BastaUna, DONDE_SEA, false, "régimen", "régimen del matrimonio"},
    TSeccionVocabulario{"EURO", TodasPorPosicion, DONDE_SEA, false, "", "moneda, tras la cantidad"},
    TSeccionVocabulario{"MESES", PrimeraDeLaLista, DONDE_SEA, false, "", "meses de las fechas"},
    TSeccionVocabulario{"ANTE MI", MasALaIzquierda, DONDE_SEA, SALTA_UNO, "", "notario autorizante"},
    TSeccionVocabulario{"SUSTITUTO", BastaUna, DONDE_SEA, false, "", "el notario actúa por otro"},
    TSeccionVocabulario{"LUGAR NACIMIENTO", MasALaIzquierda, DONDE_SEA, false, "", "lugar de nacimiento"},
    TSeccionVocabulario{"FECHA NACIMIENTO", MasALaIzquierda, DONDE_SEA, false, "", "fecha de nacimiento"},
    TSeccionVocabulario{"PADRES", MasALaIzquierda, DONDE_SEA, false, "", "padres"},
    TSeccionVocabulario{"EXTRANJEROS", BastaUna, DONDE_SEA, false, "", "reside fuera"},
    TSeccionVocabulario{"MES", TodasPorLista, DONDE_SEA, false, "", "plazos de un préstamo"},
    TSeccionVocabulario{"PORCENTAJE", TodasPorLista, DONDE_SEA, false, "", "tipos de un préstamo"},
    TSeccionVocabulario{"EURIBOR", BastaUna, DONDE_SEA, false, "índice", "índice de un préstamo"},
    TSeccionVocabulario{"IRPH", BastaUna, DONDE_SEA, false, "índice", "índice de un préstamo"},
    TSeccionVocabulario{"CECA", BastaUna, DONDE_SEA, false, "índice", "índice de un préstamo"},
};

}  // namespace

std::span<const TSeccionVocabulario> SeccionesVocabulario() {
    return SECCIONES;
}

const TSeccionVocabulario* SeccionVocabulario(std::string_view nombre) {
    const std::string buscada = AnsiUpperCase(nombre);
    const auto donde = std::ranges::find(SECCIONES, buscada, &TSeccionVocabulario::Nombre);
    return donde == SECCIONES.end() ? nullptr : &*donde;
}

std::string_view TextoDeModo(TModoSeccion modo) {
    switch (modo) {
        case Titulo:
            return "al principio del párrafo";
        case PrimeraDeLaLista:
            return "la primera de la lista";
        case PrimeraPalabra:
            return "la primera de la lista, palabra entera";
        case MasALaIzquierda:
            return "la de más a la izquierda";
        case Tratamiento:
            return "entre blancos, la de más a la izquierda";
        case UltimasMasALaIzquierda:
            return "de las últimas, la de más a la izquierda";
        case BastaUna:
            return "basta una";
        case TodasPorPosicion:
            return "todas, por su posición";
        case TodasPorLista:
            return "todas, por el orden de la lista";
        case PalabraIgual:
            return "palabras iguales";
    }
    return "";
}

}  // namespace analizador

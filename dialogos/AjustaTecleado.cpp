#include <algorithm>

#include "dialogos/InformacionOtorgante.h"
#include "plataforma/Ansi.h"

namespace analizador {

namespace {

// What typing did to a text: the characters [Primero, Fin) of it were replaced by `Tecleado`.
struct TCambio {
    std::size_t Primero;
    std::size_t Fin;
    std::string_view Tecleado;
};

// What was typed ends at the cursor, so that the change is found also between equal letters.
TCambio Cambio(std::string_view anterior, std::string_view nuevo, std::size_t cursor) {
    cursor = std::min(cursor, nuevo.size());
    const std::size_t corto = std::min(anterior.size(), nuevo.size());
    std::size_t cola = 0;
    while (cola < std::min(corto, nuevo.size() - cursor) &&
           anterior[anterior.size() - 1 - cola] == nuevo[nuevo.size() - 1 - cola])
        ++cola;
    std::size_t cabeza = 0;
    while (cabeza < corto - cola && anterior[cabeza] == nuevo[cabeza]) ++cabeza;
    return {cabeza, anterior.size() - cola, nuevo.substr(cabeza, nuevo.size() - cola - cabeza)};
}

// A pasted line end or TAB becomes a blank: boxes hold one line.
std::string SinControles(std::string texto) {
    std::replace_if(
        texto.begin(), texto.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return texto;
}

bool EsBarra(std::size_t posicion) {
    return FECHA_EN_BLANCO[posicion] == '/';
}

// Clears the positions [primero, fin) of the masked date.
void Borra(std::string& fecha, std::size_t primero, std::size_t fin) {
    for (std::size_t i = primero; i < fin; ++i) fecha[i] = FECHA_EN_BLANCO[i];
}

// Puts the characters into the masked date from a position on, over what is there: a digit goes to the next
// place for one, "/" passes to the next part, a blank clears. Returns the position after them.
std::size_t PonEnMascara(std::string& fecha, std::size_t donde, std::string_view tecleado) {
    for (const char c : tecleado) {
        if (c == '/') {
            const std::size_t barra = fecha.find('/', donde);
            if (barra != std::string::npos) donde = barra + 1;
            continue;
        }
        if (c != ' ' && (c < '0' || c > '9')) continue;
        if (donde < fecha.size() && EsBarra(donde)) ++donde;
        if (donde < fecha.size()) fecha[donde++] = c;
    }
    return donde;
}

TTecleado AjustaFecha(std::string_view anterior, const TCambio& cambio) {
    TTecleado ajustado{std::string(anterior), 0};
    Borra(ajustado.Texto, cambio.Primero, cambio.Fin);
    ajustado.Cursor = PonEnMascara(ajustado.Texto, cambio.Primero, cambio.Tecleado);
    return ajustado;
}

TTecleado AjustaCaja(std::string_view anterior, const TCambio& cambio, std::size_t maximo) {
    const std::size_t queda = anterior.size() - (cambio.Fin - cambio.Primero);
    std::string tecleado = SinControles(AnsiUpperCase(cambio.Tecleado));
    if (maximo > 0) tecleado.resize(std::min(tecleado.size(), maximo - std::min(maximo, queda)));
    TTecleado ajustado{std::string(anterior), cambio.Primero + tecleado.size()};
    ajustado.Texto.replace(cambio.Primero, cambio.Fin - cambio.Primero, tecleado);
    return ajustado;
}

}  // namespace

TTecleado TFInformacionOtorgante::AjustaTecleado(TControlDatos control, std::string_view anterior,
                                                 std::string_view nuevo, std::size_t fin) {
    const TDescripcionControl& descripcion = ControlesDatos()[static_cast<std::size_t>(control)];
    const TCambio cambio = Cambio(anterior, nuevo, fin);
    if (descripcion.Clase == TClaseControl::Fecha) return AjustaFecha(anterior, cambio);
    return AjustaCaja(anterior, cambio, descripcion.Maximo);
}

}  // namespace analizador

#include "adaptadores/docx/MarcadoresPedidos.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <string>

#include "adaptadores/docx/FalloDocx.h"
#include "adaptadores/docx/PuntosInsercion.h"
#include "plataforma/Ansi.h"

namespace analizador {

namespace {

constexpr std::size_t LONGITUD_MAXIMA = 40;  // the word processor's own

using TMarcadoresPorNombre = std::map<std::string, TMarcador>;  // by the name in upper case

bool TieneControl(const std::string& texto) {
    return std::ranges::any_of(texto, [](char c) { return static_cast<unsigned char>(c) < ' '; });
}

void ExigeValido(const TMarcador& marcador, std::size_t longitud) {
    const auto& [nombre, intervalo] = marcador;
    if (nombre.empty()) throw FalloDocx("un marcador no tiene nombre");
    if (TieneControl(nombre)) throw FalloDocx("el nombre de un marcador tiene caracteres de control");
    const auto citado = "el marcador " + NombreCitado(Utf8DeAnsi(nombre)) + " ";
    if (nombre.size() > LONGITUD_MAXIMA) throw FalloDocx(citado + "tiene un nombre demasiado largo");
    if (intervalo.Inicio < 0 || intervalo.Inicio > intervalo.Fin ||
        static_cast<std::size_t>(intervalo.Fin) > longitud)
        throw FalloDocx(citado + "queda fuera del texto");
}

TIntervalo IntervaloPosible(const TLecturaDocx& lectura, TIntervalo intervalo) {
    const auto posible = [&](int posicion, bool haciaDelante) {
        return PosicionPosible(lectura.Composicion, lectura.Sucesos, posicion, haciaDelante);
    };
    const int inicio = posible(intervalo.Inicio, false);
    const bool vacio = intervalo.Inicio == intervalo.Fin;
    return {inicio, vacio ? inicio : posible(intervalo.Fin, true)};
}

TMarcadoresPorNombre PorNombre(const std::vector<TMarcador>& marcadores) {
    TMarcadoresPorNombre porNombre;
    for (const auto& marcador : marcadores)
        porNombre.insert_or_assign(AnsiUpperCase(marcador.Nombre), marcador);
    return porNombre;
}

}  // namespace

std::vector<TMarcador> MarcadoresQueCambian(const TLecturaDocx& lectura,
                                            const std::vector<TMarcador>& pedidos) {
    const auto presentes = PorNombre(lectura.Composicion.Marcadores);
    std::vector<TMarcador> cambios;
    for (auto& [clave, pedido] : PorNombre(pedidos)) {
        const auto presente = presentes.find(clave);
        if (presente != presentes.end() && presente->second == pedido) continue;
        ExigeValido(pedido, lectura.Composicion.Texto.size());
        cambios.push_back({pedido.Nombre, IntervaloPosible(lectura, pedido.Intervalo)});
    }
    return cambios;
}

bool EsElMismoConMarcadores(const TContenidoDocumento& nuevo, const TContenidoDocumento& anterior,
                            const std::vector<TMarcador>& cambios) {
    auto esperados = PorNombre(anterior.Marcadores);
    for (const auto& [clave, marcador] : PorNombre(cambios)) esperados.insert_or_assign(clave, marcador);
    return nuevo.Texto == anterior.Texto && nuevo.Variables == anterior.Variables &&
           PorNombre(nuevo.Marcadores) == esperados;
}

}  // namespace analizador

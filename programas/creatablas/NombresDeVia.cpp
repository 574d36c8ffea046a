#include "programas/creatablas/NombresDeVia.h"

#include <algorithm>
#include <array>
#include <span>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"

namespace analizador {

namespace {

constexpr std::size_t NADA = std::string_view::npos;

// What the recogniser of addresses drops behind the street type, the first that fits and only once.
constexpr std::array<std::string_view, 5> INICIOS = {"DEL ", "DE ", "LA ", "LOS ", "EL "};
constexpr std::array<std::string_view, 6> INICIOS_CATALANES = {"DEL ", "DE ", "LA ", "ELS ", "DELS ", "EL "};

// Words that the street map writes behind the name: OLIVOS (LOS), CORUÑA, A.
constexpr std::array<std::string_view, 24> POSPUESTAS = {
    "EL", "LA", "LOS", "LAS", "L'", "ELS", "LES",  "LO",    "ES",     "SA",     "SES",    "A",
    "O",  "AS", "OS",  "DEL", "DE", "D'",  "DELS", "DE LA", "DE LOS", "DE LAS", "DE LES", "DE L'"};

std::string Limpia(std::string_view texto) {
    std::string limpio;
    for (const char c : Pliega(Recorta(texto)))
        if (c != ' ' || (!limpio.empty() && limpio.back() != ' ')) limpio += c;
    return limpio;
}

bool EsPospuesta(std::string_view palabra) {
    return std::find(POSPUESTAS.begin(), POSPUESTAS.end(), palabra) != POSPUESTAS.end();
}

std::string Antepone(std::string_view palabra, std::string_view nombre) {
    return std::string(palabra) + (palabra.ends_with('\'') ? "" : " ") + std::string(nombre);
}

// "OLIVOS (LOS)" and "OLIVOS, LOS" as "LOS OLIVOS".
std::string ConArticuloDelante(std::string nombre) {
    const bool parentesis = nombre.ends_with(')');
    const std::size_t signo = parentesis ? nombre.rfind('(') : nombre.rfind(',');
    if (signo == NADA || signo == 0) return nombre;
    const std::string_view detras = std::string_view(nombre).substr(signo + 1);
    const std::string_view palabra = Recorta(parentesis ? detras.substr(0, detras.size() - 1) : detras);
    const std::string_view resto = RecortaDerecha(std::string_view(nombre).substr(0, signo));
    if (resto.empty() || !EsPospuesta(palabra)) return nombre;
    return Antepone(palabra, resto);
}

std::string_view SinInicio(std::string_view nombre, std::span<const std::string_view> inicios) {
    const auto inicio =
        std::find_if(inicios.begin(), inicios.end(), [&](auto p) { return nombre.starts_with(p); });
    return inicio == inicios.end() ? nombre : RecortaIzquierda(nombre.substr(inicio->size()));
}

bool EmpiezaPorVocal(std::string_view nombre) {
    constexpr std::string_view VOCALES = "AEIOUH\xCF\xDC";  // I and U with dieresis too
    return !nombre.empty() && VOCALES.find(nombre.front()) != NADA;
}

class TLista {
  public:
    void Pon(std::string nombre) {
        if (!nombre.empty() && std::find(nombres_.begin(), nombres_.end(), nombre) == nombres_.end())
            nombres_.push_back(std::move(nombre));
    }
    [[nodiscard]] std::vector<std::string> Nombres() && { return std::move(nombres_); }

  private:
    std::vector<std::string> nombres_;
};

std::vector<std::string> NombresConTipo(std::string_view base, bool catalana) {
    TLista lista;
    if (!base.starts_with("EL ")) lista.Pon(std::string(base));
    lista.Pon(std::string(SinInicio(base, INICIOS)));
    lista.Pon(std::string(SinInicio(base, INICIOS_CATALANES)));
    if (catalana && EmpiezaPorVocal(base)) lista.Pon(Antepone("D'", base));
    return std::move(lista).Nombres();
}

std::vector<std::string> NombresConPalabra(std::string_view palabra, std::string_view base, bool catalana) {
    const std::string delante = std::string(palabra) + " ";
    TLista lista;
    lista.Pon(delante + std::string(base));
    lista.Pon(delante +
              (base.starts_with("EL ") ? "DEL " + std::string(base.substr(3)) : "DE " + std::string(base)));
    if (catalana && EmpiezaPorVocal(base)) lista.Pon(delante + Antepone("D'", base));
    return std::move(lista).Nombres();
}

bool EsCodigo(std::string_view tipo) {
    return std::find(CONST_TIPO_VIA.begin(), CONST_TIPO_VIA.end(), tipo) != CONST_TIPO_VIA.end();
}

// A street that bears its type as the first word of the name.
TNombresVia DeLaPrimeraPalabra(const std::string& nombre, bool catalana, const TDisenoCallejero& diseno) {
    const std::size_t blanco = nombre.find(' ');
    std::string_view palabra = std::string_view(nombre).substr(0, blanco);
    if (palabra.ends_with('.')) palabra.remove_suffix(1);
    const std::string_view tipo = diseno.Tipo(palabra);
    if (blanco == NADA || !EsCodigo(tipo)) {
        if (nombre.empty()) return {};
        return {"", {nombre}};
    }
    const std::string_view base =
        SinInicio(std::string_view(nombre).substr(blanco + 1), std::span(INICIOS).first(2));
    return {std::string(tipo), NombresConTipo(base, catalana)};
}

}  // namespace

TNombresVia NombresDeVia(std::string_view tipo, std::string_view nombre, bool catalana,
                         const TDisenoCallejero& diseno) {
    const std::string entero = ConArticuloDelante(Limpia(nombre));
    const std::string plegado = Limpia(tipo);
    if (plegado.empty() || plegado == ".") return DeLaPrimeraPalabra(entero, catalana, diseno);
    const std::string_view base = SinInicio(entero, std::span(INICIOS).first(2));
    if (base.empty()) return {};
    const std::string_view dicho = diseno.Tipo(plegado);
    if (EsCodigo(dicho)) return {std::string(dicho), NombresConTipo(base, catalana)};
    return {"", NombresConPalabra(dicho.empty() ? std::string_view(plegado) : dicho, base, catalana)};
}

std::vector<std::string> NombresDeMunicipio(std::string_view nombre) {
    TLista lista;
    const std::string plegado = Limpia(nombre);
    std::string_view resto = plegado;
    while (!resto.empty()) {
        const std::size_t barra = std::min(resto.find('/'), resto.size());
        lista.Pon(ConArticuloDelante(std::string(Recorta(resto.substr(0, barra)))));
        resto.remove_prefix(std::min(barra + 1, resto.size()));
    }
    return std::move(lista).Nombres();
}

}  // namespace analizador

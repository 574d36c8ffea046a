#include "pruebas/generador/Gramatica.h"

#include <array>
#include <cstdlib>
#include <stdexcept>

namespace analizador::pruebas {

namespace {

constexpr std::string_view LETRAS_NIF = "TRWAGMYFPDXBNJZSQVHLCKE";

// The digits in one of the shapes in which deeds write them.
std::string ConPuntos(TAzar& azar, const std::string& digitos) {
    if (digitos.size() != 8 || azar.UnaDe(2)) return digitos;
    return digitos.substr(0, 2) + "." + digitos.substr(2, 3) + "." + digitos.substr(5);
}

std::string Digitos(TAzar& azar, std::size_t cuantos) {
    std::string digitos;
    while (digitos.size() < cuantos) digitos += static_cast<char>('0' + azar.Entre(0, 9));
    return digitos;
}

// The letter of the number, one time in thirty another one.
std::string LetraDe(TAzar& azar, int numero) {
    const auto desvio = azar.UnaDe(30) ? 1U : 0U;
    return {LETRAS_NIF[(static_cast<std::size_t>(numero) + desvio) % LETRAS_NIF.size()]};
}

std::string Guion(TAzar& azar) {
    static const std::vector<std::string> GUIONES = {"-", "-", "", " ", "/"};
    return azar.Elige(GUIONES);
}

std::string Nif(TAzar& azar) {
    const std::string digitos = Digitos(azar, azar.UnaDe(6) ? 7 : 8);
    return ConPuntos(azar, digitos) + Guion(azar) + LetraDe(azar, std::atoi(digitos.c_str()));
}

std::string Nie(TAzar& azar) {
    const std::uint32_t primera = azar.Entre(0, 2);
    const std::string digitos = Digitos(azar, 7);
    const int numero = std::atoi((std::to_string(primera) + digitos).c_str());
    return std::string(1, "XYZ"[primera]) + Guion(azar) + digitos + Guion(azar) + LetraDe(azar, numero);
}

std::string Cif(TAzar& azar) {
    const std::string digitos = Digitos(azar, 7);
    int suma = 0;
    for (std::size_t i = 0; i < digitos.size(); ++i) {
        const int cifra = (digitos[i] - '0') * (i % 2 == 0 ? 2 : 1);
        suma += cifra / 10 + cifra % 10;
    }
    const int control = (10 - suma % 10 + (azar.UnaDe(30) ? 1 : 0)) % 10;
    return std::string(1, azar.UnaDe(2) ? 'A' : 'B') + Guion(azar) + digitos + std::to_string(control);
}

}  // namespace

TGramatica::TGramatica(std::string_view reglas) {
    std::vector<std::string>* abierto = nullptr;
    while (!reglas.empty()) {
        const auto fin = reglas.find('\n');
        const std::string_view linea = reglas.substr(0, fin);
        reglas.remove_prefix(fin == std::string_view::npos ? reglas.size() : fin + 1);
        if (linea.empty()) continue;
        if (linea.front() == ':')
            abierto = &simbolos_[std::string(linea.substr(1))];
        else if (abierto != nullptr)
            abierto->emplace_back(linea);
    }
}

const std::vector<std::string>& TGramatica::Alternativas(std::string_view simbolo) const {
    const auto donde = simbolos_.find(simbolo);
    if (donde == simbolos_.end()) throw std::out_of_range("no rule for {" + std::string(simbolo) + "}");
    return donde->second;
}

std::string TExpansion::Expande(std::string_view simbolo) {
    std::string texto = ExpandeTexto(azar_.Elige(gramatica_.Alternativas(simbolo)));
    if (simbolo == "varon" || simbolo == "mujer") conocidos_.push_back(texto);
    return texto;
}

std::string TExpansion::ExpandeTexto(std::string_view texto) {
    std::string hecho;
    while (!texto.empty()) {
        const auto abre = texto.find('{');
        hecho += texto.substr(0, abre);
        if (abre == std::string_view::npos) break;
        const auto cierra = texto.find('}', abre);
        hecho += ExpandeLlave(texto.substr(abre + 1, cierra - abre - 1));
        texto.remove_prefix(cierra + 1);
    }
    return hecho;
}

std::string TExpansion::ExpandeLlave(std::string_view llave) {
    if (llave.empty()) return {};
    if (llave == "nif") return Nif(azar_);
    if (llave == "nie") return Nie(azar_);
    if (llave == "cif") return Cif(azar_);
    if (llave == "conocido") return Conocido();
    const auto guion = llave.find('-');
    if (guion == std::string_view::npos) return Expande(llave);
    const auto numero = [](std::string_view digitos) {
        return static_cast<std::uint32_t>(std::stoul(std::string(digitos)));
    };
    return std::to_string(azar_.Entre(numero(llave.substr(0, guion)), numero(llave.substr(guion + 1))));
}

std::string TExpansion::Conocido() {
    if (conocidos_.empty()) return Expande(azar_.UnaDe(2) ? "varon" : "mujer");
    return azar_.Elige(conocidos_);
}

}  // namespace analizador::pruebas
